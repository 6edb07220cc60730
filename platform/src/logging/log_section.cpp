#include <zelplatform/logging/log_section.h>

#include <utility>

#include <zelplatform/logging/log_sink.h>
#include <zelplatform/util/text.h>

namespace logging
{
namespace
{

void write(const std::string& section, ELevel level, const std::string& text)
{
    if (const auto sink = current_sink())
        sink->write({section, level, text});
}

std::string withContext(const std::string& format, const std::string& a1, const std::exception& cause)
{
    return util::str_format(format, a1) + " " + cause.what();
}

} // namespace

ILogSection::~ILogSection() = default;

log_section_t::log_section_t(std::string name) : m_name(std::move(name)) {}

log_section_t::~log_section_t() = default;

void log_section_t::info(const std::string& text)
{
    write(m_name, ELevel::Info, text);
}

void log_section_t::warn(const std::string& text)
{
    write(m_name, ELevel::Warn, text);
}

void log_section_t::warn(const std::string& format, const std::string& a1, const std::exception& cause)
{
    write(m_name, ELevel::Warn, withContext(format, a1, cause));
}

void log_section_t::err(const std::string& text)
{
    write(m_name, ELevel::Error, text);
}

void log_section_t::err(const std::exception& cause)
{
    write(m_name, ELevel::Error, cause.what());
}

void log_section_t::err(const std::string& format, const std::string& a1, const std::exception& cause)
{
    write(m_name, ELevel::Error, withContext(format, a1, cause));
}

} // namespace logging
