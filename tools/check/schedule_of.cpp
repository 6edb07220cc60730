#include "schedule_of.h"

#include "fields.h"

namespace check
{

using describe::EDocumentKind;
using zelplatform::model::structs::CScheduleCalendar;

std::optional<ScheduleOfSubject> scheduleOf(const Subject& subject)
{
    const auto kind = subject.document.kind();
    if (kind == EDocumentKind::ScheduleOptions || kind == EDocumentKind::LoneSchedule)
        return ScheduleOfSubject{subject.document.readSchedule(), subject.tree()};
    if (kind != EDocumentKind::AgentJobOptions)
        return std::nullopt;
    return ScheduleOfSubject{subject.document.readSchedule(), *findField(subject.tree(), {"schedule"})};
}

bool isTiedToDays(const CScheduleCalendar& calendar)
{
    return calendar.IsScheduleWeekly() || calendar.IsScheduleMonthly();
}

bool hasDays(const CScheduleCalendar& calendar)
{
    return !isTiedToDays(calendar) || findDay(calendar, [](const datetime::CDateTime&) { return true; });
}

} // namespace check
