#include <zelmodel/datetime/date_time_ex.h>

#include <limits>
#include <type_traits>

#include <gtest/gtest.h>

#include <zelmodel/datetime/object_id.h>
#include <zelmodel/datetime/time_manager.h>

#include <zelplatform/datetime/datetime.h>
#include <zelplatform/exc/exc.h>

#include "support/expect_failure.h"

using datetime::CDateTime;
using zelmodel_test::failureText;
using namespace zelplatform::model;

namespace
{

constexpr const char* Format = "%Y-%m-%d %H:%M:%S";
constexpr long TwoHours = 7200;
constexpr long Longest = std::numeric_limits<long>::max();
constexpr long Shortest = std::numeric_limits<long>::min();

static_assert(std::has_virtual_destructor_v<CDateTimeEx>);

CDateTime utc(const std::string& text)
{
    return CDateTime::fromString(text, Format, true);
}

CDateTime local(const std::string& text)
{
    return CDateTime::fromString(text, Format, false);
}

std::string utcText(const CDateTimeEx& instant)
{
    return instant.getUtcTime().toStdString(Format);
}

std::string localText(const CDateTimeEx& instant)
{
    return instant.getLocalTime().toStdString(Format);
}

/// A machine two hours east of UTC, where it is 2024-03-06 21:30:00 UTC.
class DateTimeExTest : public testing::Test
{
protected:
    void SetUp() override { setMachine(TwoHours); }
    void TearDown() override { datetime::set_clock_for_tests(nullptr, nullptr); }

