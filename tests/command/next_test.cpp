#include <ostream>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "support/run_command.h"

namespace
{

using zelmodel_test::runCommand;
using zelmodel_test::runCommandInZone;
using zelmodel_test::runCommandOnTerminal;

struct NextCase
{
    std::vector<std::string> arguments;
    const char* output;
};

std::ostream& operator<<(std::ostream& stream, const NextCase& test)
{
    return stream << test.arguments.front();
}

class Next : public testing::TestWithParam<NextCase>
{
};

TEST_P(Next, TellsTheDays)
{
    auto arguments = GetParam().arguments;
    arguments.insert(arguments.begin(), "next");
    const auto result = runCommand(arguments);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(result.output, GetParam().output);
}

INSTANTIATE_TEST_SUITE_P(
    Examples, Next,
    testing::Values(
        NextCase{{"nightly-file-server.xml", "--from", "2026-03-06", "-n", "3"},
                 "starts Every day at 22:30, local time of UTC (TZ), UTC+00:00 on 2026-03-06\n"
                 "Date        Day       Start  Full\n"
                 "2026-03-06  Friday    22:30\n"
                 "2026-03-07  Saturday  22:30  active full\n"
                 "2026-03-08  Sunday    22:30\n"},
        NextCase{{"nightly-file-server.xml", "--window", "periodical-window.xml", "--from", "2026-03-05", "-n", "2"},
                 "starts Every day at 22:30, local time of UTC (TZ), UTC+00:00 on 2026-03-05\n"
                 "Date        Day       Start  Window\n"
                 "2026-03-05  Thursday  22:30  open until 06:00 on Friday 2026-03-06\n"
                 "2026-03-06  Friday    22:30  open until 06:00 on Monday 2026-03-09\n"},
        NextCase{{"weekly-with-monthly-fulls-and-gfs.xml", "--from=2026-06-30", "--count=3"},
                 "starts Every Monday, Friday at 21:00, local time of UTC (TZ), UTC+00:00 on 2026-06-30\n"
                 "Date        Day     Start  Full\n"
                 "2026-07-03  Friday  21:00  active full\n"
                 "2026-07-06  Monday  21:00  synthetic full\n"
                 "2026-07-10  Friday  21:00\n"},
        NextCase{
            {"periodical-every-4-hours.xml", "--from", "2026-03-02", "-n", "1", "--window", "periodical-window.xml"},
            "starts Every 4 hours (periodical), local time of UTC (TZ), UTC+00:00 on 2026-03-02, counted from 00:00 on "
            "2026-03-02\n"
            "Date        Day     Start                                Window\n"
            "2026-03-02  Monday  00:00 04:00 08:00 12:00 16:00 20:00  00:00 to 04:00 open until 06:00, 08:00 to "
            "16:00 closed, 20:00 open until 06:00 on Tuesday 2026-03-03\n"},
        NextCase{{"continuous.xml", "--from", "2026-03-02", "-n", "1", "--window", "office-hours-closed-window.xml"},
                 "starts Continuously, local time of UTC (TZ), UTC+00:00 on 2026-03-02\n"
                 "Date        Day     Start    Window\n"
                 "2026-03-02  Monday  all day  open 00:00 to 08:00, 17:00 to 08:00 on Tuesday 2026-03-03\n"},
        NextCase{{"continuous.xml", "--from", "2026-03-02", "-n", "1", "--window", "always-open-window.xml"},
                 "starts Continuously, local time of UTC (TZ), UTC+00:00 on 2026-03-02\n"
                 "Date        Day     Start    Window\n"
                 "2026-03-02  Monday  all day  open, never closes\n"},
        NextCase{{"managing-server-twin.xml", "--from", "2026-03-30", "-n", "2"},
                 "starts Last Sunday of every month at 03:15, local time of UTC (TZ), UTC+00:00 on 2026-03-30\n"
                 "Date        Day     Start\n"
                 "2026-04-26  Sunday  03:15\n"
                 "2026-05-31  Sunday  03:15\n"},
        NextCase{{"schedule-options.xml", "--from", "2024-02-01", "-n", "2"},
                 "starts Every last day of every month at 23:45, local time of UTC (TZ), UTC+00:00 on 2024-02-01\n"
                 "Date        Day       Start  Full\n"
                 "2024-02-29  Thursday  23:45\n"
                 "2024-03-31  Sunday    23:45  synthetic full\n"},
        NextCase{{"older/schedule-monthly.xml", "--from", "2026-03-02", "-n", "2"},
                 "starts Every 15 day of months January, April, July, October at 06:05, local time of UTC (TZ), "
                 "UTC+00:00 on 2026-03-02\n"
                 "Date        Day        Start\n"
                 "2026-04-15  Wednesday  06:05\n"
                 "2026-07-15  Wednesday  06:05\n"},
        NextCase{{"nightly-file-server.xml", "--from", "2026-02-27", "--until", "2026-03-01"},
                 "starts Every day at 22:30, local time of UTC (TZ), UTC+00:00 on 2026-02-27\n"
                 "Date        Day       Start  Full\n"
                 "2026-02-27  Friday    22:30\n"
                 "2026-02-28  Saturday  22:30  active full\n"
                 "2026-03-01  Sunday    22:30\n"},
        NextCase{{"nightly-file-server.xml", "--from", "2026-02-27", "--until", "2026-03-01", "-n", "1"},
                 "starts Every day at 22:30, local time of UTC (TZ), UTC+00:00 on 2026-02-27\n"
                 "Date        Day     Start\n"
                 "2026-02-27  Friday  22:30\n"},
        NextCase{{"schedule-options.xml", "--from", "2024-03-31", "--previous", "-n", "3"},
                 "starts Every last day of every month at 23:45, local time of UTC (TZ), UTC+00:00 on 2024-03-31\n"
                 "Date        Day        Start  Full\n"
                 "2024-02-29  Thursday   23:45\n"
                 "2024-01-31  Wednesday  23:45\n"
                 "2023-12-31  Sunday     23:45  synthetic full\n"}));

TEST(NextUntil, MoreDaysThanACountMayAskFor)
{
    const auto result =
        runCommand({"next", "nightly-file-server.xml", "--from", "2026-01-01", "--until", "2029-12-31", "--json"});
    // Four years with one 29 February.
    EXPECT_EQ(nlohmann::json::parse(result.output).at("next").at("items").size(), 1461U);
}

TEST(NextUntil, NoDayInTheTime)
{
    const auto result =
        runCommand({"next", "older/schedule-monthly.xml", "--from", "2026-05-15", "--until", "2026-07-14"});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_EQ(result.messages, "older/schedule-monthly.xml: Nothing is scheduled: no day comes up to 2026-07-14 (Every "
                               "15 day of months January, April, July, October at 06:05).\n");
}

TEST(NextPrevious, NoDayEver)
{
    const auto result =
        runCommand({"next", "-", "--previous", "--from", "2026-03-02"},
                   R"(<Schedule Version="3" IsEnabled="true" WeekDayNumber="Every" DayOfMonth="31" Type="1">
<WeekMask Monday="1" Tuesday="1" Wednesday="1" Thursday="1" Friday="1" Saturday="1" Sunday="1"/>
<MonthMask January="0" February="0" March="0" April="1" May="0" June="0" July="0" August="0" September="0" October="0"
 November="0" December="0"/></Schedule>)");
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_EQ(result.messages,
              "standard input: Nothing is scheduled: no day came within 41 years before (Every 31 day of "
              "months April, a day that never comes).\n");
}

TEST(NextUsage, EndsWithTwo)
{
    const std::vector<std::string> calls[] = {
        {"next", "continuous.xml", "--from", "2026-03-02", "--until", "2026-03-01"},
        {"next", "continuous.xml", "--from", "2026-03-02", "--until", "2126-05-18"},
        {"next", "continuous.xml", "--from", "2026-03-02", "--until", "2026-03-03", "--previous"}};
    for (const auto& call : calls)
    {
        const auto result = runCommand(call);
        EXPECT_EQ(result.exitCode, 2) << testing::PrintToString(call);
        EXPECT_EQ(result.output, "");
    }
    EXPECT_EQ(runCommand({"next", "schedule-options.xml", "--from", "2026-03-02", "--until", "2126-05-17"}).exitCode,
              0);
}

TEST(NextClock, DaysOfAnotherLengthAreMarked)
{
    const auto spring =
        runCommandInZone("Europe/Berlin", {"next", "nightly-file-server.xml", "--from", "2026-03-28", "-n", "2"});
    EXPECT_EQ(spring.output,
              "starts Every day at 22:30, local time of Europe/Berlin (TZ), UTC+01:00 on 2026-03-28\n"
              "Date        Day       Start  Full         Clock\n"
              "2026-03-28  Saturday  22:30  active full\n"
              "2026-03-29  Sunday    22:30               23 hours: the clock goes from 02:00 to 03:00\n");
}

TEST(NextJson, HoldsEveryStartOfADay)
{
    const auto result =
        runCommand({"next", "periodical-every-4-hours.xml", "--from", "2026-03-02", "-n", "1", "--json"});
    const auto json = nlohmann::json::parse(result.output);
    EXPECT_EQ(json.at("kind"), "next");
    EXPECT_EQ(json.at("file"), "periodical-every-4-hours.xml");
    const auto& day = json.at("next").at("items").at(0).at("fields");
    EXPECT_EQ(day.at("date").at("value"), "2026-03-02");
    EXPECT_EQ(day.at("start").at("value"), "00:00 04:00 08:00 12:00 16:00 20:00");
}

TEST(NextJson, SaysWhyNothingIsNext)
{
    const auto result = runCommand({"next", "older/schedule-disabled.xml", "--json"});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(nlohmann::json::parse(result.output).at("notScheduled"), "Nothing is scheduled: the job is disabled.");
}

TEST(NextTerminal, ColumnsWithoutRoomStandBelow)
{
    const std::vector<std::string> call{
        "next", "nightly-file-server.xml", "--window", "periodical-window.xml", "--from", "2024-03-01", "-n", "2"};
    EXPECT_EQ(runCommandOnTerminal(call, 40, {"NO_COLOR"}).output, "starts Every day at 22:30, local time of\r\n"
                                                                   "UTC (TZ), UTC+00:00 on 2024-03-01\r\n"
                                                                   "Date        Day       Start  Full\r\n"
                                                                   "2024-03-01  Friday    22:30\r\n"
                                                                   "    Window: open until 06:00 on Monday\r\n"
                                                                   "            2024-03-04\r\n"
                                                                   "2024-03-02  Saturday  22:30  active full\r\n"
                                                                   "    Window: open until 06:00 on Monday\r\n"
                                                                   "            2024-03-04\r\n");
    const auto wide = runCommandOnTerminal(call, 200, {"NO_COLOR"}).output;
    EXPECT_NE(wide.find("2024-03-02  Saturday  22:30  active full  open until 06:00 on Monday 2024-03-04\r\n"),
              std::string::npos)
        << wide;
}

TEST(NextIcal, AnEventForEachStart)
{
    const std::vector<std::string> call{"next",  "periodical-every-4-hours.xml", "--from", "2026-03-02", "-n", "2",
                                        "--ical"};
    const auto output = runCommand(call).output;
    std::set<std::string> identifiers;
    for (auto at = output.find("\r\nUID:"); at != std::string::npos; at = output.find("\r\nUID:", at + 1))
        identifiers.insert(output.substr(at + 6, 36));
    EXPECT_EQ(identifiers.size(), 12U);
    for (const auto& identifier : identifiers)
        EXPECT_NE(runCommand(call).output.find(identifier), std::string::npos) << "identifiers are stable";
    EXPECT_NE(output.find("\r\nDTSTART:20260303T200000Z\r\n"), std::string::npos) << output;
    EXPECT_EQ(output.find("\r\nEND:VCALENDAR\r\n"), output.size() - 17);
}

/// A calendar whose long lines are joined again.
std::string unfolded(std::string text)
{
    for (auto at = text.find("\r\n "); at != std::string::npos; at = text.find("\r\n ", at))
        text.erase(at, 3);
    return text;
}

TEST(NextIcal, EventsTellTheWindow)
{
    const auto output = runCommand({"next", "nightly-file-server.xml", "--window", "periodical-window.xml", "--from",
                                    "2024-03-01", "-n", "1", "--ical"})
                            .output;
    EXPECT_NE(unfolded(output).find("\\nwindow: open until 06:00 on Monday 2024-03-04"), std::string::npos) << output;
}

TEST(NextDefaults, TenDaysFromToday)
{
    const auto result = runCommand({"next", "nightly-file-server.xml"});
    EXPECT_EQ(result.exitCode, 0);
    std::size_t lines = 0;
    for (const char c : result.output)
        lines += c == '\n' ? 1 : 0;
    EXPECT_EQ(lines, 12U) << result.output;
}

TEST(NextInput, DocumentOrWindowFromStandardInput)
{
    const auto result = runCommand({"next", "continuous.xml", "--window", "-", "--from", "2026-03-02", "-n", "1"},
                                   "<ScheduleWindow Minutes=\"0\" Kind=\"1\"/>");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "starts Continuously, local time of UTC (TZ), UTC+00:00 on 2026-03-02\n"
                             "Date        Day     Start    Window\n"
                             "2026-03-02  Monday  all day  closed all day\n");
}

