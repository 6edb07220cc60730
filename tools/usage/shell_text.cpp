#include "shell_text.h"

namespace usage
{
namespace
{

constexpr std::size_t LongestLine = 120;

constexpr const char* PlainCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_./=";

} // namespace

std::string quoted(const std::string& text)
{
    std::string result = "'";
    for (const char c : text)
    {
        if (c == '\'')
            result += "'\\''";
        else
            result += c;
    }
    return result + '\'';
}

std::string word(const std::string& text)
{
    const bool isPlain = !text.empty() && text.find_first_not_of(PlainCharacters) == std::string::npos;
    return isPlain ? text : quoted(text);
}

std::string wrapped(const std::vector<std::string>& items, std::size_t indent)
{
    std::string text;
    auto length = indent;
    for (const auto& item : items)
    {
        const bool isNext = !text.empty() && length + 1 + item.size() <= LongestLine;
        if (isNext)
            text += ' ';
        else if (!text.empty())
            text += '\n' + std::string(indent, ' ');
        length = (isNext ? length + 1 : indent) + item.size();
        text += item;
    }
    return text;
}

std::string filled(std::string text, const std::vector<std::pair<std::string, std::string>>& marks)
{
    for (const auto& [mark, replacement] : marks)
    {
        for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark, at + replacement.size()))
            text.replace(at, mark.size(), replacement);
    }
    return text;
}

} // namespace usage
