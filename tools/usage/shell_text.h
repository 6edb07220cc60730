#pragma once

#include <string>
#include <utility>
#include <vector>

namespace usage
{

/// The text in single quotes, as bash and zsh read it.
std::string quoted(const std::string& text);

/// The text as one word of bash or zsh, in quotes only when it needs them.
std::string word(const std::string& text);

/// The items with blanks between them, on lines of at most 120 bytes as far as the items are shorter. Lines after the
/// first begin with so many blanks; the first stands behind as many bytes.
std::string wrapped(const std::vector<std::string>& items, std::size_t indent);

/// The text with each of the marks replaced by what stands beside it, one after the other.
std::string filled(std::string text, const std::vector<std::pair<std::string, std::string>>& marks);

} // namespace usage
