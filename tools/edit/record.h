#pragma once

#include <array>
#include <optional>
#include <set>
#include <string>
#include <variant>

#include <zelmodel/backup_job_options.h>
#include <zelmodel/structs/gfs/gfs_policy_info.h>
#include <zelmodel/structs/schedule/backup_window.h>
#include <zelmodel/structs/schedule/schedule_options.h>

#include "describe/document.h"

namespace edit
{

/// The parts of a calendar while they are being changed. What they mean together is asked when all are there: one part
/// after the other would be refused on the way.
struct CalendarDraft
{
    explicit CalendarDraft(const zelplatform::model::structs::CScheduleCalendar& calendar);

    /// The calendar, through the library's setter of its kind, which refuses parts that do not fit together. The
    /// setters overwrite what plays no part in the kind; a part that somebody has set is refused instead.
    zelplatform::model::structs::CScheduleCalendar build() const;

    zelplatform::model::structs::EScheduleType::type type;
    std::optional<zelplatform::model::structs::CScheduleTime> time;
    zelplatform::model::structs::CWeekMask weekDays;
    zelplatform::model::structs::CMonthMask months;
    zelplatform::model::structs::EWeekDayNumber::type weekDayNumber;
    zelplatform::model::structs::CDayOfMonth dayOfMonth;

    /// The names of the parts that were set. A calendar that nobody changes stays as the document holds it, although a
    /// setter might refuse it.
    std::set<std::string> changed;
};

/// A schedule and its three calendars. The flags that turn them on stand in the options.
struct ScheduleDraft
{
    explicit ScheduleDraft(const zelplatform::model::structs::CScheduleOptions& schedule);

    /// The schedule with the calendars that were changed; refuses what their setters refuse.
    zelplatform::model::structs::CScheduleOptions build() const;

    zelplatform::model::structs::CScheduleOptions options;
    CalendarDraft jobStart;
    CalendarDraft activeFull;
    CalendarDraft syntheticFull;
};

struct JobDraft
{
    explicit JobDraft(zelplatform::model::SBackupJobOptions job);

    zelplatform::model::SBackupJobOptions options; ///< its schedule is the draft's
    ScheduleDraft schedule;
};

/// A window as its document lists it: what it is outside of the listed hours, and the hours of each day, Sunday first.
struct WindowDraft
{
    explicit WindowDraft(const zelplatform::model::structs::BackupWindow& window);

    zelplatform::model::structs::BackupWindow build() const;

    zelplatform::model::structs::EScheduleWindowKind kind;
    std::array<std::string, 7> hours;
    int hourlyOffsetMinutes;
};

struct GfsDraft
{
    zelplatform::model::structs::gfs::SGfsPolicyInfo policy;
    bool isShortNames = true; ///< the names that job options use
};

/// A document that is being written or changed.
using Record = std::variant<JobDraft, ScheduleDraft, WindowDraft, GfsDraft>;

/// A new document of a kind that this folder writes, as the library's own new record is. A new window is closed.
Record newRecord(describe::EDocumentKind kind);

/// The record of a document, read by the library. Refuses a document of a kind that cannot be changed.
Record readRecord(const describe::Document& document);

/// A document as the library writes it, on one line, and as the library reads that.
struct WrittenDocument
{
    std::string text;
    describe::Node tree;
};

/// Writes the document; refuses what the library would not read again.
WrittenDocument writeRecord(const Record& record);

} // namespace edit
