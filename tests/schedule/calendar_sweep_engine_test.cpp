#include <gtest/gtest.h>

#include "support/calendar_engine.h"

using namespace zelmodel_test;

namespace
{

constexpr std::array<bool, 7> EveryDay{true, true, true, true, true, true, true};
constexpr std::array<bool, 12> EveryMonth{true, true, true, true, true, true, true, true, true, true, true, true};

} // namespace

TEST(CalendarSweepEngine, KnowsWeekDaysOfRecord)
{
    const CalendarDays days;
    const struct
    {
        int year, month, day, weekDay;
        const char* text;
    } table[] = {
        {1900, 0, 1, 1, "01/01/1900"},   {1914, 5, 28, 0, "06/28/1914"}, {1945, 4, 8, 2, "05/08/1945"},
        {1969, 6, 20, 0, "07/20/1969"},  {1970, 0, 1, 4, "01/01/1970"},  {1989, 10, 9, 4, "11/09/1989"},
        {2000, 0, 1, 6, "01/01/2000"},   {2000, 1, 29, 2, "02/29/2000"}, {2024, 1, 29, 4, "02/29/2024"},
        {2100, 11, 31, 5, "12/31/2100"},
    };
    for (const auto& row : table)
    {
        const std::size_t index = days.indexOf(row.year, row.month, row.day);
        EXPECT_EQ(days[index].weekDay, row.weekDay) << row.text;
        EXPECT_EQ(days.text(index), row.text);
    }
}

TEST(CalendarSweepEngine, CountsDaysAndSeconds)
{
    const CalendarDays days;
    EXPECT_EQ(days.indexOf(2101, 0, 1) - days.indexOf(1900, 0, 1), 73414U);
    EXPECT_EQ(days.unixSeconds(days.indexOf(1970, 0, 1)), 0);
    EXPECT_EQ(days.unixSeconds(days.indexOf(1969, 11, 31)), -86400);
    EXPECT_EQ(days.unixSeconds(days.indexOf(2001, 8, 9)), 999993600);
    EXPECT_EQ(days[days.indexOf(1900, 1, 1)].monthLength, 28);
    EXPECT_EQ(days[days.indexOf(2000, 1, 1)].monthLength, 29);
    EXPECT_EQ(days[days.indexOf(2024, 3, 1)].monthLength, 30);
}

TEST(CalendarSweepEngine, NumbersWeekDaysWithinTheirMonth)
{
    const CalendarDays days;
    const CalendarDay& lastFriday = days[days.indexOf(2024, 2, 29)];
    EXPECT_EQ(lastFriday.occurrence, 5);
    EXPECT_TRUE(lastFriday.lastOfItsWeekDay);
    const CalendarDay& fourthFriday = days[days.indexOf(2024, 2, 22)];
    EXPECT_EQ(fourthFriday.occurrence, 4);
    EXPECT_FALSE(fourthFriday.lastOfItsWeekDay);
    EXPECT_TRUE(days[days.indexOf(2023, 1, 22)].lastOfItsWeekDay);
    EXPECT_EQ(days[days.indexOf(2023, 1, 22)].occurrence, 4);
}

TEST(CalendarSweepEngine, OnePassAgreesWithTheWalk)
{
    const CalendarDays days;
    const std::size_t first = days.indexOf(2088, 0, 1);
    const std::size_t last = days.indexOf(2100, 11, 31);
    const CalendarRules table[] = {
        {0, {false, true, false, true}, EveryMonth, 6, 0},
        {1, EveryDay, EveryMonth, 6, 31},
        {1, EveryDay, {false, true}, 6, 29},
        {1, EveryDay, {false, true}, 6, 30},
        {1, {false, true}, {false, true, false, true}, 5, 0},
        {1, {false, true}, EveryMonth, 0, 15},
        {1, {false, true}, {false, true}, 1, 0},
    };
    for (const CalendarRules& rules : table)
    {
        const auto previous = previousOfAll(days, rules, first, last);
        const auto next = nextOfAll(days, rules, first, last);
        for (std::size_t index = first; index <= last; ++index)
            ASSERT_EQ(previous[index - first], previousByWalk(days, rules, index)) << days.text(index);
        for (std::size_t index = first; index <= last; index += 31)
        {
            const NextAnswer walked = nextByWalk(days, rules, index);
            ASSERT_EQ(next[index - first].kind, walked.kind) << days.text(index);
            ASSERT_EQ(next[index - first].index, walked.index) << days.text(index);
        }
    }
}
