#include <zelmodel/date_time.h>

#include <limits>
#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

#include <zelplatform/datetime/datetime.h>
#include <zelplatform/exc/exc.h>

#include "support/expect_failure.h"

using datetime::CDateTime;
using zelmodel_test::failureText;
using namespace zelplatform::model;

namespace
{

constexpr long Hour = 3600;
constexpr long Day = 86400;
constexpr long East = 2 * Hour;            // UTC+2
constexpr long West = -(5 * Hour + 1800);  // UTC-5:30
constexpr long Midnight = 1709769600;      // 2024-03-07 00:00:00
constexpr long FirstSecond = -17987443200; // 1400-01-01 00:00:00
constexpr long LastSecond = 253402300799;  // 9999-12-31 23:59:59
constexpr long Longest = std::numeric_limits<long>::max();
constexpr long Shortest = std::numeric_limits<long>::min();

class InstantOffsetsTest : public testing::Test
{
protected:
    void TearDown() override { datetime::set_clock_for_tests(nullptr, nullptr); }

    static void setMachine(long now, long offset)
    {
        datetime::set_clock_for_tests([now] { return now; }, [offset] { return offset; });
    }

    template <class T>
    static void breakMachine(T what)
    {
        datetime::set_clock_for_tests([what]() -> long { throw what; }, [what]() -> long { throw what; });
    }
};

void expectReadings(const CDateTimeEx& instant, long utc, long local)
{
    EXPECT_TRUE(instant.isSet());
    EXPECT_EQ(instant.getUtcTime().toUnixTime(), utc);
    EXPECT_TRUE(instant.getUtcTime().isUtcTime());
    EXPECT_EQ(instant.getLocalTime().toUnixTime(), local);
    EXPECT_FALSE(instant.getLocalTime().isUtcTime());
}

void expectNotSet(const CDateTimeEx& instant)
{
    EXPECT_FALSE(instant.isSet());
    EXPECT_EQ(instant.getUtcTime().toUnixTime(), 0);
    EXPECT_EQ(instant.getLocalTime().toUnixTime(), 0);
    EXPECT_TRUE(instant.getLocalTime().isUtcTime());
}

TEST_F(InstantOffsetsTest, AreAddedToUtcAndTakenFromLocalReadings)
{
    for (const long offset : {East, West, 0L, 14 * Hour, -12 * Hour})
    {
        setMachine(Midnight + 5, offset);
        EXPECT_EQ(CDateTimeEx::getLocalUtcOffset(), offset);
        expectReadings(CDateTimeEx::fromUtcTime(CDateTime(Midnight, true)), Midnight, Midnight + offset);
        expectReadings(CDateTimeEx::fromLocalTime(CDateTime(Midnight, false)), Midnight - offset, Midnight);
        expectReadings(GetNowTime(), Midnight + 5, Midnight + 5 + offset);
    }
}

TEST_F(InstantOffsetsTest, StayWhatTheyWereWhenTheMachineMoves)
{
    setMachine(Midnight, East);
    auto instant = CDateTimeEx::currentTime();
    setMachine(Midnight, West);
    expectReadings(instant + CTimeSpanEx(Day), Midnight + Day, Midnight + Day + East);
    EXPECT_EQ(instant.resetTime(false), Midnight - East);
    expectReadings(instant, Midnight - East, Midnight);
}

TEST_F(InstantOffsetsTest, ComeFromTheDifferenceOfTwoReadingsWhateverTheSecondOnesFlag)
{
    setMachine(0, East);
    for (const bool isUtc : {true, false})
        expectReadings(CDateTimeEx::fromTimes(CDateTime(Midnight, true), CDateTime(Midnight + West, isUtc)), Midnight,
                       Midnight + West);
}

TEST_F(InstantOffsetsTest, DoNotDependOnTheFlagOfASingleReading)
{
    setMachine(0, East);
    expectReadings(CDateTimeEx::fromUtcTime(CDateTime(100, false)), 100, 100 + East);
    expectReadings(CDateTimeEx::fromLocalTime(CDateTime(Midnight, true)), Midnight - East, Midnight);
}

TEST_F(InstantOffsetsTest, AreNotAskedForSecondZero)
{
    breakMachine(std::runtime_error("No zone."));
    expectNotSet(CDateTimeEx::fromUtcTime(CDateTime(false)));
    expectNotSet(CDateTimeEx::fromLocalTime(CDateTime(false)));
    expectNotSet(CDateTimeEx::fromTimes(CDateTime(true), CDateTime(false)));
    EXPECT_EQ(failureText([] { CDateTimeEx::fromTimes(CDateTime(false), CDateTime(false)); }),
              "DateTimeEx: Failed to convert from times. Local time instead UTC.");
}

TEST_F(InstantOffsetsTest, StayWithInstantsThatAreNotSet)
{
    setMachine(0, East);
    auto epoch = CDateTimeEx::fromLocalTime(CDateTime(East, false));
    expectNotSet(epoch);
    EXPECT_EQ(epoch.resetTime(false), -East);

    const auto before1970 = CDateTimeEx::fromUtcTime(CDateTime(-Day, true));
    expectNotSet(before1970);
    EXPECT_EQ((CDateTimeEx() - before1970).getTotalSeconds(), Day);
    expectReadings(before1970 + CTimeSpanEx(2 * Day), Day, Day + East);
}

TEST_F(InstantOffsetsTest, MakeAnUnsetInstantSetWhereTheyAreNegative)
{
    CDateTimeEx west(0, West);
    EXPECT_EQ(west.resetTime(false), -West);
    expectReadings(west, -West, 0);

    CDateTimeEx negative(-12345, West);
    EXPECT_EQ(negative.resetTime(true), 0);
    expectNotSet(negative);
}

TEST_F(InstantOffsetsTest, DecideWhichDayIsReset)
{
    const struct
    {
        long local;
        long offset;
        long localDay;
        long utcDay;
    } rows[] = {
        {Midnight + 23 * Hour + 1800, East, Midnight, Midnight},
        {Midnight + 1800, East, Midnight, Midnight - Day},
        {Midnight, East, Midnight, Midnight - Day},
        {Midnight - 1, East, Midnight - Day, Midnight - Day},
        {Midnight + 20 * Hour, West, Midnight, Midnight + Day},
        {Midnight + 18 * Hour + 1800, West, Midnight, Midnight + Day},
        {Midnight + 18 * Hour + 1799, West, Midnight, Midnight},
        {Midnight, West, Midnight, Midnight},
        {Midnight - 1, West, Midnight - Day, Midnight},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::Message() << row.local - Midnight << " at " << row.offset);
        CDateTimeEx byLocalDay(row.local - row.offset, row.offset);
        EXPECT_EQ(byLocalDay.resetTime(false), row.localDay - row.offset);
        expectReadings(byLocalDay, row.localDay - row.offset, row.localDay);
        EXPECT_EQ(byLocalDay.resetTime(false), row.localDay - row.offset);

        CDateTimeEx byUtcDay(row.local - row.offset, row.offset);
        EXPECT_EQ(byUtcDay.resetTime(true), row.utcDay);
        expectReadings(byUtcDay, row.utcDay, row.utcDay + row.offset);
    }
}

