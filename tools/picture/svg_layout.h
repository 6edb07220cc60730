#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "markup.h"
#include "schedule_picture.h"
#include "svg_marks.h"

/// Parts of an SVG picture, one below the other.
namespace picture
{

constexpr int PageWidth = 964;
constexpr int Margin = 32;
constexpr int InnerWidth = PageWidth - 2 * Margin;

/// A part as wide as the page between its margins. It knows its height before it is drawn.
struct Block
{
    int height;
    std::function<void(Markup& markup, Point at)> draw; ///< from the upper left corner on
};

/// The text in lines of at most so many characters, broken at blanks where there are some.
std::vector<std::string> wrapped(const std::string& text, std::size_t characters);

void addText(Markup& markup, const char* style, Point at, const std::string& text);

/// Nothing, as high as that.
Block makeGap(int height);

/// Lines of text in the style; the distance is that of their feet.
Block makeText(const char* style, std::vector<std::string> lines, int distance);

/// A heading below a line across the page.
Block makeHeading(const std::string& text);

/// Fields of a document, the labels beside the words.
Block makeFacts(const std::vector<Fact>& facts);

/// A row of a legend: what draws the sign around a centre, the words, and more words of less weight.
struct LegendItem
{
    std::function<void(Markup& markup, Point centre)> draw;
    std::string words;
    std::string note;
};

Block makeLegend(std::vector<LegendItem> items, int columns);

} // namespace picture
