#pragma once

#include <string>

#include <zelmodel/datetime/date.h>
#include <zelmodel/structs/schedule/backup_window.h>
#include <zelmodel/structs/schedule/schedule_options.h>

#include "document.h"
#include "node.h"

namespace describe
{

/// The next days on which a job starts, from the given date on, at most so many: a node with one child for each day
/// (date, week day, start, full backup, window); without children when the job is disabled or no day comes. Every
/// answer is the library's. The window may be none.
///
/// A periodical job has no stored first start: its starts are counted from 00:00 of the first date.
Node describeNextDays(const zelplatform::model::structs::CScheduleOptions& schedule,
                      const zelplatform::model::structs::BackupWindow* window, const zelplatform::model::CDate& from,
                      unsigned count);

/// Why there is no next day, as a sentence. The kind is that of the document which gave the schedule.
std::string tellWhyNothingIsNext(const zelplatform::model::structs::CScheduleOptions& schedule, EDocumentKind kind);

} // namespace describe
