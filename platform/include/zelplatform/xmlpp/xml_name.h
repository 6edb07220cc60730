#pragma once

#include <string>

namespace xmlpp
{

/// The name of an element or attribute as an argument: a terminated text that outlives the call. Built from a literal
/// or a string without a copy.
class CXmlName
{
public:
    /// The terminated text; it is not copied.
    CXmlName(const char* text) noexcept : m_text(text) {}
    CXmlName(const std::string& text) noexcept : m_text(text.c_str()) {}

    /// The text as it was given.
    const char* c_str() const noexcept { return m_text; }

private:
    const char* m_text;
};

} // namespace xmlpp
