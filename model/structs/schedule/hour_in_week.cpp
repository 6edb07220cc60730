#include <zelmodel/structs/schedule/hour_in_week.h>

namespace zelplatform::model::structs
{
namespace
{

constexpr long DaysOfWeek = 7;
constexpr long HoursOfDay = 24;
constexpr long SecondsOfHour = 3600;

} // namespace

HourInWeek::HourInWeek(int dayOfWeek, int hourOfDay) noexcept : day(dayOfWeek), hour(hourOfDay)
{
    long wholeDay = dayOfWeek;
    if (hourOfDay >= HoursOfDay)
    {
        wholeDay += hourOfDay / HoursOfDay;
        hour = static_cast<int>(hourOfDay % HoursOfDay);
    }
    day = static_cast<int>(wholeDay >= DaysOfWeek ? wholeDay % DaysOfWeek : wholeDay);
}

HourInWeek HourInWeek::getNextHour() const noexcept
{
    return HourInWeek(day, hour + 1);
}

bool HourInWeek::isEqualTo(const HourInWeek& other) const noexcept
{
    return day == other.day && hour == other.hour;
}

int HourInWeek::getDistanceSec(const HourInWeek& to) const noexcept
{
    if (isEqualTo(to))
        return 0;
    long days = static_cast<long>(to.day) - day;
    long hours = static_cast<long>(to.hour) - hour;
    if (hours < 0)
    {
        --days;
        hours += HoursOfDay;
    }
    if (days < 0)
        days += DaysOfWeek;
    return static_cast<int>((days * HoursOfDay + hours) * SecondsOfHour);
}

} // namespace zelplatform::model::structs
