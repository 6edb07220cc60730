#include "evaluation.h"

#include <utility>

#include <zelmodel/datetime/date_time_helper.h>
#include <zelplatform/exc/exc.h>

namespace when
{
namespace
{

using datetime::CDateTime;
using zelplatform::model::CDate;
using zelplatform::model::CDateTimeHelper;
using zelplatform::model::EDateUnit;
using zelplatform::model::structs::BackupWindow;
using zelplatform::model::structs::CScheduleCalendar;
using zelplatform::model::structs::CScheduleOptions;
using zelplatform::model::structs::CScheduleTime;

constexpr long SecondsOfDay = 86400;

CDateTime midnight(const CDate& date)
{
    return date;
}

long periodOf(CScheduleTime period)
{
    period.FixQorTimeFormat(true);
    return static_cast<long>(period.ToSeconds());
}

bool isTimeOfDay(const CScheduleTime& time)
{
    return time.ToSeconds() < static_cast<unsigned long>(SecondsOfDay) && time.GetMinutes() < 60;
}

/// The rest of a division that rounds down.
long restOf(long number, long divisor)
{
    const long rest = number % divisor;
    return rest < 0 ? rest + divisor : rest;
}

/// Midnight so many years before, or the first one of the calendar.
CDateTime yearsBefore(const CDateTime& date, int years)
{
    CDateTime first(false);
    first.setDate(1400, 1, 1);
    return date.year() - years <= first.year() ? first
                                               : CDateTimeHelper::BasicDateAdvance(date, EDateUnit::Year, -years);
}

} // namespace

CDateTime later(const CDateTime& moment, long seconds)
{
    return CDateTime(moment.toUnixTime() + seconds, moment.isUtcTime());
}

Evaluation::Evaluation(const CScheduleOptions& schedule, const BackupWindow* window, const CDate& countedFrom)
    : m_schedule(schedule), m_window(window), m_countedFrom(countedFrom), m_rhythm(rhythm())
{
}

const CScheduleCalendar& Evaluation::calendar() const noexcept
{
    return m_schedule.GetJobStartOptions().GetCalendar();
}

std::optional<Evaluation::Rhythm> Evaluation::rhythm() const
{
    const auto first = midnight(m_countedFrom).toUnixTime();
    const auto& time = calendar().TryGetTime();
    if (calendar().IsSchedulePeriodically())
    {
        if (time)
            return Rhythm{first, periodOf(*time)};
        if (m_schedule.GetJobStartOptions().IsEnabled())
            throw exc::CRuntimeExc("The schedule is periodical but has no period.");
    }
    if (calendar().IsScheduleRecurrent() || !time || !isTimeOfDay(*time))
        return std::nullopt;
    return Rhythm{first + static_cast<long>(time->ToSeconds()), SecondsOfDay};
}

bool Evaluation::isScheduledOn(const CDate& date) const
{
    return m_schedule.GetJobStartOptions().IsScheduledAt(date);
}

bool Evaluation::isStartTime(const CDateTime& moment) const
{
    if (m_rhythm)
        return restOf(moment.toUnixTime() - m_rhythm->start, m_rhythm->step) == 0;
    return calendar().IsScheduleContinuously();
}

Fulls Evaluation::fullsOn(const CDate& date) const
{
    if (!calendar().IsActiveFullSupported())
        return {};
    return {m_schedule.GetActiveFullOptions().IsScheduledAt(date),
            m_schedule.GetSyntheticFullOptions().IsScheduledAt(date)};
}

std::optional<StartDay> Evaluation::startsOn(const CDate& date) const
{
    if (!isScheduledOn(date))
        return std::nullopt;
    StartDay day{date, {}, fullsOn(date)};
    if (!m_rhythm)
        return day;
    const long begin = midnight(date).toUnixTime();
    for (long at = restOf(m_rhythm->start - begin, m_rhythm->step); at < SecondsOfDay; at += m_rhythm->step)
        day.starts.push_back(later(date, at));
    if (day.starts.empty())
        return std::nullopt;
    return day;
}

std::vector<StartDay> Evaluation::daysFrom(const CDate& from, std::size_t count, const std::optional<CDate>& last) const
{
    std::vector<StartDay> days;
    if (m_schedule.GetJobStartOptions().IsDisabled())
        return days;
    for (std::optional<CDate> date = from; date && (!last || *date <= *last) && days.size() < count;
         date = calendar().GetNextScheduleDateFromDate(*date))
    {
        if (auto day = startsOn(*date))
            days.push_back(std::move(*day));
    }
    return days;
}

// The library's own search backwards looks at one year only and, for calendars that no setter makes, asks other
// questions than the decision does. Here the decision itself is asked, day by day.
std::vector<StartDay> Evaluation::daysBefore(const CDate& date, std::size_t count) const
{
    std::vector<StartDay> days;
    if (m_schedule.GetJobStartOptions().IsDisabled())
        return days;
    auto current = midnight(date);
    for (auto bound = yearsBefore(current, YearsToSearch); current > bound && days.size() < count;)
    {
        current = later(current, -SecondsOfDay);
        if (auto day = startsOn(CDate(current)))
        {
            days.push_back(std::move(*day));
            bound = yearsBefore(current, YearsToSearch);
        }
    }
    return days;
}

} // namespace when
