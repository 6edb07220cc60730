#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/run_command.h"

namespace
{

using zelmodel_test::runCommand;

using Arguments = std::vector<std::string>;

constexpr const char* Started =
    "2024-03-07 22:30:00 UTC b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604 info Job started: nightly "
    "file server\n";
constexpr const char* ToRead = "2024-03-07 22:30:05 UTC b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604 processing Volume /srv: "
                               "40.2 GB to read\n";
constexpr const char* Changed = "2024-03-07 22:41:17 UTC b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604 warn File "
                                "/srv/mail/queue changed while it was read\n";
constexpr const char* NoSpace = "2024-03-07 23:04:02 UTC b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604 error No space left on "
                                "the repository\n";
constexpr const char* Failed = "2024-03-07 23:04:03 UTC b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604 info Job failed\n";
constexpr const char* Finished = "2024-03-06 22:58:31 UTC 5f0c2b7a-91d4-4e38-8a66-0d3be1f7c295 info Job finished\n";
constexpr const char* FirstId = "5f0c2b7a-91d4-4e38-8a66-0d3be1f7c295";
constexpr const char* SecondId = "{B1D04C7E-6A25-4F93-8E1B-7C3F52A9E604}";

std::string joined(const std::vector<const char*>& lines)
{
    std::string text;
    for (const auto* line : lines)
        text += line;
    return text;
}

struct FilterCase
{
    Arguments options;
    std::vector<const char*> lines;
};

TEST(LogFilter, TellsWhatPassesAllOptions)
{
    const FilterCase cases[] = {
        {{"--severity", "error"}, {NoSpace}},
        {{"--severity", "warn"}, {Changed, NoSpace}},
        {{"--severity", "info", "--since", "2024-03-07"}, {Started, Changed, NoSpace, Failed}},
        {{"--severity", "processing", "--since", "2024-03-07 22:30:05", "--until", "2024-03-07 23:04:02"},
         {ToRead, Changed, NoSpace}},
        {{"--since", "2024-03-06 22:58", "--until", "2024-03-06"}, {Finished}},
        {{"--until", "2024-03-06 22:58", "--since", "2024-03-06 22:58"}, {Finished}},
        {{"--until", "2024-03-06 22:58:31", "--since", "2024-03-06 22:58:31"}, {Finished}},
        {{"--until", "2024-03-05"}, {}},
        {{"--session", FirstId, "--grep", "finished"}, {Finished}},
        {{"--session", SecondId, "--severity", "warn"}, {Changed, NoSpace}},
        {{"--session", FirstId, "--session", SecondId, "--grep", "Job f"}, {Finished, Failed}},
        {{"--session", "00000000-0000-0000-0000-000000000000"}, {}},
        {{"--grep", "/srv/mail/queue"}, {Changed}},
        {{"--grep", "JOB"}, {}},
        {{"--grep", ""}, {Started}}};
    for (const auto& test : cases)
    {
        Arguments arguments{"log"};
        arguments.insert(arguments.end(), test.options.begin(), test.options.end());
        arguments.emplace_back("logs/nightly.log");
        const auto result = runCommand(arguments);
        EXPECT_EQ(result.exitCode, 0);
        // What is skipped is no record, so that no filter can hide it.
        EXPECT_EQ(result.messages, "logs/nightly.log: 2 of 11 lines skipped (--skipped lists them)\n");
        if (test.options.back().empty())
        {
            EXPECT_NE(result.output.find(Started), std::string::npos) << "an empty text is in every line";
            continue;
        }
        EXPECT_EQ(result.output, joined(test.lines)) << testing::PrintToString(arguments);
    }
}

TEST(LogFilter, GoesBeforeTheSummary)
{
    const auto result = runCommand({"log", "logs/nightly.log", "--summary", "--severity", "warn"});
    EXPECT_EQ(result.output, "1 session with 2 records\n"
                             "Session                               First                    Last                     "
                             "Duration  Processing  Info  Warn  Error  Worst\n"
                             "b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604  2024-03-07 22:41:17 UTC  2024-03-07 23:04:02 UTC  "
                             "00:22:45  0           0     1     1      error\n");
}

TEST(LogCheck, FindingsAreSkippedLinesAndErrorsThatAreTold)
{
    const std::pair<Arguments, int> cases[] = {{{"log", "logs/nightly.log.1"}, 0},
                                               {{"log", "logs/nightly.log.1", "--check"}, 0},
                                               {{"log", "logs/nightly.log"}, 0},
                                               {{"log", "logs/nightly.log", "--check"}, 1},
                                               {{"log", "logs/nightly.log", "--check", "--summary"}, 1},
                                               {{"log", "logs/nightly.log", "--check", "--json"}, 1},
                                               // The skipped lines are left.
                                               {{"log", "logs/nightly.log", "--check", "--session", FirstId}, 1}};
    for (const auto& [arguments, code] : cases)
    {
        EXPECT_EQ(runCommand(arguments).exitCode, code) << testing::PrintToString(arguments);
    }
    const std::string error = NoSpace;
    EXPECT_EQ(runCommand({"log", "-", "--check"}, error).exitCode, 1);
    EXPECT_EQ(runCommand({"log", "-", "--check", "--until", "2024-03-06"}, error).exitCode, 0);
    EXPECT_EQ(runCommand({"log", "-", "--check"}, Changed).exitCode, 0);
}

} // namespace
