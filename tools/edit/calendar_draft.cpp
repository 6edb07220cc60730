#include "record.h"

#include <zelplatform/exc/exc.h>

#include "describe/visitors.h"

namespace edit
{
namespace
{

using zelplatform::model::structs::CFullBackupOptions;
using zelplatform::model::structs::CScheduleCalendar;
using zelplatform::model::structs::CScheduleOptions;
using zelplatform::model::structs::CStartJobScheduleOptions;

CStartJobScheduleOptions buildStart(const CStartJobScheduleOptions& start, const CalendarDraft& draft)
try
{
    return !draft.changed.empty() ? CStartJobScheduleOptions(start.IsEnabled(), draft.build()) : start;
}
catch (const std::exception& cause)
{
    exc::RegenTraceExc("The start of the job cannot be set.", cause);
}

CFullBackupOptions buildFull(const CFullBackupOptions& full, const CalendarDraft& draft, const char* name)
try
{
    if (draft.changed.empty())
        return full;
    const auto calendar = draft.build();
    if (!calendar.IsActiveFullSupported())
        throw exc::CRuntimeExc("A full backup is weekly or monthly.");
    return CFullBackupOptions(calendar, full.IsEnabled(), full.GetType());
}
catch (const std::exception& cause)
{
    exc::RegenTraceExc("The %1 cannot be set.", name, cause);
}

void verifyKept(const CalendarDraft& draft, const char* part, bool isKept)
{
    if (!isKept && draft.changed.count(part) > 0)
        throw exc::CRuntimeExc("The field [%1] plays no part in a calendar of the kind [%2].", part,
                               describe::tellScheduleType(draft.type));
}

} // namespace

CalendarDraft::CalendarDraft(const CScheduleCalendar& calendar)
    : type(calendar.GetScheduleType()),
      time(calendar.TryGetTime()),
      weekDays(calendar.GetWeekMask()),
      months(calendar.GetMonthMask()),
      weekDayNumber(calendar.GetWeekDayNumber()),
      dayOfMonth(calendar.GetDayOfMonth())
{
}

CScheduleCalendar CalendarDraft::build() const
{
    CScheduleCalendar calendar(type, time, weekDays, months, weekDayNumber, dayOfMonth);
    verifyKept(*this, "time", calendar.IsTimeSet() == time.has_value());
    verifyKept(*this, "weekMask", calendar.GetWeekMask() == weekDays);
    verifyKept(*this, "monthMask", calendar.GetMonthMask() == months);
    verifyKept(*this, "weekDayNumber", calendar.GetWeekDayNumber() == weekDayNumber);
    verifyKept(*this, "dayOfMonth", calendar.GetDayOfMonth().Get() == dayOfMonth.Get());
    return calendar;
}

ScheduleDraft::ScheduleDraft(const CScheduleOptions& schedule)
    : options(schedule),
      jobStart(schedule.GetJobStartOptions().GetCalendar()),
      activeFull(schedule.GetActiveFullOptions().GetCalendar()),
      syntheticFull(schedule.GetSyntheticFullOptions().GetCalendar())
{
}

CScheduleOptions ScheduleDraft::build() const
{
    auto schedule = options;
    schedule.SetJobStartOptions(buildStart(options.GetJobStartOptions(), jobStart));
    schedule.SetActiveFullOptions(buildFull(options.GetActiveFullOptions(), activeFull, "active full"));
    schedule.SetSyntheticFullOptions(buildFull(options.GetSyntheticFullOptions(), syntheticFull, "synthetic full"));
    return schedule;
}

} // namespace edit
