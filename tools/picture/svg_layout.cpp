#include "svg_layout.h"

#include <algorithm>

#include <zelplatform/util/util.h>

#include "describe/text_layout.h"
#include "describe/text_renderer.h"

namespace picture
{
namespace
{

using util::toStr;

constexpr std::size_t CharactersOfFact = 105;
constexpr int LineDistance = 20;
constexpr int LabelWidth = 110;
constexpr int LegendRow = 34;
constexpr int LegendSign = 17; ///< from the left to the middle of the sign
constexpr int LegendWords = 44;
constexpr int BelowMiddle = 5;
constexpr int NoteDistance = 14;

bool continuesCharacter(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// The first so many characters of the text, all of it when it has fewer.
std::size_t lengthOf(const std::string& text, std::size_t characters)
{
    std::size_t end = 0;
    for (; end < text.size() && (characters > 0 || continuesCharacter(text[end])); ++end)
    {
        if (!continuesCharacter(text[end]))
            --characters;
    }
    return end;
}

void drawWords(Markup& markup, const LegendItem& item, Point at)
{
    const int foot = at.y + (item.note.empty() ? BelowMiddle : BelowMiddle - NoteDistance / 2);
    addText(markup, "words", {at.x, foot}, item.words);
    if (!item.note.empty())
        addText(markup, "small muted", {at.x, foot + NoteDistance}, item.note);
}

} // namespace

std::vector<std::string> wrapped(const std::string& text, std::size_t characters)
{
    describe::TextStyle style;
    style.width = characters;
    auto rest = describe::broken(text, 0, style);
    std::vector<std::string> lines;
    while (!rest.empty())
    {
        const auto length = std::min(rest.find('\n'), lengthOf(rest, characters));
        lines.push_back(rest.substr(0, length));
        rest.erase(0, length + (length < rest.size() && rest[length] == '\n' ? 1 : 0));
    }
    return lines;
}

void addText(Markup& markup, const char* style, Point at, const std::string& text)
{
    markup.add("text", {{"class", style}, {"x", toStr(at.x)}, {"y", toStr(at.y)}}, text);
}

Block makeGap(int height)
{
    return {height, [](Markup&, Point) {}};
}

Block makeText(const char* style, std::vector<std::string> lines, int distance)
{
    const int height = static_cast<int>(lines.size()) * distance;
    return {height, [style, lines = std::move(lines), distance](Markup& markup, Point at) {
                for (const auto& line : lines)
                {
                    at.y += distance;
                    addText(markup, style, {at.x, at.y - distance / 4}, line);
                }
            }};
}

Block makeHeading(const std::string& text)
{
    return {66, [text](Markup& markup, Point at) {
                markup.addEmpty("path", {{"class", "rule"},
                                         {"d", 'M' + toStr(at.x) + ' ' + toStr(at.y + 20) + 'h' + toStr(InnerWidth)}});
                addText(markup, "heading", {at.x, at.y + 48}, text);
            }};
}

Block makeFacts(const std::vector<Fact>& facts)
{
    struct Row
    {
        std::string label;
        std::string line;
    };
    std::vector<Row> rows;
    for (const auto& fact : facts)
    {
        auto label = fact.label;
        for (auto& line : wrapped(fact.words, CharactersOfFact))
            rows.push_back({std::exchange(label, {}), std::move(line)});
    }
    const int height = static_cast<int>(rows.size()) * LineDistance;
    return {height, [rows = std::move(rows)](Markup& markup, Point at) {
                for (const auto& row : rows)
                {
                    at.y += LineDistance;
                    if (!row.label.empty())
                        addText(markup, "muted", {at.x, at.y - LineDistance / 4}, row.label);
                    addText(markup, "words", {at.x + LabelWidth, at.y - LineDistance / 4}, row.line);
                }
            }};
}

Block makeLegend(std::vector<LegendItem> items, int columns)
{
    const int rows = (static_cast<int>(items.size()) + columns - 1) / columns;
    return {rows * LegendRow, [items = std::move(items), columns](Markup& markup, Point at) {
                for (std::size_t i = 0; i < items.size(); ++i)
                {
                    const int column = static_cast<int>(i) % columns;
                    const int row = static_cast<int>(i) / columns;
                    const Point corner{at.x + column * (InnerWidth / columns), at.y + row * LegendRow + LegendRow / 2};
                    items[i].draw(markup, {corner.x + LegendSign, corner.y});
                    drawWords(markup, items[i], {corner.x + LegendWords, corner.y});
                }
            }};
}

} // namespace picture
