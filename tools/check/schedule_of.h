#pragma once

#include <optional>

#include <zelmodel/datetime/date.h>
#include <zelmodel/structs/schedule/schedule_options.h>

#include "subject.h"

namespace check
{

/// A schedule, and the fields that tell it.
struct ScheduleOfSubject
{
    zelplatform::model::structs::CScheduleOptions schedule;
    const describe::Node& fields;
};

/// The schedule that the document holds, or nothing.
std::optional<ScheduleOfSubject> scheduleOf(const Subject& subject);

/// True when the calendar can be evaluated and is tied to days.
bool isTiedToDays(const zelplatform::model::structs::CScheduleCalendar& calendar);

/// The first day of the calendar for which the test holds, within the 28 years after which week days and dates meet
/// again. The calendar is tied to days.
template <class TTest>
std::optional<zelplatform::model::CDate> findDay(const zelplatform::model::structs::CScheduleCalendar& calendar,
                                                 const TTest& test)
{
    using zelplatform::model::CDate;
    constexpr long SecondsOfCycle = 28 * 1461L / 4 * 86400;
    const datetime::CDateTime first(true);
    for (auto day = calendar.GetNextScheduleDateFromDate(CDate(first)); day;
         day = calendar.GetNextScheduleDateFromDate(*day))
    {
        const datetime::CDateTime moment = *day;
        if (test(moment))
            return day;
        if (moment.toUnixTime() > first.toUnixTime() + SecondsOfCycle)
            return std::nullopt;
    }
    return std::nullopt;
}

/// True when there is any day on which something happens; a calendar that is not tied to days has every day.
bool hasDays(const zelplatform::model::structs::CScheduleCalendar& calendar);

} // namespace check
