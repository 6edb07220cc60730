#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "show_case.h"
#include "support/run_command.h"
#include "support/temporary_folder.h"

namespace
{

using zelmodel_test::acceptedExamples;
using zelmodel_test::example;
using zelmodel_test::runCommand;
using zelmodel_test::runCommandOnTerminal;
using zelmodel_test::TemporaryFolder;

struct DiffCase
{
    const char* first;
    const char* second;
    int exitCode;
    const char* output;
};

std::ostream& operator<<(std::ostream& stream, const DiffCase& test)
{
    return stream << test.first << " and " << test.second;
}

class Diff : public testing::TestWithParam<DiffCase>
{
};

TEST_P(Diff, TellsEachDifferenceInWords)
{
    const auto result = runCommand({"diff", GetParam().first, GetParam().second});
    EXPECT_EQ(result.exitCode, GetParam().exitCode);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(result.output, GetParam().output);
}

INSTANTIATE_TEST_SUITE_P(
    Examples, Diff,
    testing::Values(
        DiffCase{"managing-server.xml", "managing-server-twin.xml", 0,
                 "Not carried by managing-server.xml (job options in the managing server's form): Snapshot, Script "
                 "before freezing, Script after thawing, Freeze and thaw failures, Freeze and thaw time-out, Script "
                 "before the job, Script after the job, Retries, Time between retries, Indexing, GFS policy, "
                 "Product-specific text and Schedule\n"},
        DiffCase{"managing-server.xml", "older/retain-days-as-attribute.xml", 1,
                 "Compression: Zstd3, level 3 of 0 to 4 -> Lz4, level 2 of 0 to 4 (line 4 -> line 2)\n"
                 "Block size: 4096 KB -> 1024 KB (line 5 -> default)\n"
                 "Restore points: 14 restore points -> 7 restore points (line 6 -> line 2)\n"
                 "Days: 21 days -> 7 days (line 7 -> default)\n"
                 "Deleted data: data of machines that vanished from the job is kept 30 days -> data of machines that "
                 "vanished from the job is kept 45 days (line 11 -> line 3, older form: RetainDays)\n"
                 "Deduplication: off -> on (line 9 -> default)\n"
                 "Not carried by managing-server.xml (job options in the managing server's form): Snapshot, Script "
                 "before freezing, Script after thawing, Freeze and thaw failures, Freeze and thaw time-out, Script "
                 "before the job, Script after the job, Retries, Time between retries, Indexing, GFS policy, "
                 "Product-specific text and Schedule\n"},
        DiffCase{"older/schedule-daily.xml", "older/schedule-monthly.xml", 1,
                 "Compression: Lz4, level 2 of 0 to 4 -> Zstd9, level 4 of 0 to 4 (line 3 -> line 4)\n"
                 "Snapshot: required -> none (default -> line 4, older form: IsSnapshotRequired)\n"
                 "Schedule / Start: starts Every Monday, Tuesday, Wednesday, Thursday, Friday at 20:00 -> starts Every "
                 "15 day of months January, April, July, October at 06:05\n"
                 "  Kind: weekly -> monthly (default -> line 5)\n"
                 "  Time of day: 20:00 -> 06:05 (line 4 -> line 6)\n"
                 "  Week days: Monday, Tuesday, Wednesday, Thursday, Friday -> Sunday, Monday, Tuesday, Wednesday, "
                 "Thursday, Friday, Saturday (line 5 -> default)\n"
                 "  Months: January, February, March, April, May, June, July, August, September, October, November, "
                 "December -> January, April, July, October (default -> line 7)\n"
                 "  Day of the month: not set -> 15 (default -> line 5)\n"},
        DiffCase{"gfs-policy.xml", "gfs-policy-long-names.xml", 1,
                 "Weekly: keeps 6 weekly restore points, effective from 2024-03-31 22:00 UTC on, slot 0 -> keeps 8 "
                 "weekly restore points, effective at once, slot 1\n"
                 "  Kept: 6 -> 8 (line 4 -> line 3)\n"
                 "  Effective from: 03/31/2024 22:00:00 -> 01/01/1970 00:00:00 (line 4 -> line 3)\n"
                 "  Slot: 0 -> 1 (line 4 -> line 3)\n"
                 "Monthly: off (set to keep 3 monthly restore points, effective from 2024-04-01 00:00 UTC on, slot 6) "
                 "-> none (line 5 -> default)\n"
                 "Yearly: none -> keeps 1 yearly restore point, effective from 2023-12-31 23:00 UTC on, slot 12 "
                 "(default -> line 4)\n"},
        DiffCase{"managing-server-twin.xml", "schedule-options.xml", 1,
                 "Start: starts Last Sunday of every month at 03:15 -> starts Every last day of every month at 23:45\n"
                 "  Time of day: 03:15 -> 23:45 (line 16 -> line 10)\n"
                 "  Week days: Sunday -> Sunday, Monday, Tuesday, Wednesday, Thursday, Friday, Saturday (line 11 -> "
                 "line 5)\n"
                 "  Which of the week days: Last -> Every (line 10 -> line 4)\n"
                 "  Day of the month: not set -> the last (line 10 -> line 4)\n"
                 "Synthetic full: disabled, set to Every 1 day of every month -> Every last day of months March, June, "
                 "September, December\n"
                 "  Enabled: false -> true (line 25 -> line 19)\n"
                 "  Months: January, February, March, April, May, June, July, August, September, October, November, "
                 "December -> March, June, September, December (line 28 -> line 22)\n"
                 "  Day of the month: 1 -> the last (line 25 -> line 19)\n"
                 "Only the schedule was compared: both documents hold it\n"},
        DiffCase{"immutability.xml", "direct-backup-immutability.xml", 1,
                 "Days: 30 days -> 14 days (line 3 -> line 5)\n"
                 "Period: follows the retention of the job -> the one that is set on the repository (line 3 -> "
                 "default)\n"
                 "Only the immutability of backups was compared: both documents hold it\n"},
        DiffCase{"repository-limitations.xml", "repository-limitations-enclosed.xml", 1,
                 "Repository: 0a7f2c64-51d8-4c1e-9a34-6b1f0e92d7c5 -> 5d3e9f10-7b42-4e6a-8c91-2f60a4b8d317 (line 2 -> "
                 "line 5)\n"
                 "Backup mode: number 2 of the job model -> number 0 of the job model (line 2 -> line 5)\n"
                 "Active full: allowed -> not allowed (line 2 -> line 5)\n"
                 "Compact of full: not allowed -> allowed (line 3 -> line 6)\n"
                 "Increments: transformed into synthetic backups -> not transformed (line 3 -> line 6)\n"
                 "Full backup: not transformed -> transformed into a synthetic one (line 3 -> line 6)\n"
                 "Backup chain: at most 14 restore points -> -1, no number of restore points (line 4 -> line 7)\n"},
        DiffCase{"object-storage.xml", "cloud-container.xml", 1,
                 "Nothing can be compared: object-storage.xml is S3 parameters, cloud-container.xml is a cloud "
                 "container\n"},
        // The managing server's form never carries a schedule, so that there is nothing to compare.
        DiffCase{"managing-server.xml", "schedule-options.xml", 1,
                 "Nothing can be compared: managing-server.xml is job options in the managing server's form, "
                 "schedule-options.xml is schedule options\n"}));

TEST(DiffOfEach, ExampleWithItselfIsNothing)
{
    const auto paths = acceptedExamples();
    for (const auto& path : paths)
    {
        const auto result = runCommand({"diff", path, path});
        EXPECT_EQ(result.exitCode, 0) << path;
        EXPECT_EQ(result.output, "") << path;
        EXPECT_EQ(result.messages, "") << path;
    }
    EXPECT_GT(paths.size(), 40U);
}

TEST(DiffText, LayoutAndOrderPlayNoPart)
{
    const auto same = runCommand({"diff", "job-state.xml", "-"},
                                 "<BackupJobState\n\nObjectStorageOperationMode='3'  Version='2'></BackupJobState>");
    EXPECT_EQ(same.exitCode, 0) << same.messages;
    EXPECT_EQ(same.output, "");
    const auto other = runCommand({"diff", "job-state.xml", "-"},
                                  "<BackupJobState\n\nObjectStorageOperationMode='2'  Version='2'></BackupJobState>");
    EXPECT_EQ(other.exitCode, 1);
    EXPECT_EQ(other.output, "Object storage mode: number 3 -> number 2 (line 2 -> line 3)\n");
}

TEST(DiffText, AliasesAndVariantsOfNamesPlayNoPart)
{
    const auto expectSame = [](const std::string& first, const std::string& second) {
        const TemporaryFolder folder;
        const auto result = runCommand({"diff", folder.write("first.xml", first), "-"}, second);
        EXPECT_EQ(result.exitCode, 0) << first << result.output << result.messages;
        EXPECT_EQ(result.output, "") << first;
    };
    expectSame("<GfsPolicy IsEnabled='1'><Weekly IsEnabled='true' KeepBackupsForNumberOfWeeks='4' "
               "BeginTimeUtc='01/01/0001 00:00:00' DesiredTime='5'/></GfsPolicy>",
               "<GfsPolicy IsEnabled='TRUE'><GfsWeeklyPolicy IsEnabled='1' NumberOfWeeks='04' "
               "BeginTimeUtc='01/01/1970 00:00:00' DesiredTime='5'/></GfsPolicy>");
    expectSame("<JobOptions Compression='ZlibHigh' BlockSize='Default' IsSnapshotRequired='true' IndexOnly='/etc'/>",
               "<JobOptions Compression='Zstd9' BlockSize='KbBlockSize1024' SnapshotMode='NoSnapshot'>"
               "<Indexing Type='IndexOnly' Folders='/etc'/></JobOptions>");
    expectSame("<JobOptions MaxPoints='7'><RetainDays RetainDays='30'/></JobOptions>",
               "<JobOptions><!-- days --><RetainDays>\n30\n</RetainDays></JobOptions>");
}

TEST(DiffText, ALoneScheduleIsAScheduleToo)
{
    auto text = example("schedule-options.xml");
    text.erase(text.find("<ScheduleOptions>"), std::string("<ScheduleOptions>").size());
    text.erase(text.find("</ScheduleOptions>"));
    const auto result = runCommand({"diff", "schedule-options.xml", "-"}, text);
    EXPECT_EQ(result.exitCode, 0) << result.messages;
    EXPECT_EQ(result.output, "");
}

TEST(DiffText, ItemsOfAListAreFoundAgain)
{
    const std::string before = "<FullTransformSpec Id='' BackupId='' JobTargetFile='f'><LastIncrementPointIds>";
    const std::string a = "<Guid value='aaaaaaaa-0000-0000-0000-000000000000'/>";
    const std::string b = "<Guid value='bbbbbbbb-0000-0000-0000-000000000000'/>";
    const std::string c = "<Guid value='cccccccc-0000-0000-0000-000000000000'/>";
    const std::string after = "</LastIncrementPointIds></FullTransformSpec>";
    const TemporaryFolder folder;
    const auto path = folder.write("first.xml", before + a + b + c + after);
    const auto result = runCommand({"diff", path, "-"}, before + b + c + a + after);
    EXPECT_EQ(result.output, "Last increments / 1: only in " + path +
                                 ": aaaaaaaa-0000-0000-0000-000000000000 (line 1)\n"
                                 "Last increments / 3: only in standard input: "
                                 "aaaaaaaa-0000-0000-0000-000000000000 (line 1)\n");
}

TEST(DiffText, ValuesAreToldWhereWordsAreTooRound)
{
    auto text = example("session-details.xml");
    text.replace(text.find("1649267441664"), 13, "1649267441665");
    EXPECT_EQ(runCommand({"diff", "session-details.xml", "-"}, text).output,
              "Free space: 1649267441664 -> 1649267441665 (line 3 -> line 3)\n");
}

TEST(DiffText, SecretsDifferButAreNotTold)
{
    auto text = example("object-storage.xml");
    text.replace(text.find("not-a-real-password"), 19, "not-a-real-passwort");
    const auto hidden = runCommand({"diff", "object-storage.xml", "-"}, text);
    EXPECT_EQ(hidden.exitCode, 1);
    EXPECT_EQ(hidden.output,
              "Endpoint / Proxy / Password: (hidden, 19 characters) -> (hidden, 19 characters) (line 9 -> line 9)\n");
    EXPECT_EQ(runCommand({"diff", "object-storage.xml", "-", "--reveal"}, text).output,
              "Endpoint / Proxy / Password: not-a-real-password -> not-a-real-passwort (line 9 -> line 9)\n");
    EXPECT_EQ(runCommand({"diff", "object-storage.xml", "-", "--json"}, text).output.find("not-a-real"),
              std::string::npos);
}

TEST(DiffText, ControlCharactersAreShownNotSent)
{
    const auto result =
        runCommand({"diff", "mount-session.xml", "-"}, "<MountSessionDetails MountPoint=\"/mnt/\xc2\x9b&#10;\xff\" "
                                                       "OibId='b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604'/>");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.output.find("-> /mnt/\\x9b\\n\\xff (line 2 -> line 1)\n"), std::string::npos) << result.output;
}

