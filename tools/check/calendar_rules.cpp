#include "rules.h"

#include <zelplatform/util/util.h>

#include "fields.h"
#include "schedule_of.h"

namespace check
{
namespace
{

using describe::Node;
using zelplatform::model::structs::CDayOfMonth;
using zelplatform::model::structs::CFullBackupOptions;
using zelplatform::model::structs::CScheduleCalendar;
using zelplatform::model::structs::CStartJobScheduleOptions;

/// A calendar that is in force, and the fields that tell it.
struct Part
{
    const CScheduleCalendar& calendar;
    const Node& fields;

    int line() const { return fields.origin.line; }
    int lineOf(const char* name) const
    {
        const auto* field = findField(fields, {name});
        return field != nullptr && field->origin.isThere() ? field->origin.line : line();
    }
    std::string named(const std::string& words) const { return fields.label + ": " + words; }
};

void checkDayOfMonth(const Part& part, Findings& findings)
{
    const auto& day = part.calendar.GetDayOfMonth();
    const auto& months = part.calendar.GetMonthMask();
    const auto missing = CDayOfMonth::GetDayNotFitMonths(day, months);
    if (missing.IsAllMonthsOff())
        return;
    const auto words = "day " + util::toStr(day.Get()) + " does not occur in " + missing.ToLogStr(false);
    const bool isNever = missing == months;
    findings.add(isNever ? rule_id::DayNeverComes : rule_id::DayMissesMonths, part.lineOf("dayOfMonth"),
                 part.named(isNever ? words + ", and no other month is chosen" : words));
}

// False when it is found that the calendar has no day.
bool checkDays(const Part& part, Findings& findings)
{
    const auto& calendar = part.calendar;
    const auto never = [&](int line, const std::string& words) {
        findings.add(rule_id::NeverRuns, line, part.named(words));
        return false;
    };
    if (calendar.GetWeekMask().IsAllDaysOff())
        return never(part.lineOf("weekMask"), "no week day is chosen");
    if (!calendar.IsScheduleMonthly())
        return true;
    if (calendar.GetMonthMask().IsAllMonthsOff())
        return never(part.lineOf("monthMask"), "no month is chosen");
    checkDayOfMonth(part, findings);
    if (hasDays(calendar))
        return true;
    const auto missing = CDayOfMonth::GetDayNotFitMonths(calendar.GetDayOfMonth(), calendar.GetMonthMask());
    return missing == calendar.GetMonthMask() ? false : never(part.line(), "no day is all that was chosen");
}

void checkTime(const Part& part, Findings& findings)
try
{
    const auto& calendar = part.calendar;
    const bool isPeriod = calendar.IsSchedulePeriodically();
    const auto add = [&](const std::string& words) {
        findings.add(rule_id::NoSuchTime, part.lineOf("time"), part.named(words));
    };
    if (calendar.IsScheduleContinuously())
        return;
    if (!calendar.IsTimeSet())
        return add(isPeriod ? "there is no period" : "there is no time of day");
    if (isPeriod && calendar.GetTime().ToSeconds() == 0)
        return add("a period of 00:00 never passes");
    calendar.GetTime().Validate(isPeriod);
}
catch (const std::exception& refusal)
{
    findings.add(rule_id::NoSuchTime, part.lineOf("time"), part.named(refusal.what()));
}

// False when nothing ever happens on the calendar.
bool checkCalendar(const Part& part, Findings& findings)
{
    const auto& calendar = part.calendar;
    if (isTiedToDays(calendar))
        return checkDays(part, findings);
    if (calendar.IsScheduleRecurrent())
        return true;
    findings.add(rule_id::NeverRuns, part.lineOf("scheduleType"),
                 part.named("there is no kind " + util::toStr(calendar.GetScheduleType()) + " of calendars"));
    return false;
}

void checkFull(const CFullBackupOptions& full, const Node& fields, const CStartJobScheduleOptions& start,
               bool isStarting, Findings& findings)
{
    const Part part{full.GetCalendar(), fields};
    if (!full.IsEnabled() || !checkCalendar(part, findings) || !isStarting)
        return;
    const auto& starts = start.GetCalendar();
    if (starts.IsScheduleRecurrent())
        findings.add(rule_id::FullsWithoutEffect, part.line(),
                     part.named("has no effect on a job that starts periodically or continuously"));
    else if (isTiedToDays(part.calendar) &&
             !findDay(part.calendar, [&](const datetime::CDateTime& day) { return starts.IsScheduledAtDate(day); }))
        findings.add(rule_id::FullNeverDue, part.line(),
                     part.named("none of its days is a day on which the job starts"));
}

} // namespace

void checkCalendars(const Subject& subject, Findings& findings)
{
    const auto found = scheduleOf(subject);
    if (!found)
        return;
    const auto& schedule = found->schedule;
    const auto& start = schedule.GetJobStartOptions();
    const Part part{start.GetCalendar(), *findField(found->fields, {"jobStart"})};
    if (start.IsEnabled())
        checkTime(part, findings);
    const bool isStarting = start.IsEnabled() && checkCalendar(part, findings);
    checkFull(schedule.GetActiveFullOptions(), *findField(found->fields, {"activeFull"}), start, isStarting, findings);
    checkFull(schedule.GetSyntheticFullOptions(), *findField(found->fields, {"syntheticFull"}), start, isStarting,
              findings);
}

} // namespace check
