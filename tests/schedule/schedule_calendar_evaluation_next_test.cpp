#include <optional>
#include <string>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_calendar.h>

#include "support/expect_failure.h"

using namespace zelplatform::model;
using namespace zelplatform::model::structs;
using datetime::EDayOfWeek;
using zelmodel_test::failureText;

namespace
{

const CMonthMask AllMonths(true);
const CMonthMask February = CMonthMask::FromString("February", ',');

std::string next(const CScheduleCalendar& calendar, const std::string& date)
{
    const auto found =
        calendar.GetNextScheduleDateFromDate(CDate(datetime::CDateTime::fromString(date, "%Y-%m-%d", false)));
    return found ? found->toString() : "none";
}

CScheduleCalendar weekly(const std::string& days)
{
    CScheduleCalendar calendar;
    calendar.SetWeekly(std::nullopt, CWeekMask::FromString(days, ','));
    return calendar;
}

CScheduleCalendar monthly(unsigned long day, const CMonthMask& months)
{
    CScheduleCalendar calendar;
    calendar.SetMonthlyOnDay(std::nullopt, CDayOfMonth(day), months);
    return calendar;
}

CScheduleCalendar leapDayOn(EDayOfWeek::type weekDay)
{
    CScheduleCalendar calendar = monthly(29, February);
    calendar.GetWeekMask().Reset(false);
    calendar.GetWeekMask().SetDay(weekDay, true);
    return calendar;
}

} // namespace

TEST(ScheduleCalendarNext, ComesAfterTheDate)
{
    EXPECT_EQ(next(weekly("Monday"), "2024-03-04"), "03/11/2024");
    EXPECT_EQ(next(weekly("Monday"), "2024-03-03"), "03/04/2024");
    EXPECT_EQ(next(weekly("Thursday,Wednesday"), "2024-02-28"), "02/29/2024");
    EXPECT_EQ(next(CScheduleCalendar(), "2024-09-02"), "10/07/2024");
    EXPECT_EQ(next(monthly(31, AllMonths), "2024-03-31"), "05/31/2024");
    EXPECT_EQ(next(monthly(32, AllMonths), "2024-02-28"), "02/29/2024");
    EXPECT_EQ(next(monthly(32, AllMonths), "2024-12-31"), "01/31/2025");
}

TEST(ScheduleCalendarNext, RecurrentRunsTheDayAfter)
{
    CScheduleCalendar calendar;
    calendar.SetContinuously();
    EXPECT_EQ(next(calendar, "2024-02-29"), "03/01/2024");
    calendar.SetPeriodically(CScheduleTime(4, 0));
    EXPECT_EQ(next(calendar, "2024-12-31"), "01/01/2025");
}

TEST(ScheduleCalendarNext, WaitsForLeapDays)
{
    const CScheduleCalendar leapDay = monthly(29, February);
    EXPECT_EQ(next(leapDay, "2024-02-28"), "02/29/2024");
    EXPECT_EQ(next(leapDay, "2024-02-29"), "02/29/2028");
    EXPECT_EQ(next(leapDay, "1896-02-29"), "02/29/1904");
    EXPECT_EQ(next(leapDay, "2096-02-29"), "02/29/2104");
}

TEST(ScheduleCalendarNext, WaitsFortyYearsForALeapDayOnOneWeekDay)
{
    EXPECT_EQ(next(leapDayOn(EDayOfWeek::Saturday), "2020-02-28"), "02/29/2020");
    EXPECT_EQ(next(leapDayOn(EDayOfWeek::Saturday), "2020-02-29"), "02/29/2048");
    EXPECT_EQ(next(leapDayOn(EDayOfWeek::Saturday), "2076-02-29"), "02/29/2116");
    EXPECT_EQ(next(leapDayOn(EDayOfWeek::Thursday), "1872-02-29"), "02/29/1912");
    EXPECT_EQ(next(leapDayOn(EDayOfWeek::Sunday), "2088-02-29"), "02/29/2128");
}

TEST(ScheduleCalendarNext, NeverComesWithoutDays)
{
    EXPECT_EQ(next(weekly(""), "2024-03-04"), "none");
    EXPECT_EQ(next(monthly(30, February), "2024-03-04"), "none");
    EXPECT_EQ(next(monthly(31, CMonthMask::FromString("April,June,September,November", ',')), "2024-03-04"), "none");
    CScheduleCalendar noMonths;
    noMonths.GetMonthMask().Reset(false);
    EXPECT_EQ(next(noMonths, "2024-03-04"), "none");
}

TEST(ScheduleCalendarNext, EndsWithTheYear9999)
{
    EXPECT_EQ(next(monthly(31, AllMonths), "9999-12-01"), "12/31/9999");
    EXPECT_EQ(next(monthly(31, AllMonths), "9999-12-31"), "none");
    EXPECT_EQ(next(weekly("Monday"), "9999-12-27"), "none");
    EXPECT_EQ(next(weekly("Friday"), "9999-12-27"), "12/31/9999");
    EXPECT_EQ(next(monthly(29, February), "9998-01-01"), "none");
    CScheduleCalendar continuous;
    continuous.SetContinuously();
    EXPECT_EQ(next(continuous, "9999-12-30"), "12/31/9999");
    EXPECT_EQ(next(continuous, "9999-12-31"), "none");
}

TEST(ScheduleCalendarNextFailures, FailsWhereTheDayCannotBeJudged)
{
    CScheduleCalendar calendar;
    calendar.SetMonthly(std::nullopt, static_cast<EWeekDayNumber::type>(0), EDayOfWeek::Monday, AllMonths);
    const std::string failure = failureText([&] { next(calendar, "2024-03-04"); });
    const std::string cause = "Bad week day number [0].";
    ASSERT_GE(failure.size(), cause.size());
    EXPECT_EQ(failure.substr(failure.size() - cause.size()), cause) << failure;
    calendar.GetWeekMask().Reset(false);
    EXPECT_EQ(next(calendar, "2024-03-04"), "none");
}
