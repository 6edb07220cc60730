#include <climits>
#include <stdexcept>
#include <type_traits>

#include <gtest/gtest.h>

#include <zelplatform/datetime/datetime.h>
#include <zelplatform/exc/exc.h>

namespace
{

using datetime::CDateTime;
using datetime::EDayOfWeek;
using datetime::EMonth;

constexpr long firstSecond = -17987443200; // 1400-01-01 00:00:00
constexpr long lastSecond = 253402300799;  // 9999-12-31 23:59:59

CDateTime at(const std::string& text)
{
    return CDateTime::fromString(text, "%Y-%m-%d %H:%M:%S");
}

CDateTime day(const std::string& text)
{
    return CDateTime::fromString(text, "%Y-%m-%d");
}

std::string text(const CDateTime& value)
{
    return value.toStdString("%Y-%m-%d %H:%M:%S");
}

TEST(DateTime, EmptyIsTheEpochWithTheFlag)
{
    for (const bool isUtc : {true, false})
    {
        const CDateTime empty(isUtc);
        EXPECT_EQ(0, empty.toUnixTime());
        EXPECT_EQ(isUtc, empty.isUtcTime());
        EXPECT_EQ("1970-01-01 00:00:00", text(empty));
    }
}

TEST(DateTime, LoneNumbersAreNoDateTimes)
{
    EXPECT_FALSE((std::is_constructible_v<CDateTime, int>));
    EXPECT_FALSE((std::is_constructible_v<CDateTime, long>));
    EXPECT_FALSE((std::is_constructible_v<CDateTime, double>));
    EXPECT_TRUE((std::is_constructible_v<CDateTime, bool>));
    EXPECT_FALSE((std::is_convertible_v<bool, CDateTime>));
}

TEST(DateTime, FromSeconds)
{
    const struct
    {
        long seconds;
        const char* expected;
    } cases[] = {
        {0, "1970-01-01 00:00:00"},          {-1, "1969-12-31 23:59:59"},          {86399, "1970-01-01 23:59:59"},
        {86400, "1970-01-02 00:00:00"},      {951782400, "2000-02-29 00:00:00"},   {1709683200, "2024-03-06 00:00:00"},
        {2147483648, "2038-01-19 03:14:08"}, {-2208988800, "1900-01-01 00:00:00"}, {firstSecond, "1400-01-01 00:00:00"},
        {lastSecond, "9999-12-31 23:59:59"},
    };
    for (const auto& each : cases)
        for (const bool isUtc : {true, false})
        {
            const CDateTime value(each.seconds, isUtc);
            EXPECT_EQ(each.expected, text(value));
            EXPECT_EQ(each.seconds, value.toUnixTime());
            EXPECT_EQ(isUtc, value.isUtcTime());
            EXPECT_EQ(each.seconds, CDateTime::fromUnixTime(each.seconds, isUtc).toUnixTime());
            EXPECT_EQ(each.seconds, at(each.expected).toUnixTime());
        }
}

TEST(DateTime, SecondsOutsideTheCalendarAreRefused)
{
    for (const long seconds : {firstSecond - 1, lastSecond + 1, -62135596800L, LONG_MIN, LONG_MAX})
    {
        EXPECT_THROW(CDateTime(seconds, true), exc::CRuntimeExc) << seconds;
        EXPECT_THROW((void)CDateTime::fromUnixTime(seconds, false), exc::CRuntimeExc) << seconds;
    }
}

TEST(DateTime, Fields)
{
    const CDateTime value = at("2024-03-06 07:08:09");
    int year = 0;
    int month = 0;
    int dayOfMonth = 0;
    value.getDate(year, month, dayOfMonth);
    EXPECT_EQ(2024, year);
    EXPECT_EQ(3, month);
    EXPECT_EQ(6, dayOfMonth);
    EXPECT_EQ(2024, value.year());
    EXPECT_EQ(6U, value.day());
    EXPECT_EQ(7, value.hour());
    EXPECT_EQ(8, value.minute());
    EXPECT_EQ(9, value.second());

    const CDateTime before = at("1969-12-31 23:59:58");
    EXPECT_EQ(1969, before.year());
    EXPECT_EQ(31U, before.day());
    EXPECT_EQ(23, before.hour());
    EXPECT_EQ(59, before.minute());
    EXPECT_EQ(58, before.second());
}

TEST(DateTime, MonthIsCountedFromZeroAndFromOne)
{
    for (int number = 1; number <= 12; ++number)
    {
        CDateTime value(true);
        value.setDate(2023, number, 28);
        EXPECT_EQ(number - 1, static_cast<int>(value.getMonth()));
        int year = 0;
        int month = 0;
        int dayOfMonth = 0;
        value.getDate(year, month, dayOfMonth);
        EXPECT_EQ(number, month);
    }
}

TEST(DateTime, DaysOfTheWeek)
{
    const struct
    {
        const char* date;
        EDayOfWeek::type expected;
    } cases[] = {
        {"1970-01-01", EDayOfWeek::Thursday}, {"1969-12-31", EDayOfWeek::Wednesday},
        {"2024-03-03", EDayOfWeek::Sunday},   {"2024-03-04", EDayOfWeek::Monday},
        {"2024-03-05", EDayOfWeek::Tuesday},  {"2024-03-06", EDayOfWeek::Wednesday},
        {"2024-03-07", EDayOfWeek::Thursday}, {"2024-03-08", EDayOfWeek::Friday},
        {"2024-03-09", EDayOfWeek::Saturday}, {"2000-02-29", EDayOfWeek::Tuesday},
        {"1900-01-01", EDayOfWeek::Monday},   {"1400-01-01", EDayOfWeek::Wednesday},
        {"9999-12-31", EDayOfWeek::Friday},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, day(each.date).getDayOfWeek()) << each.date;
    EXPECT_EQ(EDayOfWeek::Wednesday, at("1969-12-31 23:59:59").getDayOfWeek());
}

TEST(DateTime, LengthsOfMonths)
{
    const unsigned lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 1; month <= 12; ++month)
    {
        CDateTime value(false);
        value.setDate(2023, month, 1);
        EXPECT_EQ(lengths[month - 1], value.getMonthLastDay());
    }
    EXPECT_EQ(29U, day("2024-02-10").getMonthLastDay());
    EXPECT_EQ(29U, day("2000-02-10").getMonthLastDay());
    EXPECT_EQ(28U, day("1900-02-10").getMonthLastDay());
    EXPECT_EQ(28U, day("2100-02-10").getMonthLastDay());
    EXPECT_EQ(28U, day("1400-02-10").getMonthLastDay());
    EXPECT_EQ(29U, day("1600-02-10").getMonthLastDay());
    EXPECT_EQ(31U, day("9999-12-31").getMonthLastDay());
}

