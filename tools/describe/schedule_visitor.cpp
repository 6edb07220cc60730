#include "visitors.h"

#include <utility>

#include <zelmodel/datetime/date.h>
#include <zelmodel/structs/schedule/schedule_calendar.h>
#include <zelplatform/util/util.h>

#include "document_names.h"
#include "words.h"

namespace describe
{
namespace
{

using zelplatform::model::CDate;
using zelplatform::model::structs::CDayOfMonth;
using zelplatform::model::structs::CFullBackupOptions;
using zelplatform::model::structs::CScheduleCalendar;
using zelplatform::model::structs::CScheduleOptions;
using zelplatform::model::structs::CStartJobScheduleOptions;
using zelplatform::model::structs::EScheduleType;
using zelplatform::model::structs::EWeekDayNumber;

constexpr unsigned long LastOldScheduleVersion = 2;

std::string tellDayOfMonth(const CDayOfMonth& day)
{
    if (!day.IsSet())
        return "not set";
    return day.IsSetLast() ? "the last" : util::toStr(day.Get());
}

// Any day serves: a calendar that has none in the 41 years after it has none at all.
bool hasDays(const CScheduleCalendar& calendar)
{
    return calendar.GetNextScheduleDateFromDate(CDate(datetime::CDateTime(true))).has_value();
}

std::string tellDays(const CScheduleCalendar& calendar)
{
    auto withoutTime = calendar;
    withoutTime.ResetTime();
    auto text = withoutTime.ToLogStr(false);
    if (hasDays(calendar))
        return text;
    if (calendar.GetWeekMask().IsAllDaysOff())
        return "never, as no week day is chosen,";
    if (calendar.IsScheduleMonthly() && calendar.GetMonthMask().IsAllMonthsOff())
        return "never, as no month is chosen,";
    return text + ", a day that never comes,";
}

std::string tellEvaluableCalendar(const CScheduleCalendar& calendar)
{
    if (calendar.IsSchedulePeriodically() && !calendar.IsTimeSet())
        return "periodically, but without a period";
    if (calendar.IsScheduleRecurrent())
        return calendar.ToLogStr(false);
    const auto days = tellDays(calendar);
    if (calendar.IsTimeSet())
        return days + " at " + calendar.GetTime().ToTimeStr();
    return days.back() == ',' ? days.substr(0, days.size() - 1) : days;
}

/// The place is the element that holds the hours.
Node visitTime(const CScheduleCalendar& calendar, const Place& place)
{
    const auto text = calendar.IsTimeSet() ? calendar.GetTime().ToTimeStr() : std::string();
    const auto* label = calendar.IsSchedulePeriodically() ? "Period" : "Time of day";
    auto node = makeDetail("time", label, text, textOr(text, "not set"), place.originOf(schedule_names::Hours));
    if (!calendar.IsTimeSet())
        return node;
    const auto [hours, minutes] = calendar.GetTime().Get();
    node.children.push_back(
        makeDetail("hours", "Hours", hours, util::toStr(hours), place.originOf(schedule_names::Hours)));
    node.children.push_back(
        makeDetail("minutes", "Minutes", minutes, util::toStr(minutes), place.originOf(schedule_names::Minutes)));
    return node;
}

/// Fields of the calendar; the place is the element that it was read from.
void visitCalendar(const CScheduleCalendar& calendar, const Place& place, std::vector<Node>& fields)
{
    const auto timeElement = place.child(schedule_names::Time);
    const auto type = calendar.GetScheduleType();
    // Before calendars had a type, the time said that it is a period.
    const auto typeOrigin = !place.has(schedule_names::Type) && timeElement.has(schedule_names::Type)
                                ? asOlder(timeElement.originOf(schedule_names::Type))
                                : place.originOf(schedule_names::Type);
    fields.push_back(makeDetail("scheduleType", "Kind", util::toStr(type), tellScheduleType(type), typeOrigin));
    fields.push_back(visitTime(calendar, timeElement.isThere() ? timeElement : place));
    const auto& weekMask = calendar.GetWeekMask();
    fields.push_back(makeDetail("weekMask", "Week days", weekMask.ToString(",", false),
                                textOr(weekMask.ToLogStr(false), "none"),
                                place.child(schedule_names::WeekMask).origin()));
    const auto& monthMask = calendar.GetMonthMask();
    fields.push_back(makeDetail("monthMask", "Months", monthMask.ToString(",", false),
                                textOr(monthMask.ToLogStr(false), "none"),
                                place.child(schedule_names::MonthMask).origin()));
    const auto number = EWeekDayNumber::ToStr(calendar.GetWeekDayNumber());
    fields.push_back(makeDetail("weekDayNumber", "Which of the week days", number, number,
                                place.originOf(schedule_names::WeekDayNumber)));
    const auto& day = calendar.GetDayOfMonth();
    fields.push_back(makeDetail("dayOfMonth", "Day of the month", day.Get(), tellDayOfMonth(day),
                                place.originOf(schedule_names::DayOfMonth)));
}

// The library's own line for logs writes the time of day as a duration; people who compare logs look for it.
void addLogText(const CScheduleCalendar& calendar, bool isEnabled, std::vector<Node>& fields)
try
{
    const auto text = calendar.ToLogStr(false);
    if (isEnabled && text != tellCalendar(calendar))
        fields.push_back(makeField("logText", "In the log", text, text));
}
catch (const std::exception&)
{
    return;
}

std::string tellOptions(bool isEnabled, const CScheduleCalendar& calendar, const Place& place, const char* verb)
{
    if (isEnabled)
        return verb + tellCalendar(calendar);
    return place.isThere() ? "disabled, set to " + tellCalendar(calendar) : "disabled";
}

bool isOldLayout(const Place& place)
{
    const auto version = place.textOf(schedule_names::Version);
    return version.empty() || util::fromStr<unsigned long>(version) - 1 < LastOldScheduleVersion;
}

Node visitStart(const CStartJobScheduleOptions& start, const Place& parent)
{
    const auto place = parent.child(schedule_names::Schedule);
    const auto& calendar = start.GetCalendar();
    auto node =
        makeField("jobStart", "Start", "", tellOptions(start.IsEnabled(), calendar, place, "starts "), place.origin());
    const bool isOld = place.isThere() && isOldLayout(place);
    node.children.push_back(makeDetail("isEnabled", "Enabled", start.IsEnabled(), flagText(start.IsEnabled()),
                                       isOld ? asOlder(parent.originOf(schedule_names::Schedule))
                                             : place.originOf(schedule_names::IsEnabled)));
    visitCalendar(calendar, place, node.children);
    addLogText(calendar, start.IsEnabled(), node.children);
    return node;
}

Node visitFull(const CFullBackupOptions& full, const char* name, const char* label, const Place& parent)
{
    const auto place = parent.child(CFullBackupOptions::GetRootNodeName(full.GetType()));
    const auto& calendar = full.GetCalendar();
    auto node = makeField(name, label, "", tellOptions(full.IsEnabled(), calendar, place, ""), place.origin());
    node.children.push_back(makeDetail("isEnabled", "Enabled", full.IsEnabled(), flagText(full.IsEnabled()),
                                       place.originOf(schedule_names::IsEnabled)));
    visitCalendar(calendar, place, node.children);
    addLogText(calendar, full.IsEnabled(), node.children);
    return node;
}

} // namespace

std::string tellScheduleType(EScheduleType::type type)
{
    switch (type)
    {
    case EScheduleType::Weekly: return "weekly";
    case EScheduleType::Monthly: return "monthly";
    case EScheduleType::Periodically: return "periodically";
    case EScheduleType::Continuously: return "continuously";
    }
    return "of an unknown kind";
}

std::string tellCalendar(const CScheduleCalendar& calendar)
try
{
    return tellEvaluableCalendar(calendar);
}
catch (const std::exception& cause)
{
    return std::string("cannot be evaluated: ") + cause.what();
}

Node visitSchedule(const CScheduleOptions& schedule, const Place& parent)
{
    auto node = makeField("schedule", "Schedule", "", "", parent.origin());
    node.children.push_back(visitStart(schedule.GetJobStartOptions(), parent));
    node.children.push_back(visitFull(schedule.GetActiveFullOptions(), "activeFull", "Active full", parent));
    node.children.push_back(visitFull(schedule.GetSyntheticFullOptions(), "syntheticFull", "Synthetic full", parent));
    node.children.push_back(makeField("backupWindow", "Window", "", "in a document of its own, if there is one"));
    return node;
}

} // namespace describe
