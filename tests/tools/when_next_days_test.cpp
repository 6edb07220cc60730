#include "when/next_days.h"

#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_parser.h>

#include "local_zone.h"
#include "support/expect_failure.h"
#include "tree.h"

namespace
{

using datetime::CDateTime;
using datetime::EDayOfWeek;
using describe::EDocumentKind;
using when::Evaluation;
using zelplatform::model::CDate;
using zelplatform::model::structs::BackupWindow;
using zelplatform::model::structs::CDayOfMonth;
using zelplatform::model::structs::CMonthMask;
using zelplatform::model::structs::CScheduleCalendar;
using zelplatform::model::structs::CScheduleOptions;
using zelplatform::model::structs::CScheduleTime;
using zelplatform::model::structs::CStartJobScheduleOptions;
using zelplatform::model::structs::CWeekMask;
using zelplatform::model::structs::DayHourMatrix;
using zelplatform::model::structs::EScheduleWindowKind;
using zelplatform::model::structs::EWeekDayNumber;
using zelplatform::model::structs::ScheduleParser;

using zelmodel_test::at;

using Rows = std::vector<std::vector<std::string>>;

CDate date(const std::string& text)
{
    return CDate(CDateTime::fromString(text, "%Y-%m-%d", false));
}

CWeekMask days(const std::string& names)
{
    return CWeekMask::FromString(names, ',');
}

describe::Node describeNextDays(const CScheduleOptions& schedule, const BackupWindow* window, const CDate& from,
                                unsigned count)
{
    const zelmodel_test::LocalZone zone("UTC");
    const Evaluation evaluation(schedule, window, from);
    return when::describeDays(evaluation, from, evaluation.daysFrom(from, count));
}

std::string tellWhyNothingIsNext(const CScheduleOptions& schedule, EDocumentKind kind)
{
    return when::tellWhyNothing(Evaluation(schedule, nullptr, date("2026-03-02")), kind,
                                "no day comes within 41 years");
}

/// The words of the rows: date, week day, start, full, window. In the zone of the tests no day needs a word of the
/// clock.
Rows next(const CScheduleOptions& schedule, const std::string& from, unsigned count,
          const BackupWindow* window = nullptr)
{
    Rows rows;
    for (const auto& day : describeNextDays(schedule, window, date(from), count).children)
    {
        rows.emplace_back();
        for (const auto& field : day.children)
            rows.back().push_back(field.words);
        EXPECT_EQ(rows.back().back(), "");
        rows.back().pop_back();
    }
    return rows;
}

BackupWindow window(EScheduleWindowKind kind, const std::vector<std::pair<EDayOfWeek::type, std::string>>& intervals)
{
    ScheduleParser parser(kind);
    for (const auto& [day, text] : intervals)
        parser.parseDay(day, text);
    return BackupWindow(parser.getMatrix(), 0);
}

TEST(NextDays, WeeklyFromAScheduledDayOn)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetWeekly(22, 30, days("Mon,Fri"));
    EXPECT_EQ(next(schedule, "2026-03-02", 3), (Rows{{"2026-03-02", "Monday", "22:30", "", ""},
                                                     {"2026-03-06", "Friday", "22:30", "", ""},
                                                     {"2026-03-09", "Monday", "22:30", "", ""}}));
    EXPECT_EQ(next(schedule, "2026-03-03", 1), (Rows{{"2026-03-06", "Friday", "22:30", "", ""}}));
}

TEST(NextDays, NameEachField)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetWeekly(22, 30, days("Mon"));
    const auto root = describeNextDays(schedule, nullptr, date("2026-03-02"), 1);
    EXPECT_EQ(root.words, "starts Every Monday at 22:30, local time of UTC (TZ), UTC+00:00 on 2026-03-02");
    EXPECT_EQ(zelmodel_test::namesOf(root.children.at(0)),
              (std::vector<std::string>{"date", "weekDay", "start", "full", "window", "clock"}));
    EXPECT_EQ(root.children.at(0).value, "2026-03-02");
}

