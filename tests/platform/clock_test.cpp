#include <ctime>

#include <gtest/gtest.h>

#include <zelplatform/datetime/datetime.h>

namespace
{

using datetime::CDateTime;

class Clock : public ::testing::Test
{
protected:
    void TearDown() override { datetime::set_clock_for_tests({}, {}); }

    static void setClock(long now, long offset)
    {
        datetime::set_clock_for_tests([now] { return now; }, [offset] { return offset; });
    }
};

TEST_F(Clock, NowInUtcAndLocally)
{
    const struct
    {
        long now;
        long offset;
        const char* utc;
        const char* local;
    } cases[] = {
        {1709683200, 0, "2024-03-06 00:00:00", "2024-03-06 00:00:00"},
        {1709683200, 7200, "2024-03-06 00:00:00", "2024-03-06 02:00:00"},
        {1709683200, -18000, "2024-03-06 00:00:00", "2024-03-05 19:00:00"},
        {1709683200, 20700, "2024-03-06 00:00:00", "2024-03-06 05:45:00"},
        {0, -3600, "1970-01-01 00:00:00", "1969-12-31 23:00:00"},
    };
    for (const auto& each : cases)
    {
        setClock(each.now, each.offset);
        const CDateTime utc = CDateTime::currentUtcTime();
        const CDateTime local = CDateTime::currentLocalTime();
        EXPECT_EQ(each.utc, utc.toStdString("%Y-%m-%d %H:%M:%S"));
        EXPECT_TRUE(utc.isUtcTime());
        EXPECT_EQ(each.local, local.toStdString("%Y-%m-%d %H:%M:%S"));
        EXPECT_FALSE(local.isUtcTime());
        EXPECT_EQ(each.offset, CDateTime::localUtcOffsetSecs());
        EXPECT_EQ(each.now, datetime::clock_now());
        EXPECT_EQ(each.offset, datetime::clock_local_offset());
    }
}

TEST_F(Clock, SourcesAreAskedEachTime)
{
    long now = 100;
    datetime::set_clock_for_tests([&now] { return now++; }, [] { return 0L; });
    EXPECT_EQ(100, CDateTime::currentUtcTime().toUnixTime());
    EXPECT_EQ(101, CDateTime::currentUtcTime().toUnixTime());
}

TEST_F(Clock, EachSourceIsReplacedOnItsOwn)
{
    datetime::set_clock_for_tests([] { return 42L; }, {});
    EXPECT_EQ(42, datetime::clock_now());
    EXPECT_LE(-86400, datetime::clock_local_offset());
    EXPECT_GE(86400, datetime::clock_local_offset());
    datetime::set_clock_for_tests({}, [] { return 42L; });
    EXPECT_EQ(42, datetime::clock_local_offset());
    EXPECT_LT(1700000000, datetime::clock_now());
}

TEST_F(Clock, EmptyFunctionsPutTheMachinesClockBack)
{
    setClock(1, 1);
    datetime::set_clock_for_tests({}, {});
    const long before = static_cast<long>(std::time(nullptr));
    const long now = datetime::clock_now();
    const long after = static_cast<long>(std::time(nullptr));
    EXPECT_LE(before - 1, now);
    EXPECT_GE(after + 1, now);
}

TEST_F(Clock, MachinesOffsetIsTheOneInForce)
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ASSERT_NE(nullptr, localtime_r(&now, &local));
    EXPECT_EQ(static_cast<long>(local.tm_gmtoff), CDateTime::localUtcOffsetSecs());
}

} // namespace
