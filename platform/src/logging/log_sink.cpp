#include <zelplatform/logging/log_sink.h>

#include <utility>

namespace logging
{
namespace
{

// Never destroyed, on purpose: sections log until the last library is unloaded.
std::shared_ptr<ILogSink>& slot()
{
    static auto& sink = *new std::shared_ptr<ILogSink>();
    return sink;
}

} // namespace

ILogSink::~ILogSink() = default;

void set_sink(std::shared_ptr<ILogSink> sink) noexcept
{
    std::atomic_store(&slot(), std::move(sink));
}

std::shared_ptr<ILogSink> current_sink() noexcept
{
    return std::atomic_load(&slot());
}

} // namespace logging
