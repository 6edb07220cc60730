#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_calendar.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "support/expect_failure.h"

using namespace zelplatform::model::structs;
using datetime::EDayOfWeek;
using zelmodel_test::failureText;

namespace
{

const CScheduleTime Ten(10, 0);
const CScheduleTime Eleven(11, 0);

CScheduleCalendar weekly(const std::string& days, const CScheduleTime& time = Ten)
{
    CScheduleCalendar calendar;
    calendar.SetWeekly(time, CWeekMask::FromString(days, ','));
    return calendar;
}

CScheduleCalendar daily(const CScheduleTime& time = Ten)
{
    CScheduleCalendar calendar;
    calendar.SetWeekly(time, CWeekMask(true));
    return calendar;
}

CScheduleCalendar monthlyOn(EWeekDayNumber::type number, EDayOfWeek::type day, const std::string& months)
{
    CScheduleCalendar calendar;
    calendar.SetMonthly(Ten, number, day, CMonthMask::FromString(months, ','));
    return calendar;
}

CScheduleCalendar monthlyOn(unsigned long day, const std::string& months)
{
    CScheduleCalendar calendar;
    calendar.SetMonthlyOnDay(Ten, CDayOfMonth(day), CMonthMask::FromString(months, ','));
    return calendar;
}

CScheduleCalendar periodical()
{
    CScheduleCalendar calendar;
    calendar.SetPeriodically(Ten);
    return calendar;
}

CScheduleCalendar continuous()
{
    CScheduleCalendar calendar;
    calendar.SetContinuously();
    return calendar;
}

void expectExpanded(CScheduleCalendar calendar, const CScheduleCalendar& other, const CScheduleCalendar& expected)
{
    EXPECT_TRUE(calendar.ExpandTo(other)) << calendar.ToLogStr(true) << " / " << other.ToLogStr(true);
    EXPECT_EQ(calendar, expected) << calendar.ToLogStr(true);
}

void expectRefused(CScheduleCalendar calendar, const CScheduleCalendar& other)
{
    const CScheduleCalendar before = calendar;
    EXPECT_FALSE(calendar.ExpandTo(other)) << calendar.ToLogStr(true) << " / " << other.ToLogStr(true);
    EXPECT_EQ(calendar, before);
}

} // namespace

TEST(ScheduleCalendarExpand, WeeklyTakesDays)
{
    expectExpanded(weekly("Monday,Wednesday"), weekly("Friday"), weekly("Monday,Wednesday,Friday"));
    expectExpanded(weekly("Monday"), weekly("Monday"), weekly("Monday"));
    expectExpanded(weekly("Monday"), weekly(""), weekly("Monday"));
    expectExpanded(weekly(""), weekly("Sunday"), weekly("Sunday"));
}

TEST(ScheduleCalendarExpand, EveryDayCoversMonthly)
{
    expectExpanded(daily(), monthlyOn(5, "May"), daily());
    expectExpanded(daily(), monthlyOn(EWeekDayNumber::Last, EDayOfWeek::Friday, "May"), daily());
    expectExpanded(monthlyOn(5, "May"), daily(Eleven), daily());
    expectExpanded(monthlyOn(EWeekDayNumber::First, EDayOfWeek::Monday, "May"), daily(Eleven), daily());
    expectExpanded(weekly("Monday"), daily(Eleven), daily());
    expectExpanded(daily(), weekly("Monday"), daily());
}

TEST(ScheduleCalendarExpand, EveryDayIsSetAnew)
{
    CScheduleCalendar stray = daily();
    stray.GetMonthMask().Reset(false);
    stray.GetDayOfMonth().Set(3);
    expectExpanded(stray, monthlyOn(5, "May"), daily());
}

TEST(ScheduleCalendarExpand, MonthlyTakesMonths)
{
    expectExpanded(monthlyOn(5, "May"), monthlyOn(5, "June,January"), monthlyOn(5, "January,May,June"));
    expectExpanded(monthlyOn(32, "May"), monthlyOn(32, "June"), monthlyOn(32, "May,June"));
    expectExpanded(monthlyOn(EWeekDayNumber::Last, EDayOfWeek::Friday, "May"),
                   monthlyOn(EWeekDayNumber::Last, EDayOfWeek::Friday, "June"),
                   monthlyOn(EWeekDayNumber::Last, EDayOfWeek::Friday, "May,June"));
}

TEST(ScheduleCalendarExpand, OtherKindsAndDaysAreRefused)
{
    expectRefused(monthlyOn(5, "May"), monthlyOn(6, "May"));
    expectRefused(monthlyOn(31, "May"), monthlyOn(32, "May"));
    expectRefused(monthlyOn(EWeekDayNumber::First, EDayOfWeek::Monday, "May"),
                  monthlyOn(EWeekDayNumber::Second, EDayOfWeek::Monday, "June"));
    expectRefused(monthlyOn(EWeekDayNumber::First, EDayOfWeek::Monday, "May"), monthlyOn(1, "May"));
    expectRefused(weekly("Monday"), monthlyOn(5, "May"));
    expectRefused(monthlyOn(5, "May"), weekly("Monday"));
    expectRefused(daily(), periodical());
    expectRefused(periodical(), daily());
    expectRefused(daily(), continuous());
    expectRefused(continuous(), monthlyOn(5, "May"));
    expectRefused(periodical(), continuous());
}

TEST(ScheduleCalendarExpandQuirks, AnotherWeekDayOfTheSameNumberIsForgotten)
{
    expectExpanded(monthlyOn(EWeekDayNumber::First, EDayOfWeek::Monday, "May"),
                   monthlyOn(EWeekDayNumber::First, EDayOfWeek::Friday, "June"),
                   monthlyOn(EWeekDayNumber::First, EDayOfWeek::Monday, "May,June"));
}

TEST(ScheduleCalendarExpandQuirks, EqualRecurrentCalendarsAreRefused)
{
    expectRefused(periodical(), periodical());
    expectRefused(continuous(), continuous());
}

TEST(ScheduleCalendarExpandQuirks, TimesAreIgnored)
{
    expectExpanded(weekly("Monday", Ten), weekly("Friday", Eleven), weekly("Monday,Friday", Ten));
    CScheduleCalendar timeless = weekly("Monday");
    timeless.ResetTime();
    CScheduleCalendar expected = daily();
    expected.ResetTime();
    expectExpanded(timeless, daily(Eleven), expected);
}

TEST(ScheduleCalendarExpandQuirks, AFailureSaysXor)
{
    const auto document = xmlpp::CXmlDocument::Unserialize(
        R"(<S WeekDayNumber="Every" DayOfMonth="5" Type="1"><WeekMask Monday="1" Tuesday="1" Wednesday="1" )"
        R"(Thursday="1" Friday="1" Saturday="1" Sunday="1"/><MonthMask January="1" February="1" March="1" April="1" )"
        R"(May="1" June="1" July="1" August="1" September="1" October="1" November="1" December="1"/>)"
        R"(<Time Hours="24" Minutes="0"/></S>)");
    CScheduleCalendar calendar = CScheduleCalendar::FromXml(document.GetRootNode());
    const CScheduleCalendar before = calendar;
    EXPECT_EQ(
        failureText([&] { calendar.ExpandTo(daily()); }),
        "ScheduleCalendar: Failed to xor. ScheduleCalendar: Failed to set weekly schedule. Failed to validate time "
        "[24:00] (schedule is periodically? [false]). Wrong hours of time.");
    EXPECT_EQ(calendar, before);
}
