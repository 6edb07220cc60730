#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace zelmodel_test
{

/// One day of the judge's own calendar.
struct CalendarDay
{
    int year;
    int month; ///< 0 is January
    int day;
    int weekDay; ///< 0 is Sunday
    int monthLength;
    int occurrence;        ///< which one of its week day within its month, from 1
    bool lastOfItsWeekDay; ///< no later day of the month falls on the same week day
};

/// Every day from 1 January 1898 to 31 December 2142, counted one by one from a day whose week day is known. It shares
/// nothing with the library or with its calendar, so that both can be judged by it.
class CalendarDays
{
public:
    static constexpr int FirstYear = 1898;
    static constexpr int LastYear = 2142;

    CalendarDays();

    const CalendarDay& operator[](std::size_t index) const { return m_days[index]; }
    std::size_t size() const { return m_days.size(); }

    /// Months counted from 0; a day after the end of its month means the last one.
    std::size_t indexOf(int year, int month, int day) const;

    /// Midnight of the day in seconds since 1 January 1970.
    long unixSeconds(std::size_t index) const;

    /// "03/07/2024".
    std::string text(std::size_t index) const;

private:
    std::vector<CalendarDay> m_days;
    std::vector<std::size_t> m_firstOfMonth;
    std::size_t m_epoch;
};

/// The fields of a calendar as plain numbers.
struct CalendarRules
{
    int type = 0;
    std::array<bool, 7> week{};
    std::array<bool, 12> months{};
    int number = 6;
    int day = 0; ///< 0 is not set, 32 the last one
};

enum class Verdict
{
    Off,
    On,
    Fails
};

/// Whether the day is a scheduled one.
Verdict isScheduled(const CalendarRules& rules, const CalendarDay& day);

/// The innermost sentence of the failure that isScheduled tells of.
std::string scheduledFailure(const CalendarRules& rules);

/// The innermost sentence with which a search backwards is refused whatever the date, if it is.
std::optional<std::string> previousFailure(const CalendarRules& rules);

/// The result of the search backwards from a day, found by walking day by day as it is defined.
std::size_t previousByWalk(const CalendarDays& days, const CalendarRules& rules, std::size_t from);

/// previousByWalk of all days from first to last, in one pass.
std::vector<std::size_t> previousOfAll(const CalendarDays& days, const CalendarRules& rules, std::size_t first,
                                       std::size_t last);

/// The first scheduled day after a day.
struct NextAnswer
{
    Verdict kind; ///< On: found; Off: none within 41 years; Fails: a day on the way cannot be judged
    std::size_t index;
};

NextAnswer nextByWalk(const CalendarDays& days, const CalendarRules& rules, std::size_t from);

/// nextByWalk of all days from first to last, in one pass.
std::vector<NextAnswer> nextOfAll(const CalendarDays& days, const CalendarRules& rules, std::size_t first,
                                  std::size_t last);

} // namespace zelmodel_test
