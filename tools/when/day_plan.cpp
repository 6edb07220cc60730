#include "day_plan.h"

#include <algorithm>
#include <utility>

#include <zelplatform/datetime/date_time.h>
#include <zelplatform/datetime/names.h>
#include <zelplatform/util/util.h>

#include "describe/words.h"
#include "local_zone.h"

namespace when
{
namespace
{

using datetime::CDateTime;
using describe::makeField;
using zelplatform::model::CDate;
using zelplatform::model::structs::BackupWindow;

CDate dayOf(const CDate& month, int day)
{
    CDateTime date = month;
    date.setDay(day);
    return CDate(date);
}

// A continuous job may start at any time, so every hour is asked.
std::vector<CDateTime> momentsOf(const Evaluation& evaluation, const StartDay& day)
{
    if (!evaluation.calendar().IsScheduleContinuously())
        return day.starts;
    std::vector<CDateTime> hours;
    for (int hour = 0; hour < 24; ++hour)
    {
        hours.emplace_back(CDateTime(day.date));
        hours.back().setHours(hour);
    }
    return hours;
}

bool isClosedAlways(const Evaluation& evaluation, const StartDay& day)
{
    const auto* window = evaluation.window();
    const auto moments = momentsOf(evaluation, day);
    return window != nullptr && !moments.empty() &&
           std::none_of(moments.begin(), moments.end(),
                        [window](const auto& moment) { return window->isWindowOpen(moment); });
}

PlannedDay planDay(const Evaluation& evaluation, const CDate& date)
{
    PlannedDay planned{date, false, false, evaluation.fullsOn(date), {}, {}};
    const auto day = evaluation.startsOn(date);
    if (!day)
        return planned;
    planned.isStart = true;
    planned.isWindowClosed = isClosedAlways(evaluation, *day);
    planned.starts = day->starts;
    planned.clock = tellClock(date, day->starts);
    return planned;
}

bool isEmpty(const PlannedDay& day)
{
    return !day.isStart && !day.fulls.isActive && !day.fulls.isSynthetic;
}

} // namespace

std::vector<PlannedMonth> planMonths(const Evaluation& evaluation, const CDate& first, std::size_t count)
{
    std::vector<PlannedMonth> months;
    for (CDateTime month = dayOf(first, 1); months.size() < count;)
    {
        months.push_back({CDate(month), {}});
        const auto last = static_cast<int>(month.getMonthLastDay());
        for (int day = 1; day <= last; ++day)
            months.back().days.push_back(planDay(evaluation, dayOf(CDate(month), day)));
        if (months.size() < count)
            month = later(month, last * 86400L);
    }
    return months;
}

std::vector<Week> weeksOf(const PlannedMonth& month)
{
    // Sunday is 0 and the last of the week here.
    const auto before = (static_cast<std::size_t>(CDateTime(month.first).getDayOfWeek()) + DaysOfWeek - 1) % DaysOfWeek;
    std::vector<Week> weeks((before + month.days.size() + DaysOfWeek - 1) / DaysOfWeek, Week{});
    for (std::size_t i = 0; i < month.days.size(); ++i)
        weeks.at((before + i) / DaysOfWeek).at((before + i) % DaysOfWeek) = &month.days[i];
    return weeks;
}

std::string tellMonth(const PlannedMonth& month)
{
    const CDateTime first = month.first;
    return datetime::EMonth::ToStr(first.getMonth()) + ' ' + util::toStr(first.year());
}

std::vector<const PlannedDay*> daysWithClock(const std::vector<PlannedMonth>& months)
{
    std::vector<const PlannedDay*> days;
    for (const auto& month : months)
    {
        for (const auto& day : month.days)
        {
            if (!day.clock.empty())
                days.push_back(&day);
        }
    }
    return days;
}

describe::Node describeMonths(const std::vector<PlannedMonth>& months)
{
    auto node = makeField("months", "", "", "");
    node.isList = true;
    for (const auto& month : months)
    {
        auto list = makeField("month", "", CDateTime(month.first).toStdString("%Y-%m"), "");
        list.isList = true;
        for (const auto& day : month.days)
        {
            if (isEmpty(day))
                continue;
            const auto date = describe::isoDate(day.date);
            auto item = makeField("day", "", date, describe::weekDay(day.date));
            const auto add = [&item](const char* name, bool flag) {
                item.children.push_back(makeField(name, "", flag, describe::flagText(flag)));
            };
            add("isStart", day.isStart);
            add("isWindowClosed", day.isWindowClosed);
            add("isActiveFull", day.fulls.isActive);
            add("isSyntheticFull", day.fulls.isSynthetic);
            item.children.push_back(makeField("clock", "", day.clock, day.clock));
            list.children.push_back(std::move(item));
        }
        node.children.push_back(std::move(list));
    }
    return node;
}

} // namespace when
