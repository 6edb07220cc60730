#include <string>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_calendar.h>

#include "support/expect_failure.h"

using namespace zelplatform::model::structs;
using datetime::EDayOfWeek;
using zelmodel_test::failureText;

namespace
{

using Time = std::optional<CScheduleTime>;

const CScheduleTime BadTime(24, 0);
const std::string BadTimeCause =
    "Failed to validate time [24:00] (schedule is periodically? [false]). Wrong hours of time.";
const std::string Setter = "ScheduleCalendar: Failed to set ";
const std::string God = "Failed to create schedule calendar via god constructor ";
const CMonthMask AllMonths(true);
const CMonthMask NoMonths(false);
const CWeekMask AllDays(true);

/// The failure of a change to a calendar on the 17th of March, which must leave it as it was.
template <class Change>
std::string refusal(const Change& change)
{
    CScheduleCalendar calendar;
    calendar.SetMonthlyOnDay(CScheduleTime(1, 1), CDayOfMonth(17), CMonthMask::FromString("March", ','));
    const CScheduleCalendar before = calendar;
    const std::string text = failureText([&] { change(calendar); });
    EXPECT_EQ(calendar, before) << text;
    return text;
}

std::string creationFailure(int type, const Time& time, const CWeekMask& week, const CMonthMask& months,
                            EWeekDayNumber::type number, unsigned long day)
{
    return failureText([&] {
        CScheduleCalendar(static_cast<EScheduleType::type>(type), time, week, months, number, CDayOfMonth(day));
    });
}

} // namespace

TEST(ScheduleCalendarFailures, ABadTimeChangesNothing)
{
    EXPECT_EQ(refusal([](CScheduleCalendar& c) { c.SetWeekly(BadTime, AllDays); }),
              Setter + "weekly schedule. " + BadTimeCause);
    EXPECT_EQ(refusal([](CScheduleCalendar& c) {
                  c.SetMonthly(BadTime, EWeekDayNumber::First, EDayOfWeek::Monday, AllMonths);
              }),
              Setter + "monthly schedule. " + BadTimeCause);
    EXPECT_EQ(refusal([](CScheduleCalendar& c) { c.SetMonthlyOnDay(BadTime, CDayOfMonth(32), AllMonths); }),
              Setter + "monthly schedule on day [32]. " + BadTimeCause);
    EXPECT_EQ(refusal([](CScheduleCalendar& c) { c.SetDefaultWeekly(BadTime); }),
              Setter + "default weekly. " + Setter + "weekly schedule. " + BadTimeCause);
    EXPECT_EQ(refusal([](CScheduleCalendar& c) { c.SetDefaultMonthly(BadTime); }),
              Setter + "default monthly. " + Setter + "monthly schedule. " + BadTimeCause);
    EXPECT_EQ(refusal([](CScheduleCalendar& c) { c.SetTime(BadTime); }), "Failed to set time " + BadTimeCause);
    EXPECT_EQ(refusal([](CScheduleCalendar& c) { c.SetTime(CScheduleTime(23, 60)); }),
              "Failed to set time Failed to validate time [23:60] (schedule is periodically? [false]). Wrong minutes.");
}

TEST(ScheduleCalendarFailures, ABadPeriodChangesNothing)
{
    const std::string cause =
        "Failed to validate time [25:00] (schedule is periodically? [true]). Wrong hours of period.";
    EXPECT_EQ(refusal([](CScheduleCalendar& c) { c.SetPeriodically(CScheduleTime(25, 0)); }),
              Setter + "periodical schedule. " + cause);
    EXPECT_EQ(refusal([](CScheduleCalendar& c) { c.SetPeriodically(CScheduleTime(0, 60)); }),
              Setter + "periodical schedule. Failed to validate time [00:60] (schedule is periodically? [true]). "
                       "Wrong minutes.");
    CScheduleCalendar periodical;
    periodical.SetPeriodically(CScheduleTime(4, 0));
    EXPECT_EQ(failureText([&] { periodical.SetTime(CScheduleTime(25, 0)); }), "Failed to set time " + cause);
    EXPECT_EQ(periodical.GetTime(), CScheduleTime(4, 0));
}