TEST(DiffJson, HoldsBothSidesOfEachField)
{
    const auto result = runCommand({"diff", "nightly-file-server.xml", "-", "--json"}, [] {
        auto text = example("nightly-file-server.xml");
        text.replace(text.find("Minutes=\"30\""), 12, "Minutes=\"45\"");
        return text;
    }());
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, R"({
  "kind": "diff",
  "schema": 1,
  "file": "nightly-file-server.xml",
  "secondFile": "standard input",
  "same": false,
  "comparable": true,
  "differences": [
    {
      "path": "schedule/jobStart",
      "label": "Schedule / Start",
      "change": "changed",
      "first": {
        "value": "",
        "words": "starts Every day at 22:30",
        "line": 14,
        "readFrom": "Schedule"
      },
      "second": {
        "value": "",
        "words": "starts Every day at 22:45",
        "line": 14,
        "readFrom": "Schedule"
      },
      "fields": [
        {
          "path": "schedule/jobStart/time",
          "label": "Schedule / Start / Time of day",
          "change": "changed",
          "first": {
            "value": "22:30",
            "words": "22:30",
            "line": 20,
            "readFrom": "Hours",
            "fields": {
              "hours": {
                "value": 22,
                "words": "22",
                "line": 20,
                "readFrom": "Hours"
              },
              "minutes": {
                "value": 30,
                "words": "30",
                "line": 20,
                "readFrom": "Minutes"
              }
            }
          },
          "second": {
            "value": "22:45",
            "words": "22:45",
            "line": 20,
            "readFrom": "Hours",
            "fields": {
              "hours": {
                "value": 22,
                "words": "22",
                "line": 20,
                "readFrom": "Hours"
              },
              "minutes": {
                "value": 45,
                "words": "45",
                "line": 20,
                "readFrom": "Minutes"
              }
            }
          }
        }
      ]
    }
  ],
  "notCarriedByFirst": [],
  "notCarriedBySecond": []
}
)");
}

