#include <new>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/start_job_schedule_options.h>

#include "support/expect_failure.h"
#include "support/schedule_samples.h"

using namespace zelplatform::model::structs;
using datetime::CDateTime;
using datetime::EDayOfWeek;
using datetime::EMonth;
using zelmodel_test::at;
using zelmodel_test::calendarOfType;
using zelmodel_test::days;
using zelmodel_test::failureText;
using zelmodel_test::months;
using zelmodel_test::notMonthly;

namespace
{

/// A calendar with a time.
CScheduleCalendar timed()
{
    CScheduleCalendar calendar;
    calendar.SetTime(CScheduleTime(1, 0));
    return calendar;
}

void expectDefault(const CStartJobScheduleOptions& options, bool enabled)
{
    EXPECT_EQ(enabled, options.IsEnabled());
    EXPECT_EQ(EScheduleType::Weekly, options.GetScheduleType());
    EXPECT_TRUE(options.GetWeekMask().IsAllDaysOn());
    EXPECT_TRUE(options.GetMonthMask().IsAllMonthsOn());
    EXPECT_EQ(EWeekDayNumber::Every, options.GetWeekDayNumber());
    EXPECT_FALSE(options.GetDayOfMonth().IsSet());
    EXPECT_TRUE(options.GetTime() == CScheduleTime(0, 30));
}

} // namespace

TEST(CStartJobScheduleOptionsValue, ANewObjectIsOffEveryDayAtHalfPastMidnight)
{
    const CStartJobScheduleOptions options;
    expectDefault(options, false);
    EXPECT_TRUE(options.IsDisabled());
    EXPECT_TRUE(options.IsScheduleWeekly());
    EXPECT_FALSE(options.IsScheduleMonthly());
    EXPECT_FALSE(options.IsSchedulePeriodically());
    EXPECT_EQ(3UL, +CStartJobScheduleOptions::s_version);
}

TEST(CStartJobScheduleOptionsValue, ConstructorTakesFlagAndCalendar)
{
    CScheduleCalendar calendar;
    calendar.SetContinuously();
    const CStartJobScheduleOptions options(true, calendar);
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_TRUE(options.GetCalendar() == calendar);
    EXPECT_FALSE(CStartJobScheduleOptions(false, calendar).IsEnabled());
}

TEST(CStartJobScheduleOptionsValue, WeeklyTurnsOn)
{
    CStartJobScheduleOptions options;
    const auto mask = days({EDayOfWeek::Tuesday, EDayOfWeek::Sunday});
    options.SetWeekly(22, 5, mask);
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_TRUE(options.IsScheduleWeekly());
    EXPECT_TRUE(options.GetWeekMask() == mask);
    EXPECT_TRUE(options.GetTime() == CScheduleTime(22, 5));
}

TEST(CStartJobScheduleOptionsValue, MonthlyOnAWeekDayTurnsOn)
{
    CStartJobScheduleOptions options;
    const auto mask = months({EMonth::March});
    options.SetMonthly(0, 0, EWeekDayNumber::Last, EDayOfWeek::Friday, mask);
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_TRUE(options.IsScheduleMonthly());
    EXPECT_EQ(EWeekDayNumber::Last, options.GetWeekDayNumber());
    EXPECT_TRUE(options.GetWeekMask() == days({EDayOfWeek::Friday}));
    EXPECT_TRUE(options.GetMonthMask() == mask);
    EXPECT_TRUE(options.GetTime() == CScheduleTime(0, 0));
}

TEST(CStartJobScheduleOptionsValue, MonthlyOnADayTurnsOn)
{
    CStartJobScheduleOptions options;
    const auto mask = months({EMonth::December});
    options.SetMonthlyOnDay(23, 59, CDayOfMonth(31), mask);
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_TRUE(options.IsScheduleMonthly());
    EXPECT_EQ(31UL, options.GetDayOfMonth().Get());
    EXPECT_EQ(EWeekDayNumber::Every, options.GetWeekDayNumber());
    EXPECT_TRUE(options.GetWeekMask().IsAllDaysOn());
    EXPECT_TRUE(options.GetMonthMask() == mask);
    EXPECT_TRUE(options.GetTime() == CScheduleTime(23, 59));
}

TEST(CStartJobScheduleOptionsValue, PeriodicallyTurnsOn)
{
    CStartJobScheduleOptions options;
    options.SetPeriodically(4, 30);
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_TRUE(options.IsSchedulePeriodically());
    EXPECT_TRUE(options.GetTime() == CScheduleTime(4, 30));
    EXPECT_TRUE(options.GetWeekMask().IsAllDaysOn());
    EXPECT_TRUE(options.GetMonthMask().IsAllMonthsOn());
}

