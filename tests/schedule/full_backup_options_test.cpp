#include <memory>
#include <new>
#include <string>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/full_backup_options.h>

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

constexpr EFullBackupType allTypes[] = {EFullBackupType::ActiveFull, EFullBackupType::SyntheticFull,
                                        EFullBackupType::Constructing};

/// A weekly object that is off.
CFullBackupOptions weeklyOff()
{
    CFullBackupOptions options(EFullBackupType::ActiveFull);
    options.SetWeekly(CWeekMask(true));
    options.Disable();
    return options;
}

/// A clock that stands still and counts who asks.
class CStoppedClock : public zelplatform::model::ITimeManager
{
public:
    explicit CStoppedClock(const CDateTime& local) : m_local(local) {}

    zelplatform::model::CDateTimeEx GetCurrentTime() const override
    {
        ++m_asked;
        return zelplatform::model::CDateTimeEx(m_local.toUnixTime() - 7200, 7200);
    }

    int asked() const { return m_asked; }

private:
    CDateTime m_local;
    mutable int m_asked = 0;
};

} // namespace

TEST(CFullBackupOptionsValue, ANewObjectIsOffOnTheFirstOfEveryMonth)
{
    for (const auto type : allTypes)
    {
        const CFullBackupOptions options(type);
        EXPECT_EQ(type, options.GetType());
        EXPECT_FALSE(options.IsEnabled());
        EXPECT_TRUE(options.IsDisabled());
        EXPECT_TRUE(options.IsScheduleMonthly());
        EXPECT_FALSE(options.IsScheduleWeekly());
        EXPECT_EQ(EScheduleType::Monthly, options.GetScheduleType());
        EXPECT_EQ(1UL, options.GetDayOfMonth().Get());
        EXPECT_EQ(EWeekDayNumber::Every, options.GetWeekDayNumber());
        EXPECT_TRUE(options.GetWeekMask().IsAllDaysOn());
        EXPECT_TRUE(options.GetMonthMask().IsAllMonthsOn());
        EXPECT_FALSE(options.GetCalendar().IsTimeSet());
    }
}

TEST(CFullBackupOptionsValue, TypeNumbers)
{
    EXPECT_EQ(0, static_cast<int>(EFullBackupType::ActiveFull));
    EXPECT_EQ(1, static_cast<int>(EFullBackupType::SyntheticFull));
    EXPECT_EQ(2, static_cast<int>(EFullBackupType::Constructing));
    EXPECT_EQ(1UL, +CFullBackupOptions::s_version);
}

TEST(CFullBackupOptionsValue, TheFullConstructorTakesEverythingAsGiven)
{
    CScheduleCalendar calendar;
    calendar.SetPeriodically(CScheduleTime(4, 0));
    const CFullBackupOptions options(calendar, true, EFullBackupType::SyntheticFull);
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_EQ(EFullBackupType::SyntheticFull, options.GetType());
    EXPECT_TRUE(options.GetCalendar() == calendar);
    EXPECT_EQ(EScheduleType::Periodically, options.GetScheduleType());
}

TEST(CFullBackupOptionsValue, WeeklyTurnsOn)
{
    CFullBackupOptions options(EFullBackupType::ActiveFull);
    const auto mask = days({EDayOfWeek::Wednesday, EDayOfWeek::Sunday});
    options.SetWeekly(mask);
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_TRUE(options.IsScheduleWeekly());
    EXPECT_TRUE(options.GetWeekMask() == mask);
    EXPECT_TRUE(options.GetMonthMask().IsAllMonthsOn());
    EXPECT_EQ(EWeekDayNumber::Every, options.GetWeekDayNumber());
    EXPECT_FALSE(options.GetDayOfMonth().IsSet());
    EXPECT_FALSE(options.GetCalendar().IsTimeSet());
}

TEST(CFullBackupOptionsValue, MonthlyOnAWeekDayTurnsOn)
{
    CFullBackupOptions options(EFullBackupType::ActiveFull);
    const auto mask = months({EMonth::January, EMonth::July});
    options.SetMonthly(EWeekDayNumber::Second, EDayOfWeek::Monday, mask);
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_TRUE(options.IsScheduleMonthly());
    EXPECT_EQ(EWeekDayNumber::Second, options.GetWeekDayNumber());
    EXPECT_TRUE(options.GetWeekMask() == days({EDayOfWeek::Monday}));
    EXPECT_TRUE(options.GetMonthMask() == mask);
    EXPECT_FALSE(options.GetDayOfMonth().IsSet());
}

