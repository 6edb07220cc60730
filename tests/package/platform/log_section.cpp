#include <zelplatform/logging/log_section.h>

#include <iostream>
#include <utility>

#include <zelplatform/util/text.h>

namespace logging
{
namespace
{

void write(const std::string& section, const std::string& text)
{
    std::cerr << "stand-in: " << section << ": " << text << '\n';
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
    write(m_name, text);
}

void log_section_t::warn(const std::string& text)
{
    write(m_name, text);
}

void log_section_t::warn(const std::string& format, const std::string& a1, const std::exception& cause)
{
    write(m_name, withContext(format, a1, cause));
}

void log_section_t::err(const std::string& text)
{
    write(m_name, text);
}

void log_section_t::err(const std::exception& cause)
{
    write(m_name, cause.what());
}

void log_section_t::err(const std::string& format, const std::string& a1, const std::exception& cause)
{
    write(m_name, withContext(format, a1, cause));
}

} // namespace logging