struct NothingCase
{
    const char* file;
    const char* message;
};

std::ostream& operator<<(std::ostream& stream, const NothingCase& test)
{
    return stream << test.file;
}

class NextNothing : public testing::TestWithParam<NothingCase>
{
};

TEST_P(NextNothing, SaysWhyAndEndsWithFive)
{
    const auto result = runCommand({"next", GetParam().file});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.messages, GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Examples, NextNothing,
    testing::Values(NothingCase{"managing-server.xml",
                                "managing-server.xml: Nothing is scheduled: the managing server's form carries no "
                                "schedule, so the job is disabled.\n"},
                    NothingCase{"older/schedule-disabled.xml",
                                "older/schedule-disabled.xml: Nothing is scheduled: the job is disabled.\n"}));

TEST(NextNothingEver, ADayThatNeverComes)
{
    const auto result =
        runCommand({"next", "-"},
                   R"(<Schedule Version="3" IsEnabled="true" WeekDayNumber="Every" DayOfMonth="31" Type="1">
<WeekMask Monday="1" Tuesday="1" Wednesday="1" Thursday="1" Friday="1" Saturday="1" Sunday="1"/>
<MonthMask January="0" February="0" March="0" April="1" May="0" June="1" July="0" August="0" September="0" October="0"
 November="0" December="0"/></Schedule>)");
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_EQ(result.messages, "standard input: Nothing is scheduled: no day comes within 41 years (Every 31 day of "
                               "months April, June, a day that never comes).\n");
}

} // namespace
