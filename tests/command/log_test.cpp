#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/run_command.h"

namespace
{

using zelmodel_test::runCommand;
using zelmodel_test::runCommandOnTerminal;
using namespace std::string_literals;

constexpr const char* Nightly = "logs/nightly.log";
constexpr const char* TwoSkipped = "logs/nightly.log: 2 of 11 lines skipped (--skipped lists them)\n";

TEST(Log, TellsTheRecordsAsTheyStand)
{
    const auto result = runCommand({"log", Nightly});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(
        result.output,
        "2024-03-06 22:30:00 UTC 5f0c2b7a-91d4-4e38-8a66-0d3be1f7c295 info Job started: nightly file server\n"
        "2024-03-06 22:30:04 UTC 5f0c2b7a-91d4-4e38-8a66-0d3be1f7c295 processing Volume /srv: 40.0 GB to read\n"
        "2024-03-06 22:58:31 UTC 5f0c2b7a-91d4-4e38-8a66-0d3be1f7c295 info Job finished\n"
        "2024-03-07 22:30:00 UTC b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604 info Job started: nightly file server\n"
        "2024-03-07 22:30:05 UTC b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604 processing Volume /srv: 40.2 GB to read\n"
        "2024-03-07 22:41:17 UTC b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604 warn File /srv/mail/queue changed while it was "
        "read\n"
        "2024-03-07 23:04:02 UTC b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604 error No space left on the repository\n"
        "2024-03-07 23:04:03 UTC b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604 info Job failed\n");
    EXPECT_EQ(result.messages, TwoSkipped);
}

TEST(LogSummary, HasARowForEachSession)
{
    const auto result = runCommand({"log", Nightly, "--summary"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output,
              "2 sessions with 8 records\n"
              "Session                               First                    Last                     Duration  "
              "Processing  Info  Warn  Error  Worst\n"
              "5f0c2b7a-91d4-4e38-8a66-0d3be1f7c295  2024-03-06 22:30:00 UTC  2024-03-06 22:58:31 UTC  00:28:31  "
              "1           2     0     0      info\n"
              "b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604  2024-03-07 22:30:00 UTC  2024-03-07 23:04:03 UTC  00:34:03  "
              "1           2     1     1      error\n");
    EXPECT_EQ(result.messages, TwoSkipped);
}

TEST(LogSummary, TellsBelowTheRowWhatHasNoRoomInIt)
{
    const auto wide = runCommandOnTerminal({"log", Nightly, "--summary", "--no-color"}, 200).output;
    EXPECT_NE(wide.find("00:34:03  1           2     1     1      error\r\n"), std::string::npos) << wide;
    const auto narrow = runCommandOnTerminal({"log", Nightly, "--summary", "--no-color"}, 40).output;
    EXPECT_NE(narrow.find("2 sessions with 8 records\r\n"
                          "Session\r\n"
                          "5f0c2b7a-91d4-4e38-8a66-0d3be1f7c295\r\n"
                          "    First: 2024-03-06 22:30:00 UTC\r\n"
                          "    Last: 2024-03-06 22:58:31 UTC\r\n"
                          "    Duration: 00:28:31\r\n"
                          "    Processing: 1\r\n"
                          "    Info: 2\r\n"
                          "    Warn: 0\r\n"
                          "    Error: 0\r\n"
                          "    Worst: info\r\n"
                          "b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604\r\n"),
              std::string::npos)
        << narrow;
}

} // namespace
