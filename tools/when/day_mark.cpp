#include "day_mark.h"

#include <algorithm>
#include <array>
#include <optional>

namespace when
{
namespace
{

constexpr std::array<DayMark, 8> Marks{
    {{EDayMark::Start, '*', "start"},
     {EDayMark::ActiveFull, 'A', "start that makes an active full"},
     {EDayMark::SyntheticFull, 'S', "start that makes a synthetic full"},
     {EDayMark::BothFulls, 'B', "start that makes both fulls"},
     {EDayMark::ClosedWindow, 'x', "start, but the window is closed"},
     {EDayMark::ActiveFullWithoutStart, 'a', "day of an active full, but no start"},
     {EDayMark::SyntheticFullWithoutStart, 's', "day of a synthetic full, but no start"},
     {EDayMark::BothFullsWithoutStart, 'b', "day of both fulls, but no start"}}};

std::optional<EDayMark> kindOf(const PlannedDay& day) noexcept
{
    if (day.isWindowClosed)
        return EDayMark::ClosedWindow;
    const bool isActive = day.fulls.isActive;
    if (isActive && day.fulls.isSynthetic)
        return day.isStart ? EDayMark::BothFulls : EDayMark::BothFullsWithoutStart;
    if (isActive)
        return day.isStart ? EDayMark::ActiveFull : EDayMark::ActiveFullWithoutStart;
    if (day.fulls.isSynthetic)
        return day.isStart ? EDayMark::SyntheticFull : EDayMark::SyntheticFullWithoutStart;
    if (day.isStart)
        return EDayMark::Start;
    return std::nullopt;
}

} // namespace

const DayMark* markOf(const PlannedDay& day) noexcept
{
    const auto kind = kindOf(day);
    const auto* found =
        std::find_if(Marks.begin(), Marks.end(), [&kind](const auto& mark) { return mark.kind == kind; });
    return found == Marks.end() ? nullptr : found;
}

std::vector<UsedMark> usedMarks(const std::vector<PlannedMonth>& months)
{
    std::vector<UsedMark> used;
    for (const auto& mark : Marks)
    {
        std::size_t days = 0;
        for (const auto& month : months)
            days += static_cast<std::size_t>(std::count_if(month.days.begin(), month.days.end(),
                                                           [&mark](const auto& day) { return markOf(day) == &mark; }));
        if (days > 0)
            used.push_back({&mark, days});
    }
    return used;
}

} // namespace when