TEST_F(InstantOffsetsTest, MayNotLeadOutOfTheCalendar)
{
    expectReadings(CDateTimeEx(LastSecond, 0), LastSecond, LastSecond);
    expectReadings(CDateTimeEx(1, FirstSecond - 1), 1, FirstSecond);
    EXPECT_THROW(CDateTimeEx(LastSecond + 1, 0).getUtcTime(), exc::CRuntimeExc);
    EXPECT_THROW(CDateTimeEx(LastSecond, 1).getLocalTime(), exc::CRuntimeExc);
    EXPECT_THROW(CDateTimeEx(1, FirstSecond - 2).getLocalTime(), exc::CRuntimeExc);
    EXPECT_THROW(CDateTimeEx(Longest, Shortest).getUtcTime(), exc::CRuntimeExc);
    expectNotSet(CDateTimeEx(Shortest, Shortest));
}

TEST_F(InstantOffsetsTest, AreLeftOutOfDifferencesUpToTheLongest)
{
    EXPECT_EQ((CDateTimeEx(Longest, East) - CDateTimeEx(0, West)).getTotalSeconds(), Longest);
    EXPECT_EQ((CDateTimeEx(-1, East) - CDateTimeEx(Longest, West)).getTotalSeconds(), Shortest);
    EXPECT_EQ((CDateTimeEx(Longest, East) + CTimeSpanEx(Shortest) - CDateTimeEx()).getTotalSeconds(), -1);
    EXPECT_THROW(CDateTimeEx(-2, 0) - CDateTimeEx(Longest, 0), exc::CRuntimeExc);
    EXPECT_THROW(CDateTimeEx(Shortest, 0) + CTimeSpanEx(-1), exc::CRuntimeExc);
}

