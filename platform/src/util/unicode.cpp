#include <zelplatform/util/unicode.h>

#include <algorithm>
#include <array>
#include <cstddef>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/memory.h>

static_assert(sizeof(wchar_t) == 4, "a wide character holds a code point");

namespace
{

constexpr char32_t LastCodePoint = 0x10FFFF;

bool isCodePoint(char32_t code) noexcept
{
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    return code <= LastCodePoint && !isSurrogate;
}

/// The lead byte's fixed bits and their mask, and the least code point of sequences of that length.
struct Form
{
    unsigned lead;
    unsigned mask;
    char32_t least;
};

constexpr std::array<Form, 4> Forms{{{0x00, 0x80, 0}, {0xC0, 0xE0, 0x80}, {0xE0, 0xF0, 0x800}, {0xF0, 0xF8, 0x10000}}};

// Most texts are ASCII: these characters are the same in both forms.
template <class Text>
auto asciiEnd(const Text& text)
{
    return std::find_if(text.begin(), text.end(), [](auto c) { return c < 0 || c > 0x7F; });
}

[[noreturn]] void failUtf8()
{
    throw exc::CRuntimeExc("Text is not valid UTF-8.");
}

/// Takes the first character off the bytes, which are not empty.
char32_t takeCharacter(std::string_view& bytes)
{
    const auto lead = static_cast<unsigned char>(bytes.front());
    const auto* const form =
        std::find_if(Forms.begin(), Forms.end(), [&](const Form& f) { return (lead & f.mask) == f.lead; });
    const auto size = static_cast<std::size_t>(form - Forms.begin()) + 1;
    if (form == Forms.end() || size > bytes.size())
        failUtf8();
    char32_t code = lead & ~form->mask;
    for (std::size_t i = 1; i < size; ++i)
    {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        if ((byte & 0xC0U) != 0x80U)
            failUtf8();
        code = code << 6 | (byte & 0x3FU);
    }
    if (code < form->least || !isCodePoint(code))
        failUtf8();
    bytes.remove_prefix(size);
    return code;
}

} // namespace

CUtf8String CUtf8String::FromWide(const CUniString& text)
{
    const std::wstring& characters = text.str();
    auto character = asciiEnd(characters);
    std::string bytes(characters.begin(), character);
    for (; character != characters.end(); ++character)
    {
        const auto code = static_cast<char32_t>(*character);
        if (!isCodePoint(code))
            throw exc::CRuntimeExc("Wide text is not valid Unicode.");
        const auto form = std::find_if(Forms.rbegin(), Forms.rend(), [&](const Form& f) { return code >= f.least; });
        auto shift = 6 * static_cast<unsigned>(Forms.rend() - form - 1);
        bytes += static_cast<char>(form->lead | code >> shift);
        for (; shift != 0; shift -= 6)
            bytes += static_cast<char>(0x80U | (code >> (shift - 6) & 0x3FU));
    }
    return bytes;
}

CUniString CUniString::FromUtf8(const CUtf8String& text)
{
    return FromUtf8Bytes(text.str());
}

CUniString CUniString::FromUtf8Bytes(std::string_view bytes)
{
    const auto asciiSize = static_cast<std::size_t>(asciiEnd(bytes) - bytes.begin());
    std::size_t size = asciiSize;
    for (auto rest = bytes.substr(asciiSize); !rest.empty(); ++size)
        takeCharacter(rest);

    std::wstring characters(size, L'\0');
    auto out = std::copy_n(bytes.begin(), asciiSize, characters.begin());
    for (auto rest = bytes.substr(asciiSize); !rest.empty(); ++out)
        *out = static_cast<wchar_t>(takeCharacter(rest));
    return CUniString(std::move(characters));
}

void CUniString::Erase() noexcept
{
    util::SecureErase(m_text.data(), m_text.size() * sizeof(wchar_t));
    m_text.clear();
}
