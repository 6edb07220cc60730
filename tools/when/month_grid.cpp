#include "month_grid.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include <zelplatform/util/util.h>

#include "describe/words.h"
#include "pen.h"

namespace when
{
namespace
{

using datetime::CDateTime;
using describe::TextStyle;

constexpr std::size_t DaysOfWeek = 7;
constexpr std::size_t CellWidth = 4;
constexpr std::size_t MonthWidth = CellWidth * DaysOfWeek;
constexpr std::size_t Gap = 2;
constexpr std::size_t MostBeside = 4;
constexpr const char* WeekDays = "Mo  Tu  We  Th  Fr  Sa  Su  ";

/// What may stand behind a day.
struct Mark
{
    char sign;
    const char* words;
    const char* rendition;
};

constexpr std::array<Mark, 8> Marks{{{'*', "start", "1"},
                                     {'A', "start that makes an active full", "1;32"},
                                     {'S', "start that makes a synthetic full", "1;36"},
                                     {'B', "start that makes both fulls", "1;35"},
                                     {'x', "start, but the window is closed", "31"},
                                     {'a', "day of an active full, but no start", "2"},
                                     {'s', "day of a synthetic full, but no start", "2"},
                                     {'b', "day of both fulls, but no start", "2"}}};

char signOf(const PlannedDay& day)
{
    if (day.isWindowClosed)
        return 'x';
    const bool isActive = day.fulls.isActive;
    if (isActive && day.fulls.isSynthetic)
        return day.isStart ? 'B' : 'b';
    if (isActive)
        return day.isStart ? 'A' : 'a';
    if (day.fulls.isSynthetic)
        return day.isStart ? 'S' : 's';
    return day.isStart ? '*' : ' ';
}

const Mark* markOf(char sign)
{
    const auto* found =
        std::find_if(Marks.begin(), Marks.end(), [sign](const auto& mark) { return mark.sign == sign; });
    return found == Marks.end() ? nullptr : found;
}

std::string cellOf(const PlannedDay& day, const TextStyle& style)
{
    const auto number = util::toStr(CDateTime(day.date).day());
    const auto* mark = markOf(signOf(day));
    const auto text = std::string(number.size() < 2 ? " " : "") + number + (mark == nullptr ? ' ' : mark->sign);
    return (mark == nullptr ? text : painted(text, mark->rendition, style)) + ' ';
}

std::string centred(const std::string& text, std::size_t width)
{
    const auto before = (width - text.size()) / 2;
    return std::string(before, ' ') + text + std::string(width - before - text.size(), ' ');
}

/// The lines of one month, each as wide as the grid.
std::vector<std::string> linesOf(const PlannedMonth& month, const TextStyle& style)
{
    const CDateTime first = month.first;
    const auto title = datetime::EMonth::ToStr(first.getMonth()) + ' ' + util::toStr(first.year());
    std::vector<std::string> lines{centred(title, MonthWidth), WeekDays};
    // Sunday is 0 and the last of the week here.
    const auto before = (static_cast<std::size_t>(first.getDayOfWeek()) + DaysOfWeek - 1) % DaysOfWeek;
    std::string line(before * CellWidth, ' ');
    for (std::size_t i = 0; i < month.days.size(); ++i)
    {
        line += cellOf(month.days[i], style);
        if ((before + i + 1) % DaysOfWeek == 0)
            lines.push_back(std::exchange(line, {}));
    }
    const auto used = (before + month.days.size()) % DaysOfWeek;
    if (used > 0)
        lines.push_back(line + std::string((DaysOfWeek - used) * CellWidth, ' '));
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
    for (const auto& mark : Marks)
    {
        const auto isThere = [&mark](const auto& day) { return signOf(day) == mark.sign; };
        const bool occurs = std::any_of(months.begin(), months.end(), [&isThere](const auto& month) {
            return std::any_of(month.days.begin(), month.days.end(), isThere);
        });
        if (occurs)
            text += painted(std::string(1, mark.sign), mark.rendition, style) + "  " + mark.words + '\n';
    }
    return text.empty() ? "nothing is scheduled in this time\n" : text;
}

/// The days on which the clock is changed.
std::string renderClocks(const std::vector<PlannedMonth>& months, const TextStyle& style)
{
    std::string text;
    for (const auto& month : months)
    {
        for (const auto& day : month.days)
        {
            const auto date = describe::isoDate(day.date) + ": ";
            if (!day.clock.empty())
                text += date + describe::broken(day.clock, date.size(), style) + '\n';
        }
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
