#include <optional>
#include <string>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_calendar.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "calendar_sweep_cases.h"
#include "support/expect_failure.h"

using namespace zelplatform::model::structs;
using datetime::EDayOfWeek;
using zelmodel_test::CalendarRules;
using zelmodel_test::failureText;

namespace
{

using Time = std::optional<CScheduleTime>;

constexpr std::array<bool, 7> AllDays{true, true, true, true, true, true, true};
constexpr std::array<bool, 12> AllMonths{true, true, true, true, true, true, true, true, true, true, true, true};

CWeekMask week(const std::string& names)
{
    return CWeekMask::FromString(names, ',');
}

CMonthMask months(const std::string& names)
{
    return CMonthMask::FromString(names, ',');
}

CScheduleCalendar weekly(const Time& time, const CWeekMask& days)
{
    CScheduleCalendar calendar;
    calendar.SetWeekly(time, days);
    return calendar;
}

CScheduleCalendar monthly(const Time& time, EWeekDayNumber::type number, EDayOfWeek::type day, const CMonthMask& mask)
{
    CScheduleCalendar calendar;
    calendar.SetMonthly(time, number, day, mask);
    return calendar;
}

CScheduleCalendar monthly(const Time& time, unsigned long day, const CMonthMask& mask)
{
    CScheduleCalendar calendar;
    calendar.SetMonthlyOnDay(time, CDayOfMonth(day), mask);
    return calendar;
}

/// What the calendar of a document reads as; its time is 22:30.
std::string wordsOf(const CalendarRules& rules)
{
    const auto document = xmlpp::CXmlDocument::Unserialize(zelmodel_test::calendarDocument(rules));
    return CScheduleCalendar::FromXml(document.GetRootNode()).ToLogStr(false);
}

} // namespace

TEST(ScheduleCalendarText, Weekly)
{
    const CScheduleCalendar twoDays = weekly(std::nullopt, week("Friday,Monday"));
    EXPECT_EQ(weekly(CScheduleTime(22, 0), CWeekMask(true)).ToLogStr(false), "Every day at 22 hours");
    EXPECT_EQ(twoDays.ToLogStr(false), "Every Monday, Friday");
    EXPECT_EQ(twoDays.ToLogStr(true), "Every Mon, Fri");
    EXPECT_EQ(weekly(CScheduleTime(0, 30), week("Sunday")).ToLogStr(true), "Every Sun at 30 minutes");
    EXPECT_EQ(weekly(std::nullopt, CWeekMask(true)).ToLogStr(true), "Every day");
}

TEST(ScheduleCalendarText, MonthlyByWeekDay)
{
    EXPECT_EQ(CScheduleCalendar().ToLogStr(false), "First Monday of every month");
    EXPECT_EQ(CScheduleCalendar().ToLogStr(true), "First Mon of every month");
    const CScheduleCalendar last =
        monthly(CScheduleTime(1, 1), EWeekDayNumber::Last, EDayOfWeek::Friday, months("December,March"));
    EXPECT_EQ(last.ToLogStr(false), "Last Friday of months March, December at 1 hour 1 minute");
    EXPECT_EQ(last.ToLogStr(true), "Last Fri of months Mar, Dec at 1 hour 1 minute");
    EXPECT_EQ(monthly(std::nullopt, EWeekDayNumber::Fourth, EDayOfWeek::Sunday, months("May")).ToLogStr(false),
              "Fourth Sunday of months May");
}

TEST(ScheduleCalendarText, MonthlyOnADay)
{
    EXPECT_EQ(monthly(std::nullopt, 15, CMonthMask(true)).ToLogStr(false), "Every 15 day of every month");
    EXPECT_EQ(monthly(std::nullopt, 32, months("January,July")).ToLogStr(false),
              "Every last day of months January, July");
    EXPECT_EQ(monthly(CScheduleTime(0, 0), 31, months("January,July")).ToLogStr(true),
              "Every 31 day of months Jan, Jul at 0 minutes");
}