TEST(NextDays, MarkFullBackups)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetWeekly(21, 0, CWeekMask(true));
    schedule.GetActiveFullOptions().SetMonthly(EWeekDayNumber::First, EDayOfWeek::Friday, CMonthMask(true));
    schedule.GetSyntheticFullOptions().SetWeekly(days("Thu,Fri"));
    EXPECT_EQ(next(schedule, "2026-03-05", 3),
              (Rows{{"2026-03-05", "Thursday", "21:00", "synthetic full", ""},
                    {"2026-03-06", "Friday", "21:00", "active full and synthetic full", ""},
                    {"2026-03-07", "Saturday", "21:00", "", ""}}));
    schedule.GetSyntheticFullOptions().Disable();
    EXPECT_EQ(next(schedule, "2026-03-06", 1), (Rows{{"2026-03-06", "Friday", "21:00", "active full", ""}}));
}

TEST(NextDays, AcrossLeapYears)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetMonthlyOnDay(6, 5, CDayOfMonth(29), CMonthMask::FromString("February", ','));
    EXPECT_EQ(next(schedule, "2026-03-02", 2),
              (Rows{{"2028-02-29", "Tuesday", "06:05", "", ""}, {"2032-02-29", "Sunday", "06:05", "", ""}}));
}

TEST(NextDays, EndWithTheYear9999)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetWeekly(1, 0, CWeekMask(true));
    EXPECT_EQ(next(schedule, "9999-12-30", 10),
              (Rows{{"9999-12-30", "Thursday", "01:00", "", ""}, {"9999-12-31", "Friday", "01:00", "", ""}}));
}

TEST(NextDays, NothingWhenDisabledOrNoDayComes)
{
    CScheduleOptions schedule;
    EXPECT_EQ(next(schedule, "2026-03-02", 10), Rows{});
    EXPECT_EQ(tellWhyNothingIsNext(schedule, EDocumentKind::AgentJobOptions),
              "Nothing is scheduled: the job is disabled.");
    EXPECT_EQ(tellWhyNothingIsNext(schedule, EDocumentKind::ServerJobOptions),
              "Nothing is scheduled: the managing server's form carries no schedule, so the job is disabled.");
    schedule.GetJobStartOptions().SetMonthlyOnDay(1, 0, CDayOfMonth(30), CMonthMask::FromString("February", ','));
    EXPECT_EQ(next(schedule, "2026-03-02", 10), Rows{});
    EXPECT_EQ(tellWhyNothingIsNext(schedule, EDocumentKind::AgentJobOptions),
              "Nothing is scheduled: no day comes within 41 years (Every 30 day of months February, a day that never "
              "comes, at 01:00).");
}

TEST(NextDays, TellWhetherTheWindowIsOpenAndWhenItCloses)
{
    const auto nights =
        window(EScheduleWindowKind::Disabled, {{EDayOfWeek::Monday, "20-24"}, {EDayOfWeek::Tuesday, "00-06, 22-24"}});
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetWeekly(22, 30, days("Mon,Tue,Wed"));
    EXPECT_EQ(next(schedule, "2026-03-02", 3, &nights),
              (Rows{{"2026-03-02", "Monday", "22:30", "", "open until 06:00 on Tuesday 2026-03-03"},
                    {"2026-03-03", "Tuesday", "22:30", "", "open until 24:00"},
                    {"2026-03-04", "Wednesday", "22:30", "", "closed"}}));
    schedule.GetJobStartOptions().SetWeekly(5, 59, days("Tue"));
    EXPECT_EQ(next(schedule, "2026-03-02", 1, &nights),
              (Rows{{"2026-03-03", "Tuesday", "05:59", "", "open until 06:00"}}));
    const auto open = window(EScheduleWindowKind::Enabled, {});
    EXPECT_EQ(next(schedule, "2026-03-02", 1, &open),
              (Rows{{"2026-03-03", "Tuesday", "05:59", "", "open, never closes"}}));
}

TEST(NextDays, WithoutAUsableTimeTheWindowIsNotAsked)
{
    const auto open = window(EScheduleWindowKind::Enabled, {});
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetWeekly(1, 0, days("Mon"));
    schedule.GetJobStartOptions().GetCalendar().ResetTime();
    EXPECT_EQ(next(schedule, "2026-03-02", 1, &open),
              (Rows{{"2026-03-02", "Monday", "no time", "", "not known without a time of day"}}));
}