TEST(CStartJobScheduleOptionsValue, ContinuouslyTurnsOn)
{
    CStartJobScheduleOptions options;
    options.SetContinuously();
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_EQ(EScheduleType::Continuously, options.GetScheduleType());
    EXPECT_FALSE(options.GetCalendar().IsTimeSet());
    EXPECT_THROW((void)options.GetTime(), std::bad_optional_access);
}

TEST(CStartJobScheduleOptionsValue, DefaultWeeklyTurnsOnAndResetTurnsOff)
{
    CStartJobScheduleOptions options;
    options.SetContinuously();
    options.SetDefaultWeekly();
    expectDefault(options, true);
    options.SetPeriodically(1, 0);
    options.Reset();
    expectDefault(options, false);
    EXPECT_TRUE(options == CStartJobScheduleOptions());
}

TEST(CStartJobScheduleOptionsValue, DayAndWeekDayNumberTurnOn)
{
    CStartJobScheduleOptions options;
    options.SetMonthly(1, 2, EWeekDayNumber::Second, EDayOfWeek::Monday, CMonthMask(true));
    options.Disable();
    options.SetDayOfMonth(15);
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_EQ(15UL, options.GetDayOfMonth().Get());
    EXPECT_EQ(EWeekDayNumber::Every, options.GetWeekDayNumber());

    options.Disable();
    options.SetDayOfMonthLast();
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_TRUE(options.GetDayOfMonth().IsSetLast());

    options.Disable();
    options.SetWeekDayNumber(EWeekDayNumber::Fourth);
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_EQ(EWeekDayNumber::Fourth, options.GetWeekDayNumber());
    EXPECT_FALSE(options.GetDayOfMonth().IsSet());

    options.Disable();
    options.ResetWeekDayNumber();
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_EQ(EWeekDayNumber::Every, options.GetWeekDayNumber());
    EXPECT_TRUE(options.GetTime() == CScheduleTime(1, 2));
}

TEST(CStartJobScheduleOptionsValue, Flag)
{
    CStartJobScheduleOptions options;
    options.Enable();
    EXPECT_TRUE(options.IsEnabled());
    options.Disable();
    EXPECT_TRUE(options.IsDisabled());
    options.SetEnabled(true);
    EXPECT_FALSE(options.IsDisabled());
    options.SetEnabled(false);
    EXPECT_FALSE(options.IsEnabled());
}

TEST(CStartJobScheduleOptionsValue, ServerSchedules)
{
    CStartJobScheduleOptions options;
    EXPECT_FALSE(options.IsServerSchedule());
    options.SetMonthlyOnDay(1, 0, CDayOfMonth(1), CMonthMask(true));
    EXPECT_TRUE(options.IsServerSchedule());
    options.SetMonthly(1, 0, EWeekDayNumber::First, EDayOfWeek::Monday, CMonthMask(true));
    EXPECT_TRUE(options.IsServerSchedule());
    options.SetPeriodically(1, 0);
    EXPECT_TRUE(options.IsServerSchedule());
    options.SetContinuously();
    EXPECT_TRUE(options.IsServerSchedule());
    options.Disable();
    EXPECT_TRUE(options.IsServerSchedule());
    options.SetWeekly(1, 0, CWeekMask(false));
    EXPECT_FALSE(options.IsServerSchedule());
}

TEST(CStartJobScheduleOptionsValue, ScheduledOnlyWhenEnabled)
{
    CStartJobScheduleOptions options;
    EXPECT_FALSE(options.IsScheduledAt(at("2024-03-06")));
    options.Enable();
    EXPECT_TRUE(options.IsScheduledAt(at("2024-03-06")));
    options.SetWeekly(1, 0, days({EDayOfWeek::Wednesday}));
    EXPECT_TRUE(options.IsScheduledAt(at("2024-03-06")));
    EXPECT_FALSE(options.IsScheduledAt(at("2024-03-05")));
    options.SetContinuously();
    EXPECT_TRUE(options.IsScheduledAt(at("2024-03-05")));
    options.Disable();
    EXPECT_FALSE(options.IsScheduledAt(at("2024-03-05")));
}

TEST(CStartJobScheduleOptionsValue, EqualityComparesFlagAndCalendar)
{
    const CStartJobScheduleOptions options;
    EXPECT_TRUE(options == CStartJobScheduleOptions());
    CStartJobScheduleOptions enabled;
    enabled.Enable();
    EXPECT_TRUE(options != enabled);
    CStartJobScheduleOptions otherTime;
    otherTime.GetCalendar().SetTime(CScheduleTime(0, 31));
    EXPECT_TRUE(options != otherTime);
    EXPECT_FALSE(options == otherTime);
}

