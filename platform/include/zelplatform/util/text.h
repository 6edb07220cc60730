#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <zelplatform/export.h>

namespace util
{

namespace detail
{

ZELPLATFORM_API std::string formatText(std::string_view format, const std::string_view* arguments, std::size_t count);

constexpr char toLowerAscii(char c) noexcept
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace detail

/// Replaces "%1" to "%9" by the arguments, in one pass: inserted text is not looked at again. A placeholder without its
/// argument stays, surplus arguments are ignored, '%' before anything else is itself.
template <class... Args>
std::string str_format(std::string_view format, const Args&... args)
{
    static_assert(sizeof...(Args) <= 9, "there are placeholders for nine arguments only");
    const std::string_view arguments[sizeof...(Args) + 1] = {std::string_view(args)..., std::string_view()};
    return detail::formatText(format, arguments, sizeof...(Args));
}

/// The text with its ASCII letters in lower case; all other bytes stay.
ZELPLATFORM_API std::string tolower(std::string text);

/// The text with its ASCII letters in upper case; all other bytes stay.
ZELPLATFORM_API std::string toupper(std::string text);

/// Whether the texts are equal but for the case of ASCII letters. Compares from the end: names of one family begin
/// alike rather than end alike. Inline, for look-ups in tables.
constexpr bool str_is_equal_nocase(std::string_view a, std::string_view b) noexcept
{
    if (a.size() != b.size())
        return false;
    for (auto i = a.size(); i > 0; --i)
    {
        if (a[i - 1] != b[i - 1] && detail::toLowerAscii(a[i - 1]) != detail::toLowerAscii(b[i - 1]))
            return false;
    }
    return true;
}

/// The text without blank, tab, CR, LF, VT and FF at its ends.
ZELPLATFORM_API std::string str_trim(std::string_view text);

/// The text without the character at its ends.
ZELPLATFORM_API std::string str_trim(std::string_view text, char character);

/// The parts between separators, empty ones included; an empty text has no parts.
ZELPLATFORM_API std::vector<std::string> str_tokenize(std::string_view text, char separator);

/// The same with a text as separator; an empty one throws.
ZELPLATFORM_API std::vector<std::string> str_tokenize(std::string_view text, std::string_view separator);

/// The same as `str_tokenize`: the separator is a whole text, not a set of characters.
ZELPLATFORM_API std::vector<std::string> str_split(std::string_view text, std::string_view separator);

/// The items with the separator between them.
ZELPLATFORM_API std::string str_join(const std::vector<std::string>& items, std::string_view separator);

/// Whether the text begins with the prefix; an empty prefix begins every text.
ZELPLATFORM_API bool str_is_starts_with(std::string_view text, std::string_view prefix) noexcept;

} // namespace util
