#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "support/golden.h"
#include "support/run_command.h"

namespace
{

using zelmodel_test::golden;
using zelmodel_test::runCommand;
using zelmodel_test::runCommandInZone;
using zelmodel_test::runCommandOnTerminal;

TEST(Why, AStartThatIsAnActiveFull)
{
    const auto result =
        runCommand({"why", "nightly-file-server.xml", "--at", "2024-03-02 22:30", "--window", "periodical-window.xml"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(result.output,
              "   line  starts on Saturday 2024-03-02 at 22:30, local time of UTC (TZ), UTC+00:00 on 2024-03-02\n"
              "     14    Enabled         yes; document: true\n"
              "     14    Kind            yes; document: weekly\n"
              "     15    Week day        yes, Saturday; document: Sunday, Monday, Tuesday, Wednesday, Thursday, "
              "Friday, Saturday\n"
              "     20    Time of day     yes, 22:30; document: 22:30\n"
              "     11    Window          yes, open until 06:00 on Monday 2024-03-04; periodical-window.xml: open all "
              "day\n"
              "     22    Active full     yes, the start makes it\n"
              "     22      Enabled       yes; document: true\n"
              "     22      Kind          yes; document: weekly\n"
              "     23      Week day      yes, Saturday; document: Saturday\n"
              "     29    Synthetic full  no, it is disabled\n");
}

TEST(Why, TheFirstConditionThatSaysNo)
{
    const auto result = runCommand({"why", "older/schedule-monthly.xml", "--at", "2026-05-15 06:05"});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(result.output,
              "   line  does not start on Friday 2026-05-15 at 06:05, local time of UTC (TZ), UTC+00:00 on 2026-05-15\n"
              "      4    Enabled         yes; document: true (older form: Schedule)\n"
              "      5    Kind            yes; document: monthly\n"
              "default    Week day        yes, Friday; default: Sunday, Monday, Tuesday, Wednesday, Thursday, Friday, "
              "Saturday\n"
              "      5    Day of month    yes, 15 of 31; document: 15\n"
              "default    Occurrence      yes, the third Friday of the month; default: Every\n"
              "      7    Month           NO, May; document: January, April, July, October <-- the first no\n"
              "      6    Time of day     yes, 06:05; document: 06:05\n"
              "default    Active full     no, it is disabled\n"
              "default    Synthetic full  no, it is disabled\n");
}

TEST(Why, TheManagingServersForm)
{
    const auto result = runCommand({"why", "managing-server.xml", "--at", "2026-05-15 06:05"});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_NE(result.output.find("default    Enabled         NO; default: false <-- the first no\n"), std::string::npos)
        << result.output;
}

TEST(Why, ATimeThatTheClockLeavesOut)
{
    const auto result = runCommandInZone("Europe/Berlin", {"why", "continuous.xml", "--at", "2026-03-29 02:30"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.output.find("           Clock           23 hours: the clock goes from 02:00 to 03:00; 02:30 is "
                                 "left out\n"),
              std::string::npos)
        << result.output;
}

TEST(Why, StartsOfAPeriodicalJobAreCountedFromADay)
{
    EXPECT_EQ(runCommand({"why", "periodical-every-4-hours.xml", "--at", "2026-03-02 08:00"}).exitCode, 0);
    EXPECT_EQ(runCommand({"why", "periodical-every-4-hours.xml", "--at", "2026-03-02 09:00"}).exitCode, 5);
    const auto result =
        runCommand({"why", "periodical-every-4-hours.xml", "--at", "2026-03-02 08:00", "--from", "2026-02-02"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.output.find("counted from 00:00 on 2026-02-02\n"), std::string::npos);
}

TEST(WhyTerminal, FitsTheWidth)
{
    for (const auto width : std::vector<unsigned short>{40, 80, 200})
    {
        auto result = runCommandOnTerminal({"why", "weekly-with-monthly-fulls-and-gfs.xml", "--at", "2026-03-07 21:00",
                                            "--window", "office-hours-closed-window.xml"},
                                           width, {"NO_COLOR"});
        EXPECT_EQ(result.exitCode, 5);
        for (auto at = result.output.find('\r'); at != std::string::npos; at = result.output.find('\r', at))
            result.output.erase(at, 1);
        EXPECT_EQ(result.output, golden("terminal/why-" + std::to_string(width) + ".txt") + '\n');
    }
}

TEST(WhyJson, HoldsTheConditionsAndTheirLines)
{
    const auto result = runCommand({"why", "nightly-file-server.xml", "--at", "2024-03-02 22:31", "--json"});
    EXPECT_EQ(result.exitCode, 5);
    const auto json = nlohmann::json::parse(result.output);
    EXPECT_EQ(json.at("kind"), "why");
    EXPECT_EQ(json.at("why").at("value"), false);
    const auto& fields = json.at("why").at("fields");
    EXPECT_EQ(fields.at("weekMask").at("value"), true);
    EXPECT_EQ(fields.at("weekMask").at("line"), 15);
    EXPECT_EQ(fields.at("time").at("value"), false);
    EXPECT_EQ(fields.at("time").at("line"), 20);
    EXPECT_EQ(fields.at("activeFull").at("fields").at("weekMask").at("line"), 23);
}

TEST(WhyUsage, EndsWithTwo)
{
    const std::vector<std::string> calls[] = {{"why", "continuous.xml"},
                                              {"why", "--at", "2026-03-02 08:00"},
                                              {"why", "continuous.xml", "--at", "2026-03-02"},
                                              {"why", "continuous.xml", "--at", "2026-03-02 24:00"},
                                              {"why", "continuous.xml", "--at", "2026-02-30 08:00"},
                                              {"why", "-", "--window", "-", "--at", "2026-03-02 08:00"}};
    for (const auto& call : calls)
        EXPECT_EQ(runCommand(call).exitCode, 2) << testing::PrintToString(call);
}

TEST(WhyRefused, WhatCannotBeAsked)
{
    EXPECT_EQ(runCommand({"why", "gfs-policy.xml", "--at", "2026-03-02 08:00"}).exitCode, 3);
    EXPECT_EQ(runCommand({"why", "no-such-file.xml", "--at", "2026-03-02 08:00"}).exitCode, 4);
    const auto result =
        runCommand({"why", "-", "--at", "2026-03-02 08:00", "--window", "gfs-policy.xml"}, "<ScheduleOptions/>");
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.messages.find("gfs-policy.xml"), 0U) << result.messages;
}

} // namespace