TEST(CStartJobScheduleOptionsText, LogLineIsThatOfTheCalendar)
{
    CStartJobScheduleOptions options;
    EXPECT_EQ("Every day at 30 minutes", options.ToLogStr(false));
    options.SetWeekly(22, 30, days({EDayOfWeek::Sunday, EDayOfWeek::Wednesday}));
    EXPECT_EQ("Every Sunday, Wednesday at 22 hours 30 minutes", options.ToLogStr(false));
    EXPECT_EQ("Every Sun, Wed at 22 hours 30 minutes", options.ToLogStr(true));
    options.SetPeriodically(4, 0);
    EXPECT_EQ("Every 4 hours (periodical)", options.ToLogStr(false));
    options.SetContinuously();
    EXPECT_EQ("Continuously", options.ToLogStr(false));
}

TEST(CStartJobScheduleOptionsFailures, TimesOutOfRange)
{
    CStartJobScheduleOptions options;
    EXPECT_EQ("CStartJobScheduleOptions: Failed set weekly schedule. "
              "ScheduleCalendar: Failed to set weekly schedule. "
              "Failed to validate time [24:00] (schedule is periodically? [false]). Wrong hours of time.",
              failureText([&] { options.SetWeekly(24, 0, CWeekMask(true)); }));
    EXPECT_EQ("CStartJobScheduleOptions: Failed set weekly schedule. "
              "ScheduleCalendar: Failed to set weekly schedule. "
              "Failed to validate time [23:60] (schedule is periodically? [false]). Wrong minutes.",
              failureText([&] { options.SetWeekly(23, 60, CWeekMask(true)); }));
    EXPECT_EQ("CStartJobScheduleOptions: Failed set monthly schedule. "
              "ScheduleCalendar: Failed to set monthly schedule. "
              "Failed to validate time [255:255] (schedule is periodically? [false]). Wrong hours of time.",
              failureText(
                  [&] { options.SetMonthly(255, 255, EWeekDayNumber::First, EDayOfWeek::Monday, CMonthMask(true)); }));
    EXPECT_EQ("CStartJobScheduleOptions: Failed set monthly schedule on day [5]. "
              "ScheduleCalendar: Failed to set monthly schedule on day [5]. "
              "Failed to validate time [07:60] (schedule is periodically? [false]). Wrong minutes.",
              failureText([&] { options.SetMonthlyOnDay(7, 60, CDayOfMonth(5), CMonthMask(true)); }));
    EXPECT_TRUE(options == CStartJobScheduleOptions());
}

TEST(CStartJobScheduleOptionsFailures, PeriodsOutOfRangeArePrintedAsNumbers)
{
    CStartJobScheduleOptions options;
    EXPECT_EQ("CStartJobScheduleOptions: Failed set periodically at [25:0]. "
              "ScheduleCalendar: Failed to set periodical schedule. "
              "Failed to validate time [25:00] (schedule is periodically? [true]). Wrong hours of period.",
              failureText([&] { options.SetPeriodically(25, 0); }));
    EXPECT_EQ("CStartJobScheduleOptions: Failed set periodically at [65:90]. "
              "ScheduleCalendar: Failed to set periodical schedule. "
              "Failed to validate time [65:90] (schedule is periodically? [true]). Wrong hours of period.",
              failureText([&] { options.SetPeriodically(65, 90); }));
    EXPECT_EQ("CStartJobScheduleOptions: Failed set periodically at [4:60]. "
              "ScheduleCalendar: Failed to set periodical schedule. "
              "Failed to validate time [04:60] (schedule is periodically? [true]). Wrong minutes.",
              failureText([&] { options.SetPeriodically(4, 60); }));
    EXPECT_TRUE(options == CStartJobScheduleOptions());
}

TEST(CStartJobScheduleOptionsFailures, MonthlyCalendarsThatMeanNothing)
{
    CStartJobScheduleOptions options;
    EXPECT_EQ(
        "CStartJobScheduleOptions: Failed set monthly schedule. "
        "ScheduleCalendar: Failed to set monthly schedule. "
        "Schedule on every day of week is forbidden in monthly schedule - it is weekly schedule.",
        failureText([&] { options.SetMonthly(1, 0, EWeekDayNumber::Every, EDayOfWeek::Monday, CMonthMask(true)); }));
    EXPECT_EQ("CStartJobScheduleOptions: Failed set monthly schedule on day [0]. "
              "ScheduleCalendar: Failed to set monthly schedule on day [0]. Day of month is not set.",
              failureText([&] { options.SetMonthlyOnDay(1, 0, CDayOfMonth(), CMonthMask(true)); }));
    EXPECT_EQ("CStartJobScheduleOptions: Failed set monthly schedule on day [32]. "
              "ScheduleCalendar: Failed to set monthly schedule on day [32]. No one month is chosen.",
              failureText([&] { options.SetMonthlyOnDay(1, 0, CDayOfMonth(32), CMonthMask(false)); }));
    EXPECT_TRUE(options == CStartJobScheduleOptions());
}

