#include <zelplatform/datetime/date_time.h>

#include <limits>

#include <boost/date_time/gregorian/gregorian_types.hpp>

#include <zelplatform/datetime/clock.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace datetime
{
namespace
{

using boost::gregorian::date;
using boost::gregorian::gregorian_calendar;

constexpr long SecondsOfDay = 86400;
constexpr long FirstSecond = -17987443200; // 1400-01-01 00:00:00, a whole number of days
constexpr long LastSecond = 253402300799;  // 9999-12-31 23:59:59
constexpr long EpochDayNumber = 2440588;   // 1970-01-01 as the calendar counts days

// Seconds are counted from the first day on, which makes them positive: one division without a sign.
long daysOf(long seconds) noexcept
{
    const auto sinceFirst = static_cast<unsigned long>(seconds - FirstSecond);
    return static_cast<long>(sinceFirst / SecondsOfDay) + FirstSecond / SecondsOfDay;
}

long timeOfDay(long seconds) noexcept
{
    return seconds - daysOf(seconds) * SecondsOfDay;
}

gregorian_calendar::ymd_type ymdOf(long seconds)
{
    return gregorian_calendar::from_day_number(
        static_cast<gregorian_calendar::date_int_type>(daysOf(seconds) + EpochDayNumber));
}

// A number that does not fit becomes 0, which is no year, month or day: the calendar then refuses it in its own words.
unsigned short calendarField(int value) noexcept
{
    return value < 0 || value > std::numeric_limits<unsigned short>::max() ? static_cast<unsigned short>(0)
                                                                           : static_cast<unsigned short>(value);
}

std::string clockFieldFault(int value, int last, const char* message)
{
    return value < 0 || value > last ? util::str_format(message, util::toStr(value)) : std::string();
}

std::string clockFault(int hours, int minutes, int seconds)
{
    auto fault = clockFieldFault(hours, 23, "Hour [%1] is out of range.");
    if (fault.empty())
        fault = clockFieldFault(minutes, 59, "Minute [%1] is out of range.");
    return fault.empty() ? clockFieldFault(seconds, 59, "Second [%1] is out of range.") : fault;
}

// In the calendar's own words.
std::string calendarFault(int year, int month, int day)
{
    if (year < date::year_type::min() || year > date::year_type::max())
        return boost::gregorian::bad_year().what();
    if (month < 1 || month > 12)
        return boost::gregorian::bad_month().what();
    if (day < 1 || day > 31)
        return boost::gregorian::bad_day_of_month().what();
    const bool isThere = day <= gregorian_calendar::end_of_month_day(calendarField(year), calendarField(month));
    return isThere ? std::string() : boost::gregorian::bad_day_of_month("Day of month is not valid for year").what();
}

} // namespace

CDateTime::CDateTime(long unixSeconds, bool isUtc) : m_seconds(unixSeconds), m_isUtc(isUtc)
{
    if (unixSeconds < FirstSecond || unixSeconds > LastSecond)
        throw exc::CRuntimeExc("Date-time of [%1] seconds is out of range.", util::toStr(unixSeconds));
}

CDateTime CDateTime::currentUtcTime()
{
    return CDateTime(clock_now(), true);
}

CDateTime CDateTime::currentLocalTime()
{
    return CDateTime(clock_now() + clock_local_offset(), false);
}

long CDateTime::localUtcOffsetSecs()
{
    return clock_local_offset();
}

void CDateTime::setTime(int hours, int minutes, int seconds)
{
    const auto fault = clockFault(hours, minutes, seconds);
    if (!fault.empty())
        throw exc::CRuntimeExc(fault);
    m_seconds = daysOf(m_seconds) * SecondsOfDay + hours * 3600L + minutes * 60L + seconds;
}

void CDateTime::setDate(int year, int month, int day)
{
    // One by one, so that of several false fields the first is told.
    const boost::gregorian::greg_year newYear(calendarField(year));
    const boost::gregorian::greg_month newMonth(calendarField(month));
    const date newDate(newYear, newMonth, boost::gregorian::greg_day(calendarField(day)));
    m_seconds = (static_cast<long>(newDate.day_number()) - EpochDayNumber) * SecondsOfDay + timeOfDay(m_seconds);
}

std::string CDateTime::faultOf(int year, int month, int day, int hours, int minutes, int seconds)
{
    auto fault = calendarFault(year, month, day);
    return fault.empty() ? clockFault(hours, minutes, seconds) : fault;
}

void CDateTime::setYear(int year)
{
    const auto ymd = ymdOf(m_seconds);
    setDate(year, ymd.month, ymd.day);
}

void CDateTime::setMonth(int month)
{
    const auto ymd = ymdOf(m_seconds);
    setDate(ymd.year, month, ymd.day);
}

void CDateTime::setDay(int day)
{
    const auto ymd = ymdOf(m_seconds);
    setDate(ymd.year, ymd.month, day);
}

void CDateTime::setHours(int hours)
{
    setTime(hours, minute(), second());
}

void CDateTime::setMinutes(int minutes)
{
    setTime(hour(), minutes, second());
}

void CDateTime::setSeconds(int seconds)
{
    setTime(hour(), minute(), seconds);
}

void CDateTime::getDate(int& year, int& month, int& day) const
{
    const auto ymd = ymdOf(m_seconds);
    year = ymd.year;
    month = ymd.month;
    day = ymd.day;
}

int CDateTime::year() const
{
    return ymdOf(m_seconds).year;
}

unsigned CDateTime::day() const
{
    return ymdOf(m_seconds).day;
}

int CDateTime::hour() const noexcept
{
    return static_cast<int>(timeOfDay(m_seconds) / 3600);
}

int CDateTime::minute() const noexcept
{
    return static_cast<int>(timeOfDay(m_seconds) % 3600 / 60);
}

int CDateTime::second() const noexcept
{
    return static_cast<int>(timeOfDay(m_seconds) % 60);
}

EMonth::type CDateTime::getMonth() const
{
    return static_cast<EMonth::type>(ymdOf(m_seconds).month - 1);
}

EDayOfWeek::type CDateTime::getDayOfWeek() const noexcept
{
    // 1970-01-01 was a Thursday; the shift keeps the dividend positive over the whole range.
    constexpr long weeksBeforeEpoch = 30000;
    return static_cast<EDayOfWeek::type>((daysOf(m_seconds) + EDayOfWeek::Thursday + weeksBeforeEpoch * 7) % 7);
}

unsigned CDateTime::getMonthLastDay() const
{
    const auto ymd = ymdOf(m_seconds);
    return gregorian_calendar::end_of_month_day(ymd.year, ymd.month);
}

std::vector<unsigned> CDateTime::getMonthDaysByDayOfWeek(EDayOfWeek::type dayOfWeek) const
{
    const auto ymd = ymdOf(m_seconds);
    const unsigned lastDay = gregorian_calendar::end_of_month_day(ymd.year, ymd.month);
    const int daysAhead = static_cast<int>(dayOfWeek) - static_cast<int>(getDayOfWeek());
    const int first = ((static_cast<int>(ymd.day) - 1 + daysAhead) % 7 + 7) % 7 + 1;
    std::vector<unsigned> days;
    for (unsigned day = static_cast<unsigned>(first); day <= lastDay; day += 7)
        days.push_back(day);
    return days;
}

unsigned long CDateTime::getMonthCurrWeekIndex() const
{
    return (day() - 1UL) / 7 + 1;
}

} // namespace datetime
