#include "rules.h"

#include <zelmodel/structs/schedule/schedule_options.h>

#include "fields.h"
#include "schedule_of.h"

namespace check
{
namespace
{

using zelplatform::model::structs::BackupWindow;
using zelplatform::model::structs::CScheduleCalendar;
using zelplatform::model::structs::CScheduleTime;

constexpr int DaysOfWeek = 7;
constexpr int HoursOfDay = 24;

int openHoursOf(const BackupWindow& window)
{
    int open = 0;
    for (int day = 0; day < DaysOfWeek; ++day)
    {
        for (int hour = 0; hour < HoursOfDay; ++hour)
            open += window.getMatrix()(day, hour) == 1 ? 1 : 0;
    }
    return open;
}

// Where a periodical job starts is told by its first start, which no document holds: any open hour may serve it.
bool isOpenAtSomeStart(const BackupWindow& window, const CScheduleCalendar& calendar)
{
    if (!isTiedToDays(calendar) || !calendar.IsTimeSet())
        return openHoursOf(window) > 0;
    const auto seconds = static_cast<long>(calendar.GetTime().ToSeconds());
    return findDay(calendar,
                   [&](const datetime::CDateTime& day) {
                       return window.isWindowOpen(datetime::CDateTime(day.toUnixTime() + seconds, day.isUtcTime()));
                   })
        .has_value();
}

void checkWindowDocument(const Subject& subject, Findings& findings)
{
    const auto& kind = *findField(subject.tree(), {"kind"});
    // Which hours are open cannot be told when the kind was refused.
    if (!subject.isWritten(kind))
        return;
    const int line = kind.origin.line;
    const int open = openHoursOf(*subject.document.readWindow());
    if (open == 0)
        findings.add(rule_id::WindowAlwaysClosed, line, "no hour of the week is open");
    if (open == DaysOfWeek * HoursOfDay)
        findings.add(rule_id::WindowNeverCloses, line, "every hour of the week is open");
}

} // namespace

void checkWindow(const Subject& subject, Findings& findings)
{
    if (subject.document.kind() == describe::EDocumentKind::ScheduleWindow)
        checkWindowDocument(subject, findings);
    const auto found = scheduleOf(subject);
    if (!found || subject.window == nullptr)
        return;
    const auto& start = found->schedule.GetJobStartOptions();
    const auto* fields = findField(found->fields, {"jobStart"});
    if (!start.IsEnabled() || !hasDays(start.GetCalendar()) || isOpenAtSomeStart(*subject.window, start.GetCalendar()))
        return;
    const auto* time = findField(*fields, {"time"});
    findings.add(rule_id::WindowClosedAtStart, time->origin.isThere() ? time->origin.line : fields->origin.line,
                 "the job " + fields->words + ", and the backup window is closed then");
}

} // namespace check
