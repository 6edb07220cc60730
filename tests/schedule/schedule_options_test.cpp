#include <memory>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_options.h>

using namespace zelplatform::model::structs;

namespace
{

std::shared_ptr<BackupWindow> window(int minutes)
{
    return std::make_shared<BackupWindow>(DayHourMatrix(EScheduleWindowKind::Enabled), minutes);
}

/// Options of which no part has its default.
CScheduleOptions everythingChanged()
{
    CScheduleOptions options;
    options.GetJobStartOptions().SetPeriodically(4, 0);
    options.GetActiveFullOptions().SetDefaultWeekly();
    options.GetSyntheticFullOptions().SetMonthlyOnDay(CDayOfMonth(32), CMonthMask(true));
    options.setBackupWindow(window(60));
    return options;
}

} // namespace

TEST(CScheduleOptionsValue, ANewObjectHasEverythingOff)
{
    const CScheduleOptions options;
    EXPECT_TRUE(options.GetJobStartOptions() == CStartJobScheduleOptions());
    EXPECT_TRUE(options.GetActiveFullOptions() == CFullBackupOptions(EFullBackupType::ActiveFull));
    EXPECT_TRUE(options.GetSyntheticFullOptions() == CFullBackupOptions(EFullBackupType::SyntheticFull));
    EXPECT_EQ(nullptr, options.getBackupWindow());
    EXPECT_FALSE(options.IsAtLeastOneEnabled());
    EXPECT_TRUE(std::is_polymorphic_v<CScheduleOptions>);
}

TEST(CScheduleOptionsValue, PartsAreSetAndGot)
{
    CScheduleOptions options;
    CStartJobScheduleOptions start;
    start.SetContinuously();
    CFullBackupOptions active(EFullBackupType::ActiveFull);
    active.SetDefaultWeekly();
    CFullBackupOptions synthetic(EFullBackupType::SyntheticFull);
    synthetic.SetDayOfMonth(9);
    const auto hours = window(0);
    options.SetJobStartOptions(start);
    options.SetActiveFullOptions(active);
    options.SetSyntheticFullOptions(synthetic);
    options.setBackupWindow(hours);
    const CScheduleOptions& fixed = options;
    EXPECT_TRUE(fixed.GetJobStartOptions() == start);
    EXPECT_TRUE(fixed.GetActiveFullOptions() == active);
    EXPECT_TRUE(fixed.GetSyntheticFullOptions() == synthetic);
    EXPECT_EQ(hours, fixed.getBackupWindow());
    options.setBackupWindow(nullptr);
    EXPECT_EQ(nullptr, fixed.getBackupWindow());
}

TEST(CScheduleOptionsValue, PartsCanBeChangedInPlace)
{
    CScheduleOptions options;
    options.GetJobStartOptions().SetPeriodically(1, 0);
    options.GetActiveFullOptions().Enable();
    options.GetSyntheticFullOptions().Enable();
    EXPECT_TRUE(options.GetJobStartOptions().IsSchedulePeriodically());
    EXPECT_TRUE(options.GetActiveFullOptions().IsEnabled());
    EXPECT_TRUE(options.GetSyntheticFullOptions().IsEnabled());
}

TEST(CScheduleOptionsValue, CopiesShareTheWindowAndNothingElse)
{
    const CScheduleOptions original = everythingChanged();
    CScheduleOptions copy(original);
    EXPECT_TRUE(copy == original);
    EXPECT_TRUE(copy.GetSyntheticFullOptions() == original.GetSyntheticFullOptions());
    EXPECT_EQ(original.getBackupWindow(), copy.getBackupWindow());
    copy.setBackupWindow(nullptr);
    copy.GetJobStartOptions().Reset();
    EXPECT_NE(nullptr, original.getBackupWindow());
    EXPECT_TRUE(original.GetJobStartOptions().IsEnabled());

    CScheduleOptions assigned;
    assigned = original;
    EXPECT_TRUE(assigned == original);
    EXPECT_TRUE(assigned.GetSyntheticFullOptions() == original.GetSyntheticFullOptions());
    EXPECT_EQ(original.getBackupWindow(), assigned.getBackupWindow());
    const CScheduleOptions& same = assigned;
    assigned = same;
    EXPECT_TRUE(assigned == original);
    EXPECT_EQ(original.getBackupWindow(), assigned.getBackupWindow());
}

TEST(CScheduleOptionsValue, MovesTakeEverything)
{
    const CScheduleOptions original = everythingChanged();
    CScheduleOptions source(original);
    CScheduleOptions moved(std::move(source));
    EXPECT_TRUE(moved == original);
    EXPECT_EQ(original.getBackupWindow(), moved.getBackupWindow());
    CScheduleOptions assigned;
    assigned = std::move(moved);
    EXPECT_TRUE(assigned == original);
    EXPECT_TRUE(assigned.GetSyntheticFullOptions() == original.GetSyntheticFullOptions());
    EXPECT_EQ(original.getBackupWindow(), assigned.getBackupWindow());
}

