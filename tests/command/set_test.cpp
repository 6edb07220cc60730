#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/run_command.h"
#include "support/temporary_folder.h"

namespace
{

using zelmodel_test::runCommand;
using zelmodel_test::runCommandOnTerminal;
using zelmodel_test::TemporaryFolder;

using Names = std::vector<std::string>;

constexpr const char* Policy = "<GfsPolicy IsEnabled=\"true\"><Weekly IsEnabled=\"true\" "
                               "KeepBackupsForNumberOfWeeks=\"6\" BeginTimeUtc=\"03/31/2024 22:00:00\" "
                               "DesiredTime=\"0\"/></GfsPolicy>\n";

TEST(Set, PrintsTheChangedDocumentAndTellsTheChange)
{
    const auto result = runCommand({"set", "-", "weekly.keepCount=8"}, Policy);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "<GfsPolicy IsEnabled=\"true\"><Weekly IsEnabled=\"true\" "
                             "KeepBackupsForNumberOfWeeks=\"8\" BeginTimeUtc=\"03/31/2024 22:00:00\" "
                             "DesiredTime=\"0\"/></GfsPolicy>\n");
    EXPECT_EQ(result.messages,
              "Weekly: keeps 6 weekly restore points, effective from 2024-03-31 22:00 UTC on, slot 0 -> keeps 8 weekly "
              "restore points, effective from 2024-03-31 22:00 UTC on, slot 0\n"
              "  Kept: 6 -> 8 (line 1)\n");
}

TEST(Set, SeveralFieldsOfAJob)
{
    const auto result = runCommand({"set", "nightly-file-server.xml", "maxDays=21", "schedule.jobStart.time=23:15",
                                    "preFreezeCommand=", "productSpecific=a=b"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, "Days: 14 days -> 21 days (line 8)\n"
                               "Script before freezing: /usr/local/sbin/share-quiesce -> none (line 6)\n"
                               "Product-specific text: none -> a=b (line 7)\n"
                               "Schedule / Start: starts Every day at 22:30 -> starts Every day at 23:15\n"
                               "  Time of day: 22:30 -> 23:15 (line 20)\n"
                               "Not written: 1 comment\n");
    const auto again = runCommand({"set", "-", "maxDays=21", "schedule.jobStart.time=23:15"}, result.output);
    EXPECT_EQ(again.output, result.output);
    EXPECT_EQ(again.messages, "standard input: nothing changed\n");
}

TEST(Set, WhatItLosesIsTold)
{
    const auto result = runCommand({"set", "-", "isEnabled=false"},
                                   "<GfsPolicy IsEnabled=\"true\" Colour=\"red\"><Daily/></GfsPolicy>");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, "Enabled: true -> false (line 1)\n"
                               "Not written: attribute Colour of GfsPolicy (line 1)\n"
                               "Not written: element Daily of GfsPolicy (line 1)\n");
}

TEST(Set, RoundTripOfANewDocument)
{
    const auto made = runCommand({"new", "job", "--weekly", "Mon,Fri", "--at", "22:30", "--keep-days", "14"});
    const auto changed = runCommand({"set", "-", "schedule.jobStart.scheduleType=monthly",
                                     "schedule.jobStart.dayOfMonth=last", "retentionType=Cycles", "maxPoints=5"},
                                    made.output);
    EXPECT_EQ(changed.exitCode, 0) << changed.messages;
    const auto asked = runCommand({"new", "job", "--monthly", "last", "--at", "22:30", "--keep-points", "5"});
    const auto difference = runCommand({"set", "-", "maxDays=7"}, changed.output);
    EXPECT_EQ(difference.output, asked.output);
}