TEST(NextDays, ATimeThatIsNoTimeOfDayIsSaid)
{
    const describe::Document document(
        R"(<Schedule Version="3" IsEnabled="true" WeekDayNumber="Every" DayOfMonth="0" Type="0">
<WeekMask Monday="1" Tuesday="0" Wednesday="0" Thursday="0" Friday="0" Saturday="0" Sunday="0"/>
<MonthMask January="1" February="1" March="1" April="1" May="1" June="1" July="1" August="1" September="1" October="1"
 November="1" December="1"/><Time Hours="300" Minutes="7"/></Schedule>)");
    const auto open = window(EScheduleWindowKind::Enabled, {});
    EXPECT_EQ(next(document.readSchedule(), "2026-03-02", 1, &open),
              (Rows{{"2026-03-02", "Monday", "44:07 is no time of day", "", "not known without a time of day"}}));
}

TEST(NextDays, PeriodicalStartsWithinTheDay)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetPeriodically(6, 30);
    EXPECT_EQ(describeNextDays(schedule, nullptr, date("2026-03-02"), 1).words,
              "starts Every 6 hours 30 minutes (periodical), local time of UTC (TZ), UTC+00:00 on 2026-03-02, counted "
              "from 00:00 on 2026-03-02");
    EXPECT_EQ(next(schedule, "2026-03-02", 2), (Rows{{"2026-03-02", "Monday", "00:00 06:30 13:00 19:30", "", ""},
                                                     {"2026-03-03", "Tuesday", "02:00 08:30 15:00 21:30", "", ""}}));
    schedule.GetJobStartOptions().SetPeriodically(0, 5);
    EXPECT_EQ(next(schedule, "2026-03-02", 1),
              (Rows{{"2026-03-02", "Monday", "00:00 and every 5 minutes after, 288 starts", "", ""}}));
    schedule.GetJobStartOptions().SetPeriodically(0, 0);
    EXPECT_EQ(next(schedule, "2026-03-02", 2),
              (Rows{{"2026-03-02", "Monday", "00:00", "", ""}, {"2026-03-03", "Tuesday", "00:00", "", ""}}));
}

TEST(NextDays, APeriodAboveADaySkipsDays)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetPeriodically(24, 30);
    const auto rows = next(schedule, "2026-03-02", 49);
    ASSERT_EQ(rows.size(), 49U);
    EXPECT_EQ(rows[1], (std::vector<std::string>{"2026-03-03", "Tuesday", "00:30", "", ""}));
    EXPECT_EQ(rows[47], (std::vector<std::string>{"2026-04-18", "Saturday", "23:30", "", ""}));
    EXPECT_EQ(rows[48], (std::vector<std::string>{"2026-04-20", "Monday", "00:00", "", ""}));
}

TEST(NextDays, PeriodicalStartsAndTheWindow)
{
    const auto nights =
        window(EScheduleWindowKind::Disabled, {{EDayOfWeek::Monday, "00-06, 20-24"}, {EDayOfWeek::Tuesday, "00-06"}});
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetPeriodically(4, 0);
    EXPECT_EQ(next(schedule, "2026-03-02", 1, &nights),
              (Rows{{"2026-03-02", "Monday", "00:00 04:00 08:00 12:00 16:00 20:00", "",
                     "00:00 to 04:00 open until 06:00, 08:00 to 16:00 closed, 20:00 open until 06:00 on Tuesday "
                     "2026-03-03"}}));
}

TEST(NextDays, ContinuousJobsAndTheWindow)
{
    const auto nights =
        window(EScheduleWindowKind::Disabled, {{EDayOfWeek::Monday, "00-06, 20-24"}, {EDayOfWeek::Tuesday, "00-06"}});
    const auto open = window(EScheduleWindowKind::Enabled, {});
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetContinuously();
    EXPECT_EQ(
        next(schedule, "2026-03-02", 3, &nights),
        (Rows{{"2026-03-02", "Monday", "all day", "", "open 00:00 to 06:00, 20:00 to 06:00 on Tuesday 2026-03-03"},
              {"2026-03-03", "Tuesday", "all day", "", "open 00:00 to 06:00"},
              {"2026-03-04", "Wednesday", "all day", "", "closed all day"}}));
    EXPECT_EQ(next(schedule, "2026-03-02", 1, &open),
              (Rows{{"2026-03-02", "Monday", "all day", "", "open, never closes"}}));
}

