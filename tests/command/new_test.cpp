#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/run_command.h"

namespace
{

using zelmodel_test::runCommand;
using zelmodel_test::runCommandOnTerminal;

using Arguments = std::vector<std::string>;

Arguments joined(Arguments first, const Arguments& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

/// The line of `show` that has the label, without its margin and label.
std::string wordsOf(const std::string& shown, const std::string& label)
{
    const auto at = shown.find(' ' + label + "  ");
    if (at == std::string::npos)
        return "no field " + label;
    const auto words = shown.find_first_not_of(' ', at + 1 + label.size());
    return shown.substr(words, shown.find('\n', words) - words);
}

struct OptionCase
{
    Arguments options;
    const char* label;
    const char* words;
};

std::ostream& operator<<(std::ostream& stream, const OptionCase& test)
{
    return stream << testing::PrintToString(test.options);
}

class NewJob : public testing::TestWithParam<OptionCase>
{
};

TEST_P(NewJob, HoldsWhatTheOptionsSay)
{
    const auto made = runCommand(joined({"new", "job"}, GetParam().options));
    ASSERT_EQ(made.exitCode, 0) << made.messages;
    EXPECT_EQ(made.messages, "");
    const auto shown = runCommand({"show", "-"}, made.output);
    EXPECT_EQ(shown.exitCode, 0);
    EXPECT_EQ(wordsOf(shown.output, GetParam().label), GetParam().words) << shown.output;
}

INSTANTIATE_TEST_SUITE_P(
    Start, NewJob,
    testing::Values(
        OptionCase{{}, "Start", "disabled, set to Every day at 00:30"},
        OptionCase{{"--daily"}, "Start", "starts Every day at 00:30"},
        OptionCase{{"--daily", "--at", "22:30"}, "Start", "starts Every day at 22:30"},
        OptionCase{{"--at", "7:05", "--weekly", "fri,Mon"}, "Start", "starts Every Monday, Friday at 07:05"},
        OptionCase{{"--weekly", "Sat-Mon"}, "Start", "starts Every Sunday, Monday, Saturday at 00:30"},
        OptionCase{{"--monthly", "15"}, "Start", "starts Every 15 day of every month at 00:30"},
        OptionCase{{"--monthly", "last", "--months", "Jan,Jul"},
                   "Start",
                   "starts Every last day of months January, July at 00:30"},
        OptionCase{{"--monthly", "first Mon", "--at", "23:59"}, "Start", "starts First Monday of every month at 23:59"},
        OptionCase{{"--monthly", "Last Sunday", "--months", "Nov-Feb"},
                   "Start",
                   "starts Last Sunday of months January, February, November, December at 00:30"},
        OptionCase{{"--every", "4h"}, "Start", "starts Every 4 hours (periodical)"},
        OptionCase{{"--every", "90m"}, "Start", "starts Every 1 hour 30 minutes (periodical)"},
        OptionCase{{"--every", "1d"}, "Start", "starts Every 24 hours (periodical)"},
        OptionCase{{"--continuously"}, "Start", "starts Continuously"}));

INSTANTIATE_TEST_SUITE_P(
    Fulls, NewJob,
    testing::Values(
        OptionCase{{}, "Active full", "disabled, set to Every 1 day of every month"},
        OptionCase{{"--active-full", "Sat"}, "Active full", "Every Saturday"},
        OptionCase{{"--active-full", "1", "--active-full-months", "Apr"}, "Active full", "Every 1 day of months April"},
        OptionCase{
            {"--synthetic-full", "Mon-Fri"}, "Synthetic full", "Every Monday, Tuesday, Wednesday, Thursday, Friday"},
        OptionCase{{"--synthetic-full", "last"}, "Synthetic full", "Every last day of every month"},
        OptionCase{{"--synthetic-full", "second Tue", "--synthetic-full-months", "Jan-Mar"},
                   "Synthetic full",
                   "Second Tuesday of months January, February, March"}));

INSTANTIATE_TEST_SUITE_P(
    Storage, NewJob,
    testing::Values(OptionCase{{}, "Retention", "keeps the restore points of 7 days"},
                    OptionCase{{"--keep-days", "730"}, "Retention", "keeps the restore points of 730 days"},
                    OptionCase{{"--keep-points", "1"}, "Retention", "keeps 1 restore point"},
                    OptionCase{{"--keep-deleted", "30"},
                               "Deleted data",
                               "data of machines that vanished from the job is kept 30 days"},
                    OptionCase{{"--compression", "Zstd9"}, "Compression", "Zstd9, level 4 of 0 to 4"},
                    OptionCase{{"--compression", "0"}, "Compression", "NoCompression, level 0 of 0 to 4"},
                    OptionCase{{"--block-size", "4096"}, "Block size", "4096 KB"},
                    OptionCase{{"--block-size", "KbBlockSize256"}, "Block size", "256 KB"},
                    OptionCase{{"--no-dedup"}, "Deduplication", "off"},
                    OptionCase{{"--gfs", "weekly=4,monthly=12,yearly=7"},
                               "Yearly",
                               "keeps 7 yearly restore points, effective at once, slot 1"},
                    OptionCase{{"--gfs", "weekly=4"}, "GFS policy", "on"},
                    OptionCase{{"--index", "all"}, "Indexing", "all files and folders"},
                    OptionCase{{"--index", "none"}, "Indexing", "off"},
                    OptionCase{{"--index", "only:/srv;/home"}, "Indexing", "only these folders: /srv;/home"},
                    OptionCase{{"--index", "except:/a:b"}, "Indexing", "all but these folders: /a:b"}));

INSTANTIATE_TEST_SUITE_P(
    Run, NewJob,
    testing::Values(
        OptionCase{{"--snapshot", "NoSnapshot"}, "Snapshot", "none"},
        OptionCase{{"--pre-freeze", "/bin/a \"b\" <c>"}, "Script before freezing", "/bin/a \"b\" <c>"},
        OptionCase{{"--post-thaw", "/bin/b"}, "Script after thawing", "/bin/b"},
        OptionCase{{"--pre-job", "/bin/c"}, "Script before the job", "/bin/c"},
        OptionCase{{"--post-job", "/bin/d"}, "Script after the job", "/bin/d"},
        OptionCase{{"--ignore-script-failures"}, "Freeze and thaw failures", "ignored"},
        OptionCase{{"--script-timeout", "900"}, "Freeze and thaw time-out", "900"},
        OptionCase{{"--retries", "3"}, "Retries", "3 times with 10 minutes between"},
        OptionCase{{"--retries", "1", "--retry-wait", "1h30m"}, "Retries", "1 time with 1 hour 30 minutes between"},
        OptionCase{{"--product-specific", "x=1"}, "Product-specific text", "x=1"}));

TEST(NewSchedule, IsADocumentOfItsOwn)
{
    const auto made = runCommand({"new", "schedule", "--weekly", "Mon,Fri", "--at", "21:00", "--active-full", "Fri"});
    EXPECT_EQ(made.exitCode, 0);
    EXPECT_EQ(runCommand({"next", "-", "--from", "2024-03-01", "-n", "2"}, made.output).output,
              "starts Every Monday, Friday at 21:00, local time of UTC (TZ), UTC+00:00 on 2024-03-01\n"
              "Date        Day     Start  Full\n"
              "2024-03-01  Friday  21:00  active full\n"
              "2024-03-04  Monday  21:00\n");
}

TEST(NewWindow, OpenAndClosedHours)
{
    EXPECT_EQ(runCommand({"new", "window", "--open", "Mon-Fri 0-6,20-24,Sat 0-24", "--offset", "60"}).output,
              "<ScheduleWindow Minutes=\"60\" Kind=\"1\"><Days><Monday Intervals=\"00-06, 20-24\"/><Tuesday "
              "Intervals=\"00-06, 20-24\"/><Wednesday Intervals=\"00-06, 20-24\"/><Thursday Intervals=\"00-06, "
              "20-24\"/><Friday Intervals=\"00-06, 20-24\"/><Saturday Intervals=\"00-24\"/></Days></ScheduleWindow>\n");
    EXPECT_EQ(runCommand({"new", "window", "--closed", "Mon 8-17"}).output,
              "<ScheduleWindow Minutes=\"0\" Kind=\"0\"><Days><Monday Intervals=\"08-17\"/></Days></ScheduleWindow>\n");
    EXPECT_EQ(runCommand({"new", "window"}).output,
              "<ScheduleWindow Minutes=\"0\" Kind=\"1\"><Days/></ScheduleWindow>\n");
}

TEST(NewGfs, Rules)
{
    EXPECT_EQ(runCommand({"new", "gfs", "--gfs", "monthly=12"}).output,
              "<GfsPolicy IsEnabled=\"true\"><Monthly IsEnabled=\"true\" KeepBackupsForNumberOfMonths=\"12\" "
              "BeginTimeUtc=\"01/01/1970 00:00:00\" DesiredTime=\"1\"/></GfsPolicy>\n");
}

TEST(NewJobAndWindow, ComeAsTwoDocuments)
{
    const auto made = runCommand({"new", "job", "--daily", "--window", "20-24"});
    EXPECT_EQ(made.exitCode, 0);
    EXPECT_EQ(made.messages,
              "The window is a document of its own, on the second line; -o FILE writes each into its file.\n");
    const auto second = made.output.find('\n') + 1;
    const auto shown = runCommand({"show", "-"}, made.output.substr(second));
    EXPECT_EQ(wordsOf(shown.output, "Sunday"), "open 20:00-24:00");
    EXPECT_EQ(wordsOf(runCommand({"show", "-"}, made.output).output, "Start"), "starts Every day at 00:30");
}

TEST(NewJson, HasTheDocuments)
{
    EXPECT_EQ(
        runCommand({"new", "window", "--json"}).output,
        "{\n  \"kind\": \"new\",\n  \"schema\": 1,\n  \"file\": \"new window\",\n  \"documents\": [\n    {\n      "
        "\"document\": \"<ScheduleWindow Minutes=\\\"0\\\" Kind=\\\"1\\\"><Days/></ScheduleWindow>\\n\"\n    }\n"
        "  ]\n}\n");
    EXPECT_EQ(
        runCommand({"new", "gfs", "--json", "--gfs", "daily=1"}).output,
        "{\n  \"kind\": \"error\",\n  \"schema\": 1,\n  \"file\": \"new gfs\",\n  \"failed\": \"There is no field "
        "[daily.isEnabled] that can be set. The nearest one is [yearly.isEnabled].\"\n}\n");
}

TEST(NewOnATerminal, EscapesWhatActsOnIt)
{
    const auto made = runCommandOnTerminal({"new", "job", "--pre-job",
                                            "a\xE2\x80\xAE"
                                            "b"},
                                           200);
    EXPECT_NE(made.output.find("PrejobCommand=\"a\\u202eb\""), std::string::npos) << made.output;
}

} // namespace
