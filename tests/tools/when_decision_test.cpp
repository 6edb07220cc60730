#include "when/decision_tree.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "describe/document.h"
#include "local_zone.h"
#include "support/expect_failure.h"
#include "tree.h"

namespace
{

using datetime::CDateTime;
using datetime::EDayOfWeek;
using describe::Node;
using zelmodel_test::at;
using zelplatform::model::CDate;
using zelplatform::model::structs::BackupWindow;
using zelplatform::model::structs::CDayOfMonth;
using zelplatform::model::structs::CMonthMask;
using zelplatform::model::structs::CScheduleOptions;
using zelplatform::model::structs::CWeekMask;
using zelplatform::model::structs::DayHourMatrix;
using zelplatform::model::structs::EScheduleWindowKind;
using zelplatform::model::structs::EWeekDayNumber;

CDateTime moment(const std::string& text)
{
    return CDateTime::fromString(text, "%Y-%m-%d %H:%M", false);
}

/// The tree of a decision in UTC; the starts of a periodical job are counted from the day of the moment.
Node why(const CScheduleOptions& schedule, const std::string& text)
{
    const zelmodel_test::LocalZone zone("UTC");
    const auto document = describe::Document(schedule.ToXmlString()).describe();
    const when::Evaluation evaluation(schedule, nullptr, CDate(moment(text)));
    return when::describeDecision(evaluation, moment(text), when::decide(evaluation, moment(text)),
                                  {document, Node(), {}});
}

/// The conditions that say no, without those of the full backups.
std::vector<std::string> refusing(const Node& tree)
{
    std::vector<std::string> names;
    for (const auto& child : tree.children)
    {
        if (child.value == "false" && child.name.find("Full") == std::string::npos)
            names.push_back(child.name);
    }
    return names;
}

using Names = std::vector<std::string>;

TEST(Why, EachConditionOfAMonthlySchedule)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetMonthly(21, 0, EWeekDayNumber::Last, EDayOfWeek::Friday,
                                             CMonthMask::FromString("January,February", ','));
    EXPECT_EQ(why(schedule, "2026-01-30 21:00").value, "true");
    EXPECT_EQ(refusing(why(schedule, "2026-01-30 21:00")), Names{});
    EXPECT_EQ(refusing(why(schedule, "2026-01-23 21:00")), Names{"weekDayNumber"});
    EXPECT_EQ(refusing(why(schedule, "2026-01-31 21:00")), Names{"weekMask"});
    EXPECT_EQ(refusing(why(schedule, "2026-03-27 21:00")), Names{"monthMask"});
    EXPECT_EQ(refusing(why(schedule, "2026-01-30 21:01")), Names{"time"});
    EXPECT_EQ(refusing(why(schedule, "2026-03-03 00:00")), (Names{"weekMask", "weekDayNumber", "monthMask", "time"}));
    schedule.GetJobStartOptions().Disable();
    EXPECT_EQ(refusing(why(schedule, "2026-01-30 21:00")), Names{"isEnabled"});
}

TEST(Why, ADayOfTheMonth)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetMonthlyOnDay(21, 0, CDayOfMonth(CDayOfMonth::GetMagicLastDay()), CMonthMask(true));
    EXPECT_EQ(refusing(why(schedule, "2026-02-28 21:00")), Names{});
    const auto no = why(schedule, "2024-02-28 21:00");
    EXPECT_EQ(refusing(no), Names{"dayOfMonth"});
    EXPECT_EQ(at(no, "dayOfMonth").words, "NO, 28 of 29; document: the last <-- the first no");
}

TEST(Why, OccurrencesInWords)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetMonthly(21, 0, EWeekDayNumber::Second, EDayOfWeek::Monday, CMonthMask(true));
    EXPECT_EQ(at(why(schedule, "2026-03-09 21:00"), "weekDayNumber").words,
              "yes, the second Monday of the month; document: Second");
    EXPECT_EQ(at(why(schedule, "2026-02-23 21:00"), "weekDayNumber").words,
              "NO, the fourth and last Monday of the month; document: Second <-- the first no");
    EXPECT_EQ(at(why(schedule, "2026-03-30 21:00"), "weekDayNumber").words,
              "NO, the last Monday of the month; document: Second <-- the first no");
}