TEST(DateTime, DaysOfTheMonthOnAWeekDay)
{
    const CDateTime march = day("2024-03-06");
    EXPECT_EQ((std::vector<unsigned>{1, 8, 15, 22, 29}), march.getMonthDaysByDayOfWeek(EDayOfWeek::Friday));
    EXPECT_EQ((std::vector<unsigned>{6, 13, 20, 27}), march.getMonthDaysByDayOfWeek(EDayOfWeek::Wednesday));
    EXPECT_EQ((std::vector<unsigned>{3, 10, 17, 24, 31}), march.getMonthDaysByDayOfWeek(EDayOfWeek::Sunday));
    EXPECT_EQ((std::vector<unsigned>{7, 14, 21, 28}), day("2023-02-28").getMonthDaysByDayOfWeek(EDayOfWeek::Tuesday));
    EXPECT_EQ((std::vector<unsigned>{1, 8, 15, 22, 29}),
              day("2024-02-01").getMonthDaysByDayOfWeek(EDayOfWeek::Thursday));
}

TEST(DateTime, OccurrenceOfTheWeekDay)
{
    const struct
    {
        const char* date;
        unsigned long expected;
    } cases[] = {{"2024-03-01", 1}, {"2024-03-07", 1}, {"2024-03-08", 2}, {"2024-03-14", 2}, {"2024-03-15", 3},
                 {"2024-03-21", 3}, {"2024-03-22", 4}, {"2024-03-28", 4}, {"2024-03-29", 5}, {"2024-03-31", 5}};
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, day(each.date).getMonthCurrWeekIndex()) << each.date;
}

