#pragma once

#include <string>
#include <vector>

namespace zelmodel_test
{

enum class EPart
{
    Paragraph,
    Block, ///< fenced
    Table,
};

/// One part of a Markdown page, in the order of the page.
struct Part
{
    EPart kind;

    /// What stands after the opening fence of a block.
    std::string info;

    /// The text of a block with its line breaks, or of a paragraph in one line.
    std::string text;

    /// The cells of a table: the head, then the rows, without the line between.
    std::vector<std::vector<std::string>> rows;

    /// The page and line, for the reader of a failure.
    std::string where;
};

/// The text of a file of the project, its path counted from the top folder.
std::string projectFile(const std::string& path);

/// The parts of a page; headings and lists are paragraphs.
std::vector<Part> partsOf(const std::string& path);

/// The first block with that text after its fence, or the first table with that title over its second column; throws
/// when there is none.
const Part& partOf(const std::vector<Part>& parts, EPart kind, const std::string& start);

/// The bytes that the lines "24 00 ; words" of a block give.
std::string bytesIn(const Part& block);

/// The texts between backticks.
std::vector<std::string> codesOf(const std::string& text);

/// The text between backticks when the cell holds nothing else, else nothing but the empty text.
std::string onlyCodeOf(const std::string& cell);

} // namespace zelmodel_test
