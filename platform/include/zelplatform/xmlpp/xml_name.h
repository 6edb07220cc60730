#pragma once

#include <cstring>
#include <string>

namespace xmlpp
{

/// The name of an element or attribute as an argument: a terminated text that outlives the call. Built from a literal
/// or a string without a copy.
class CXmlName
{
public:
    CXmlName(const char* text) noexcept : m_text(text), m_size(std::strlen(text)) {}
    CXmlName(const std::string& text) noexcept : m_text(text.c_str()), m_size(text.size()) {}

    const char* c_str() const noexcept { return m_text; }
    std::size_t size() const noexcept { return m_size; }

private:
    const char* m_text;
    std::size_t m_size;
};

} // namespace xmlpp
