#pragma once

#include <memory>

#include <zelplatform/export.h>
#include <zelplatform/logging/log_sink.h>

namespace spdlog
{
class logger;
}

namespace logging
{

/// Hands entries to a logger of spdlog as "[section] text". Control characters of the text are spelled out as `\n`,
/// `\t` or `\xNN`, so that an entry stays one line whatever outside text it quotes.
class ZELPLATFORM_API spdlog_sink : public ILogSink
{
public:
    /// Throws when the pointer is empty.
    explicit spdlog_sink(std::shared_ptr<spdlog::logger> logger);
    ~spdlog_sink() override;

    /// Logs at the level of the entry; throws what the logger throws.
    void write(const Entry& entry) override;

private:
    std::shared_ptr<spdlog::logger> m_logger;
};

} // namespace logging
