#include <climits>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/hour_in_week.h>

using zelplatform::model::structs::HourInWeek;

namespace
{

struct SNormalised
{
    int day;
    int hour;
    int expectedDay;
    int expectedHour;
};

constexpr SNormalised normalised[] = {
    {0, 0, 0, 0},   {6, 23, 6, 23},  {6, 24, 0, 0},  {0, 24, 1, 0},    {0, 25, 1, 1},     {0, 47, 1, 23},
    {0, 48, 2, 0},  {5, 50, 0, 2},   {7, 0, 0, 0},   {8, 23, 1, 23},   {13, 23, 6, 23},   {14, 0, 0, 0},
    {6, 168, 6, 0}, {0, 167, 6, 23}, {0, 168, 0, 0}, {0, 1000, 6, 16}, {700, 2400, 2, 0}, {20, 5, 6, 5},
};

struct SDistance
{
    int fromDay;
    int fromHour;
    int toDay;
    int toHour;
    int hours;
};

constexpr SDistance distances[] = {
    {1, 10, 1, 10, 0},  {0, 0, 0, 0, 0},     {1, 10, 1, 5, 163}, {1, 10, 1, 11, 1},
    {1, 10, 1, 9, 167}, {6, 23, 0, 0, 1},    {0, 0, 6, 23, 167}, {0, 23, 1, 0, 1},
    {6, 0, 0, 0, 24},   {0, 0, 6, 0, 144},   {3, 12, 5, 10, 46}, {5, 10, 3, 12, 122},
    {3, 12, 5, 14, 50}, {5, 14, 3, 12, 118}, {1, 0, 0, 23, 167}, {2, 5, 2, 4, 167},
};

} // namespace

TEST(HourInWeekValue, HoursCarryIntoDaysAndDaysGoRound)
{
    for (const auto& row : normalised)
    {
        const HourInWeek hour(row.day, row.hour);
        EXPECT_EQ(row.expectedDay, hour.day) << row.day << ' ' << row.hour;
        EXPECT_EQ(row.expectedHour, hour.hour) << row.day << ' ' << row.hour;
    }
}

TEST(HourInWeekValue, TheNextHoursWalkThroughTheWholeWeek)
{
    const HourInWeek start(3, 17);
    HourInWeek at = start;
    for (int step = 1; step <= 168; ++step)
    {
        const HourInWeek next = at.getNextHour();
        EXPECT_EQ(3600, at.getDistanceSec(next)) << step;
        EXPECT_EQ(step % 168 * 3600, start.getDistanceSec(next)) << step;
        EXPECT_EQ((3 * 24 + 17 + step) % 168, next.day * 24 + next.hour) << step;
        EXPECT_EQ(step == 168, next.isEqualTo(start)) << step;
        at = next;
    }
}

TEST(HourInWeekValue, Distances)
{
    for (const auto& row : distances)
        EXPECT_EQ(row.hours * 3600,
                  HourInWeek(row.fromDay, row.fromHour).getDistanceSec(HourInWeek(row.toDay, row.toHour)))
            << row.fromDay << ' ' << row.fromHour << " to " << row.toDay << ' ' << row.toHour;
}

TEST(HourInWeekValue, EveryDistanceIsForwardAndLessThanAWeek)
{
    for (int from = 0; from < 168; ++from)
        for (int to = 0; to < 168; ++to)
            ASSERT_EQ((to - from + 168) % 168 * 3600,
                      HourInWeek(from / 24, from % 24).getDistanceSec(HourInWeek(to / 24, to % 24)))
                << from << ' ' << to;
}

TEST(HourInWeekValue, EqualityComparesDayAndHour)
{
    EXPECT_TRUE(HourInWeek(2, 7).isEqualTo(HourInWeek(2, 7)));
    EXPECT_TRUE(HourInWeek(6, 24).isEqualTo(HourInWeek(0, 0)));
    EXPECT_FALSE(HourInWeek(2, 7).isEqualTo(HourInWeek(2, 8)));
    EXPECT_FALSE(HourInWeek(2, 7).isEqualTo(HourInWeek(3, 7)));
    EXPECT_FALSE(HourInWeek(2, 7).isEqualTo(HourInWeek(7, 2)));
}

TEST(HourInWeekQuirks, EqualHoursAreNoWeekApart)
{
    EXPECT_EQ(0, HourInWeek(4, 4).getDistanceSec(HourInWeek(4, 4)));
}

TEST(HourInWeekQuirks, NegativeNumbersStayAsTheyAre)
{
    for (const auto& row : {SNormalised{-1, 5, -1, 5}, SNormalised{3, -1, 3, -1}, SNormalised{-8, -30, -8, -30},
                            SNormalised{INT_MIN, 0, INT_MIN, 0}, SNormalised{-1, 24, 0, 0}, SNormalised{-3, 25, -2, 1},
                            SNormalised{7, -5, 0, -5}})
    {
        const HourInWeek hour(row.day, row.hour);
        EXPECT_EQ(row.expectedDay, hour.day) << row.day << ' ' << row.hour;
        EXPECT_EQ(row.expectedHour, hour.hour) << row.day << ' ' << row.hour;
    }
}