TEST(ScheduleCalendarText, Recurrent)
{
    CScheduleCalendar calendar;
    calendar.SetContinuously();
    EXPECT_EQ(calendar.ToLogStr(false), "Continuously");
    EXPECT_EQ(calendar.ToLogStr(true), "Continuously");
    calendar.SetTime(CScheduleTime(1, 0));
    EXPECT_EQ(calendar.ToLogStr(false), "Continuously");
    calendar.SetPeriodically(CScheduleTime(4, 0));
    EXPECT_EQ(calendar.ToLogStr(false), "Every 4 hours (periodical)");
    calendar.SetPeriodically(CScheduleTime(0, 0));
    EXPECT_EQ(calendar.ToLogStr(true), "Every 24 hours (periodical)");
    calendar.SetPeriodically(CScheduleTime(1, 30));
    EXPECT_EQ(calendar.ToLogStr(true), "Every 1 hour 30 minutes (periodical)");
}

TEST(ScheduleCalendarTextFailures, WhatHasNoWords)
{
    CScheduleCalendar periodical;
    periodical.SetPeriodically(CScheduleTime(4, 0));
    periodical.ResetTime();
    EXPECT_THROW(periodical.ToLogStr(false), std::bad_optional_access);

    CScheduleCalendar number;
    number.SetWeekDayNumber(static_cast<EWeekDayNumber::type>(0));
    EXPECT_EQ(failureText([&] { number.ToLogStr(false); }), "Unable to convert EWeekDayNumber::type [0] to string.");

    EXPECT_EQ(failureText([] { wordsOf({7, AllDays, AllMonths, 6, 0}); }), "Unsupported schedule type [7]");
    EXPECT_EQ(failureText([] { wordsOf({-1, AllDays, AllMonths, 6, 0}); }), "Unsupported schedule type [-1]");
}

TEST(ScheduleCalendarTextQuirks, TheTimeOfDayReadsAsADuration)
{
    EXPECT_EQ(weekly(CScheduleTime(22, 30), CWeekMask(true)).ToLogStr(false), "Every day at 22 hours 30 minutes");
}

TEST(ScheduleCalendarTextQuirks, NoDaysLeaveABlankAtTheEnd)
{
    EXPECT_EQ(weekly(std::nullopt, CWeekMask(false)).ToLogStr(false), "Every ");
}

TEST(ScheduleCalendarTextQuirks, NoMonthsAreNotMentioned)
{
    EXPECT_EQ(monthly(std::nullopt, EWeekDayNumber::First, EDayOfWeek::Monday, CMonthMask(false)).ToLogStr(false),
              "First Monday");
}

TEST(ScheduleCalendarTextQuirks, FieldsThatTheKindDoesNotUseShow)
{
    const std::string time = " at 22 hours 30 minutes";
    EXPECT_EQ(wordsOf({0, {false, true}, AllMonths, 6, 13}), "Every 13 day" + time);
    EXPECT_EQ(wordsOf({0, {false, true}, {false, true}, 2, 0}), "Second Monday" + time);
    EXPECT_EQ(wordsOf({0, AllDays, AllMonths, 1, 0}), "First all week days" + time);
    EXPECT_EQ(wordsOf({1, AllDays, AllMonths, 3, 0}), "Third all week days of every month" + time);
    EXPECT_EQ(wordsOf({1, {false, true}, AllMonths, 2, 15}), "Second 15 day of every month" + time);
    EXPECT_EQ(wordsOf({1, {false, true}, {false, true}, 5, 32}), "Last last day of months February" + time);
    EXPECT_EQ(wordsOf({1, AllDays, AllMonths, 6, 0}), "Every day of every month" + time);
    EXPECT_EQ(wordsOf({1, {true, false, true}, AllMonths, 6, 0}), "Every Sunday, Tuesday of every month" + time);
}