TEST(CFullBackupOptionsValue, MonthlyOnADayTurnsOn)
{
    CFullBackupOptions options(EFullBackupType::ActiveFull);
    const auto mask = months({EMonth::February, EMonth::December});
    options.SetMonthlyOnDay(CDayOfMonth(32), mask);
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_TRUE(options.IsScheduleMonthly());
    EXPECT_TRUE(options.GetDayOfMonth().IsSetLast());
    EXPECT_EQ(EWeekDayNumber::Every, options.GetWeekDayNumber());
    EXPECT_TRUE(options.GetWeekMask().IsAllDaysOn());
    EXPECT_TRUE(options.GetMonthMask() == mask);
}

TEST(CFullBackupOptionsValue, DefaultsAndReset)
{
    CFullBackupOptions options(EFullBackupType::SyntheticFull);
    options.SetDefaultWeekly();
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_TRUE(options.IsScheduleWeekly());
    EXPECT_TRUE(options.GetWeekMask() == days({EDayOfWeek::Saturday}));

    options.Reset();
    EXPECT_TRUE(options == CFullBackupOptions(EFullBackupType::SyntheticFull));

    options.SetDefaultMonthly();
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_TRUE(options.IsScheduleMonthly());
    EXPECT_EQ(1UL, options.GetDayOfMonth().Get());
    EXPECT_EQ(EWeekDayNumber::Every, options.GetWeekDayNumber());
    EXPECT_TRUE(options.GetMonthMask().IsAllMonthsOn());
    EXPECT_EQ(EFullBackupType::SyntheticFull, options.GetType());
}

TEST(CFullBackupOptionsValue, DayAndWeekDayNumberTurnOn)
{
    CFullBackupOptions options(EFullBackupType::ActiveFull);
    options.SetDayOfMonth(15);
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_EQ(15UL, options.GetDayOfMonth().Get());
    EXPECT_EQ(EWeekDayNumber::Every, options.GetWeekDayNumber());

    options.Disable();
    options.SetDayOfMonthLast();
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_TRUE(options.GetDayOfMonth().IsSetLast());

    options.Disable();
    options.SetWeekDayNumber(EWeekDayNumber::Third);
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_EQ(EWeekDayNumber::Third, options.GetWeekDayNumber());
    EXPECT_FALSE(options.GetDayOfMonth().IsSet());

    options.Disable();
    options.ResetWeekDayNumber();
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_EQ(EWeekDayNumber::Every, options.GetWeekDayNumber());

    options.SetDayOfMonth(32);
    EXPECT_TRUE(options.GetDayOfMonth().IsSetLast());
}

TEST(CFullBackupOptionsValue, DayAfterAWeekDayNumberBringsBackEvery)
{
    CFullBackupOptions options(EFullBackupType::ActiveFull);
    options.SetMonthly(EWeekDayNumber::Last, EDayOfWeek::Friday, CMonthMask(true));
    options.SetDayOfMonth(7);
    EXPECT_EQ(EWeekDayNumber::Every, options.GetWeekDayNumber());
    EXPECT_EQ(7UL, options.GetDayOfMonth().Get());
    EXPECT_TRUE(options.GetWeekMask() == days({EDayOfWeek::Friday}));
}

TEST(CFullBackupOptionsValue, Flag)
{
    CFullBackupOptions options(EFullBackupType::ActiveFull);
    options.Enable();
    EXPECT_TRUE(options.IsEnabled());
    options.Disable();
    EXPECT_TRUE(options.IsDisabled());
    options.SetEnabled(true);
    EXPECT_FALSE(options.IsDisabled());
    options.SetEnabled(false);
    EXPECT_FALSE(options.IsEnabled());
}

TEST(CFullBackupOptionsValue, CalendarAndMonthsCanBeChanged)
{
    CFullBackupOptions options(EFullBackupType::ActiveFull);
    options.GetMonthMask().SetMonth(EMonth::March, false);
    EXPECT_FALSE(options.GetCalendar().GetMonthMask().IsMonthOn(EMonth::March));
    options.GetCalendar().SetContinuously();
    EXPECT_EQ(EScheduleType::Continuously, options.GetScheduleType());
    EXPECT_FALSE(options.IsEnabled());
}

TEST(CFullBackupOptionsValue, ScheduledOnlyWhenEnabled)
{
    CFullBackupOptions options(EFullBackupType::ActiveFull);
    options.SetWeekly(days({EDayOfWeek::Wednesday}));
    EXPECT_TRUE(options.IsScheduledAt(at("2024-03-06")));
    EXPECT_FALSE(options.IsScheduledAt(at("2024-03-07")));
    options.Disable();
    EXPECT_FALSE(options.IsScheduledAt(at("2024-03-06")));
    EXPECT_FALSE(CFullBackupOptions(EFullBackupType::ActiveFull).IsScheduledAt(at("2024-03-01")));
    CFullBackupOptions monthly(EFullBackupType::SyntheticFull);
    monthly.Enable();
    EXPECT_TRUE(monthly.IsScheduledAt(at("2024-03-01")));
    EXPECT_FALSE(monthly.IsScheduledAt(at("2024-03-02")));
}