TEST(Set, WritesIntoANewFile)
{
    const TemporaryFolder folder;
    folder.write("a.xml", Policy);
    const auto result = runCommand({"set", (folder / "a.xml"), "isEnabled=false", "-o", (folder / "b.xml")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(folder.text("a.xml"), Policy);
    EXPECT_EQ(folder.text("b.xml"), runCommand({"set", "-", "isEnabled=false"}, Policy).output);
    EXPECT_EQ(runCommand({"set", (folder / "a.xml"), "isEnabled=false", "-o", (folder / "b.xml")}).messages,
              (folder / "b.xml") + ": cannot be written: File exists\n");
}

TEST(SetInPlace, KeepsTheOldFile)
{
    const TemporaryFolder folder;
    folder.write("a.xml", Policy);
    const auto result = runCommand({"set", (folder / "a.xml"), "isEnabled=false", "--in-place"});
    EXPECT_EQ(result.exitCode, 0) << result.messages;
    EXPECT_EQ(result.output, "");
    EXPECT_NE(result.messages.find("Backup: "), std::string::npos);
    EXPECT_EQ(folder.names(), (Names{"a.xml", "a.xml.orig"}));
    EXPECT_EQ(folder.text("a.xml.orig"), Policy);
    EXPECT_EQ(folder.text("a.xml"), runCommand({"set", "-", "isEnabled=false"}, Policy).output);
}

TEST(SetInPlace, LeavesAFileAloneThatHoldsTheValues)
{
    const TemporaryFolder folder;
    const auto text = "<!-- kept -->" + std::string(Policy);
    folder.write("a.xml", text);
    const auto result = runCommand({"set", (folder / "a.xml"), "weekly.keepCount=6", "--in-place"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, (folder / "a.xml") + ": nothing changed\n");
    EXPECT_EQ(folder.names(), Names{"a.xml"});
    EXPECT_EQ(folder.text("a.xml"), text);
}

TEST(SetInPlace, WritesNothingWhenAnythingIsRefused)
{
    const TemporaryFolder folder;
    folder.write("a.xml", Policy);
    EXPECT_EQ(runCommand({"set", (folder / "a.xml"), "isEnabled=false", "weekly.keepCount=x", "--in-place"}).exitCode,
              3);
    EXPECT_EQ(runCommand({"set", (folder / "a.xml"), "isEnabled=false", "weekly.kept=1", "--in-place"}).exitCode, 2);
    EXPECT_EQ(folder.names(), Names{"a.xml"});
    EXPECT_EQ(folder.text("a.xml"), Policy);
}

TEST(SetJson, HasTheChangesAndTheDocument)
{
    const auto result = runCommand({"set", "-", "isEnabled=false", "--json"}, "<GfsPolicy IsEnabled=\"true\"/>");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(result.output, R"({
  "kind": "set",
  "schema": 1,
  "file": "standard input",
  "document": "<GfsPolicy IsEnabled=\"false\"/>\n",
  "changes": [
    {
      "path": "isEnabled",
      "label": "Enabled",
      "change": "changed",
      "first": {
        "value": true,
        "words": "true",
        "line": 1,
        "readFrom": "IsEnabled"
      },
      "second": {
        "value": false,
        "words": "false",
        "line": 1,
        "readFrom": "IsEnabled"
      }
    }
  ],
  "conversion": {
    "differences": [],
    "renamed": [],
    "lost": [],
    "respelled": [],
    "comments": 0,
    "instructions": 0,
    "writtenDefaults": 0
  }
}
)");
    EXPECT_EQ(
        runCommand({"set", "gfs-policy.xml", "enabled=x", "--json"}).output,
        "{\n  \"kind\": \"error\",\n  \"schema\": 1,\n  \"file\": \"gfs-policy.xml\",\n  \"failed\": \"There is no "
        "field [enabled] that can be set. The nearest one is [isEnabled].\"\n}\n");
}

TEST(SetFields, ListsWhatCanBeSet)
{
    EXPECT_EQ(runCommand({"set", "periodical-window.xml", "--fields"}).output,
              "Fields that can be set\n"
              "  monday               00-06, 20-24; takes the hours that differ from the kind, such as 0-6,20-24\n"
              "  tuesday              00-06, 20-24; takes the hours that differ from the kind, such as 0-6,20-24\n"
              "  wednesday            00-06, 20-24; takes the hours that differ from the kind, such as 0-6,20-24\n"
              "  thursday             00-06, 20-24; takes the hours that differ from the kind, such as 0-6,20-24\n"
              "  friday               00-06, 20-24; takes the hours that differ from the kind, such as 0-6,20-24\n"
              "  saturday             00-24; takes the hours that differ from the kind, such as 0-6,20-24\n"
              "  sunday               00-24; takes the hours that differ from the kind, such as 0-6,20-24\n"
              "  kind                 1; takes 0: open except in the listed hours, 1: closed except in them\n"
              "  hourlyOffsetMinutes  60; takes a number; it is stored only\n");
}

TEST(SetFields, OnATerminal)
{
    const std::string narrow = "\x1b[1mFields that can be set\x1b[0m\r\n"
                               "  monday               00-06, 20-24; takes\r\n"
                               "                       the hours that\r\n"
                               "                       differ from the\r\n"
                               "                       kind, such as\r\n"
                               "                       0-6,20-24\r\n"
                               "  tuesday  ";
    const std::string wide = "\x1b[1mFields that can be set\x1b[0m\r\n"
                             "  monday               00-06, 20-24; takes the hours that differ from the kind, such as "
                             "0-6,20-24\r\n"
                             "  tuesday  ";
    const std::vector<std::string> call{"set", "periodical-window.xml", "--fields"};
    EXPECT_EQ(runCommandOnTerminal(call, 40).output.substr(0, narrow.size()), narrow);
    EXPECT_EQ(runCommandOnTerminal(call, 200).output.substr(0, wide.size()), wide);
}

TEST(SetFields, MalformedUtf8InJsonIsReplaced)
{
    const auto result = runCommand({"set", "-", "--fields", "--json"}, "<JobOptions PrejobCommand=\"a\xff\"/>");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.output.find("\"value\": \"a\xEF\xBF\xBD\""), std::string::npos);
}

} // namespace
