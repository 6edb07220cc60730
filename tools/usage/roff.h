#pragma once

#include <string>

namespace usage
{

/// The text with every character that roff takes for more than itself escaped. A hyphen becomes the one that is typed.
std::string roffEscaped(const std::string& text);

/// The text as lines of at most 78 bytes, as far as its words are shorter, with an end behind every sentence. No line
/// is taken for a request.
std::string roffLines(const std::string& text);

} // namespace usage
