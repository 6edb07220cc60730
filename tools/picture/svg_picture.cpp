#include "svg_picture.h"

#include <utility>

#include <zelplatform/util/util.h>

#include "alternative.h"
#include "describe/terminal_text.h"
#include "style_sheet.h"
#include "svg_calendar.h"

namespace picture
{
namespace
{

using util::toStr;

constexpr std::size_t LongestName = 100;
constexpr std::size_t CharactersOfTitle = 60;
constexpr std::size_t CharactersOfText = 120;
constexpr int TitleDistance = 34;
constexpr int LineDistance = 20;

void append(std::vector<Block>& blocks, std::vector<Block> more)
{
    for (auto& block : more)
        blocks.push_back(std::move(block));
}

std::vector<Block> blocksOf(const SchedulePicture& picture)
{
    const auto name = describe::shortened(picture.name, LongestName);
    std::vector<Block> blocks{makeText("title", wrapped(name, CharactersOfTitle), TitleDistance)};
    if (!picture.months.empty())
    {
        blocks.push_back(makeText("words", wrapped(picture.words, CharactersOfText), LineDistance));
        blocks.push_back(makeGap(10));
        blocks.push_back(makeFacts(picture.facts));
        blocks.push_back(makeHeading("Calendar of " + picture.span));
        append(blocks, makeCalendar(picture.months));
    }
    if (picture.window)
    {
        const auto& window = *picture.window;
        blocks.push_back(makeHeading("Backup window"));
        const auto words = describe::shortened(window.name, LongestName) + ": " + window.words;
        blocks.push_back(makeText("words", wrapped(words, CharactersOfText), LineDistance));
        blocks.push_back(makeGap(10));
        append(blocks, makeWeek(window.week));
        blocks.push_back(makeGap(12));
        blocks.push_back(makeFacts(window.facts));
    }
    return blocks;
}

int heightOf(const std::vector<Block>& blocks)
{
    int height = 2 * Margin;
    for (const auto& block : blocks)
        height += block.height;
    return height;
}

} // namespace

std::string renderSvg(const SchedulePicture& picture)
{
    const auto blocks = blocksOf(picture);
    const auto width = toStr(PageWidth);
    const auto height = toStr(heightOf(blocks));
    Markup markup;
    markup.addDeclaration();
    const auto draw = [&] {
        markup.add("title", {{"id", "title"}}, tellTitle(picture));
        markup.add("desc", {{"id", "description"}}, tellPicture(picture));
        markup.addStyle(svgStyle());
        definePattern(markup);
        markup.addEmpty("rect", {{"class", "page"}, {"width", width}, {"height", height}});
        Point at{Margin, Margin};
        for (const auto& block : blocks)
        {
            block.draw(markup, at);
            at.y += block.height;
        }
    };
    markup.add("svg",
               {{"xmlns", "http://www.w3.org/2000/svg"},
                {"xml:lang", "en"},
                {"role", "img"},
                {"aria-labelledby", "title description"},
                {"width", width},
                {"height", height},
                {"viewBox", "0 0 " + width + ' ' + height}},
               draw);
    return markup.text();
}

} // namespace picture
