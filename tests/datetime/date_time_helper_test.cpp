#include <zelmodel/datetime/date_time_helper.h>

#include <stdexcept>

#include <gtest/gtest.h>

#include <zelplatform/exc/exc.h>

#include "support/expect_failure.h"

using datetime::CDateTime;
using zelmodel_test::failureText;
using zelplatform::model::CDateTimeHelper;
using zelplatform::model::EDateUnit;
using zelplatform::model::structs::gfs::ESennightOfMonth;

namespace
{

CDateTime day(const std::string& text)
{
    return CDateTime::fromString(text, "%Y-%m-%d");
}

TEST(DateTimeHelperTest, NumbersTheSennightsOfAMonth)
{
    const struct
    {
        const char* date;
        unsigned fromStart;
        unsigned fromEnd;
    } rows[] = {
        {"2024-03-01", 1, 5}, {"2024-03-07", 1, 4}, {"2024-03-08", 2, 4}, {"2024-03-14", 2, 3},
        {"2024-03-15", 3, 3}, {"2024-03-21", 3, 2}, {"2024-03-22", 4, 2}, {"2024-03-28", 4, 1},
        {"2024-03-29", 5, 1}, {"2024-03-31", 5, 1}, {"2023-02-01", 1, 4}, {"2023-02-28", 4, 1},
        {"2024-02-01", 1, 5}, {"2024-02-29", 5, 1}, {"2024-04-02", 1, 5}, {"2024-04-03", 1, 4},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.date);
        EXPECT_EQ(CDateTimeHelper::getSennightOfMonth(day(row.date), false), row.fromStart);
        EXPECT_EQ(CDateTimeHelper::getSennightOfMonth(day(row.date), true), row.fromEnd);
    }
}

TEST(DateTimeHelperTest, ComparesTheSennightByItsNumber)
{
    EXPECT_TRUE(CDateTimeHelper::isSennightOfMonth(day("2024-03-07"), ESennightOfMonth::First, false));
    EXPECT_TRUE(CDateTimeHelper::isSennightOfMonth(day("2024-03-07"), ESennightOfMonth::Fourth, true));
    EXPECT_FALSE(CDateTimeHelper::isSennightOfMonth(day("2024-03-08"), ESennightOfMonth::First, false));
    EXPECT_FALSE(CDateTimeHelper::isSennightOfMonth(day("2024-03-08"), static_cast<ESennightOfMonth::type>(-1), false));
}

TEST(DateTimeHelperTest, NeverFindsTheLastSennight)
{
    for (const bool fromEnd : {false, true})
    {
        for (int offset = 0; offset < 31; ++offset)
        {
            const auto date = CDateTimeHelper::BasicDateAdvance(day("2024-03-01"), EDateUnit::Day, offset);
            EXPECT_FALSE(CDateTimeHelper::isSennightOfMonth(date, ESennightOfMonth::Last, fromEnd));
        }
    }
}

TEST(DateTimeHelperTest, KnowsTheLastOccurrenceOfAWeekDay)
{
    const std::pair<const char*, bool> rows[] = {
        {"2024-02-22", false}, {"2024-02-23", true},  {"2024-02-24", true},  {"2023-02-21", false},
        {"2023-02-22", true},  {"2023-02-23", true},  {"2024-03-24", false}, {"2024-03-25", true},
        {"2024-04-23", false}, {"2024-04-24", true},  {"1900-02-21", false}, {"1900-02-22", true},
        {"2024-03-01", false}, {"9999-12-24", false}, {"9999-12-31", true},
    };
    for (const auto& [date, expected] : rows)
        EXPECT_EQ(CDateTimeHelper::isLastDayOfWeekInMonth(day(date)), expected) << date;
}

TEST(DateTimeHelperTest, StepsThroughTheCalendar)
{
    const struct
    {
        const char* from;
        EDateUnit::type unit;
        int count;
        const char* to;
    } rows[] = {
        {"2024-02-28", EDateUnit::Day, 1, "2024-02-29"},     {"2024-03-01", EDateUnit::Day, -1, "2024-02-29"},
        {"2024-03-06", EDateUnit::Day, 0, "2024-03-06"},     {"2024-12-30", EDateUnit::Week, 1, "2025-01-06"},
        {"1970-01-05", EDateUnit::Week, -1, "1969-12-29"},   {"2024-01-31", EDateUnit::Month, 1, "2024-02-29"},
        {"2025-01-31", EDateUnit::Month, 1, "2025-02-28"},   {"2024-03-31", EDateUnit::Month, -1, "2024-02-29"},
        {"2025-02-28", EDateUnit::Month, -12, "2024-02-28"}, {"2024-04-30", EDateUnit::Month, 1, "2024-05-30"},
        {"2024-01-15", EDateUnit::Month, -1, "2023-12-15"},  {"2024-12-15", EDateUnit::Month, 13, "2026-01-15"},
        {"2024-02-29", EDateUnit::Year, 1, "2025-02-28"},    {"2024-02-29", EDateUnit::Year, -4, "2020-02-29"},
        {"2025-02-28", EDateUnit::Year, -1, "2024-02-28"},   {"1400-12-31", EDateUnit::Month, -11, "1400-01-31"},
        {"9999-01-31", EDateUnit::Month, 11, "9999-12-31"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(CDateTimeHelper::BasicDateAdvance(day(row.from), row.unit, row.count), day(row.to))
            << row.from << " -> " << row.to;
}

TEST(DateTimeHelperTest, KeepsTheTimeOfDayAndTheFlag)
{
    const auto from = CDateTime::fromString("2024-01-31 15:04:05", "%Y-%m-%d %H:%M:%S", false);
    for (const auto unit : {EDateUnit::Day, EDateUnit::Week, EDateUnit::Month, EDateUnit::Year})
    {
        const auto to = CDateTimeHelper::BasicDateAdvance(from, unit, 1);
        EXPECT_EQ(to.toStdString("%H:%M:%S"), "15:04:05");
        EXPECT_FALSE(to.isUtcTime());
    }
}

TEST(DateTimeHelperTest, RefusesToLeaveTheCalendar)
{
    constexpr int Most = 2147483647;
    const auto first = day("1400-01-01");
    const auto last = day("9999-12-31");
    for (const auto unit : {EDateUnit::Month, EDateUnit::Year})
    {
        for (const int count : {1, Most})
        {
            EXPECT_THROW(CDateTimeHelper::BasicDateAdvance(last, unit, count), std::out_of_range);
            EXPECT_THROW(CDateTimeHelper::BasicDateAdvance(first, unit, -count), std::out_of_range);
        }
    }
    EXPECT_EQ(failureText([&] { CDateTimeHelper::BasicDateAdvance(last, EDateUnit::Day, 1); }),
              "Date-time of [253402300800] seconds is out of range.");
    for (const auto unit : {EDateUnit::Day, EDateUnit::Week})
    {
        EXPECT_THROW(CDateTimeHelper::BasicDateAdvance(last, unit, Most), exc::CRuntimeExc);
        EXPECT_THROW(CDateTimeHelper::BasicDateAdvance(first, unit, -Most), exc::CRuntimeExc);
    }
}

TEST(DateTimeHelperTest, RefusesAnUnknownUnit)
{
    EXPECT_EQ(
        failureText([] { CDateTimeHelper::BasicDateAdvance(day("2024-03-06"), static_cast<EDateUnit::type>(4), 1); }),
        "Unknown date unit [4].");
}

} // namespace