TEST(DiffJson, TellsThatNothingCanBeCompared)
{
    const auto result = runCommand({"diff", "object-storage.xml", "cloud-container.xml", "--json"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.output.find("\"same\": false,\n  \"comparable\": false,"), std::string::npos) << result.output;
}

TEST(DiffJson, WhatOnlyOneHoldsHasNoOtherSide)
{
    const std::string point = "<Guid value=\"1f6c8a42-90d7-4e35-b3a8-62e5d4c7f019\"/>";
    auto without = example("delete-points.xml");
    without.erase(without.find(point), point.size());
    const struct
    {
        std::string change;
        std::string present;
        std::string absent;
        std::vector<std::string> call;
    } rows[] = {{"onlyInFirst", "first", "second", {"diff", "delete-points.xml", "-", "--json"}},
                {"onlyInSecond", "second", "first", {"diff", "-", "delete-points.xml", "--json"}}};
    for (const auto& row : rows)
    {
        const auto result = runCommand(row.call, without);
        EXPECT_EQ(result.exitCode, 1);
        const auto json = nlohmann::json::parse(result.output);
        const auto& points = json.at("differences").at(0);
        EXPECT_EQ(points.at("change"), "changed");
        ASSERT_EQ(points.at("fields").size(), 1U) << result.output;
        const auto& difference = points.at("fields").at(0);
        EXPECT_EQ(difference.at("change"), row.change);
        EXPECT_EQ(difference.at(row.present).at("value"), "1f6c8a42-90d7-4e35-b3a8-62e5d4c7f019");
        EXPECT_EQ(difference.count(row.absent), 0U);
    }
}

TEST(DiffJson, NamesThePartThatBothHold)
{
    const auto result = runCommand({"diff", "immutability.xml", "direct-backup-immutability.xml", "--json"});
    const auto json = nlohmann::json::parse(result.output);
    EXPECT_EQ(json.at("comparable"), true);
    EXPECT_EQ(json.at("sharedPart"), "immutability of backups");
}

TEST(DiffJson, ReplacesMalformedText)
{
    const auto result =
        runCommand({"diff", "mount-session.xml", "-", "--json"}, "<MountSessionDetails MountPoint=\"\xff\" OibId=''/>");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.output.find("\"value\": \"\xEF\xBF\xBD\""), std::string::npos) << result.output;
}

