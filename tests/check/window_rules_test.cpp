#include "checked.h"

namespace
{

using zelmodel_test::CheckCase;
using zelmodel_test::EveryDay;
using zelmodel_test::idsOf;
using zelmodel_test::masks;
using zelmodel_test::start;
using zelmodel_test::weekly;

std::string window(const char* kind, const std::string& days)
{
    return std::string("<ScheduleWindow Minutes='0'\nKind='") + kind + "'><Days>" + days + "</Days></ScheduleWindow>";
}

class WindowRules : public testing::TestWithParam<CheckCase>
{
};

TEST_P(WindowRules, FindWhatWasHardlyMeant)
{
    EXPECT_EQ(idsOf(check::checkText(GetParam().document)), GetParam().findings);
}

INSTANTIATE_TEST_SUITE_P(
    Windows, WindowRules,
    testing::Values(
        CheckCase{"NeverOpens", window("1", ""), {"2 window-always-closed"}},
        CheckCase{"NeverCloses", window("0", ""), {"2 window-never-closes"}},
        CheckCase{"OpensForAnHour", window("1", "<Monday Intervals='03-04'/>"), {}},
        CheckCase{"ClosesForAnHour", window("0", "<Monday Intervals='03-04'/>"), {}},
        CheckCase{"ListsNothingBackwards", window("1", "<Monday Intervals='04-03'/>"), {"2 window-always-closed"}},
        // Which hours are open cannot be told then.
        CheckCase{"IsOfAnUnknownKind", window("2", ""), {"2 refused-value"}},
        CheckCase{"LongOffset",
                  "<ScheduleWindow Minutes='4294967356' Kind='0'><Days><Monday Intervals='00-01'/>"
                  "</Days></ScheduleWindow>",
                  {"1 narrowed-number"}},
        CheckCase{"NegativeOffsetAsItIsWritten",
                  "<ScheduleWindow Minutes='18446744073709551316' Kind='0'><Days>"
                  "<Monday Intervals='00-01'/></Days></ScheduleWindow>",
                  {}}),
    zelmodel_test::nameOfCase);

/// A job, a window, and what is found in the job.
struct StartCase
{
    const char* name;
    std::string job;
    std::string window;
    std::vector<std::string> findings;
};

std::ostream& operator<<(std::ostream& stream, const StartCase& test)
{
    return stream << test.name;
}

class StartsInWindows : public testing::TestWithParam<StartCase>
{
};

TEST_P(StartsInWindows, AreFoundWhenTheyAreAlwaysClosed)
{
    const auto window = check::readWindow(GetParam().window);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(idsOf(check::checkText(GetParam().job, window.get())), GetParam().findings);
}

std::string ofType(const char* type, const char* time)
{
    return start(std::string("WeekDayNumber='Every' DayOfMonth='0' Type='") + type + "'", masks(EveryDay), time);
}

INSTANTIATE_TEST_SUITE_P(
    Jobs, StartsInWindows,
    testing::Values(
        StartCase{"Open", weekly("M......"), window("1", "<Monday Intervals='22-23'/>"), {}},
        StartCase{"AnHourTooLate",
                  weekly("M......"),
                  window("1", "<Monday Intervals='21-22'/>"),
                  {"4 window-closed-at-start"}},
        StartCase{"OnAnotherDay",
                  weekly("M......"),
                  window("1", "<Tuesday Intervals='00-24'/>"),
                  {"4 window-closed-at-start"}},
        StartCase{"OpenOnOneDayOfTwo", weekly("MT....."), window("1", "<Tuesday Intervals='00-24'/>"), {}},
        StartCase{"ADateMeetsEveryWeekDay",
                  start("WeekDayNumber='Every' DayOfMonth='29' Type='1'", masks(EveryDay, ".2..........")),
                  window("1", "<Tuesday Intervals='22-23'/>"),
                  {}},
        // Where a periodical job begins to count is told by no document.
        StartCase{"Periodical", ofType("2", "Hours='8' Minutes='0'"), window("1", "<Monday Intervals='03-04'/>"), {}},
        StartCase{
            "PeriodicalInNoHour", ofType("2", "Hours='8' Minutes='0'"), window("1", ""), {"4 window-closed-at-start"}},
        StartCase{"ContinuousInNoHour", ofType("3", ""), window("1", ""), {"1 window-closed-at-start"}},
        StartCase{"NeverRuns", weekly("......."), window("1", ""), {"2 never-runs"}}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(ReadWindow, RefusesDocumentsOfOtherKinds)
{
    EXPECT_ANY_THROW(check::readWindow("<JobOptions/>"));
}

TEST(ReadWindow, GivesNoneForARefusedWindow)
{
    EXPECT_EQ(check::readWindow("<ScheduleWindow"), nullptr);
    EXPECT_EQ(check::readWindow(window("2", "")), nullptr);
    EXPECT_EQ(check::readWindow("<ScheduleWindow/>"), nullptr);
}

} // namespace