TEST(CFullBackupOptionsValue, TodayIsTheLocalDayOfTheManager)
{
    // Two hours east of UTC: Wednesday 2024-03-06 began at 22:00 UTC of the day before.
    const auto clock = std::make_shared<CStoppedClock>(at("2024-03-06"));
    CFullBackupOptions options(EFullBackupType::ActiveFull);
    options.SetWeekly(days({EDayOfWeek::Wednesday}));
    EXPECT_TRUE(options.IsTodayScheduled(clock));
    options.SetWeekly(days({EDayOfWeek::Tuesday}));
    EXPECT_FALSE(options.IsTodayScheduled(clock));
    EXPECT_EQ(2, clock->asked());

    options.Disable();
    EXPECT_FALSE(options.IsTodayScheduled(clock));
    EXPECT_FALSE(options.IsTodayScheduled(nullptr));
    EXPECT_EQ(2, clock->asked());
}

TEST(CFullBackupOptionsValue, EqualityComparesCalendarFlagAndType)
{
    const CFullBackupOptions options(EFullBackupType::ActiveFull);
    EXPECT_TRUE(options == CFullBackupOptions(EFullBackupType::ActiveFull));
    EXPECT_TRUE(options != CFullBackupOptions(EFullBackupType::SyntheticFull));
    CFullBackupOptions enabled(options);
    enabled.Enable();
    EXPECT_TRUE(options != enabled);
    CFullBackupOptions otherDay(options);
    otherDay.SetDayOfMonth(2);
    otherDay.Disable();
    EXPECT_TRUE(options != otherDay);
    EXPECT_FALSE(options == otherDay);
}

TEST(CFullBackupOptionsText, LogLineIsThatOfTheCalendar)
{
    CFullBackupOptions options(EFullBackupType::ActiveFull);
    EXPECT_EQ("Every 1 day of every month", options.ToLogStr(false));
    options.SetDefaultWeekly();
    EXPECT_EQ("Every Saturday", options.ToLogStr(false));
    EXPECT_EQ("Every Sat", options.ToLogStr(true));
    options.SetMonthly(EWeekDayNumber::First, EDayOfWeek::Monday, CMonthMask(true));
    EXPECT_EQ("First Monday of every month", options.ToLogStr(false));
    options.SetMonthlyOnDay(CDayOfMonth(32), months({EMonth::January, EMonth::July}));
    EXPECT_EQ("Every last day of months January, July", options.ToLogStr(false));
    EXPECT_EQ("Every last day of months Jan, Jul", options.ToLogStr(true));
}

TEST(CFullBackupOptionsFailures, MonthlyOnEveryWeekDay)
{
    auto options = weeklyOff();
    EXPECT_EQ("ActiveFullOptions: Failed set monthly schedule. ScheduleCalendar: Failed to set monthly schedule. "
              "Schedule on every day of week is forbidden in monthly schedule - it is weekly schedule.",
              failureText([&] { options.SetMonthly(EWeekDayNumber::Every, EDayOfWeek::Monday, CMonthMask(true)); }));
    EXPECT_TRUE(options == weeklyOff());
}

TEST(CFullBackupOptionsFailures, MonthlyWithoutDayOrMonths)
{
    auto options = weeklyOff();
    EXPECT_EQ("ActiveFullOptions: Failed set monthly schedule on day [0]. "
              "ScheduleCalendar: Failed to set monthly schedule on day [0]. Day of month is not set.",
              failureText([&] { options.SetMonthlyOnDay(CDayOfMonth(), CMonthMask(true)); }));
    EXPECT_EQ("ActiveFullOptions: Failed set monthly schedule on day [0]. "
              "ScheduleCalendar: Failed to set monthly schedule on day [0]. Day of month is not set.",
              failureText([&] { options.SetMonthlyOnDay(CDayOfMonth(40), CMonthMask(false)); }));
    EXPECT_EQ("ActiveFullOptions: Failed set monthly schedule on day [32]. "
              "ScheduleCalendar: Failed to set monthly schedule on day [32]. No one month is chosen.",
              failureText([&] { options.SetMonthlyOnDay(CDayOfMonth(32), CMonthMask(false)); }));
    EXPECT_TRUE(options == weeklyOff());
}

