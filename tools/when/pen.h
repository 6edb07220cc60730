#pragma once

#include <string>

#include "describe/text_renderer.h"

namespace when
{

/// The columns of a picture where no terminal tells its width.
constexpr std::size_t UsualWidth = 80;

inline std::size_t widthOf(const describe::TextStyle& style)
{
    return style.width == 0 ? UsualWidth : style.width;
}

/// The text in a rendition of the terminal ("1" is bold, "32" green), where the style allows it.
inline std::string painted(const std::string& text, const char* rendition, const describe::TextStyle& style)
{
    return style.isBold ? std::string("\x1b[") + rendition + 'm' + text + "\x1b[0m" : text;
}

/// Without the blanks at its end, as a line.
inline std::string asLine(std::string text)
{
    text.erase(text.find_last_not_of(' ') + 1);
    return text + '\n';
}

} // namespace when
