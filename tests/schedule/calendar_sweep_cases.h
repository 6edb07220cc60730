#pragma once

#include <string>
#include <vector>

#include <zelmodel/structs/schedule/schedule_calendar.h>

#include "support/calendar_engine.h"

namespace zelmodel_test
{

/// A calendar of the library beside the rules that it must follow.
struct SweepCase
{
    std::string name;
    CalendarRules rules;
    zelplatform::model::structs::CScheduleCalendar calendar;
};

/// The document of a calendar with these fields, whether a setter would accept them or not.
std::string calendarDocument(const CalendarRules& rules);

/// Every week mask, through the setter.
std::vector<SweepCase> weeklyCases();

/// Every week day with every number in several sets of months, through the setter.
std::vector<SweepCase> monthlyByWeekDayCases();

/// Every day of month in several sets of months, through the setter.
std::vector<SweepCase> monthlyOnDayCases();

/// Calendars that only a document can hold.
std::vector<SweepCase> documentCases();

/// Calendars with a week-day number that has no name, and the recurrent ones.
std::vector<SweepCase> oddCases();

} // namespace zelmodel_test