TEST(CFullBackupOptionsFailures, DayOutOfRange)
{
    for (const unsigned long day : {0UL, 33UL, 40UL, 18446744073709551615UL})
    {
        CFullBackupOptions options(EFullBackupType::SyntheticFull);
        const std::string number = std::to_string(day);
        EXPECT_EQ("ActiveFullOptions: Failed set day [" + number + "] of month. DayOfMonth: Failed set [" + number +
                      "]. Day must be in range [1;31].",
                  failureText([&] { options.SetDayOfMonth(day); }));
        EXPECT_TRUE(options == CFullBackupOptions(EFullBackupType::SyntheticFull)) << day;
    }
}

TEST(CFullBackupOptionsFailures, WeekDayNumberOfAWeeklyCalendar)
{
    auto options = weeklyOff();
    EXPECT_EQ(notMonthly, failureText([&] { options.SetWeekDayNumber(EWeekDayNumber::First); }));
    EXPECT_EQ(notMonthly, failureText([&] { options.SetWeekDayNumber(EWeekDayNumber::Every); }));
    EXPECT_EQ(notMonthly, failureText([&] { options.ResetWeekDayNumber(); }));
    EXPECT_TRUE(options == weeklyOff());
}

TEST(CFullBackupOptionsFailures, CalendarOfAnUnknownType)
{
    const CFullBackupOptions options(calendarOfType("7"), true, EFullBackupType::SyntheticFull);
    EXPECT_EQ("ActiveFullOptions: Failed to check that date [03/06/2024] is on. "
              "ScheduleCalendar: Failed to check that date [03/06/2024] is on. Unsupported schedule type [7]",
              failureText([&] { (void)options.IsScheduledAt(at("2024-03-06")); }));
    const auto clock = std::make_shared<CStoppedClock>(at("2024-03-06"));
    EXPECT_EQ("ActiveFullOptions: Failed to check that today is on. "
              "ScheduleCalendar: Failed to check that today is on. "
              "ScheduleCalendar: Failed to check that date [03/06/2024] is on. Unsupported schedule type [7]",
              failureText([&] { (void)options.IsTodayScheduled(clock); }));
    EXPECT_EQ("Unsupported schedule type [7]", failureText([&] { (void)options.ToLogStr(false); }));
    EXPECT_FALSE(
        CFullBackupOptions(calendarOfType("7"), false, EFullBackupType::ActiveFull).IsScheduledAt(at("2024-03-06")));
}

TEST(CFullBackupOptionsFailures, TodayWithoutAManager)
{
    CFullBackupOptions options(EFullBackupType::ActiveFull);
    options.Enable();
    EXPECT_EQ(
        "ActiveFullOptions: Failed to check that today is on. ScheduleCalendar: Failed to check that today is on. "
        "Unexpected internal error: time manager is not initialized.",
        failureText([&] { (void)options.IsTodayScheduled(nullptr); }));
}

TEST(CFullBackupOptionsQuirks, ADayRefusedByAWeeklyCalendarStaysChanged)
{
    auto options = weeklyOff();
    EXPECT_EQ(std::string("ActiveFullOptions: Failed set day [5] of month. ") + notMonthly,
              failureText([&] { options.SetDayOfMonth(5); }));
    EXPECT_EQ(5UL, options.GetDayOfMonth().Get());
    EXPECT_TRUE(options.IsScheduleWeekly());
    EXPECT_FALSE(options.IsEnabled());

    EXPECT_EQ(std::string("ActiveFullOptions: Failed set last day of month. ") + notMonthly,
              failureText([&] { options.SetDayOfMonthLast(); }));
    EXPECT_TRUE(options.GetDayOfMonth().IsSetLast());
    EXPECT_FALSE(options.IsEnabled());
}

TEST(CFullBackupOptionsQuirks, AFailedSetterTurnsNothingOff)
{
    CFullBackupOptions options(EFullBackupType::ActiveFull);
    options.Enable();
    failureText([&] { options.SetDayOfMonth(0); });
    EXPECT_TRUE(options.IsEnabled());
}

TEST(CFullBackupOptionsQuirks, EveryKeepsTheDayOtherNumbersClearIt)
{
    CFullBackupOptions options(EFullBackupType::ActiveFull);
    options.SetDayOfMonth(9);
    options.SetWeekDayNumber(EWeekDayNumber::Every);
    EXPECT_EQ(9UL, options.GetDayOfMonth().Get());
    options.SetWeekDayNumber(EWeekDayNumber::Last);
    EXPECT_FALSE(options.GetDayOfMonth().IsSet());
}
