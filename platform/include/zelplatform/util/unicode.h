#pragma once

#include <string>
#include <string_view>
#include <utility>

#include <zelplatform/export.h>

class CUniString;

/// A text in UTF-8. Its bytes are not checked until they are converted.
class ZELPLATFORM_API CUtf8String
{
public:
    CUtf8String() = default;

    /// These bytes, unchecked.
    CUtf8String(std::string text) : m_text(std::move(text)) {}
    CUtf8String(const char* text) : m_text(text) {}

    /// Throws when a character is a surrogate or above U+10FFFF.
    static CUtf8String FromWide(const CUniString& text);

    /// The bytes as they were given.
    const std::string& str() const noexcept { return m_text; }

    friend bool operator==(const CUtf8String& a, const CUtf8String& b) noexcept { return a.m_text == b.m_text; }
    friend bool operator!=(const CUtf8String& a, const CUtf8String& b) noexcept { return !(a == b); }

    /// Byte by byte.
    friend bool operator<(const CUtf8String& a, const CUtf8String& b) noexcept { return a.m_text < b.m_text; }

private:
    std::string m_text;
};

/// A text of wide characters, one for each code point. They are not checked until they are converted.
class ZELPLATFORM_API CUniString
{
public:
    CUniString() = default;

    /// These characters, unchecked.
    explicit CUniString(std::wstring text) : m_text(std::move(text)) {}

    /// Throws on bytes that are not well-formed UTF-8: cut or overlong sequences, surrogates, values above U+10FFFF.
    static CUniString FromUtf8(const CUtf8String& text);

    /// The same of bytes that are of another text. Takes memory once, for the result, when all of them are well-formed.
    static CUniString FromUtf8Bytes(std::string_view bytes);

    /// The characters as they were given.
    const std::wstring& str() const noexcept { return m_text; }

    /// Overwrites the characters and leaves the text empty, for one that may hold a secret.
    void Erase() noexcept;

    friend bool operator==(const CUniString& a, const CUniString& b) noexcept { return a.m_text == b.m_text; }
    friend bool operator!=(const CUniString& a, const CUniString& b) noexcept { return !(a == b); }

    /// Character by character.
    friend bool operator<(const CUniString& a, const CUniString& b) noexcept { return a.m_text < b.m_text; }

private:
    std::wstring m_text;
};
