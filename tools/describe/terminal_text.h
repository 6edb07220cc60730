#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace describe
{

/// The text with everything escaped that could act on a terminal: control characters ("\n", "\x1b"), bytes that are no
/// UTF-8 ("\xff"), and the invisible characters that turn the writing direction or break lines ("\u202e").
std::string printable(std::string_view text);

/// The same behind a text that is there; text that needs no escape is passed on eight bytes at a time.
void appendPrintable(std::string& shown, std::string_view text);

/// The text when it has at most so many bytes; else its beginning and its end, with the number of bytes that were left
/// out between them. No UTF-8 character is cut. The limit is at least 16.
std::string shortened(std::string_view text, std::size_t limit);

} // namespace describe
