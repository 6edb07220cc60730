#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/month_mask.h>
#include <zelplatform/datetime/clock.h>

#include "support/expect_failure.h"
#include "support/schedule_samples.h"

using datetime::EMonth;
using zelmodel_test::failureText;
using zelmodel_test::months;
using zelplatform::model::structs::CMonthMask;

namespace
{

const auto NoSuchMonth = static_cast<EMonth::type>(12);

class MonthMaskToday : public testing::Test
{
protected:
    void TearDown() override { datetime::set_clock_for_tests({}, {}); }
};

} // namespace

TEST(MonthMaskValue, HasTwelveFlagsJanuaryFirst)
{
    EXPECT_EQ(CMonthMask::GetNumberOfMonths(), 12U);
    EXPECT_EQ(CMonthMask(true).GetMask(), std::vector<bool>(12, true));
    EXPECT_EQ(CMonthMask(false).GetMask(), std::vector<bool>(12, false));
    EXPECT_EQ(months({EMonth::January, EMonth::March}).GetMask(),
              (std::vector<bool>{true, false, true, false, false, false, false, false, false, false, false, false}));
}

TEST(MonthMaskValue, SetsAndAsksEachMonth)
{
    for (int month = 0; month < 12; ++month)
    {
        CMonthMask mask(false);
        mask.SetMonth(static_cast<EMonth::type>(month), true);
        for (int other = 0; other < 12; ++other)
            EXPECT_EQ(mask.IsMonthOn(static_cast<EMonth::type>(other)), other == month);
        mask.SetMonth(static_cast<EMonth::type>(month), false);
        EXPECT_TRUE(mask.IsAllMonthsOff());
    }
}

TEST(MonthMaskValue, ResetsAndAsksForAll)
{
    CMonthMask mask = months({EMonth::May});
    EXPECT_FALSE(mask.IsAllMonthsOn());
    EXPECT_FALSE(mask.IsAllMonthsOff());
    mask.Reset(true);
    EXPECT_TRUE(mask.IsAllMonthsOn());
    EXPECT_TRUE(mask.IsAllMonths(true));
    EXPECT_FALSE(mask.IsAllMonthsOff());
    mask.Reset(false);
    EXPECT_TRUE(mask.IsAllMonthsOff());
    EXPECT_TRUE(mask.IsAllMonths(false));
    EXPECT_EQ(mask, CMonthMask(false));
}

TEST(MonthMaskValue, ComparesFlags)
{
    EXPECT_TRUE(months({EMonth::May}) == months({EMonth::May}));
    EXPECT_TRUE(months({EMonth::May}) != months({EMonth::June}));
    EXPECT_FALSE(months({EMonth::May}) != months({EMonth::May}));
}

TEST(MonthMaskValue, InvertsAndIntersects)
{
    EXPECT_EQ(!CMonthMask(true), CMonthMask(false));
    EXPECT_EQ(!CMonthMask(false), CMonthMask(true));
    const CMonthMask winter = months({EMonth::December, EMonth::January, EMonth::February});
    EXPECT_FALSE((!winter).IsMonthOn(EMonth::January));
    EXPECT_TRUE((!winter).IsMonthOn(EMonth::March));
    EXPECT_EQ(!!winter, winter);
    EXPECT_EQ(winter && months({EMonth::February, EMonth::March}), months({EMonth::February}));
    EXPECT_EQ(winter && CMonthMask(true), winter);
    EXPECT_EQ(winter && !winter, CMonthMask(false));
}

TEST_F(MonthMaskToday, AsksTheLocalClock)
{
    const long lateInMarch = 1711924200; // 2024-03-31 22:30:00 UTC
    datetime::set_clock_for_tests([&] { return lateInMarch; }, [] { return 0L; });
    EXPECT_TRUE(months({EMonth::March}).IsTodayOn());
    EXPECT_FALSE(months({EMonth::April}).IsTodayOn());
    datetime::set_clock_for_tests([&] { return lateInMarch; }, [] { return 7200L; });
    EXPECT_FALSE(months({EMonth::March}).IsTodayOn());
    EXPECT_TRUE(months({EMonth::April}).IsTodayOn());
}

TEST(MonthMaskFailures, MasksOfUnequalLength)
{
    const CMonthMask year(true);
    for (const std::size_t length : {0U, 7U, 11U, 13U})
    {
        const CMonthMask other(std::vector<bool>(length, true));
        EXPECT_EQ(failureText([&] { year&& other; }), "Months masks count are not equal");
        EXPECT_EQ(failureText([&] { other&& year; }), "Months masks count are not equal");
    }
}

TEST(MonthMaskFailures, SettingAMonthThatDoesNotExist)
{
    CMonthMask mask(false);
    EXPECT_THROW(mask.SetMonth(NoSuchMonth, true), std::out_of_range);
    EXPECT_THROW(mask.SetMonth(static_cast<EMonth::type>(-1), true), std::out_of_range);
    EXPECT_EQ(mask, CMonthMask(false));
}

TEST(MonthMaskQuirks, TheMessageAboutAMonthSaysDay)
{
    for (const auto month : {NoSuchMonth, static_cast<EMonth::type>(-1)})
    {
        const std::string failure = failureText([&] { CMonthMask(true).IsMonthOn(month); });
        EXPECT_EQ(failure.rfind("MonthMask: Failed to check that day is on. ", 0), 0U) << failure;
    }
}

TEST_F(MonthMaskToday, FailsOnAMaskWithoutToday)
{
    datetime::set_clock_for_tests([] { return 1733011200L; }, [] { return 0L; }); // December 2024
    const std::string failure = failureText([] { CMonthMask(std::vector<bool>(11, true)).IsTodayOn(); });
    EXPECT_EQ(
        failure.rfind("MonthMask: Failed to check that today is on. MonthMask: Failed to check that day is on. ", 0),
        0U)
        << failure;
}

TEST(MonthMaskQuirks, KeepsAVectorOfAnyLength)
{
    EXPECT_EQ(CMonthMask(std::vector<bool>(13, true)).GetMask().size(), 13U);
    EXPECT_EQ((!CMonthMask(std::vector<bool>{true, false})).GetMask(), (std::vector<bool>{false, true}));
}