TEST_F(InstantOffsetsTest, FailWrappedOnlyAsStandardExceptions)
{
    const std::bad_alloc noMemory;
    breakMachine(noMemory);
    EXPECT_EQ(failureText([] { CDateTimeEx::fromUtcTime(CDateTime(5, true)); }),
              std::string("DateTimeEx: Failed to convert from UTC time. ") + noMemory.what());
    // The time itself is read before anything is converted.
    EXPECT_EQ(failureText([] { CDateTimeEx::currentTime(); }), noMemory.what());

    breakMachine(5);
    EXPECT_THROW(CDateTimeEx::fromUtcTime(CDateTime(5, true)), int);
    EXPECT_THROW(CDateTimeEx::fromLocalTime(CDateTime(5, false)), int);
}

TEST(SpanLimitsTest, AreThoseOf64Bits)
{
    EXPECT_EQ(CTimeSpanEx::fromDays(Shortest / Day).getTotalSeconds(), Shortest / Day * Day);
    EXPECT_EQ(CTimeSpanEx::fromDays(Longest / Day).getTotalSeconds(), Longest / Day * Day);
    EXPECT_THROW(CTimeSpanEx::fromDays(Shortest / Day - 1), exc::CRuntimeExc);
    EXPECT_THROW(CTimeSpanEx::fromDays(Longest / Day + 1), exc::CRuntimeExc);
    EXPECT_THROW(CTimeSpanEx::fromHours(Shortest), exc::CRuntimeExc);
    EXPECT_TRUE(CTimeSpanEx(Shortest) < CTimeSpanEx(Longest));
    EXPECT_FALSE(CTimeSpanEx(Shortest) > CTimeSpanEx(Longest));
    EXPECT_FALSE(CTimeSpanEx(Longest) <= CTimeSpanEx(Shortest));
    EXPECT_FALSE(CTimeSpanEx(Shortest) >= CTimeSpanEx(Longest));
    for (const long seconds : {Longest - 1, Shortest, Shortest + 1, 1L << 60, -(1L << 60)})
        EXPECT_EQ(failureText([&] { (void)CTimeSpanEx(seconds).toStdString("%H"); }),
                  "Failed to convert UNIX time to struct tm.");
}

TEST(DateLimitsTest, HaveTheirMidnightsOnEitherSideOf1970)
{
    const std::pair<long, long> rows[] = {
        {1, 0},
        {Day - 1, 0},
        {-Day, -Day},
        {-Day - 1, -2 * Day},
        {-Day + 1, -Day},
        {FirstSecond, FirstSecond},
        {FirstSecond + Day - 1, FirstSecond},
    };
    for (const auto& [seconds, midnight] : rows)
        EXPECT_EQ(CDateTime(CDate(CDateTime(seconds, true))).toUnixTime(), midnight) << seconds;
    EXPECT_EQ(CDate(CDateTime(FirstSecond, true)).toString(), "01/01/1400");
    EXPECT_EQ(CDate(CDateTime(LastSecond, true)).toString(), "12/31/9999");
    EXPECT_EQ(CDate(CDateTime(-1, true)).toString(), "12/31/1969");
}

TEST(DateLimitsTest, EqualADateTimeOnlyAtMidnight)
{
    const CDate date(CDateTime(Midnight + 80000, false));
    EXPECT_TRUE(CDateTime(Midnight, true) == date);
    EXPECT_FALSE(CDateTime(Midnight + 1, false) == date);
}

} // namespace
