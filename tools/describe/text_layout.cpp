#include "text_layout.h"

#include <algorithm>

namespace describe
{

std::size_t columnsOf(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::string paddedTo(std::string text, std::size_t width)
{
    const auto columns = columnsOf(text);
    return columns < width ? text.append(width - columns, ' ') : text;
}

std::string withoutTrailingBlanks(std::string text)
{
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

} // namespace describe