TEST(Why, PeriodicalAndContinuousJobs)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetPeriodically(6, 30);
    EXPECT_EQ(refusing(why(schedule, "2026-03-02 13:00")), Names{});
    const auto no = why(schedule, "2026-03-02 13:30");
    EXPECT_EQ(refusing(no), Names{"time"});
    EXPECT_EQ(at(no, "time").label, "Period");
    EXPECT_EQ(no.words,
              "does not start on Monday 2026-03-02 at 13:30, local time of UTC (TZ), UTC+00:00 on 2026-03-02, "
              "counted from 00:00 on 2026-03-02");
    schedule.GetJobStartOptions().SetContinuously();
    schedule.GetActiveFullOptions().SetWeekly(CWeekMask(true));
    const auto yes = why(schedule, "2026-03-02 13:31");
    EXPECT_EQ(refusing(yes), Names{});
    EXPECT_EQ(at(yes, "activeFull").value, "false");
    EXPECT_EQ(at(yes, "activeFull").words, "no, full backups are tied to weekly and monthly schedules only");
}

TEST(Why, StartsThatAreFullBackups)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetWeekly(21, 0, CWeekMask::FromString("Mon,Tue", ','));
    schedule.GetActiveFullOptions().SetWeekly(CWeekMask::FromString("Mon,Wed", ','));
    EXPECT_EQ(at(why(schedule, "2026-03-02 21:00"), "activeFull").words, "yes, the start makes it");
    EXPECT_EQ(at(why(schedule, "2026-03-03 21:00"), "activeFull").words, "no, this is no day of it");
    EXPECT_EQ(at(why(schedule, "2026-03-03 21:00"), "activeFull/weekMask").words,
              "NO, Tuesday; document: Monday, Wednesday <-- the first no");
    EXPECT_EQ(at(why(schedule, "2026-03-04 21:00"), "activeFull").words,
              "no, this is a day of it but the job does not start");
    EXPECT_EQ(at(why(schedule, "2026-03-02 21:00"), "syntheticFull").words, "no, it is disabled");
}

constexpr const char* Masks =
    R"(<WeekMask Monday="1" Tuesday="1" Wednesday="1" Thursday="1" Friday="1" Saturday="1" Sunday="1"/><MonthMask January="1" February="1" March="1" April="1" May="1" June="1" July="1" August="1" September="1" October="1" November="1" December="1"/>)";

/// A calendar that no setter makes, on the 2nd and the third Monday of a month.
TEST(Why, ACalendarThatNoSetterMakes)
{
    const describe::Document document(
        R"(<Schedule Version="3" IsEnabled="1" WeekDayNumber="Third" DayOfMonth="2" Type="1">)" + std::string(Masks) +
        R"(<Time Hours="300" Minutes="7"/></Schedule>)");
    EXPECT_EQ(refusing(why(document.readSchedule(), "2026-03-02 10:00")), (Names{"weekDayNumber", "time"}));
    EXPECT_EQ(refusing(why(document.readSchedule(), "2026-03-16 10:00")), (Names{"dayOfMonth", "time"}));
}

TEST(Why, AnUnknownKind)
{
    const auto read = [](const char* flag) {
        return describe::Document("<Schedule Version=\"3\" IsEnabled=\"" + std::string(flag) +
                                  R"(" WeekDayNumber="Every" DayOfMonth="0" Type="7">)" + Masks + "</Schedule>")
            .readSchedule();
    };
    EXPECT_EQ(refusing(why(read("0"), "2026-03-02 10:00")), (Names{"isEnabled", "scheduleType", "time"}));
    EXPECT_EQ(zelmodel_test::failureText([&] { why(read("1"), "2026-03-02 10:00"); }),
              "ScheduleCalendar: Failed to check that date [03/02/2026] is on. Unsupported schedule type [7]");
}

TEST(Why, TheLineOfTheWindow)
{
    const zelmodel_test::LocalZone zone("UTC");
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetWeekly(21, 0, CWeekMask(true));
    const describe::Document window("<ScheduleWindow Minutes=\"0\"\n Kind=\"1\"><Days>\n<Monday "
                                    "Intervals=\"20-24\"/></Days></ScheduleWindow>");
    const auto matrix = window.readWindow();
    const auto windowTree = window.describe();
    const auto document = describe::Document(schedule.ToXmlString()).describe();
    const std::string name = "night.xml";
    const auto ask = [&](const char* text) {
        const when::Evaluation evaluation(schedule, matrix.get(), CDate(moment(text)));
        return at(when::describeDecision(evaluation, moment(text), when::decide(evaluation, moment(text)),
                                         {document, windowTree, name}),
                  "backupWindow");
    };
    EXPECT_EQ(ask("2026-03-02 21:00").words, "yes, open until 24:00; night.xml: open 20:00-24:00");
    EXPECT_EQ(ask("2026-03-02 21:00").origin.line, 3);
    EXPECT_EQ(ask("2026-03-03 21:00").words, "NO, closed; night.xml: closed except in the hours that the document "
                                             "lists <-- the first no");
    EXPECT_EQ(ask("2026-03-03 21:00").origin.line, 2);
}

} // namespace