TEST(NextDays, RecurrentJobsHaveNoFullBackups)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetContinuously();
    schedule.GetActiveFullOptions().SetWeekly(CWeekMask(true));
    EXPECT_EQ(next(schedule, "2026-03-02", 1), (Rows{{"2026-03-02", "Monday", "all day", "", ""}}));
    EXPECT_EQ(describeNextDays(schedule, nullptr, date("2026-03-02"), 1).words,
              "starts Continuously, local time of UTC (TZ), UTC+00:00 on 2026-03-02; full backups are tied to weekly "
              "and monthly schedules only");
}

TEST(NextDays, APeriodicalJobWithoutAPeriodIsRefused)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetPeriodically(4, 0);
    schedule.GetJobStartOptions().GetCalendar().ResetTime();
    EXPECT_EQ(zelmodel_test::failureText([&] { next(schedule, "2026-03-02", 1); }),
              "The schedule is periodical but has no period.");
}

/// The dates before the day, with their starts.
std::vector<std::string> previous(const CScheduleOptions& schedule, const std::string& before, std::size_t count)
{
    const zelmodel_test::LocalZone zone("UTC");
    const Evaluation evaluation(schedule, nullptr, date(before));
    std::vector<std::string> rows;
    rows.reserve(count);
    for (const auto& day :
         when::describeDays(evaluation, date(before), evaluation.daysBefore(date(before), count)).children)
        rows.push_back(at(day, "date").words + ' ' + at(day, "start").words);
    return rows;
}

using Days = std::vector<std::string>;

TEST(PreviousDays, WithoutTheDayItself)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetWeekly(22, 30, days("Mon,Fri"));
    EXPECT_EQ(previous(schedule, "2026-03-06", 3), (Days{"2026-03-02 22:30", "2026-02-27 22:30", "2026-02-23 22:30"}));
    schedule.GetJobStartOptions().Disable();
    EXPECT_EQ(previous(schedule, "2026-03-06", 3), Days{});
}

TEST(PreviousDays, BeyondTheYearInWhichTheLibrarySearches)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetMonthlyOnDay(6, 5, CDayOfMonth(29), CMonthMask::FromString("February", ','));
    EXPECT_EQ(previous(schedule, "2028-02-29", 2), (Days{"2024-02-29 06:05", "2020-02-29 06:05"}));
    // 1900 was no leap year.
    EXPECT_EQ(previous(schedule, "1904-02-29", 1), (Days{"1896-02-29 06:05"}));
    schedule.GetJobStartOptions().SetMonthlyOnDay(6, 5, CDayOfMonth(30), CMonthMask::FromString("February", ','));
    EXPECT_EQ(previous(schedule, "2028-02-29", 2), Days{});
}

TEST(PreviousDays, OfAPeriodicalJobAreCountedBackwards)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetPeriodically(6, 30);
    EXPECT_EQ(previous(schedule, "2026-03-02", 2),
              (Days{"2026-03-01 04:30 11:00 17:30", "2026-02-28 02:30 09:00 15:30 22:00"}));
    schedule.GetJobStartOptions().SetPeriodically(24, 30);
    const auto rows = previous(schedule, "2026-03-02", 49);
    ASSERT_EQ(rows.size(), 49U);
    EXPECT_EQ(rows.front(), "2026-02-28 23:30");
}

TEST(PreviousDays, BeginWithTheYear1400)
{
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetWeekly(1, 0, CWeekMask(true));
    EXPECT_EQ(previous(schedule, "1400-01-03", 10), (Days{"1400-01-02 01:00", "1400-01-01 01:00"}));
    EXPECT_EQ(previous(schedule, "1400-01-01", 10), Days{});
}

} // namespace