TEST(DiffOnATerminal, LinesAreAsWideAsIt)
{
    EXPECT_EQ(runCommandOnTerminal({"diff", "immutability.xml", "direct-backup-immutability.xml"}, 40).output,
              "Days: 30 days -> 14 days (line 3 ->\r\n"
              "    line 5)\r\n"
              "Period: follows the retention of the\r\n"
              "    job -> the one that is set on the\r\n"
              "    repository (line 3 -> default)\r\n"
              "Only the immutability of backups was\r\n"
              "    compared: both documents hold it\r\n");
    EXPECT_EQ(runCommandOnTerminal({"diff", "immutability.xml", "direct-backup-immutability.xml"}, 200).output,
              "Days: 30 days -> 14 days (line 3 -> line 5)\r\n"
              "Period: follows the retention of the job -> the one that is set on the repository (line 3 -> "
              "default)\r\n"
              "Only the immutability of backups was compared: both documents hold it\r\n");
}

TEST(DiffFailures, TheWorseOfBothFilesIsTold)
{
    const auto refused = runCommand({"diff", "continuous.xml", "refused/malformed.xml"});
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_EQ(refused.output, "");
    EXPECT_EQ(refused.messages.find("refused/malformed.xml: refused\n"), 0U) << refused.messages;
    const auto missing = runCommand({"diff", "continuous.xml", "missing.xml"});
    EXPECT_EQ(missing.exitCode, 4);
    EXPECT_EQ(missing.messages, "missing.xml: cannot be read: No such file or directory\n");
    EXPECT_EQ(runCommand({"diff", "refused/malformed.xml", "missing.xml"}).exitCode, 4);
    EXPECT_EQ(runCommand({"diff", "-", "-"}).exitCode, 2);
    EXPECT_EQ(runCommand({"diff", "continuous.xml"}).exitCode, 2);
}

} // namespace
