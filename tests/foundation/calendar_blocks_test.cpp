#include <zelmodel/date_time.h>

#include <algorithm>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <zelplatform/datetime/datetime.h>
#include <zelplatform/exc/exc.h>

using datetime::CDateTime;
using zelplatform::model::CDateTimeHelper;
using zelplatform::model::EDateUnit;
using zelplatform::model::structs::gfs::ESennightOfMonth;

namespace
{

constexpr int Most = std::numeric_limits<int>::max();
constexpr int Least = std::numeric_limits<int>::min();
constexpr EDateUnit::type Units[] = {EDateUnit::Day, EDateUnit::Week, EDateUnit::Month, EDateUnit::Year};

struct Ymd
{
    int year;
    int month;
    int day;
};

int lengthOfMonth(int year, int month)
{
    if (month == 2)
        return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0 ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

CDateTime at(const Ymd& date)
{
    CDateTime result(true);
    result.setDate(date.year, date.month, date.day);
    return result;
}

std::string text(const Ymd& date)
{
    const auto two = [](int number) { return (number < 10 ? "0" : "") + std::to_string(number); };
    return std::to_string(date.year) + "-" + two(date.month) + "-" + two(date.day);
}

std::string advanced(const Ymd& from, EDateUnit::type unit, int count)
{
    return CDateTimeHelper::BasicDateAdvance(at(from), unit, count).toStdString("%Y-%m-%d");
}

TEST(CalendarBlocksTest, AgreeWithTheLengthOfEveryMonth)
{
    for (const int year : {1400, 1600, 1900, 1970, 2000, 2023, 2024, 2100, 9999})
    {
        for (int month = 1; month <= 12; ++month)
        {
            const int length = lengthOfMonth(year, month);
            for (int day = 1; day <= length; ++day)
            {
                SCOPED_TRACE(text({year, month, day}));
                const auto date = at({year, month, day});
                const int left = length - day;
                const int fromStart = day <= 7 ? 1 : day <= 14 ? 2 : day <= 21 ? 3 : day <= 28 ? 4 : 5;
                const int fromEnd = left < 7 ? 1 : left < 14 ? 2 : left < 21 ? 3 : left < 28 ? 4 : 5;
                for (int week = -1; week <= 7; ++week)
                {
                    const auto sennight = static_cast<ESennightOfMonth::type>(week);
                    EXPECT_EQ(CDateTimeHelper::isSennightOfMonth(date, sennight, false), week == fromStart);
                    EXPECT_EQ(CDateTimeHelper::isSennightOfMonth(date, sennight, true), week == fromEnd);
                }
                EXPECT_EQ(CDateTimeHelper::isLastDayOfWeekInMonth(date), left < 7);
            }
        }
    }
}

TEST(CalendarBlocksTest, DoNotDependOnTheTimeOfDay)
{
    auto date = at({2024, 2, 22});
    date.setTime(23, 59, 59);
    EXPECT_FALSE(CDateTimeHelper::isLastDayOfWeekInMonth(date));
    EXPECT_EQ(CDateTimeHelper::getSennightOfMonth(date, false), 4U);
    EXPECT_EQ(CDateTimeHelper::getSennightOfMonth(date, true), 2U);
}

TEST(CalendarStepsTest, KeepTheDayOfEveryMonthThatHasIt)
{
    for (const Ymd& from : {Ymd{2024, 1, 31}, Ymd{2024, 2, 29}, Ymd{2023, 2, 28}, Ymd{1999, 12, 30}, Ymd{1900, 8, 31}})
    {
        for (int count = -300; count <= 300; ++count)
        {
            const int months = from.year * 12 + from.month - 1 + count;
            Ymd inMonth{months / 12, months % 12 + 1, 0};
            inMonth.day = std::min(from.day, lengthOfMonth(inMonth.year, inMonth.month));
            EXPECT_EQ(advanced(from, EDateUnit::Month, count), text(inMonth));

            Ymd inYear{from.year + count, from.month, 0};
            inYear.day = std::min(from.day, lengthOfMonth(inYear.year, inYear.month));
            EXPECT_EQ(advanced(from, EDateUnit::Year, count), text(inYear));
        }
    }
}

TEST(CalendarStepsTest, CrossTheWholeCalendar)
{
    EXPECT_EQ(advanced({2000, 1, 1}, EDateUnit::Day, 146097), "2400-01-01");
    EXPECT_EQ(advanced({2000, 1, 1}, EDateUnit::Week, -20871), "1600-01-01");
    EXPECT_EQ(advanced({1400, 1, 1}, EDateUnit::Day, 3141084), "9999-12-31");
    EXPECT_EQ(advanced({9999, 12, 31}, EDateUnit::Day, -3141084), "1400-01-01");
    EXPECT_EQ(advanced({1400, 1, 31}, EDateUnit::Month, 8599 * 12 + 11), "9999-12-31");
    EXPECT_EQ(advanced({9999, 12, 31}, EDateUnit::Month, -8599 * 12 - 10), "1400-02-28");
    EXPECT_EQ(advanced({2096, 2, 29}, EDateUnit::Year, 4), "2100-02-28");
    EXPECT_EQ(advanced({9999, 3, 7}, EDateUnit::Year, -8599), "1400-03-07");
}

TEST(CalendarStepsTest, KeepTheTimeOfDayBefore1970)
{
    auto date = at({1969, 3, 31});
    date.setTime(1, 2, 3);
    for (const auto& [unit, count] : {std::pair{EDateUnit::Month, -1}, std::pair{EDateUnit::Day, -31}})
        EXPECT_EQ(CDateTimeHelper::BasicDateAdvance(date, unit, count).toStdString("%Y-%m-%d %H:%M:%S"),
                  "1969-02-28 01:02:03");
}

TEST(CalendarStepsTest, RefuseEveryCountThatLeadsOut)
{
    const auto first = at({1400, 1, 1});
    const auto last = at({9999, 12, 31});
    for (const auto unit : Units)
    {
        SCOPED_TRACE(unit);
        EXPECT_EQ(CDateTimeHelper::BasicDateAdvance(first, unit, 0), first);
        EXPECT_EQ(CDateTimeHelper::BasicDateAdvance(last, unit, 0), last);
        EXPECT_THROW(CDateTimeHelper::BasicDateAdvance(first, unit, -1), std::exception);
        EXPECT_THROW(CDateTimeHelper::BasicDateAdvance(last, unit, 1), std::exception);
        for (const int count : {Least, Least + 1, -(1 << 30), 1 << 30, Most})
            EXPECT_THROW(CDateTimeHelper::BasicDateAdvance(at({2024, 3, 7}), unit, count), std::exception) << count;
    }
    for (const int unit : {-1, Most, Least})
        EXPECT_THROW(CDateTimeHelper::BasicDateAdvance(first, static_cast<EDateUnit::type>(unit), 0), exc::CRuntimeExc);
}

} // namespace
