#include "decision.h"

#include <algorithm>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "describe/words.h"
#include "window_words.h"

namespace when
{
namespace
{

using datetime::CDateTime;
using zelplatform::model::CDate;
using zelplatform::model::structs::CFullBackupOptions;
using zelplatform::model::structs::CMonthMask;
using zelplatform::model::structs::CScheduleCalendar;
using zelplatform::model::structs::CStartJobScheduleOptions;
using zelplatform::model::structs::CWeekMask;
using zelplatform::model::structs::EScheduleType;
using zelplatform::model::structs::EWeekDayNumber;

bool isKnown(EScheduleType::type type)
{
    return type >= EScheduleType::Weekly && type <= EScheduleType::Continuously;
}

// One question alone is asked of a calendar that asks no other.
bool isOnDayOfMonth(const CScheduleCalendar& calendar, const CDate& date)
{
    const auto& day = calendar.GetDayOfMonth();
    if (!day.IsSet())
        return true;
    CScheduleCalendar question;
    question.SetMonthlyOnDay(std::nullopt, day, CMonthMask(true));
    return question.IsScheduledAtDate(date);
}

bool isOccurrence(const CScheduleCalendar& calendar, const CDateTime& date)
{
    const auto number = calendar.GetWeekDayNumber();
    if (number == EWeekDayNumber::Every)
        return true;
    CScheduleCalendar question;
    question.SetMonthly(std::nullopt, number, date.getDayOfWeek(), CMonthMask(true));
    return question.IsScheduledAtDate(date);
}

std::string tellOccurrence(const CDateTime& date)
{
    const auto index = static_cast<EWeekDayNumber::type>(date.getMonthCurrWeekIndex());
    const bool isLast = date.day() + CWeekMask::GetNumberOfDays() > date.getMonthLastDay();
    const auto name = util::tolower(EWeekDayNumber::ToStr(index));
    return "the " + name + (isLast && index != EWeekDayNumber::Last ? " and last " : " ") + describe::weekDay(date) +
           " of the month";
}

void addMonthly(const CScheduleCalendar& calendar, const CDateTime& date, std::vector<Condition>& conditions)
{
    conditions.push_back({"dayOfMonth", "Day of month", isOnDayOfMonth(calendar, CDate(date)),
                          util::toStr(date.day()) + " of " + util::toStr(date.getMonthLastDay())});
    conditions.push_back({"weekDayNumber", "Occurrence", isOccurrence(calendar, date), tellOccurrence(date)});
    conditions.push_back({"monthMask", "Month", calendar.GetMonthMask().IsMonthOn(date.getMonth()),
                          datetime::EMonth::ToStr(date.getMonth())});
}

// The conjunction must be the decision, or the answer would be wrong in the one place where people look for the truth.
template <class TOptions>
std::vector<Condition> conditionsOf(const TOptions& options, const CDate& date)
{
    const auto& calendar = options.GetCalendar();
    const CDateTime day = date;
    const bool isScheduled = options.IsScheduledAt(day);
    std::vector<Condition> conditions{{"isEnabled", "Enabled", options.IsEnabled(), {}},
                                      {"scheduleType", "Kind", isKnown(calendar.GetScheduleType()), {}}};
    if (calendar.IsScheduleWeekly() || calendar.IsScheduleMonthly())
        conditions.push_back(
            {"weekMask", "Week day", calendar.GetWeekMask().IsDayOn(day.getDayOfWeek()), describe::weekDay(day)});
    if (calendar.IsScheduleMonthly())
        addMonthly(calendar, day, conditions);
    if ((firstNo(conditions) == nullptr) != isScheduled)
        throw exc::CRuntimeExc("The conditions contradict the decision of the library.");
    return conditions;
}

} // namespace

std::vector<Condition> conditionsOfDay(const CStartJobScheduleOptions& options, const CDate& date)
{
    return conditionsOf(options, date);
}

std::vector<Condition> conditionsOfDay(const CFullBackupOptions& options, const CDate& date)
{
    return conditionsOf(options, date);
}

const Condition* firstNo(const std::vector<Condition>& conditions) noexcept
{
    const auto found = std::find_if(conditions.begin(), conditions.end(), [](const auto& c) { return !c.holds; });
    return found == conditions.end() ? nullptr : &*found;
}

Decision decide(const Evaluation& evaluation, const CDateTime& moment)
{
    const CDate date(moment);
    Decision decision;
    decision.conditions = conditionsOfDay(evaluation.schedule().GetJobStartOptions(), date);
    decision.conditions.push_back({"time", evaluation.calendar().IsSchedulePeriodically() ? "Period" : "Time of day",
                                   evaluation.isStartTime(moment), describe::clockTime(moment)});
    if (const auto* window = evaluation.window())
        decision.conditions.push_back(
            {WindowField, "Window", window->isWindowOpen(moment), tellWindowAt(*window, moment)});
    decision.isStart = firstNo(decision.conditions) == nullptr;
    if (decision.isStart)
        decision.fulls = evaluation.fullsOn(date);
    return decision;
}

} // namespace when