TEST(DateTime, SettingTheTime)
{
    CDateTime value = at("2024-03-06 07:08:09");
    value.setTime(0, 0, 0);
    EXPECT_EQ("2024-03-06 00:00:00", text(value));
    value.setTime(23, 59, 59);
    EXPECT_EQ("2024-03-06 23:59:59", text(value));
    value.setHours(1);
    value.setMinutes(2);
    value.setSeconds(3);
    EXPECT_EQ("2024-03-06 01:02:03", text(value));

    CDateTime early = at("1969-12-31 12:00:00");
    early.setTime(0, 0, 1);
    EXPECT_EQ("1969-12-31 00:00:01", text(early));
}

TEST(DateTime, FalseTimesAreRefused)
{
    const int cases[][3] = {{24, 0, 0}, {-1, 0, 0},      {0, 60, 0},      {0, -1, 0},     {0, 0, 60},
                            {0, 0, -1}, {INT_MAX, 0, 0}, {0, INT_MIN, 0}, {0, 0, INT_MAX}};
    for (const auto& each : cases)
    {
        CDateTime value = at("2024-03-06 07:08:09");
        EXPECT_THROW(value.setTime(each[0], each[1], each[2]), exc::CRuntimeExc);
        EXPECT_EQ("2024-03-06 07:08:09", text(value));
    }
    CDateTime value(true);
    EXPECT_THROW(value.setHours(24), exc::CRuntimeExc);
    EXPECT_THROW(value.setMinutes(60), exc::CRuntimeExc);
    EXPECT_THROW(value.setSeconds(-1), exc::CRuntimeExc);
    EXPECT_EQ(0, value.toUnixTime());
}

TEST(DateTime, SettingTheDateKeepsTimeAndFlag)
{
    CDateTime value(1709683200 + 3723, false);
    value.setDate(2000, 2, 29);
    EXPECT_EQ("2000-02-29 01:02:03", text(value));
    EXPECT_FALSE(value.isUtcTime());
    value.setYear(1996);
    value.setMonth(1);
    value.setDay(31);
    EXPECT_EQ("1996-01-31 01:02:03", text(value));
}

TEST(DateTime, YearMonthDayInThatOrderFromTheEmptyValue)
{
    CDateTime value(true);
    value.setYear(2024);
    value.setMonth(2);
    value.setDay(29);
    value.setHours(1);
    value.setMinutes(2);
    value.setSeconds(3);
    EXPECT_EQ("2024-02-29 01:02:03", text(value));
}

TEST(DateTime, FalseDatesAreTheCalendarsOwnError)
{
    const int cases[][3] = {{2024, 2, 30}, {2023, 2, 29}, {2024, 4, 31},    {2024, 0, 1},     {2024, 13, 1},
                            {2024, 1, 0},  {2024, 1, 32}, {1399, 12, 31},   {10000, 1, 1},    {-1, 1, 1},
                            {2024, -1, 1}, {2024, 1, -1}, {2024, 65537, 1}, {2024, 1, 65537}, {67560, 1, 1}};
    for (const auto& each : cases)
    {
        CDateTime value = at("2024-03-06 07:08:09");
        EXPECT_THROW(value.setDate(each[0], each[1], each[2]), std::out_of_range)
            << each[0] << "-" << each[1] << "-" << each[2];
        EXPECT_EQ("2024-03-06 07:08:09", text(value));
    }
}

