#include <zelplatform/logging/spdlog_sink.h>

#include <string_view>
#include <utility>

#include <spdlog/spdlog.h>

#include <zelplatform/exc/exc.h>

namespace logging
{
namespace
{

std::string spelledOut(std::string_view text)
{
    constexpr std::string_view HexDigits = "0123456789ABCDEF";
    std::string line;
    line.reserve(text.size());
    for (const char c : text)
    {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\n')
            line += "\\n";
        else if (c == '\t')
            line += "\\t";
        else if (byte < 0x20)
            line.append("\\x").append(1, HexDigits[byte / 16]).append(1, HexDigits[byte % 16]);
        else
            line += c;
    }
    return line;
}

spdlog::level::level_enum levelOf(ELevel level) noexcept
{
    switch (level)
    {
    case ELevel::Info: return spdlog::level::info;
    case ELevel::Warn: return spdlog::level::warn;
    case ELevel::Error: break;
    }
    return spdlog::level::err;
}

} // namespace

spdlog_sink::spdlog_sink(std::shared_ptr<spdlog::logger> logger) : m_logger(std::move(logger))
{
    if (!m_logger)
        throw exc::CRuntimeExc("Log sink needs a logger.");
}

spdlog_sink::~spdlog_sink() = default;

void spdlog_sink::write(const Entry& entry)
{
    m_logger->log(levelOf(entry.level), "{}", spelledOut("[" + entry.section + "] " + entry.text));
}

} // namespace logging
