#include "support/calendar_engine.h"

#include <algorithm>
#include <cstdio>

namespace zelmodel_test
{

namespace
{

constexpr int MonthsOfYear = 12;
constexpr int Saturday = 6;
constexpr long SecondsOfDay = 86400;
constexpr int YearsAhead = 41;

bool isLeapYear(int year)
{
    if (year % 400 == 0)
        return true;
    if (year % 100 == 0)
        return false;
    return year % 4 == 0;
}

int lengthOfMonth(int year, int month)
{
    switch (month)
    {
    case 1: return isLeapYear(year) ? 29 : 28;
    case 3:
    case 5:
    case 8:
    case 10: return 30;
    default: return 31;
    }
}

bool on(const CalendarRules& rules, const CalendarDay& day)
{
    return rules.week[static_cast<std::size_t>(day.weekDay)];
}

bool monthOn(const CalendarRules& rules, const CalendarDay& day)
{
    return rules.months[static_cast<std::size_t>(day.month)];
}

bool fitsDay(const CalendarRules& rules, const CalendarDay& day)
{
    return day.day == (rules.day == 32 ? day.monthLength : rules.day);
}

/// The day test of the search backwards: a number from 1 to 5 leaves the day of month out, and a day that is not set
/// never fits.
bool fitsBackwards(const CalendarRules& rules, const CalendarDay& day)
{
    if (rules.type == 0)
        return on(rules, day);
    if (!monthOn(rules, day) || !on(rules, day))
        return false;
    if (rules.number == 6)
        return fitsDay(rules, day);
    if (rules.number == 5)
        return day.lastOfItsWeekDay;
    return day.occurrence == rules.number;
}

std::size_t lowerBound(const CalendarDays& days, const CalendarRules& rules, std::size_t from)
{
    if (rules.type == 0)
        return from - 7;
    return days.indexOf(days[from].year - 1, days[from].month, 1);
}

std::size_t farthest(const CalendarDays& days, std::size_t from)
{
    const CalendarDay& day = days[from];
    return days.indexOf(day.year + YearsAhead, day.month, day.day);
}

} // namespace

CalendarDays::CalendarDays() : m_epoch(0)
{
    int weekDay = Saturday; // 1 January 1898
    for (int year = FirstYear; year <= LastYear; ++year)
    {
        for (int month = 0; month < MonthsOfYear; ++month)
        {
            m_firstOfMonth.push_back(m_days.size());
            const int length = lengthOfMonth(year, month);
            std::array<int, 7> seen{};
            for (int day = 1; day <= length; ++day)
            {
                const int occurrence = ++seen[static_cast<std::size_t>(weekDay)];
                m_days.push_back({year, month, day, weekDay, length, occurrence, day + 7 > length});
                weekDay = weekDay == Saturday ? 0 : weekDay + 1;
            }
        }
    }
    m_epoch = indexOf(1970, 0, 1);
}

std::size_t CalendarDays::indexOf(int year, int month, int day) const
{
    const std::size_t first = m_firstOfMonth.at(static_cast<std::size_t>((year - FirstYear) * MonthsOfYear + month));
    return first + static_cast<std::size_t>(std::min(day, m_days[first].monthLength)) - 1;
}

long CalendarDays::unixSeconds(std::size_t index) const
{
    return (static_cast<long>(index) - static_cast<long>(m_epoch)) * SecondsOfDay;
}

std::string CalendarDays::text(std::size_t index) const
{
    const CalendarDay& day = m_days[index];
    char buffer[48];
    std::snprintf(buffer, sizeof buffer, "%02d/%02d/%04d", day.month + 1, day.day, day.year);
    return buffer;
}

Verdict isScheduled(const CalendarRules& rules, const CalendarDay& day)
{
    if (rules.type == 2 || rules.type == 3)
        return Verdict::On;
    if (rules.type == 0)
        return on(rules, day) ? Verdict::On : Verdict::Off;
    if (rules.type != 1)
        return Verdict::Fails;
    if (!on(rules, day))
        return Verdict::Off;
    if (rules.day != 0 && !fitsDay(rules, day))
        return Verdict::Off;
    if (rules.number < 1 || rules.number > 6)
        return Verdict::Fails;
    if (rules.number == 5 && !day.lastOfItsWeekDay)
        return Verdict::Off;
    if (rules.number < 5 && day.occurrence != rules.number)
        return Verdict::Off;
    return monthOn(rules, day) ? Verdict::On : Verdict::Off;
}

std::string scheduledFailure(const CalendarRules& rules)
{
    if (rules.type == 1)
        return "Bad week day number [" + std::to_string(rules.number) + "].";
    return "Unsupported schedule type [" + std::to_string(rules.type) + "]";
}

std::optional<std::string> previousFailure(const CalendarRules& rules)
{
    const auto isOn = [](bool flag) { return flag; };
    if (rules.type != 0 && rules.type != 1)
        return "Unsupported schedule type [" + std::to_string(rules.type) + "]";
    if (rules.type == 0 && std::none_of(rules.week.begin(), rules.week.end(), isOn))
        return "No days are specified.";
    if (rules.type == 1 && std::none_of(rules.months.begin(), rules.months.end(), isOn))
        return "No months are specified.";
    return std::nullopt;
}

std::size_t previousByWalk(const CalendarDays& days, const CalendarRules& rules, std::size_t from)
{
    const std::size_t lower = lowerBound(days, rules, from);
    std::size_t current = from;
    while (lower <= current && !fitsBackwards(rules, days[current]))
        --current;
    return current;
}

std::vector<std::size_t> previousOfAll(const CalendarDays& days, const CalendarRules& rules, std::size_t first,
                                       std::size_t last)
{
    std::vector<std::size_t> results;
    std::optional<std::size_t> latest;
    for (std::size_t index = 0; index <= last; ++index)
    {
        if (fitsBackwards(rules, days[index]))
            latest = index;
        if (index < first)
            continue;
        const std::size_t lower = lowerBound(days, rules, index);
        results.push_back(latest && *latest >= lower ? *latest : lower - 1);
    }
    return results;
}

NextAnswer nextByWalk(const CalendarDays& days, const CalendarRules& rules, std::size_t from)
{
    const std::size_t bound = farthest(days, from);
    for (std::size_t index = from + 1; index <= bound; ++index)
    {
        const Verdict verdict = isScheduled(rules, days[index]);
        if (verdict != Verdict::Off)
            return {verdict, index};
    }
    return {Verdict::Off, 0};
}

std::vector<NextAnswer> nextOfAll(const CalendarDays& days, const CalendarRules& rules, std::size_t first,
                                  std::size_t last)
{
    std::vector<NextAnswer> results(last - first + 1, {Verdict::Off, 0});
    NextAnswer nearest{Verdict::Off, 0};
    for (std::size_t index = farthest(days, last); index > first; --index)
    {
        const Verdict verdict = isScheduled(rules, days[index]);
        if (verdict != Verdict::Off)
            nearest = {verdict, index};
        const std::size_t from = index - 1;
        if (from <= last && nearest.kind != Verdict::Off && nearest.index <= farthest(days, from))
            results[from - first] = nearest;
    }
    return results;
}

} // namespace zelmodel_test
