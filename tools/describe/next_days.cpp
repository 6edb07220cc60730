#include "next_days.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "visitors.h"
#include "words.h"

namespace describe
{
namespace
{

using datetime::CDateTime;
using zelplatform::model::CDate;
using zelplatform::model::structs::BackupWindow;
using zelplatform::model::structs::CScheduleCalendar;
using zelplatform::model::structs::CScheduleOptions;
using zelplatform::model::structs::CScheduleTime;
using zelplatform::model::structs::CStartJobScheduleOptions;

constexpr long SecondsOfHour = 3600;
constexpr long SecondsOfDay = 86400;
constexpr std::size_t MostListedStarts = 24;

CDateTime midnight(const CDate& date)
{
    return date;
}

CDateTime later(const CDateTime& moment, long seconds)
{
    return CDateTime(moment.toUnixTime() + seconds, moment.isUtcTime());
}

/// The moments of a day at which the job starts, and how they read.
struct Starts
{
    std::vector<CDateTime> moments;
    std::string words;
};

CScheduleTime periodOf(const CScheduleCalendar& calendar)
{
    if (!calendar.IsTimeSet())
        throw exc::CRuntimeExc("The schedule is periodical but has no period.");
    auto period = calendar.GetTime();
    period.FixQorTimeFormat(true);
    return period;
}

Starts startsOfPeriod(const CScheduleTime& period, const CDateTime& first, const CDateTime& day)
{
    const long step = static_cast<long>(period.ToSeconds());
    const long passed = day.toUnixTime() - first.toUnixTime();
    Starts starts;
    for (long at = (passed + step - 1) / step * step; at < passed + SecondsOfDay; at += step)
        starts.moments.push_back(later(first, at));
    if (starts.moments.size() > MostListedStarts)
    {
        starts.words = clockTime(starts.moments.front()) + " and every " + period.ToUserFriendlyStr() + " after, " +
                       util::toStr(starts.moments.size()) + " starts";
        return starts;
    }
    for (const auto& moment : starts.moments)
        starts.words += (starts.words.empty() ? "" : " ") + clockTime(moment);
    return starts;
}

bool isTimeOfDay(const CScheduleTime& time)
{
    return time.ToSeconds() < static_cast<unsigned long>(SecondsOfDay) && time.GetMinutes() < 60;
}

Starts startsAtTime(const CScheduleCalendar& calendar, const CDateTime& day)
{
    if (!calendar.IsTimeSet())
        return {{}, "no time"};
    const auto& time = calendar.GetTime();
    if (!isTimeOfDay(time))
        return {{}, time.ToTimeStr() + " is no time of day"};
    return {{later(day, static_cast<long>(time.ToSeconds()))}, time.ToTimeStr()};
}

Starts startsOf(const CScheduleCalendar& calendar, const CDateTime& first, const CDateTime& day)
{
    if (calendar.IsScheduleContinuously())
        return {{}, "all day"};
    if (calendar.IsSchedulePeriodically())
        return startsOfPeriod(periodOf(calendar), first, day);
    return startsAtTime(calendar, day);
}

/// The end of an open stretch that is told on the day.
std::string tellClosing(const CDateTime& closing, const CDateTime& day)
{
    const long passed = closing.toUnixTime() - day.toUnixTime();
    if (passed == SecondsOfDay)
        return "24:00";
    return clockTime(closing) + (passed < SecondsOfDay ? "" : " on " + weekDay(closing) + ' ' + isoDate(closing));
}

std::string tellWindowAt(const BackupWindow& window, const CDateTime& start, const CDateTime& day)
{
    if (!window.isWindowOpen(start))
        return "closed";
    const auto closing = window.getWindowClosingTime(start);
    return closing ? "open until " + tellClosing(*closing, day) : "open, never closes";
}

std::string tellWindowAtStarts(const BackupWindow& window, const std::vector<CDateTime>& starts, const CDateTime& day)
{
    if (starts.size() == 1)
        return tellWindowAt(window, starts.front(), day);
    std::string text;
    for (std::size_t from = 0; from < starts.size();)
    {
        const auto words = tellWindowAt(window, starts[from], day);
        std::size_t last = from;
        while (last + 1 < starts.size() && tellWindowAt(window, starts[last + 1], day) == words)
            ++last;
        text += (text.empty() ? "" : ", ") + clockTime(starts[from]) +
                (last > from ? " to " + clockTime(starts[last]) : "") + ' ' + words;
        from = last + 1;
    }
    return text;
}

/// The open stretches of a day for a job that runs all the time.
std::string tellOpenHours(const BackupWindow& window, const CDateTime& day)
{
    std::string text;
    for (auto at = day; at < later(day, SecondsOfDay - 1);)
    {
        if (!window.isWindowOpen(at))
        {
            at = later(at, SecondsOfHour);
            continue;
        }
        const auto closing = window.getWindowClosingTime(at);
        if (!closing)
            return "open, never closes";
        text += (text.empty() ? "open " : ", ") + clockTime(at) + " to " + tellClosing(*closing, day);
        at = *closing;
    }
    return textOr(text, "closed all day");
}

std::string tellWindow(const BackupWindow* window, const CScheduleCalendar& calendar, const Starts& starts,
                       const CDateTime& day)
{
    if (window == nullptr)
        return {};
    if (calendar.IsScheduleContinuously())
        return tellOpenHours(*window, day);
    return starts.moments.empty() ? "not known without a time of day"
                                  : tellWindowAtStarts(*window, starts.moments, day);
}

std::string tellFull(const CScheduleOptions& schedule, const CDateTime& day)
{
    if (!schedule.GetJobStartOptions().GetCalendar().IsActiveFullSupported())
        return {};
    std::vector<std::string> fulls;
    if (schedule.GetActiveFullOptions().IsScheduledAt(day))
        fulls.emplace_back("active full");
    if (schedule.GetSyntheticFullOptions().IsScheduledAt(day))
        fulls.emplace_back("synthetic full");
    return listOf(fulls);
}

std::string tellTitle(const CScheduleOptions& schedule, const CDate& from)
{
    const auto& calendar = schedule.GetJobStartOptions().GetCalendar();
    auto title = "starts " + tellCalendar(calendar) + ", local time";
    if (calendar.IsSchedulePeriodically())
        title += ", counted from 00:00 on " + isoDate(from);
    const bool hasFulls = schedule.GetActiveFullOptions().IsEnabled() || schedule.GetSyntheticFullOptions().IsEnabled();
    if (hasFulls && !calendar.IsActiveFullSupported())
        title += "; full backups are tied to weekly and monthly schedules only";
    return title;
}

std::optional<CDate> firstDay(const CStartJobScheduleOptions& start, const CDate& from)
{
    if (start.IsDisabled())
        return std::nullopt;
    return start.IsScheduledAt(from) ? from : start.GetCalendar().GetNextScheduleDateFromDate(from);
}

} // namespace

Node describeNextDays(const CScheduleOptions& schedule, const BackupWindow* window, const CDate& from, unsigned count)
{
    const auto& start = schedule.GetJobStartOptions();
    const auto& calendar = start.GetCalendar();
    auto node = makeField("next", "", "", tellTitle(schedule, from));
    node.isList = true;
    for (auto date = firstDay(start, from); date && node.children.size() < count;
         date = calendar.GetNextScheduleDateFromDate(*date))
    {
        const auto day = midnight(*date);
        const auto starts = startsOf(calendar, midnight(from), day);
        if (calendar.IsSchedulePeriodically() && starts.moments.empty())
            continue;
        auto row = makeField("day", "", isoDate(day), "");
        const auto add = [&row](const char* name, const char* label, const std::string& words) {
            row.children.push_back(makeField(name, label, words, words));
        };
        add("date", "Date", isoDate(day));
        add("weekDay", "Day", weekDay(day));
        add("start", "Start", starts.words);
        add("full", "Full", tellFull(schedule, day));
        add("window", "Window", tellWindow(window, calendar, starts, day));
        node.children.push_back(std::move(row));
    }
    return node;
}

std::string tellWhyNothingIsNext(const CScheduleOptions& schedule, EDocumentKind kind)
{
    if (kind == EDocumentKind::ServerJobOptions)
        return "Nothing is scheduled: the managing server's form carries no schedule, so the job is disabled.";
    if (schedule.GetJobStartOptions().IsDisabled())
        return "Nothing is scheduled: the job is disabled.";
    return "Nothing is scheduled: no day comes within 41 years (" +
           tellCalendar(schedule.GetJobStartOptions().GetCalendar()) + ").";
}

} // namespace describe
