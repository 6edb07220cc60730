#include <string>

#include <gtest/gtest.h>

#include "describe/document.h"
#include "describe/visitors.h"
#include "tree.h"

namespace
{

using datetime::EDayOfWeek;
using datetime::EMonth;
using describe::tellCalendar;
using zelmodel_test::at;
using zelmodel_test::namesOf;
using zelmodel_test::treeOf;
using zelplatform::model::structs::CDayOfMonth;
using zelplatform::model::structs::CMonthMask;
using zelplatform::model::structs::CScheduleCalendar;
using zelplatform::model::structs::CScheduleTime;
using zelplatform::model::structs::CWeekMask;
using zelplatform::model::structs::EWeekDayNumber;

constexpr const char* AllDays =
    R"(<WeekMask Monday="1" Tuesday="1" Wednesday="1" Thursday="1" Friday="1" Saturday="1" Sunday="1"/>)";
constexpr const char* AllMonths =
    R"(<MonthMask January="1" February="1" March="1" April="1" May="1" June="1" July="1" August="1" September="1" October="1" November="1" December="1"/>)";

CScheduleCalendar weekly(const std::vector<std::string>& days, const std::optional<CScheduleTime>& time)
{
    CScheduleCalendar calendar;
    calendar.SetWeekly(time, CWeekMask::FromStringVector(days));
    return calendar;
}

TEST(TellCalendar, WeeklyWithTheTimeOfAClock)
{
    EXPECT_EQ(tellCalendar(weekly({"Mon", "Fri"}, CScheduleTime(22, 30))), "Every Monday, Friday at 22:30");
    EXPECT_EQ(tellCalendar(weekly({"Mon"}, std::nullopt)), "Every Monday");
    CScheduleCalendar daily;
    daily.SetWeekly(CScheduleTime(0, 5), CWeekMask(true));
    EXPECT_EQ(tellCalendar(daily), "Every day at 00:05");
}

TEST(TellCalendar, Monthly)
{
    CScheduleCalendar calendar;
    calendar.SetMonthly(CScheduleTime(6, 0), EWeekDayNumber::Last, EDayOfWeek::Sunday, CMonthMask(true));
    EXPECT_EQ(tellCalendar(calendar), "Last Sunday of every month at 06:00");
    calendar.SetMonthlyOnDay(std::nullopt, CDayOfMonth(32), CMonthMask::FromString("January,July", ','));
    EXPECT_EQ(tellCalendar(calendar), "Every last day of months January, July");
}

TEST(TellCalendar, Recurrent)
{
    CScheduleCalendar calendar;
    calendar.SetPeriodically(CScheduleTime(4, 0));
    EXPECT_EQ(tellCalendar(calendar), "Every 4 hours (periodical)");
    calendar.ResetTime();
    EXPECT_EQ(tellCalendar(calendar), "periodically, but without a period");
    calendar.SetContinuously();
    EXPECT_EQ(tellCalendar(calendar), "Continuously");
}

TEST(TellCalendar, SaysWhenNoDayComes)
{
    CScheduleCalendar calendar;
    calendar.SetWeekly(std::nullopt, CWeekMask(false));
    EXPECT_EQ(tellCalendar(calendar), "never, as no week day is chosen");
    calendar.SetWeekly(CScheduleTime(1, 0), CWeekMask(false));
    EXPECT_EQ(tellCalendar(calendar), "never, as no week day is chosen, at 01:00");
    calendar.SetMonthly(std::nullopt, EWeekDayNumber::First, EDayOfWeek::Monday, CMonthMask(false));
    EXPECT_EQ(tellCalendar(calendar), "never, as no month is chosen");
    CMonthMask february(false);
    february.SetMonth(EMonth::February, true);
    calendar.SetMonthlyOnDay(CScheduleTime(1, 0), CDayOfMonth(30), february);
    EXPECT_EQ(tellCalendar(calendar), "Every 30 day of months February, a day that never comes, at 01:00");
}

TEST(TellCalendar, RareDaysDoCome)
{
    CScheduleCalendar calendar;
    CMonthMask february(false);
    february.SetMonth(EMonth::February, true);
    calendar.SetMonthlyOnDay(std::nullopt, CDayOfMonth(29), february);
    EXPECT_EQ(tellCalendar(calendar), "Every 29 day of months February");
}

TEST(ScheduleTree, TellsAnUnknownKindWithoutFailing)
{
    const auto root =
        treeOf(std::string(R"(<Schedule Version="3" IsEnabled="true" WeekDayNumber="Every" DayOfMonth="0" Type="7">)") +
               AllDays + AllMonths + "</Schedule>");
    EXPECT_EQ(at(root, "jobStart").words, "starts cannot be evaluated: Unsupported schedule type [7]");
    EXPECT_EQ(at(root, "jobStart/scheduleType").value, "7");
    EXPECT_EQ(at(root, "jobStart/scheduleType").words, "of an unknown kind");
}

TEST(ScheduleTree, HoldsEveryFieldWithItsLine)
{
    const auto root =
        treeOf(std::string("<ScheduleOptions>\n<Schedule Version=\"3\"\nIsEnabled=\"true\"\n"
                           "WeekDayNumber=\"Every\"\nDayOfMonth=\"15\"\nType=\"1\">\n") +
               AllDays + "\n" + AllMonths + "\n<Time Hours=\"22\" Minutes=\"30\"/></Schedule></ScheduleOptions>");
    EXPECT_EQ(namesOf(root), (std::vector<std::string>{"jobStart", "activeFull", "syntheticFull", "backupWindow"}));
    const auto& start = at(root, "jobStart");
    EXPECT_EQ(namesOf(start), (std::vector<std::string>{"isEnabled", "scheduleType", "time", "weekMask", "monthMask",
                                                        "weekDayNumber", "dayOfMonth", "logText"}));
    EXPECT_EQ(start.words, "starts Every 15 day of every month at 22:30");
    EXPECT_EQ(start.origin.line, 2);
    struct Case
    {
        const char* name;
        const char* value;
        const char* words;
        int line;
    };
    for (const auto& expected : {Case{"isEnabled", "true", "true", 3}, Case{"weekDayNumber", "Every", "Every", 4},
                                 Case{"dayOfMonth", "15", "15", 5}, Case{"scheduleType", "1", "monthly", 6},
                                 Case{"weekMask", "Sunday,Monday,Tuesday,Wednesday,Thursday,Friday,Saturday",
                                      "Sunday, Monday, Tuesday, Wednesday, Thursday, Friday, Saturday", 7},
                                 Case{"time", "22:30", "22:30", 9},
                                 Case{"logText", "Every 15 day of every month at 22 hours 30 minutes",
                                      "Every 15 day of every month at 22 hours 30 minutes", 0}})
    {
        EXPECT_EQ(at(start, expected.name).value, expected.value) << expected.name;
        EXPECT_EQ(at(start, expected.name).words, expected.words) << expected.name;
        EXPECT_EQ(at(start, expected.name).origin.line, expected.line) << expected.name;
    }
    EXPECT_EQ(at(start, "monthMask").origin.line, 8);
}

TEST(ScheduleTree, FlagOfAnOlderLayoutStandsOnTheParent)
{
    const auto root = treeOf(std::string("<JobOptions\nSchedule=\"true\">\n<Schedule Hours=\"20\"\nMinutes=\"0\">") +
                             AllDays + "</Schedule></JobOptions>");
    EXPECT_EQ(at(root, "schedule/jobStart").words, "starts Every day at 20:00");
    EXPECT_EQ(at(root, "schedule/jobStart/isEnabled").origin.line, 2);
    EXPECT_EQ(at(root, "schedule/jobStart/time").origin.line, 3);
}

TEST(ScheduleTree, DisabledOptionsSayWhatTheyAreSetTo)
{
    const auto root =
        treeOf(std::string("<ScheduleOptions><ActiveFullOptions IsEnabled=\"false\" WeekDayNumber=\"Every\" "
                           "DayOfMonth=\"32\" Type=\"1\">") +
               AllDays + AllMonths + "</ActiveFullOptions></ScheduleOptions>");
    EXPECT_EQ(at(root, "jobStart").words, "disabled");
    EXPECT_EQ(at(root, "activeFull").words, "disabled, set to Every last day of every month");
    EXPECT_EQ(at(root, "activeFull/dayOfMonth").words, "the last");
    EXPECT_EQ(at(root, "syntheticFull").words, "disabled");
    EXPECT_EQ(at(root, "syntheticFull").origin.line, 0);
}

TEST(ScheduleTree, PartsWithoutARootAreRead)
{
    const auto root =
        treeOf(std::string("<Schedule Version=\"3\" IsEnabled=\"true\" WeekDayNumber=\"Every\" DayOfMonth=\"0\" "
                           "Type=\"3\">") +
               AllDays + AllMonths +
               "</Schedule><SyntheticFullOptions IsEnabled=\"true\" "
               "WeekDayNumber=\"Every\" DayOfMonth=\"1\" Type=\"1\">" +
               AllDays + AllMonths + "</SyntheticFullOptions>");
    EXPECT_EQ(at(root, "jobStart").words, "starts Continuously");
    EXPECT_EQ(at(root, "syntheticFull").words, "Every 1 day of every month");
}

/// Before calendars had a type, the time said that it is a period.
TEST(ScheduleTree, TypeMayStandOnTheTime)
{
    const auto root = treeOf(std::string("<Schedule Version='3' IsEnabled='1' WeekDayNumber='Every' DayOfMonth='0'>") +
                             AllDays + AllMonths + "\n<Time Type='1' Hours='6' Minutes='30'/></Schedule>");
    EXPECT_EQ(at(root, "jobStart/scheduleType").words, "periodically");
    EXPECT_EQ(at(root, "jobStart/scheduleType").origin.kind, describe::EOrigin::Older);
    EXPECT_EQ(at(root, "jobStart/scheduleType").origin.line, 2);
}

} // namespace
