#pragma once

#include <optional>
#include <vector>

#include <zelmodel/datetime/date.h>
#include <zelmodel/structs/schedule/backup_window.h>
#include <zelmodel/structs/schedule/schedule_options.h>
#include <zelplatform/datetime/date_time.h>

namespace when
{

/// The full backups that a day's start makes.
struct Fulls
{
    bool isActive = false;
    bool isSynthetic = false;
};

/// A day on which a job starts.
struct StartDay
{
    zelplatform::model::CDate date;
    std::vector<datetime::CDateTime> starts; ///< ascending; empty when the job runs all day or has no usable time
    Fulls fulls;
};

/// The one answer to when a job starts, which every command tells in its way. Days are decided by the library alone;
/// a start is the time of day that the calendar holds, or a multiple of its period. A periodical job has no stored
/// first start: its starts are counted from 00:00 of a day that the caller names. All times are local wall-clock
/// times. Whatever the library throws for a calendar that cannot be evaluated passes.
class Evaluation
{
public:
    /// How far a search for the next or the previous day goes.
    static constexpr int YearsToSearch = 41;

    /// A schedule and a window, or none; both must outlive it. A periodical job that is
    /// enabled and has no period is refused.
    Evaluation(const zelplatform::model::structs::CScheduleOptions& schedule,
               const zelplatform::model::structs::BackupWindow* window, const zelplatform::model::CDate& countedFrom);

    const zelplatform::model::structs::CScheduleOptions& schedule() const noexcept { return m_schedule; }
    const zelplatform::model::structs::CScheduleCalendar& calendar() const noexcept;
    const zelplatform::model::structs::BackupWindow* window() const noexcept { return m_window; }
    const zelplatform::model::CDate& countedFrom() const noexcept { return m_countedFrom; }

    /// Whether the job starts on the day at all: the library's answer.
    bool isScheduledOn(const zelplatform::model::CDate& date) const;

    /// Whether a start falls on the time of the moment, whatever its day. A continuous job starts at any.
    bool isStartTime(const datetime::CDateTime& moment) const;

    /// The full backups of the day: of a recurrent job there are none.
    Fulls fullsOn(const zelplatform::model::CDate& date) const;

    /// The starts of the day; nothing when there is none, which a period above a day can bring about, too.
    std::optional<StartDay> startsOn(const zelplatform::model::CDate& date) const;

    /// The days on which the job starts from the date on, at most so many and none after the last one, if there is one.
    std::vector<StartDay> daysFrom(const zelplatform::model::CDate& from, std::size_t count,
                                   const std::optional<zelplatform::model::CDate>& last = std::nullopt) const;

    /// The days on which the job starts before the date, the latest first, at most so many. The search ends when 41
    /// years hold none.
    std::vector<StartDay> daysBefore(const zelplatform::model::CDate& date, std::size_t count) const;

private:
    /// Starts as seconds of the wall clock: one, and the distance of all others from it.
    struct Rhythm
    {
        long start;
        long step;
    };

    std::optional<Rhythm> rhythm() const;

    const zelplatform::model::structs::CScheduleOptions& m_schedule;
    const zelplatform::model::structs::BackupWindow* m_window;
    zelplatform::model::CDate m_countedFrom;
    std::optional<Rhythm> m_rhythm;
};

/// The moment so many seconds later.
datetime::CDateTime later(const datetime::CDateTime& moment, long seconds);

} // namespace when
