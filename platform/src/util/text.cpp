#include <zelplatform/util/text.h>

#include <algorithm>

#include <zelplatform/exc/exc.h>

namespace util
{
namespace
{

char upper(char c) noexcept
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

std::string trimmed(std::string_view text, std::string_view characters)
{
    const auto first = text.find_first_not_of(characters);
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(characters) - first + 1));
}

std::size_t countOf(std::string_view text, std::string_view part) noexcept
{
    std::size_t count = 0;
    for (auto at = text.find(part); at != std::string_view::npos; at = text.find(part, at + part.size()))
        ++count;
    return count;
}

} // namespace

std::string detail::formatText(std::string_view format, const std::string_view* arguments, std::size_t count)
{
    std::string text;
    std::size_t copied = 0;
    for (auto percent = format.find('%'); percent != std::string_view::npos; percent = format.find('%', percent + 1))
    {
        const char digit = percent + 1 < format.size() ? format[percent + 1] : '\0';
        if (digit < '1' || digit > '9' || static_cast<std::size_t>(digit - '1') >= count)
            continue;
        text.append(format.substr(copied, percent - copied)).append(arguments[digit - '1']);
        copied = percent + 2;
    }
    return text.append(format.substr(copied));
}

std::string tolower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), detail::toLowerAscii);
    return text;
}

std::string toupper(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), upper);
    return text;
}

std::string str_trim(std::string_view text)
{
    return trimmed(text, " \t\r\n\v\f");
}

std::string str_trim(std::string_view text, char character)
{
    return trimmed(text, std::string_view(&character, 1));
}

std::vector<std::string> str_tokenize(std::string_view text, char separator)
{
    return str_tokenize(text, std::string_view(&separator, 1));
}

std::vector<std::string> str_tokenize(std::string_view text, std::string_view separator)
{
    if (separator.empty())
        throw exc::CRuntimeExc("Unable to split text at an empty separator.");
    std::vector<std::string> parts;
    if (text.empty())
        return parts;
    // A text of separators alone has as many parts as bytes: the list must not grow beyond them.
    parts.reserve(countOf(text, separator) + 1);
    std::size_t start = 0;
    for (auto end = text.find(separator); end != std::string_view::npos; end = text.find(separator, start))
    {
        parts.emplace_back(text.substr(start, end - start));
        start = end + separator.size();
    }
    parts.emplace_back(text.substr(start));
    return parts;
}

std::vector<std::string> str_split(std::string_view text, std::string_view separator)
{
    return str_tokenize(text, separator);
}

std::string str_join(const std::vector<std::string>& items, std::string_view separator)
{
    std::string text;
    for (std::size_t i = 0; i < items.size(); ++i)
        text.append(i == 0 ? std::string_view() : separator).append(items[i]);
    return text;
}

bool str_is_starts_with(std::string_view text, std::string_view prefix) noexcept
{
    return text.substr(0, prefix.size()) == prefix;
}

} // namespace util
