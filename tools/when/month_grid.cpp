#include "month_grid.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include <zelplatform/util/util.h>

#include "day_mark.h"
#include "describe/words.h"
#include "pen.h"

namespace when
{
namespace
{

using datetime::CDateTime;
using describe::TextStyle;

constexpr std::size_t CellWidth = 4;
constexpr std::size_t MonthWidth = CellWidth * DaysOfWeek;
constexpr std::size_t Gap = 2;
constexpr std::size_t MostBeside = 4;
constexpr const char* WeekDays = "Mo  Tu  We  Th  Fr  Sa  Su  ";

const char* renditionOf(EDayMark mark)
{
    switch (mark)
    {
    case EDayMark::Start: return "1";
    case EDayMark::ActiveFull: return "1;32";
    case EDayMark::SyntheticFull: return "1;36";
    case EDayMark::BothFulls: return "1;35";
    case EDayMark::ClosedWindow: return "31";
    case EDayMark::ActiveFullWithoutStart:
    case EDayMark::SyntheticFullWithoutStart:
    case EDayMark::BothFullsWithoutStart: break;
    }
    return "2";
}

std::string cellOf(const PlannedDay& day, const TextStyle& style)
{
    const auto number = util::toStr(CDateTime(day.date).day());
    const auto* mark = markOf(day);
    const auto text = std::string(number.size() < 2 ? " " : "") + number + (mark == nullptr ? ' ' : mark->sign);
    return (mark == nullptr ? text : painted(text, renditionOf(mark->kind), style)) + ' ';
}

std::string centred(const std::string& text, std::size_t width)
{
    const auto before = (width - text.size()) / 2;
    return std::string(before, ' ') + text + std::string(width - before - text.size(), ' ');
}

/// The lines of one month, each as wide as the grid.
std::vector<std::string> linesOf(const PlannedMonth& month, const TextStyle& style)
{
    std::vector<std::string> lines{centred(tellMonth(month), MonthWidth), WeekDays};
    for (const auto& week : weeksOf(month))
    {
        std::string line;
        for (const auto* day : week)
            line += day == nullptr ? std::string(CellWidth, ' ') : cellOf(*day, style);
        lines.push_back(std::move(line));
    }
    return lines;
}

std::string renderRow(const std::vector<PlannedMonth>& months, std::size_t from, std::size_t end,
                      const TextStyle& style)
{
    std::vector<std::vector<std::string>> blocks;
    std::size_t height = 0;
    for (auto i = from; i < end; ++i)
    {
        blocks.push_back(linesOf(months[i], style));
        height = std::max(height, blocks.back().size());
    }
    std::string text;
    for (std::size_t row = 0; row < height; ++row)
    {
        std::string line;
        for (const auto& block : blocks)
            line += (line.empty() ? "" : std::string(Gap, ' ')) +
                    (row < block.size() ? block[row] : std::string(MonthWidth, ' '));
        text += asLine(line);
    }
    return text;
}

std::string renderLegend(const std::vector<PlannedMonth>& months, const TextStyle& style)
{
    std::string text;
    for (const auto& used : usedMarks(months))
        text += painted(std::string(1, used.mark->sign), renditionOf(used.mark->kind), style) + "  " +
                used.mark->words + '\n';
    return text.empty() ? std::string(NothingScheduled) + '\n' : text;
}

std::string renderClocks(const std::vector<PlannedMonth>& months, const TextStyle& style)
{
    std::string text;
    for (const auto* day : daysWithClock(months))
    {
        const auto date = describe::isoDate(day->date) + ": ";
        text += date + describe::broken(day->clock, date.size(), style) + '\n';
    }
    return text;
}

} // namespace

std::string renderMonths(const std::vector<PlannedMonth>& months, const TextStyle& style)
{
    const auto beside = std::clamp((widthOf(style) + Gap) / (MonthWidth + Gap), std::size_t{1}, MostBeside);
    std::string text;
    for (std::size_t from = 0; from < months.size(); from += beside)
        text += renderRow(months, from, std::min(months.size(), from + beside), style) + '\n';
    return text + renderLegend(months, style) + renderClocks(months, style);
}

} // namespace when
