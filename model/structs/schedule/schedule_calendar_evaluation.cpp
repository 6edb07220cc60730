#include <zelmodel/structs/schedule/schedule_calendar.h>

#include <algorithm>

#include <zelmodel/datetime/date_time_helper.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model::structs
{
namespace
{

using datetime::CDateTime;
using datetime::EDayOfWeek;
using datetime::EMonth;

constexpr int DaysOfWeek = 7;

// 29 February on one week day comes after 40 years at the latest; a year more keeps the bound beyond doubt.
constexpr int YearsToSearchForward = 41;

constexpr const char* UnsupportedType = "Unsupported schedule type [%1]";

// The date of another day of the same month, its week day counted from the one that is known.
EDayOfWeek::type dayOfWeekAt(EDayOfWeek::type known, int daysBack) noexcept
{
    return static_cast<EDayOfWeek::type>((static_cast<int>(known) + DaysOfWeek * DaysOfWeek - daysBack) % DaysOfWeek);
}

bool isOccurrence(EWeekDayNumber::type number, const CDateTime& date)
{
    switch (number)
    {
    case EWeekDayNumber::First:
    case EWeekDayNumber::Second:
    case EWeekDayNumber::Third:
    case EWeekDayNumber::Fourth: return date.getMonthCurrWeekIndex() == static_cast<unsigned long>(number);
    case EWeekDayNumber::Last: return date.day() + DaysOfWeek > date.getMonthLastDay();
    default: throw exc::CRuntimeExc("Bad week day number [%1].", util::toStr(number));
    }
}

bool isScheduledMonthly(const CScheduleCalendar& calendar, const CDateTime& date)
{
    if (!calendar.GetWeekMask().IsDayOn(date.getDayOfWeek()))
        return false;
    const auto& day = calendar.GetDayOfMonth();
    if (day.IsSet() && date.day() != (day.IsSetLast() ? date.getMonthLastDay() : day.Get()))
        return false;
    const auto number = calendar.GetWeekDayNumber();
    if (number != EWeekDayNumber::Every && !isOccurrence(number, date))
        return false;
    return calendar.GetMonthMask().IsMonthOn(date.getMonth());
}

struct DayRange
{
    int first = 0;
    int last = -1;
};

// The days of a month that the day test of the backward search lets through. It is not the test of
// isScheduledMonthly: the day of month counts for Every only, and a day that is not set is never found.
DayRange daysToTest(const CScheduleCalendar& calendar, int lastDayOfMonth)
{
    const auto number = calendar.GetWeekDayNumber();
    const auto& dayOfMonth = calendar.GetDayOfMonth();
    switch (number)
    {
    case EWeekDayNumber::First:
    case EWeekDayNumber::Second:
    case EWeekDayNumber::Third:
    case EWeekDayNumber::Fourth: return {DaysOfWeek * (number - 1) + 1, DaysOfWeek * number};
    case EWeekDayNumber::Last: return {lastDayOfMonth - DaysOfWeek + 1, lastDayOfMonth};
    case EWeekDayNumber::Every:
    {
        const int day = dayOfMonth.IsSetLast() ? lastDayOfMonth : static_cast<int>(dayOfMonth.Get());
        return day == 0 ? DayRange{} : DayRange{day, day};
    }
    default: return {};
    }
}

// The day of the date's month, the latest up to the date, that is found; 0 when there is none.
int latestInMonth(const CScheduleCalendar& calendar, const CDateTime& date, int day, int lastDayOfMonth)
{
    const auto range = daysToTest(calendar, lastDayOfMonth);
    const auto dayOfWeek = date.getDayOfWeek();
    for (int candidate = std::min(range.last, day); candidate >= range.first; --candidate)
    {
        if (calendar.GetWeekMask().IsDayOn(dayOfWeekAt(dayOfWeek, day - candidate)))
            return candidate;
    }
    return 0;
}

CDate previousWeekly(const CScheduleCalendar& calendar, const CDateTime& date)
{
    if (calendar.GetWeekMask().IsAllDaysOff())
        throw exc::CRuntimeExc("No days are specified.");
    const auto lowerBound = CDateTimeHelper::BasicDateAdvance(date, EDateUnit::Day, -DaysOfWeek);
    int daysBack = 0;
    while (daysBack <= DaysOfWeek && !calendar.GetWeekMask().IsDayOn(dayOfWeekAt(date.getDayOfWeek(), daysBack)))
        ++daysBack;
    return CDate(CDateTimeHelper::BasicDateAdvance(lowerBound, EDateUnit::Day, DaysOfWeek - daysBack));
}

// Goes back month by month, from the last day of each, down to the same month of the year before. When none of them has
// a day, the result is the day before the range.
CDate previousMonthly(const CScheduleCalendar& calendar, const CDateTime& date)
{
    if (calendar.GetMonthMask().IsAllMonthsOff())
        throw exc::CRuntimeExc("No months are specified.");
    int year = 0;
    int month = 0;
    int day = 0;
    date.getDate(year, month, day);
    auto lowerBound = date;
    lowerBound.setDate(year - 1, month, 1);
    int lastDayOfMonth = static_cast<int>(date.getMonthLastDay());
    for (auto current = date;;)
    {
        const bool isMonthOn = calendar.GetMonthMask().IsMonthOn(static_cast<EMonth::type>(month - 1));
        const int found = isMonthOn ? latestInMonth(calendar, current, day, lastDayOfMonth) : 0;
        current = CDateTimeHelper::BasicDateAdvance(current, EDateUnit::Day, found - day);
        if (found != 0 || current < lowerBound)
            return CDate(current);
        current.getDate(year, month, day);
        lastDayOfMonth = day;
    }
}

} // namespace

bool CScheduleCalendar::IsScheduledAtDate(const CDateTime& date) const
try
{
    switch (m_type)
    {
    case EScheduleType::Periodically:
    case EScheduleType::Continuously: return true;
    case EScheduleType::Weekly: return m_weekMask.IsDayOn(date.getDayOfWeek());
    case EScheduleType::Monthly: return isScheduledMonthly(*this, date);
    default: throw exc::CRuntimeExc(UnsupportedType, util::toStr(m_type));
    }
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleCalendar: Failed to check that date [%1] is on.", CDate(date).toString(), cause);
}

bool CScheduleCalendar::IsTodayScheduled(const std::shared_ptr<ITimeManager>& timeManager) const
try
{
    if (!timeManager)
        throw exc::CRuntimeExc("Unexpected internal error: time manager is not initialized.");
    return IsScheduledAtDate(timeManager->GetCurrentTime().getLocalTime());
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleCalendar: Failed to check that today is on.", cause);
}

CDate CScheduleCalendar::GetPrevScheduleDateFromDate(const CDate& date) const
try
{
    switch (m_type)
    {
    case EScheduleType::Weekly: return previousWeekly(*this, date);
    case EScheduleType::Monthly: return previousMonthly(*this, date);
    default: throw exc::CRuntimeExc(UnsupportedType, util::toStr(m_type));
    }
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to calculate previous schedule date from date [%2].", "CScheduleCalendar",
                       date.toString(), cause);
}

std::optional<CDate> CScheduleCalendar::GetNextScheduleDateFromDate(const CDate& date) const
{
    const CDateTime from = date;
    CDateTime lastDate(true);
    lastDate.setDate(9999, 12, 31);
    const auto yearsLeft = lastDate.year() - from.year();
    const auto bound = yearsLeft <= YearsToSearchForward
                           ? lastDate
                           : CDateTimeHelper::BasicDateAdvance(from, EDateUnit::Year, YearsToSearchForward);
    for (auto day = from; day < bound;)
    {
        day = CDateTimeHelper::BasicDateAdvance(day, EDateUnit::Day, 1);
        if (IsScheduledAtDate(day))
            return CDate(day);
    }
    return std::nullopt;
}

} // namespace zelplatform::model::structs
