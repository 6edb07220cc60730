#pragma once

#include <cstddef>
#include <string>

#include "node.h"

namespace describe
{

/// How text for people is laid out.
struct TextStyle
{
    std::size_t width = 0; ///< columns of the terminal at which long words are broken; 0: never
    bool isBold = false;   ///< the first line in bold; only a terminal understands it
    bool showsSecrets = false;
    std::size_t narrowestWords = 20; ///< columns that broken words get, even where the terminal has not so many
    std::size_t longestWords = 4096; ///< bytes of one field's words; the middle of longer ones is left out
};

/// What stands in place of a secret: "(hidden, 12 characters)".
std::string hiddenWords(const Node& node);

/// The node's words as a terminal may get them: escaped, cut, hidden when they are a secret.
std::string shownWords(const Node& node, const TextStyle& style);

/// The text broken at blanks into lines of the terminal's width; the first starts at the column, as do the others.
std::string broken(const std::string& text, std::size_t column, const TextStyle& style);

/// The tree as aligned lines, a field a line, without the fields that the words above tell already. The margin tells
/// where each came from: the line of the document, or that it is a default. Everything that could act on a terminal is
/// escaped. Ends with a line break.
std::string renderText(const Node& node, const TextStyle& style);

/// The label and the words of a node as the line above its fields, on a terminal bold and broken like other words.
std::string renderTitle(const Node& node, const TextStyle& style, std::size_t column);

/// The children of the node as a table: a row for each, a column for each of its fields. Columns that are empty in
/// every row are left out. Those that have no room on the terminal stand below the row, each on a line of its own
/// behind its label.
std::string renderTable(const Node& node, const TextStyle& style);

} // namespace describe
