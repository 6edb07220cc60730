#include <zelmodel/datetime/date_time_helper.h>

#include <algorithm>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model
{
namespace
{

constexpr long SecondsOfDay = 86400;
constexpr unsigned DaysOfWeek = 7;
constexpr long MonthsOfYear = 12;

datetime::CDateTime advanceDays(const datetime::CDateTime& date, long days)
{
    return datetime::CDateTime(date.toUnixTime() + days * SecondsOfDay, date.isUtcTime());
}

datetime::CDateTime advanceMonths(const datetime::CDateTime& date, long months)
{
    int year = 0;
    int month = 0;
    int day = 0;
    date.getDate(year, month, day);

    // Whatever lies before year 0 or after year 10000 is refused by the calendar as these years are.
    const long target = std::clamp(year * MonthsOfYear + (month - 1) + months, 0L, 10000 * MonthsOfYear);

    auto result = date;
    result.setDate(static_cast<int>(target / MonthsOfYear), static_cast<int>(target % MonthsOfYear) + 1, 1);
    result.setDay(std::min(day, static_cast<int>(result.getMonthLastDay())));
    return result;
}

} // namespace

unsigned CDateTimeHelper::getSennightOfMonth(const datetime::CDateTime& date, bool fromEnd)
{
    unsigned day = date.day();
    if (fromEnd)
        day = util::safe_cast<unsigned char>(date.getMonthLastDay() + 1 - day);
    return (day - 1) / DaysOfWeek + 1;
}

bool CDateTimeHelper::isSennightOfMonth(const datetime::CDateTime& date, structs::gfs::ESennightOfMonth::type sennight,
                                        bool fromEnd)
{
    return getSennightOfMonth(date, fromEnd) == static_cast<unsigned>(sennight);
}

bool CDateTimeHelper::isLastDayOfWeekInMonth(const datetime::CDateTime& date)
{
    return date.day() + DaysOfWeek > date.getMonthLastDay();
}

datetime::CDateTime CDateTimeHelper::BasicDateAdvance(const datetime::CDateTime& date, EDateUnit::type unit, int count)
{
    switch (unit)
    {
    case EDateUnit::Day: return advanceDays(date, count);
    case EDateUnit::Week: return advanceDays(date, static_cast<long>(count) * DaysOfWeek);
    case EDateUnit::Month: return advanceMonths(date, count);
    case EDateUnit::Year: return advanceMonths(date, count * MonthsOfYear);
    }
    throw exc::CRuntimeExc("Unknown date unit [%1].", util::toStr(unit));
}

} // namespace zelplatform::model