TEST(CStartJobScheduleOptionsFailures, DayOutOfRange)
{
    CStartJobScheduleOptions options;
    for (const unsigned long day : {0UL, 33UL, 18446744073709551615UL})
    {
        const std::string number = std::to_string(day);
        EXPECT_EQ("CStartJobScheduleOptions: Failed set day [" + number + "] of month. DayOfMonth: Failed set [" +
                      number + "]. Day must be in range [1;31].",
                  failureText([&] { options.SetDayOfMonth(day); }));
    }
    EXPECT_TRUE(options == CStartJobScheduleOptions());
}

TEST(CStartJobScheduleOptionsFailures, WeekDayNumberOfACalendarThatIsNotMonthly)
{
    CStartJobScheduleOptions options;
    EXPECT_EQ(notMonthly, failureText([&] { options.SetWeekDayNumber(EWeekDayNumber::First); }));
    EXPECT_EQ(notMonthly, failureText([&] { options.ResetWeekDayNumber(); }));
    EXPECT_TRUE(options == CStartJobScheduleOptions());
    options.SetContinuously();
    EXPECT_EQ(notMonthly, failureText([&] { options.ResetWeekDayNumber(); }));
}

TEST(CStartJobScheduleOptionsFailures, CalendarsThatCannotBeEvaluated)
{
    const CStartJobScheduleOptions unknown(true, calendarOfType("7", timed()));
    EXPECT_EQ("ScheduleCalendar: Failed to check that date [03/06/2024] is on. Unsupported schedule type [7]",
              failureText([&] { (void)unknown.IsScheduledAt(at("2024-03-06")); }));
    EXPECT_EQ("CStartJobScheduleOptions: Failed to convert to log string. Unsupported schedule type [7]",
              failureText([&] { (void)unknown.ToLogStr(false); }));
    const CStartJobScheduleOptions noPeriod(true, calendarOfType("2"));
    EXPECT_EQ(std::string("CStartJobScheduleOptions: Failed to convert to log string. ") +
                  std::bad_optional_access().what(),
              failureText([&] { (void)noPeriod.ToLogStr(false); }));
    EXPECT_FALSE(CStartJobScheduleOptions(false, calendarOfType("7", timed())).IsScheduledAt(at("2024-03-06")));
}

TEST(CStartJobScheduleOptionsQuirks, WithoutACalendarTheConstructorTakesTheCalendarsOwnDefault)
{
    for (const bool enabled : {true, false})
    {
        const CStartJobScheduleOptions options(enabled, std::nullopt);
        EXPECT_EQ(enabled, options.IsEnabled());
        EXPECT_TRUE(options.GetCalendar() == CScheduleCalendar());
        EXPECT_TRUE(options.IsScheduleMonthly());
        EXPECT_EQ(EWeekDayNumber::First, options.GetWeekDayNumber());
        EXPECT_TRUE(options.GetWeekMask() == days({EDayOfWeek::Monday}));
        EXPECT_FALSE(options.GetCalendar().IsTimeSet());
    }
}

TEST(CStartJobScheduleOptionsQuirks, APeriodOfZeroIsAWholeDay)
{
    CStartJobScheduleOptions options;
    options.SetPeriodically(0, 0);
    EXPECT_TRUE(options.GetTime() == CScheduleTime(24, 0));
    options.SetPeriodically(24, 30);
    EXPECT_TRUE(options.GetTime() == CScheduleTime(24, 30));
    options.SetPeriodically(0, 1);
    EXPECT_TRUE(options.GetTime() == CScheduleTime(0, 1));
}

TEST(CStartJobScheduleOptionsQuirks, ADayRefusedByAWeeklyCalendarStaysChanged)
{
    CStartJobScheduleOptions options;
    EXPECT_EQ(std::string("CStartJobScheduleOptions: Failed set day [5] of month. ") + notMonthly,
              failureText([&] { options.SetDayOfMonth(5); }));
    EXPECT_EQ(5UL, options.GetDayOfMonth().Get());
    EXPECT_TRUE(options.IsScheduleWeekly());
    EXPECT_FALSE(options.IsEnabled());
    EXPECT_EQ(std::string("CStartJobScheduleOptions: Failed set last day of month. ") + notMonthly,
              failureText([&] { options.SetDayOfMonthLast(); }));
    EXPECT_TRUE(options.GetDayOfMonth().IsSetLast());
    EXPECT_FALSE(options.IsEnabled());
}
