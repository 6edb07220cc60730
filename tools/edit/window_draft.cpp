#include "record.h"

#include <zelmodel/structs/schedule/schedule_parser.h>

namespace edit
{

using zelplatform::model::structs::BackupWindow;
using zelplatform::model::structs::ScheduleParser;

WindowDraft::WindowDraft(const BackupWindow& window)
    : kind(window.getMatrix().getScheduleWindowKind()), hourlyOffsetMinutes(window.getHourlyOffsetMinutes())
{
    for (int day = 0; day < static_cast<int>(hours.size()); ++day)
        hours[static_cast<std::size_t>(day)] = window.getIntervals(day);
}

BackupWindow WindowDraft::build() const
{
    ScheduleParser parser(kind);
    for (int day = 0; day < static_cast<int>(hours.size()); ++day)
        parser.parseDay(day, hours[static_cast<std::size_t>(day)]);
    return BackupWindow(parser.getMatrix(), hourlyOffsetMinutes);
}

} // namespace edit
