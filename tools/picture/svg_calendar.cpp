#include "svg_calendar.h"

#include <algorithm>

#include <zelplatform/datetime/names.h>
#include <zelplatform/util/util.h>

#include "alternative.h"
#include "describe/words.h"

namespace picture
{
namespace
{

using util::toStr;
using when::PlannedMonth;

constexpr int Cell = 30;
constexpr int MonthWidth = Cell * static_cast<int>(when::DaysOfWeek);
constexpr int MonthHeight = 240;
constexpr int MonthsBeside = 4;
constexpr int MonthGap = (InnerWidth - MonthsBeside * MonthWidth) / (MonthsBeside - 1);
constexpr int TitleFoot = 14;
constexpr int TitleHeight = 22;
constexpr int NamesFoot = 36;
constexpr int FirstRow = 58; ///< the middle of the days of the first week
constexpr int LargeScale = 2;
constexpr int LegendColumns = 3;
constexpr std::size_t CharactersOfNote = 115;
constexpr const char* SampleDay = "1";

std::string move(Point at, int scale)
{
    const auto to = "translate(" + toStr(at.x) + ' ' + toStr(at.y) + ')';
    return scale == 1 ? to : to + " scale(" + toStr(scale) + ')';
}

void drawDayOf(Markup& markup, Point centre, const when::PlannedDay& day)
{
    const auto number = toStr(datetime::CDateTime(day.date).day());
    if (const auto* mark = when::markOf(day))
        drawDay(markup, centre, number, *mark, tellDay(day, *mark));
    else
        drawDay(markup, centre, number);
}

void drawMonth(Markup& markup, Point at, const PlannedMonth& month, int scale)
{
    const auto title = when::tellMonth(month);
    markup.add("g", {{"role", "group"}, {"aria-label", title}, {"transform", move(at, scale)}}, [&] {
        if (scale == 1)
            addText(markup, "month", {Cell / 4, TitleFoot}, title);
        const auto weeks = when::weeksOf(month);
        for (int day = 0; day < static_cast<int>(when::DaysOfWeek); ++day)
        {
            const auto index = (static_cast<std::size_t>(day) + 1) % when::DaysOfWeek;
            addText(markup, "small muted middle", {day * Cell + Cell / 2, NamesFoot},
                    datetime::EDayOfWeek::GetShortStrSet().at(index).substr(0, 2));
        }
        for (std::size_t row = 0; row < weeks.size(); ++row)
        {
            for (std::size_t column = 0; column < when::DaysOfWeek; ++column)
            {
                const Point centre{static_cast<int>(column) * Cell + Cell / 2, FirstRow + static_cast<int>(row) * Cell};
                if (const auto* day = weeks[row][column])
                    drawDayOf(markup, centre, *day);
            }
        }
    });
}

std::vector<LegendItem> legendOf(const std::vector<PlannedMonth>& months)
{
    std::vector<LegendItem> items;
    for (const auto& used : when::usedMarks(months))
    {
        const auto draw = [mark = used.mark](Markup& markup, Point centre) {
            drawDay(markup, centre, SampleDay, *mark, {});
        };
        items.push_back({draw, used.mark->words, describe::countOf(used.days, "day")});
    }
    return items;
}

Block makeRow(const PlannedMonth* first, std::size_t count)
{
    return {MonthHeight, [first, count](Markup& markup, Point at) {
                for (std::size_t i = 0; i < count; ++i, at.x += MonthWidth + MonthGap)
                    drawMonth(markup, at, first[i], 1);
            }};
}

/// One month with the legend at its side. The heading above it says which one it is.
Block makeLargeMonth(const PlannedMonth& month, const Block& legend)
{
    const int weeks = static_cast<int>(when::weeksOf(month).size());
    const int height = (FirstRow - TitleHeight + weeks * Cell) * LargeScale;
    return {std::max(height, legend.height), [&month, legend](Markup& markup, Point at) {
                drawMonth(markup, {at.x, at.y - TitleHeight * LargeScale}, month, LargeScale);
                legend.draw(markup, {at.x + MonthWidth * LargeScale + Margin, at.y});
            }};
}

Block makeClocks(const std::vector<PlannedMonth>& months)
{
    std::vector<std::string> lines;
    for (const auto* day : when::daysWithClock(months))
    {
        for (auto& line : wrapped(describe::isoDate(day->date) + ": " + day->clock, CharactersOfNote))
            lines.push_back(std::move(line));
    }
    return makeText("words", std::move(lines), 20);
}

} // namespace

std::vector<Block> makeCalendar(const std::vector<PlannedMonth>& months)
{
    auto items = legendOf(months);
    std::vector<Block> blocks;
    const bool isLarge = months.size() == 1;
    if (items.empty())
        blocks.push_back(makeText("words", {when::NothingScheduled}, 20));
    if (isLarge)
    {
        blocks.push_back(makeLargeMonth(months.front(), makeLegend(std::move(items), 1)));
        blocks.push_back(makeClocks(months));
        return blocks;
    }
    blocks.push_back(makeLegend(std::move(items), LegendColumns));
    blocks.push_back(makeGap(16));
    for (std::size_t i = 0; i < months.size(); i += MonthsBeside)
        blocks.push_back(makeRow(&months[i], std::min(months.size() - i, std::size_t{MonthsBeside})));
    blocks.push_back(makeClocks(months));
    return blocks;
}

} // namespace picture
