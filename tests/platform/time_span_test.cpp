#include <climits>

#include <gtest/gtest.h>

#include <zelplatform/datetime/time_span.h>

namespace
{

TEST(TimeSpan, SplitsIntoTotalHoursMinutesAndSeconds)
{
    const struct
    {
        long total;
        long hours;
        long minutes;
        long seconds;
    } cases[] = {
        {0, 0, 0, 0},
        {59, 0, 0, 59},
        {60, 0, 1, 0},
        {3599, 0, 59, 59},
        {5400, 1, 30, 0},
        {86400, 24, 0, 0},
        {90061, 25, 1, 1},
        {921600, 256, 0, 0},
        // Every part carries the sign.
        {-30, 0, 0, -30},
        {-60, 0, -1, 0},
        {-3600, -1, 0, 0},
        {-3661, -1, -1, -1},
        {-86399, -23, -59, -59},
        {LONG_MAX, 2562047788015215, 30, 7},
        {LONG_MIN, -2562047788015215, -30, -8},
    };
    for (const auto& each : cases)
    {
        const datetime::CTimeSpan span(each.total);
        long hours = 1;
        long minutes = 1;
        long seconds = 1;
        span.getDurationHMS(hours, minutes, seconds);
        EXPECT_EQ(each.hours, hours) << each.total;
        EXPECT_EQ(each.minutes, minutes) << each.total;
        EXPECT_EQ(each.seconds, seconds) << each.total;
        EXPECT_EQ(each.total, span.getTotalSeconds());
    }
}

} // namespace
