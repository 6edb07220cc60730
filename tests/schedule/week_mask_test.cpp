#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/week_mask.h>
#include <zelplatform/datetime/clock.h>

#include "support/expect_failure.h"
#include "support/schedule_samples.h"

using datetime::EDayOfWeek;
using zelmodel_test::days;
using zelmodel_test::failureText;
using zelplatform::model::structs::CWeekMask;

namespace
{

const auto NoSuchDay = static_cast<EDayOfWeek::type>(7);

class WeekMaskToday : public testing::Test
{
protected:
    void TearDown() override { datetime::set_clock_for_tests({}, {}); }
};

} // namespace

TEST(WeekMaskValue, HasSevenFlagsSundayFirst)
{
    EXPECT_EQ(CWeekMask::GetNumberOfDays(), 7U);
    EXPECT_EQ(CWeekMask(true).GetMask(), std::vector<bool>(7, true));
    EXPECT_EQ(CWeekMask(false).GetMask(), std::vector<bool>(7, false));
    EXPECT_EQ(days({EDayOfWeek::Sunday, EDayOfWeek::Wednesday}).GetMask(),
              (std::vector<bool>{true, false, false, true, false, false, false}));
}

TEST(WeekMaskValue, SetsAndAsksEachDay)
{
    for (int day = 0; day < 7; ++day)
    {
        const auto one = static_cast<EDayOfWeek::type>(day);
        CWeekMask mask(false);
        mask.SetDay(one, true);
        for (int other = 0; other < 7; ++other)
            EXPECT_EQ(mask.IsDayOn(static_cast<EDayOfWeek::type>(other)), other == day);
        EXPECT_EQ(mask.ToWeekDays(), std::vector<EDayOfWeek::type>{one});
        mask.SetDay(one, false);
        EXPECT_TRUE(mask.IsAllDaysOff());
    }
}

TEST(WeekMaskValue, ResetsAllFlags)
{
    CWeekMask mask = days({EDayOfWeek::Friday});
    mask.Reset(true);
    EXPECT_EQ(mask, CWeekMask(true));
    mask.Reset(false);
    EXPECT_EQ(mask, CWeekMask(false));
}

TEST(WeekMaskValue, AsksForAllDays)
{
    const CWeekMask some = days({EDayOfWeek::Monday});
    EXPECT_TRUE(CWeekMask(true).IsAllDaysOn());
    EXPECT_TRUE(CWeekMask(true).IsAllDays(true));
    EXPECT_FALSE(CWeekMask(true).IsAllDaysOff());
    EXPECT_TRUE(CWeekMask(false).IsAllDaysOff());
    EXPECT_TRUE(CWeekMask(false).IsAllDays(false));
    EXPECT_FALSE(CWeekMask(false).IsAllDaysOn());
    EXPECT_FALSE(some.IsAllDaysOn());
    EXPECT_FALSE(some.IsAllDaysOff());
}

TEST(WeekMaskValue, AsksForTheWorkingWeek)
{
    CWeekMask mask = CWeekMask::FromString("Monday,Tuesday,Wednesday,Thursday,Friday", ',');
    EXPECT_TRUE(mask.IsAllWeekdaysOn());
    mask.SetDay(EDayOfWeek::Saturday, true);
    EXPECT_FALSE(mask.IsAllWeekdaysOn());
    EXPECT_FALSE(mask.IsAllDaysOn());
    mask.SetDay(EDayOfWeek::Sunday, true);
    EXPECT_FALSE(mask.IsAllWeekdaysOn());
    EXPECT_TRUE(mask.IsAllDaysOn());
    EXPECT_FALSE(days({EDayOfWeek::Monday, EDayOfWeek::Friday}).IsAllWeekdaysOn());
    EXPECT_FALSE(CWeekMask(false).IsAllWeekdaysOn());
}

TEST(WeekMaskValue, ListsDaysSundayFirst)
{
    EXPECT_EQ(days({EDayOfWeek::Saturday, EDayOfWeek::Sunday, EDayOfWeek::Tuesday}).ToWeekDays(),
              (std::vector<EDayOfWeek::type>{EDayOfWeek::Sunday, EDayOfWeek::Tuesday, EDayOfWeek::Saturday}));
    EXPECT_TRUE(CWeekMask(false).ToWeekDays().empty());
}

TEST(WeekMaskValue, ComparesFlags)
{
    EXPECT_TRUE(days({EDayOfWeek::Monday}) == days({EDayOfWeek::Monday}));
    EXPECT_FALSE(days({EDayOfWeek::Monday}) != days({EDayOfWeek::Monday}));
    EXPECT_TRUE(days({EDayOfWeek::Monday}) != days({EDayOfWeek::Tuesday}));
    EXPECT_TRUE(CWeekMask(std::vector<bool>(6, true)) != CWeekMask(true));
}

TEST_F(WeekMaskToday, AsksTheLocalClock)
{
    const long wednesdayLate = 1709767800; // 2024-03-06 23:30:00 UTC
    datetime::set_clock_for_tests([&] { return wednesdayLate; }, [] { return 0L; });
    EXPECT_TRUE(days({EDayOfWeek::Wednesday}).IsTodayOn());
    EXPECT_FALSE(days({EDayOfWeek::Thursday}).IsTodayOn());
    datetime::set_clock_for_tests([&] { return wednesdayLate; }, [] { return 7200L; });
    EXPECT_FALSE(days({EDayOfWeek::Wednesday}).IsTodayOn());
    EXPECT_TRUE(days({EDayOfWeek::Thursday}).IsTodayOn());
}

TEST(WeekMaskFailures, AskingForADayThatDoesNotExist)
{
    for (const auto day : {NoSuchDay, static_cast<EDayOfWeek::type>(-1)})
    {
        const std::string failure = failureText([&] { CWeekMask(true).IsDayOn(day); });
        EXPECT_EQ(failure.rfind("WeekMask: Failed to check that day is on. ", 0), 0U) << failure;
    }
    CWeekMask mask(false);
    EXPECT_THROW(mask.SetDay(NoSuchDay, true), std::out_of_range);
    EXPECT_EQ(mask, CWeekMask(false));
}

TEST_F(WeekMaskToday, FailsOnAMaskWithoutToday)
{
    datetime::set_clock_for_tests([] { return 1709942400L; }, [] { return 0L; }); // a Saturday
    const std::string failure = failureText([] { CWeekMask(std::vector<bool>(6, true)).IsTodayOn(); });
    EXPECT_EQ(
        failure.rfind("WeekMask: Failed to check that today is on. WeekMask: Failed to check that day is on. ", 0), 0U)
        << failure;
}

TEST(WeekMaskQuirks, KeepsAVectorOfAnyLength)
{
    const CWeekMask longMask(std::vector<bool>(9, true));
    EXPECT_EQ(longMask.GetMask().size(), 9U);
    const CWeekMask shortMask(std::vector<bool>{false, true});
    EXPECT_EQ(shortMask.GetMask().size(), 2U);
    EXPECT_TRUE(shortMask.IsDayOn(EDayOfWeek::Monday));
    EXPECT_EQ(failureText([&] { shortMask.IsDayOn(EDayOfWeek::Tuesday); }).rfind("WeekMask: ", 0), 0U);
}
