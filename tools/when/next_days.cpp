#include "next_days.h"

#include <utility>

#include <zelplatform/util/util.h>

#include "describe/visitors.h"
#include "describe/words.h"
#include "local_zone.h"
#include "window_words.h"

namespace when
{
namespace
{

using datetime::CDateTime;
using describe::clockTime;
using describe::isoDate;
using describe::makeField;
using describe::Node;
using zelplatform::model::CDate;

constexpr std::size_t MostListedStarts = 24;

std::string listTimes(const std::vector<CDateTime>& times)
{
    std::string text;
    for (const auto& time : times)
        text += (text.empty() ? "" : " ") + clockTime(time);
    return text;
}

std::string tellStarts(const Evaluation& evaluation, const StartDay& day)
{
    const auto& calendar = evaluation.calendar();
    if (calendar.IsScheduleContinuously())
        return "all day";
    if (day.starts.empty())
        return calendar.IsTimeSet() ? calendar.GetTime().ToTimeStr() + " is no time of day" : "no time";
    if (day.starts.size() <= MostListedStarts)
        return listTimes(day.starts);
    return clockTime(day.starts.front()) + " and every " + calendar.GetTime().ToUserFriendlyStr() + " after, " +
           util::toStr(day.starts.size()) + " starts";
}

Node describeDay(const Evaluation& evaluation, const StartDay& day)
{
    const auto date = isoDate(day.date);
    auto row = makeField("day", "", date, "");
    const auto add = [&row](const char* name, const char* label, const std::string& value, const std::string& words) {
        row.children.push_back(makeField(name, label, value, words));
    };
    const auto weekDay = describe::weekDay(day.date);
    const auto starts = tellStarts(evaluation, day);
    const auto full = tellFulls(day.fulls);
    const auto window = tellWindow(evaluation, day);
    const auto clock = tellClock(day.date, day.starts);
    add("date", "Date", date, date);
    add("weekDay", "Day", weekDay, weekDay);
    add("start", "Start", day.starts.empty() ? starts : listTimes(day.starts), starts);
    add("full", "Full", full, full);
    add("window", "Window", window, window);
    add("clock", "Clock", clock, clock);
    return row;
}

} // namespace

std::string tellFulls(const Fulls& fulls)
{
    std::vector<std::string> words;
    if (fulls.isActive)
        words.emplace_back("active full");
    if (fulls.isSynthetic)
        words.emplace_back("synthetic full");
    return describe::listOf(words);
}

std::string tellSchedule(const Evaluation& evaluation, const CDate& date)
{
    const auto& calendar = evaluation.calendar();
    const auto& schedule = evaluation.schedule();
    auto text = "starts " + describe::tellCalendar(calendar) + ", " + tellZone(date);
    if (calendar.IsSchedulePeriodically())
        text += ", counted from 00:00 on " + isoDate(evaluation.countedFrom());
    const bool hasFulls = schedule.GetActiveFullOptions().IsEnabled() || schedule.GetSyntheticFullOptions().IsEnabled();
    if (hasFulls && !calendar.IsActiveFullSupported())
        text += "; full backups are tied to weekly and monthly schedules only";
    return text;
}

Node describeDays(const Evaluation& evaluation, const CDate& from, const std::vector<StartDay>& days)
{
    auto node = makeField("next", "", "", tellSchedule(evaluation, from));
    node.isList = true;
    for (const auto& day : days)
        node.children.push_back(describeDay(evaluation, day));
    return node;
}

std::string tellWhyNothing(const Evaluation& evaluation, describe::EDocumentKind kind, const std::string& noDay)
{
    const std::string nothing = "Nothing is scheduled: ";
    if (kind == describe::EDocumentKind::ServerJobOptions)
        return nothing + "the managing server's form carries no schedule, so the job is disabled.";
    if (evaluation.schedule().GetJobStartOptions().IsDisabled())
        return nothing + "the job is disabled.";
    return nothing + noDay + " (" + describe::tellCalendar(evaluation.calendar()) + ").";
}

} // namespace when
