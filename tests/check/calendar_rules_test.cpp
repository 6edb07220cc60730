#include "checked.h"

namespace
{

using zelmodel_test::CheckCase;
using zelmodel_test::EveryDay;
using zelmodel_test::idsOf;
using zelmodel_test::masks;
using zelmodel_test::start;
using zelmodel_test::weekly;

class CalendarRules : public testing::TestWithParam<CheckCase>
{
};

TEST_P(CalendarRules, FindWhatWasHardlyMeant)
{
    EXPECT_EQ(idsOf(check::checkText(GetParam().document)), GetParam().findings);
}

std::string onDay(const std::string& day, const std::string& months)
{
    return start("WeekDayNumber='Every' DayOfMonth='" + day + "' Type='1'", masks(EveryDay, months));
}

std::string onWeekDay(const std::string& number, const std::string& days, const std::string& day = "0")
{
    return start("WeekDayNumber='" + number + "' DayOfMonth='" + day + "' Type='1'", masks(days));
}

std::string full(const std::string& attributes, const std::string& masksOfIt)
{
    return "\n<ActiveFullOptions IsEnabled='true' " + attributes + ">" + masksOfIt + "</ActiveFullOptions>";
}

std::string timed(const char* type, const char* time)
{
    return start(std::string("WeekDayNumber='Every' DayOfMonth='0' Type='") + type + "'", masks(EveryDay), time);
}

INSTANTIATE_TEST_SUITE_P(
    Days, CalendarRules,
    testing::Values(
        CheckCase{"Weekly", weekly("M......"), {}}, CheckCase{"NoWeekDay", weekly("......."), {"2 never-runs"}},
        CheckCase{"NoMonth", onDay("1", "............"), {"3 never-runs"}},
        CheckCase{"ThirtyFirstOfApril", onDay("31", "...4........"), {"1 day-never-comes"}},
        CheckCase{"ThirtiethOfFebruary", onDay("30", ".2.........."), {"1 day-never-comes"}},
        CheckCase{"LeapDay", onDay("29", ".2.........."), {}}, CheckCase{"LastDay", onDay("32", ".2.4........"), {}},
        CheckCase{"ThirtyFirstOfEveryMonth", onDay("31", "123456789012"), {"1 day-misses-months"}},
        CheckCase{"FirstMonday", onWeekDay("First", "M......"), {}},
        CheckCase{"FirstMondayOnThe20th", onWeekDay("First", "M......", "20"), {"1 never-runs"}},
        CheckCase{
            "KindSeven", start("WeekDayNumber='Every' DayOfMonth='0' Type='7'", masks(EveryDay)), {"1 never-runs"}},
        CheckCase{"DayFortyIsNone", onDay("40", "123456789012"), {"1 out-of-range"}}),
    zelmodel_test::nameOfCase);

INSTANTIATE_TEST_SUITE_P(
    Times, CalendarRules,
    testing::Values(CheckCase{"LastMinute", timed("0", "Hours='23' Minutes='59'"), {}},
                    CheckCase{"Hour24", timed("0", "Hours='24' Minutes='0'"), {"4 no-such-time"}},
                    CheckCase{"Minute60", timed("0", "Hours='0' Minutes='60'"), {"4 no-such-time"}},
                    CheckCase{"NoTime", timed("0", ""), {"1 no-such-time"}},
                    CheckCase{"PeriodOfADay", timed("2", "Hours='24' Minutes='0'"), {}},
                    CheckCase{"PeriodOf25Hours", timed("2", "Hours='25' Minutes='0'"), {"4 no-such-time"}},
                    CheckCase{"PeriodOfNothing", timed("2", "Hours='0' Minutes='0'"), {"4 no-such-time"}},
                    CheckCase{"ContinuousNeedsNone", timed("3", ""), {}},
                    CheckCase{
                        "Hours300", timed("0", "Hours='300' Minutes='0'"), {"4 narrowed-number", "4 no-such-time"}},
                    CheckCase{"Hours256", timed("0", "Hours='256' Minutes='0'"), {"4 narrowed-number"}}),
    zelmodel_test::nameOfCase);

std::string job(const std::string& content)
{
    return "<ScheduleOptions>" + content + "</ScheduleOptions>";
}

constexpr const char* WeeklyFull = "WeekDayNumber='Every' DayOfMonth='0' Type='0'";

INSTANTIATE_TEST_SUITE_P(
    Fulls, CalendarRules,
    testing::Values(
        CheckCase{"OnADayOfTheJob", job(weekly("M...F..") + full(WeeklyFull, masks("....F.."))), {}},
        CheckCase{"OnAnotherDay", job(weekly("M......") + full(WeeklyFull, masks(".T....."))), {"5 full-never-due"}},
        CheckCase{"OnTheLastFridayOfAMondayJob",
                  job(weekly("M......") + full("WeekDayNumber='Last' DayOfMonth='0' Type='1'", masks("....F.."))),
                  {"5 full-never-due"}},
        CheckCase{"OnADateThatIsAMondayNowAndThen",
                  job(weekly("M......") +
                      full("WeekDayNumber='Every' DayOfMonth='31' Type='1'", masks(EveryDay, "1..........."))),
                  {}},
        CheckCase{"OnLeapDaysOnly",
                  job(weekly("M......") +
                      full("WeekDayNumber='Every' DayOfMonth='29' Type='1'", masks(EveryDay, ".2.........."))),
                  {}},
        CheckCase{"OnNoDay", job(weekly("M......") + full(WeeklyFull, masks("......."))), {"6 never-runs"}},
        CheckCase{"OfAPeriodicalJob",
                  job(timed("2", "Hours='1' Minutes='0'") + full(WeeklyFull, masks(".T....."))),
                  {"5 fulls-without-effect"}},
        CheckCase{"OfAJobWithoutSchedule", job(full(WeeklyFull, masks(".T....."))), {}}),
    zelmodel_test::nameOfCase);

TEST(CalendarRules, DoNotLookAtWhatIsSwitchedOff)
{
    const auto text = "<Schedule Version='3' IsEnabled='false' WeekDayNumber='Every' DayOfMonth='31' Type='1'>" +
                      masks(".......", "............") + "<Time Hours='99' Minutes='99'/></Schedule>";
    EXPECT_TRUE(check::checkText(text).empty());
}

} // namespace