TEST(CScheduleOptionsValue, MovedOntoThemselvesTheyStayAsTheyWere)
{
    const CScheduleOptions original = everythingChanged();
    CScheduleOptions options(original);
    CScheduleOptions& same = options;
    options = std::move(same);
    EXPECT_TRUE(options == original);
    EXPECT_TRUE(options.GetSyntheticFullOptions() == original.GetSyntheticFullOptions());
    EXPECT_EQ(original.getBackupWindow(), options.getBackupWindow());
}

TEST(CScheduleOptionsValue, DefaultTurnsTheStartOnAndTheActiveFullOff)
{
    CScheduleOptions options = everythingChanged();
    options.SetDefault();
    CStartJobScheduleOptions daily;
    daily.SetDefaultWeekly();
    EXPECT_TRUE(options.GetJobStartOptions() == daily);
    EXPECT_TRUE(options.GetJobStartOptions().IsEnabled());
    EXPECT_TRUE(options.GetActiveFullOptions() == CFullBackupOptions(EFullBackupType::ActiveFull));
}

TEST(CScheduleOptionsValue, ResetTurnsStartAndActiveFullOff)
{
    CScheduleOptions options = everythingChanged();
    options.ResetBoth();
    EXPECT_TRUE(options.GetJobStartOptions() == CStartJobScheduleOptions());
    EXPECT_TRUE(options.GetActiveFullOptions() == CFullBackupOptions(EFullBackupType::ActiveFull));
}

TEST(CScheduleOptionsValue, OneOfStartAndActiveFullIsEnough)
{
    for (const bool start : {false, true})
        for (const bool active : {false, true})
        {
            CScheduleOptions options;
            options.GetJobStartOptions().SetEnabled(start);
            options.GetActiveFullOptions().SetEnabled(active);
            EXPECT_EQ(start || active, options.IsAtLeastOneEnabled()) << start << active;
        }
}

TEST(CScheduleOptionsValue, EqualityComparesStartAndActiveFull)
{
    const CScheduleOptions options = everythingChanged();
    EXPECT_TRUE(options == everythingChanged());
    EXPECT_FALSE(options != everythingChanged());

    CScheduleOptions otherStart = everythingChanged();
    otherStart.GetJobStartOptions().Disable();
    EXPECT_TRUE(options != otherStart);
    CScheduleOptions otherTime = everythingChanged();
    otherTime.GetJobStartOptions().SetPeriodically(4, 1);
    EXPECT_TRUE(options != otherTime);
    CScheduleOptions otherFlag = everythingChanged();
    otherFlag.GetActiveFullOptions().Disable();
    EXPECT_TRUE(options != otherFlag);
    CScheduleOptions otherCalendar = everythingChanged();
    otherCalendar.GetActiveFullOptions().SetWeekly(CWeekMask(true));
    EXPECT_TRUE(options != otherCalendar);
    EXPECT_FALSE(options == otherCalendar);
}

TEST(CScheduleOptionsQuirks, EqualityLeavesOutTheSyntheticFullAndTheWindow)
{
    const CScheduleOptions options = everythingChanged();
    CScheduleOptions other = everythingChanged();
    other.setBackupWindow(nullptr);
    other.GetSyntheticFullOptions().Reset();
    EXPECT_TRUE(options == other);
}

TEST(CScheduleOptionsQuirks, EqualityLeavesOutTheTypeOfTheActiveFull)
{
    CScheduleOptions options;
    options.SetActiveFullOptions(CFullBackupOptions(EFullBackupType::SyntheticFull));
    EXPECT_EQ(EFullBackupType::SyntheticFull, options.GetActiveFullOptions().GetType());
    EXPECT_TRUE(options == CScheduleOptions());
}

TEST(CScheduleOptionsQuirks, DefaultAndResetLeaveTheSyntheticFullAndTheWindow)
{
    const CScheduleOptions original = everythingChanged();
    CScheduleOptions options(original);
    options.SetDefault();
    EXPECT_TRUE(options.GetSyntheticFullOptions() == original.GetSyntheticFullOptions());
    EXPECT_EQ(original.getBackupWindow(), options.getBackupWindow());
    options.ResetBoth();
    EXPECT_TRUE(options.GetSyntheticFullOptions() == original.GetSyntheticFullOptions());
    EXPECT_EQ(original.getBackupWindow(), options.getBackupWindow());
}

TEST(CScheduleOptionsQuirks, ASyntheticFullAloneDoesNotCountAsEnabled)
{
    CScheduleOptions options;
    options.GetSyntheticFullOptions().Enable();
    EXPECT_FALSE(options.IsAtLeastOneEnabled());
}