    static void setMachine(long offset)
    {
        const long now = utc("2024-03-06 21:30:00").toUnixTime();
        datetime::set_clock_for_tests([now] { return now; }, [offset] { return offset; });
    }
};

void expectNotSet(const CDateTimeEx& instant)
{
    EXPECT_FALSE(instant.isSet());
    for (const auto& reading : {instant.getUtcTime(), instant.getLocalTime()})
    {
        EXPECT_EQ(reading.toUnixTime(), 0);
        EXPECT_TRUE(reading.isUtcTime());
    }
}

TEST_F(DateTimeExTest, IsNotSetAtFirst)
{
    expectNotSet(CDateTimeEx());
    expectNotSet(CDateTimeEx(0, TwoHours));
    expectNotSet(CDateTimeEx(-5, 0));
    EXPECT_TRUE(CDateTimeEx(1, 0).isSet());
}

TEST_F(DateTimeExTest, HasBothReadings)
{
    const CDateTimeEx instant(utc("2024-03-06 21:30:00").toUnixTime(), -3600);
    EXPECT_EQ(utcText(instant), "2024-03-06 21:30:00");
    EXPECT_TRUE(instant.getUtcTime().isUtcTime());
    EXPECT_EQ(localText(instant), "2024-03-06 20:30:00");
    EXPECT_FALSE(instant.getLocalTime().isUtcTime());
}

TEST_F(DateTimeExTest, IsMadeOfOneReadingWithTheOffsetInForce)
{
    EXPECT_EQ(CDateTimeEx::getLocalUtcOffset(), TwoHours);
    for (const auto& instant :
         {CDateTimeEx::fromUtcTime(utc("2024-03-06 21:30:00")),
          CDateTimeEx::fromLocalTime(local("2024-03-06 23:30:00")), CDateTimeEx::currentTime(), GetNowTime()})
    {
        EXPECT_EQ(utcText(instant), "2024-03-06 21:30:00");
        EXPECT_EQ(localText(instant), "2024-03-06 23:30:00");
    }
}

TEST_F(DateTimeExTest, KeepsTheOffsetOfItsMaking)
{
    const auto instant = CDateTimeEx::currentTime();
    setMachine(0);
    EXPECT_EQ(localText(instant), "2024-03-06 23:30:00");
    EXPECT_EQ(localText(instant + CTimeSpanEx::fromDays(200)), "2024-09-22 23:30:00");
}

TEST_F(DateTimeExTest, IsMadeOfTwoReadings)
{
    const auto instant = CDateTimeEx::fromTimes(utc("2024-03-06 21:30:00"), local("2024-03-06 16:00:00"));
    EXPECT_EQ(utcText(instant), "2024-03-06 21:30:00");
    EXPECT_EQ(localText(instant), "2024-03-06 16:00:00");
}

TEST_F(DateTimeExTest, IsNotSetBySecondZero)
{
    const auto epoch = utc("1970-01-01 00:00:00");
    expectNotSet(CDateTimeEx::fromUtcTime(epoch));
    expectNotSet(CDateTimeEx::fromLocalTime(epoch));
    expectNotSet(CDateTimeEx::fromTimes(epoch, local("1970-01-01 02:00:00")));
    expectNotSet(CDateTimeEx::fromTimes(utc("2024-03-06 21:30:00"), epoch));
}

TEST_F(DateTimeExTest, RefusesALocalReadingForUtc)
{
    EXPECT_EQ(failureText([] { CDateTimeEx::fromTimes(local("2024-03-06 21:30:00"), utc("2024-03-06 21:30:00")); }),
              "DateTimeEx: Failed to convert from times. Local time instead UTC.");
}

TEST_F(DateTimeExTest, WrapsFailuresOfTheClock)
{
    datetime::set_clock_for_tests(nullptr, []() -> long { throw exc::CRuntimeExc("No clock."); });
    EXPECT_EQ(failureText([] { CDateTimeEx::fromUtcTime(utc("2024-03-06 21:30:00")); }),
              "DateTimeEx: Failed to convert from UTC time. No clock.");
    EXPECT_EQ(failureText([] { CDateTimeEx::fromLocalTime(local("2024-03-06 21:30:00")); }),
              "DateTimeEx: Failed to convert from Local time. No clock.");
    setMachine(Shortest);
    EXPECT_EQ(failureText([] { CDateTimeEx::fromLocalTime(local("1970-01-01 00:00:01")); }),
              "DateTimeEx: Failed to convert from Local time. "
              "The difference of [1] and [-9223372036854775808] is out of range.");
}

TEST_F(DateTimeExTest, IsResetToTheStartOfItsDay)
{
    // 23:30 local time is still the same UTC day; 01:30 local time belongs to the UTC day before.
    const struct
    {
        const char* localTime;
        bool utcDay;
        const char* result;
    } rows[] = {
        {"2024-03-06 23:30:00", false, "2024-03-05 22:00:00"},
        {"2024-03-06 23:30:00", true, "2024-03-06 00:00:00"},
        {"2024-03-07 01:30:00", false, "2024-03-06 22:00:00"},
        {"2024-03-07 01:30:00", true, "2024-03-06 00:00:00"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.localTime);
        auto instant = CDateTimeEx::fromLocalTime(local(row.localTime));
        const long expected = utc(row.result).toUnixTime();
        EXPECT_EQ(instant.resetTime(row.utcDay), expected);
        EXPECT_EQ(instant.getUtcTime().toUnixTime(), expected);
        EXPECT_EQ(instant.getLocalTime().toUnixTime(), expected + TwoHours);
    }
}

TEST_F(DateTimeExTest, ResetsTheEmptyDayWhenNotSet)
{
    CDateTimeEx instant(0, TwoHours);
    EXPECT_EQ(instant.resetTime(true), 0);
    EXPECT_EQ(instant.resetTime(false), -TwoHours);
}

TEST_F(DateTimeExTest, ComparesByUtcAlone)
{
    const CDateTimeEx earlier(100, TwoHours);
    const CDateTimeEx later(101, 0);
    EXPECT_TRUE(earlier < later);
    EXPECT_TRUE(later > earlier);
    EXPECT_FALSE(later < earlier);
    EXPECT_FALSE(earlier > later);
    EXPECT_FALSE(earlier < CDateTimeEx(100, 0));
    EXPECT_FALSE(earlier > CDateTimeEx(100, 0));
}

TEST_F(DateTimeExTest, ComputesWithSpans)
{
    const CDateTimeEx instant(1000, 60);
    EXPECT_EQ((instant - CDateTimeEx(1600, 0)).getTotalSeconds(), -600);
    const auto later = instant + CTimeSpanEx(500);
    EXPECT_EQ(later.getUtcTime().toUnixTime(), 1500);
    EXPECT_EQ(later.getLocalTime().toUnixTime(), 1560);
}

TEST_F(DateTimeExTest, RefusesToLeaveTheRange)
{
    EXPECT_EQ(failureText([] { CDateTimeEx(Longest, 0) + CTimeSpanEx(1); }),
              "The sum of [9223372036854775807] and [1] is out of range.");
    EXPECT_EQ(failureText([] { CDateTimeEx(Shortest, 0) - CDateTimeEx(1, 0); }),
              "The difference of [-9223372036854775808] and [1] is out of range.");
    EXPECT_EQ(failureText([] { (void)CDateTimeEx(Longest, 1).getLocalTime(); }),
              "The sum of [9223372036854775807] and [1] is out of range.");
    EXPECT_EQ(failureText([] { CDateTimeEx(0, Shortest).resetTime(false); }),
              "The difference of [0] and [-9223372036854775808] is out of range.");
}

TEST(TimeManagerTest, LetsTheCallerDecideWhatNowIs)
{
    class FixedTime : public ITimeManager
    {
        CDateTimeEx GetCurrentTime() const override { return CDateTimeEx(1000, 60); }
    };
    const FixedTime fixedTime;
    const ITimeManager& timeManager = fixedTime;
    EXPECT_EQ(timeManager.GetCurrentTime().getLocalTime().toUnixTime(), 1060);
}

TEST(ObjectIdTest, IsFreshEachTime)
{
    const auto first = GenerateNewObjectId();
    EXPECT_FALSE(first.IsEmpty());
    EXPECT_NE(first, GenerateNewObjectId());
}

} // namespace
