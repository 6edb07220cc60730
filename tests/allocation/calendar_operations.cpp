#include "operation.h"
#include "samples.h"
#include "schedule_words.h"

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model;
using namespace zelplatform::model::structs;
using datetime::CDateTime;
using datetime::EDayOfWeek;

const CScheduleTime HalfPastTen(22, 30);

CScheduleCalendar weekly()
{
    CScheduleCalendar calendar;
    calendar.SetWeekly(CScheduleTime(7, 5), weekend());
    return calendar;
}

CScheduleCalendar monthly()
{
    CScheduleCalendar calendar;
    calendar.SetMonthly(CScheduleTime(7, 5), EWeekDayNumber::Last, EDayOfWeek::Friday, summer());
    return calendar;
}

// Masks without flags have no memory: whatever is put into them takes some.
CScheduleCalendar withoutMasks()
{
    auto calendar = monthly();
    calendar.GetWeekMask() = CWeekMask(std::vector<bool>());
    calendar.GetMonthMask() = CMonthMask(std::vector<bool>());
    return calendar;
}

CScheduleCalendar everyDay()
{
    CScheduleCalendar calendar;
    calendar.SetWeekly(HalfPastTen, CWeekMask(true));
    return calendar;
}

CScheduleCalendar everyMonth()
{
    CScheduleCalendar calendar;
    calendar.SetMonthly(HalfPastTen, EWeekDayNumber::Last, EDayOfWeek::Monday, CMonthMask(true));
    return calendar;
}

std::vector<Change<CScheduleCalendar>> changes()
{
    using Calendar = CScheduleCalendar;
    return {
        {"SetWeekly", [](Calendar& calendar) { calendar.SetWeekly(HalfPastTen, weekend()); }},
        {"SetMonthly",
         [](Calendar& calendar) {
             calendar.SetMonthly(HalfPastTen, EWeekDayNumber::Second, EDayOfWeek::Sunday, summer());
         }},
        {"SetMonthlyOnDay",
         [](Calendar& calendar) { calendar.SetMonthlyOnDay(HalfPastTen, CDayOfMonth(15), summer()); }},
        {"SetPeriodically", [](Calendar& calendar) { calendar.SetPeriodically(HalfPastTen); }},
        {"SetContinuously", [](Calendar& calendar) { calendar.SetContinuously(); }},
        {"SetDefaultWeekly", [](Calendar& calendar) { calendar.SetDefaultWeekly(HalfPastTen); }},
        {"SetDefaultMonthly", [](Calendar& calendar) { calendar.SetDefaultMonthly(HalfPastTen); }},
        {"SetTime", [](Calendar& calendar) { calendar.SetTime(HalfPastTen); }},
        {"ResetTime", [](Calendar& calendar) { calendar.ResetTime(); }},
        {"ExpandTo.everyDay", [](Calendar& calendar) { calendar.ExpandTo(everyDay()); }},
        {"ExpandTo.weekly", [](Calendar& calendar) { calendar.ExpandTo(weekly()); }},
        {"assignedCopy",
         [](Calendar& calendar) {
             const auto other = everyDay();
             calendar = other;
         }},
        {"assignedMove", [](Calendar& calendar) { calendar = everyDay(); }},
        {"swap",
         [](Calendar& calendar) {
             auto other = everyDay();
             std::swap(calendar, other);
         }},
    };
}

std::vector<Change<CScheduleCalendar>> monthlyChanges()
{
    return {
        {"SetWeekDayNumber", [](CScheduleCalendar& calendar) { calendar.SetWeekDayNumber(EWeekDayNumber::Every); }},
        {"ExpandTo.everyMonth", [](CScheduleCalendar& calendar) { calendar.ExpandTo(everyMonth()); }},
    };
}

CDate march()
{
    return CDate(CDateTime(1709769600, true));
}

std::vector<Question<CScheduleCalendar>> questions()
{
    using Calendar = CScheduleCalendar;
    return {
        {"ToLogStr", [](const Calendar& calendar) { return calendar.ToLogStr(false) + calendar.ToLogStr(true); }},
        {"IsScheduledAtDate",
         [](const Calendar& calendar) { return util::toStr(calendar.IsScheduledAtDate(march())); }},
        {"GetPrevScheduleDateFromDate",
         [](const Calendar& calendar) { return calendar.GetPrevScheduleDateFromDate(march()).toString(); }},
        {"GetNextScheduleDateFromDate",
         [](const Calendar& calendar) { return calendar.GetNextScheduleDateFromDate(march()).value().toString(); }},
        {"equality", [](const Calendar& calendar) { return util::toStr(calendar == everyDay()); }},
        {"copy", [](const Calendar& calendar) { return tellCalendar(Calendar(calendar)); }},
    };
}

std::vector<Question<Nothing>> constructions()
{
    return {
        {"default", [](const Nothing&) { return tellCalendar(CScheduleCalendar()); }},
        {"ofAll",
         [](const Nothing&) {
             return tellCalendar(CScheduleCalendar(EScheduleType::Monthly, HalfPastTen, weekend(), summer(),
                                                   EWeekDayNumber::First, CDayOfMonth(15)));
         }},
    };
}

} // namespace

Operations calendarOperations()
{
    const std::string name = "CScheduleCalendar";
    const Tell<CScheduleCalendar> tell = tellCalendar;
    return changing<CScheduleCalendar>(name + ".weekly", weekly, tell, changes()) +
           changing<CScheduleCalendar>(name + ".monthly", monthly, tell, changes()) +
           changing<CScheduleCalendar>(name + ".withoutMasks", withoutMasks, tell, changes()) +
           changing<CScheduleCalendar>(name + ".monthly", monthly, tell, monthlyChanges()) +
           asking<CScheduleCalendar>(name + ".weekly", weekly, questions()) +
           asking<CScheduleCalendar>(name + ".monthly", monthly, questions()) +
           asking("CScheduleCalendar.constructed", constructions());
}

} // namespace zelmodel_test