TEST(DateTime, FaultsAreToldAsTheSettersRefuse)
{
    for (const int year : {-1, 0, 1399, 1400, 1900, 2000, 2023, 2024, 9999, 10000, 65536 + 2024, INT_MAX})
    {
        for (const int month : {-1, 0, 1, 2, 4, 12, 13, 255, 65537})
        {
            for (const int day : {-1, 0, 1, 28, 29, 30, 31, 32, 255, 65537})
            {
                for (const int clock : {-1, 0, 23, 24, 59, 60, 255})
                {
                    std::string expected;
                    try
                    {
                        CDateTime time(true);
                        time.setDate(year, month, day);
                        time.setTime(clock, 59, clock);
                    }
                    catch (const std::exception& refusal)
                    {
                        expected = refusal.what();
                    }
                    ASSERT_EQ(expected, CDateTime::faultOf(year, month, day, clock, 59, clock))
                        << year << " " << month << " " << day << " " << clock;
                }
            }
        }
    }
    EXPECT_EQ("Minute [60] is out of range.", CDateTime::faultOf(2024, 2, 29, 0, 60, 60));
    EXPECT_EQ("Month number is out of range 1..12", CDateTime::faultOf(2024, 13, 32, 24, 60, 60));
}

TEST(DateTime, EachSetterChecksTheResultingDate)
{
    CDateTime january = day("2023-01-31");
    EXPECT_THROW(january.setMonth(2), std::out_of_range);
    CDateTime leap = day("2024-02-29");
    EXPECT_THROW(leap.setYear(2023), std::out_of_range);
    CDateTime february = day("2023-02-01");
    EXPECT_THROW(february.setDay(29), std::out_of_range);
    EXPECT_THROW(february.setDay(0), std::out_of_range);
    EXPECT_THROW(february.setMonth(13), std::out_of_range);
    EXPECT_THROW(february.setYear(1399), std::out_of_range);
    EXPECT_EQ("2023-02-01 00:00:00", text(february));
}

TEST(DateTime, ComparesTheClockAndLeavesOutTheFlag)
{
    const CDateTime utc(100, true);
    const CDateTime local(100, false);
    const CDateTime later(101, true);
    EXPECT_TRUE(utc == local);
    EXPECT_FALSE(utc != local);
    EXPECT_TRUE(utc <= local);
    EXPECT_TRUE(utc >= local);
    EXPECT_FALSE(utc < local);
    EXPECT_FALSE(utc > local);
    EXPECT_TRUE(local < later);
    EXPECT_TRUE(local <= later);
    EXPECT_TRUE(later > utc);
    EXPECT_TRUE(later >= utc);
    EXPECT_TRUE(later != utc);
    EXPECT_TRUE(CDateTime(-1, true) < CDateTime(0, true));
}

TEST(DateTime, EveryDayOfFourCenturiesFollowsTheOneBefore)
{
    static const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int year = 1899;
    int month = 12;
    int dayOfMonth = 31;
    int dayOfWeek = 0; // 1899-12-31 was a Sunday
    CDateTime value = day("1899-12-31");
    while (year < 2300)
    {
        int actualYear = 0;
        int actualMonth = 0;
        int actualDay = 0;
        value.getDate(actualYear, actualMonth, actualDay);
        ASSERT_EQ(year, actualYear);
        ASSERT_EQ(month, actualMonth);
        ASSERT_EQ(dayOfMonth, actualDay);
        ASSERT_EQ(dayOfWeek, static_cast<int>(value.getDayOfWeek()));

        const bool isLeap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
        const int length = lengths[month - 1] + (month == 2 && isLeap ? 1 : 0);
        ASSERT_EQ(static_cast<unsigned>(length), value.getMonthLastDay());
        dayOfWeek = (dayOfWeek + 1) % 7;
        if (++dayOfMonth > length)
        {
            dayOfMonth = 1;
            if (++month > 12)
            {
                month = 1;
                ++year;
            }
        }
        value = CDateTime(value.toUnixTime() + 86400, true);
    }
}

} // namespace