TEST(ScheduleCalendarFailures, MonthlyOnEveryWeekDay)
{
    const std::string expected =
        Setter +
        "monthly schedule. Schedule on every day of week is forbidden in monthly schedule - it is weekly schedule.";
    for (const Time& time : {Time(), Time(CScheduleTime(1, 0)), Time(BadTime)})
    {
        EXPECT_EQ(refusal([&](CScheduleCalendar& c) {
                      c.SetMonthly(time, EWeekDayNumber::Every, EDayOfWeek::Monday, AllMonths);
                  }),
                  expected);
    }
}

TEST(ScheduleCalendarFailures, MonthlyOnAWeekDayThatDoesNotExist)
{
    CScheduleCalendar calendar;
    const std::string failure = failureText(
        [&] { calendar.SetMonthly(std::nullopt, EWeekDayNumber::First, static_cast<EDayOfWeek::type>(7), AllMonths); });
    EXPECT_EQ(failure.rfind(Setter + "monthly schedule. ", 0), 0U) << failure;
}

TEST(ScheduleCalendarFailures, MonthlyOnADay)
{
    for (const Time& time : {Time(), Time(BadTime)})
    {
        EXPECT_EQ(refusal([&](CScheduleCalendar& c) { c.SetMonthlyOnDay(time, CDayOfMonth(0), NoMonths); }),
                  Setter + "monthly schedule on day [0]. Day of month is not set.");
        EXPECT_EQ(refusal([&](CScheduleCalendar& c) { c.SetMonthlyOnDay(time, CDayOfMonth(5), NoMonths); }),
                  Setter + "monthly schedule on day [5]. No one month is chosen.");
    }
    EXPECT_EQ(refusal([](CScheduleCalendar& c) { c.SetMonthlyOnDay(std::nullopt, CDayOfMonth(32), NoMonths); }),
              Setter + "monthly schedule on day [32]. No one month is chosen.");
}

TEST(ScheduleCalendarFailures, WeekDayNumberOfAnotherKind)
{
    for (const int kind : {0, 2, 3})
    {
        CScheduleCalendar calendar(static_cast<EScheduleType::type>(kind), CScheduleTime(4, 0), AllDays, AllMonths,
                                   EWeekDayNumber::Every, CDayOfMonth(0));
        const CScheduleCalendar before = calendar;
        for (const auto number : {EWeekDayNumber::Second, EWeekDayNumber::Every})
        {
            EXPECT_EQ(failureText([&] { calendar.SetWeekDayNumber(number); }),
                      "Failed to set week day number Week day number may be changed only for month schedule");
        }
        EXPECT_EQ(calendar, before);
    }
}

TEST(ScheduleCalendarFailures, CreationFromAllFields)
{
    const CWeekMask twoDays = CWeekMask::FromString("Monday,Friday", ',');
    const CWeekMask noDays(false);
    const auto first = EWeekDayNumber::First;
    EXPECT_EQ(creationFailure(1, std::nullopt, twoDays, AllMonths, first, 0),
              God + "Wrong number of week days [2] for monthly schedule");
    EXPECT_EQ(creationFailure(1, std::nullopt, noDays, AllMonths, first, 0),
              God + "Wrong number of week days [0] for monthly schedule");
    EXPECT_EQ(creationFailure(1, BadTime, AllDays, AllMonths, EWeekDayNumber::Every, 33),
              God + "Wrong number of week days [7] for monthly schedule");
    EXPECT_EQ(
        creationFailure(1, std::nullopt, CWeekMask::FromString("Friday", ','), AllMonths, EWeekDayNumber::Every, 0),
        God + Setter +
            "monthly schedule. Schedule on every day of week is forbidden in monthly schedule - it is weekly "
            "schedule.");
    EXPECT_EQ(creationFailure(1, std::nullopt, AllDays, NoMonths, first, 5),
              God + Setter + "monthly schedule on day [5]. No one month is chosen.");
    EXPECT_EQ(creationFailure(2, std::nullopt, AllDays, AllMonths, first, 0),
              God + "Time for periodical schedule is not set");
    EXPECT_EQ(creationFailure(0, BadTime, AllDays, AllMonths, first, 0),
              God + Setter + "weekly schedule. " + BadTimeCause);
    for (const int type : {7, 4, -1, -2147483647 - 1})
    {
        EXPECT_EQ(creationFailure(type, BadTime, AllDays, AllMonths, first, 0),
                  God + "Unexpected type of schedule: [" + std::to_string(type) + "]");
    }
}
