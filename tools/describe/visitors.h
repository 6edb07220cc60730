#pragma once

#include <zelmodel/backup_job_options.h>
#include <zelmodel/structs/gfs/gfs_policy_info.h>
#include <zelmodel/structs/schedule/backup_window.h>
#include <zelmodel/structs/schedule/schedule_options.h>

#include "node.h"
#include "place.h"

/// One visitor for each kind of document: the record as the library read it, told in words, with the lines of the
/// element that it came from. Each is the only place that knows the fields of its record.
namespace describe
{

/// Job options; the place is the element "JobOptions", or "JobOptionsRoot" with the flag.
Node visitJobOptions(const zelplatform::model::SBackupJobOptions& job, const Place& place, bool isServerForm);

/// File indexing; the place is the element that owns it.
Node visitIndexing(const zelplatform::model::structs::SIndexingOptions& indexing, const Place& owner);

/// A schedule; the place is the parent of "Schedule" and its companions.
Node visitSchedule(const zelplatform::model::structs::CScheduleOptions& schedule, const Place& parent);

/// A calendar in one sentence with the time of day as a clock shows it: "Every Monday, Friday at 22:30". Never throws
/// for a calendar that a document can hold; what cannot be evaluated is said so.
std::string tellCalendar(const zelplatform::model::structs::CScheduleCalendar& calendar);

/// A backup window; the place is its element.
Node visitWindow(const zelplatform::model::structs::BackupWindow& window, const Place& place);

/// A GFS policy; the place is its element, the flag says which names it uses.
Node visitGfsPolicy(const zelplatform::model::structs::gfs::SGfsPolicyInfo& policy, const Place& place,
                    bool isShortNames);

} // namespace describe
