#include <zelplatform/util/time.h>

#include <limits>

#include <gtest/gtest.h>

namespace
{

TEST(TimeTest, BreaksSecondsDown)
{
    struct Case
    {
        long seconds;
        int year, month, day, hour, minute, second;
    };
    const Case cases[] = {
        {0, 1970, 1, 1, 0, 0, 0},          {-1, 1969, 12, 31, 23, 59, 59},    {86399, 1970, 1, 1, 23, 59, 59},
        {951782400, 2000, 2, 29, 0, 0, 0}, {4102444800, 2100, 1, 1, 0, 0, 0},
    };
    for (const auto& expected : cases)
    {
        std::tm fields{};
        ASSERT_TRUE(util::gmtime_safe(expected.seconds, fields));
        EXPECT_EQ(fields.tm_year + 1900, expected.year);
        EXPECT_EQ(fields.tm_mon + 1, expected.month);
        EXPECT_EQ(fields.tm_mday, expected.day);
        EXPECT_EQ(fields.tm_hour, expected.hour);
        EXPECT_EQ(fields.tm_min, expected.minute);
        EXPECT_EQ(fields.tm_sec, expected.second);
    }
}

TEST(TimeTest, RefusesSecondsOutsideTheCalendar)
{
    std::tm fields{};
    EXPECT_FALSE(util::gmtime_safe(std::numeric_limits<long>::max(), fields));
    EXPECT_FALSE(util::gmtime_safe(std::numeric_limits<long>::min(), fields));
}

TEST(TimeTest, MakesFileTimesOfWholeSeconds)
{
    for (const long seconds : {0L, 1L, -1L, std::numeric_limits<long>::max(), std::numeric_limits<long>::min()})
    {
        const auto fileTime = util::FiletimeFromUnixTime(seconds);
        EXPECT_EQ(fileTime.GetSecNum(), seconds);
        EXPECT_EQ(fileTime.nanoseconds, 0U);
    }
    EXPECT_EQ((lin::lin_filetime_t{-1, 500000000}).GetSecNum(), -1);
}

} // namespace
