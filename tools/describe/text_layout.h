#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace describe
{

/// Columns by which what belongs to a line stands further to the right.
constexpr std::size_t Indent = 2;

/// Columns between columns.
constexpr std::size_t Gap = 2;

/// Columns that the text takes: its characters, as each takes one. Wide and combining ones are not told apart.
std::size_t columnsOf(std::string_view text);

/// The text with blanks behind it up to the width.
std::string paddedTo(std::string text, std::size_t width);

std::string withoutTrailingBlanks(std::string text);

} // namespace describe
