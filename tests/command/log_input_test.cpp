#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/gzip_bytes.h"
#include "support/run_command.h"
#include "support/temporary_folder.h"

namespace
{

using zelmodel_test::gzipBytes;
using zelmodel_test::runCommand;
using zelmodel_test::runCommandInto;
using zelmodel_test::TemporaryFolder;
using namespace std::string_literals;

const std::string Start = "2024-03-07 13:05:09 UTC 5f0c2b7a-91d4-4e38-8a66-0d3be1f7c295 info ";

TEST(LogInput, EmptyFileAndEmptyLines)
{
    for (const auto& input : {""s, "\n\n"s, "\r\n"s, gzipBytes("")})
    {
        const auto result = runCommand({"log", "-"}, input);
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.messages, "");
    }
    EXPECT_EQ(runCommand({"log", "-", "--summary"}).output, "0 sessions with 0 records\n");
}

TEST(LogInput, LineEndsOfOtherSystemsAndNone)
{
    const auto result = runCommand({"log", "-"}, Start + "one\r\n\r\n" + Start + "two\n" + Start + "three");
    EXPECT_EQ(result.output, Start + "one\n" + Start + "two\n" + Start + "three\n");
    EXPECT_EQ(result.messages, "");
}

TEST(LogInput, NothingActsOnATerminal)
{
    const auto result = runCommand({"log", "-", "--skipped"}, Start + "\x1b[31mred\ttab\x7f \xff \xe2\x80\xae\n" +
                                                                  Start + "nul\0nul\n\x1b]0;title\x07 no record\0\n"s);
    EXPECT_EQ(result.output, Start + "\\x1b[31mred\\ttab\\x7f \\xff \\u202e\n" + Start + "nul\\x00nul\n");
    EXPECT_EQ(result.messages, "standard input:3: skipped: Line [\\x1b]0;title\\x07 no record\\x00] is skipped.\n");
}

TEST(LogInput, SkippedLinesAreListedWithNumberAndReason)
{
    const auto result = runCommand({"log", "logs/nightly.log", "--skipped", "--severity", "error"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, "logs/nightly.log:6: skipped: Line [Log of the service restarted] is skipped.\n"
                               "logs/nightly.log:8: skipped: Invalid severity value string [Warn].\n");
}

TEST(LogInput, ALineThatIsTooLongIsSkipped)
{
    const std::string filling(65536 - Start.size(), 'x');
    const auto longest = runCommand({"log", "-"}, Start + filling + "\n");
    EXPECT_EQ(longest.output, Start + filling + "\n");
    const auto longer = runCommand({"log", "-", "--skipped"}, Start + filling + "x\n" + Start + "after\n");
    EXPECT_EQ(longer.output, Start + "after\n");
    EXPECT_EQ(longer.messages, "standard input:1: skipped: The line is longer than 65536 bytes.\n");
}

TEST(LogInput, LongReasonsAreShortened)
{
    const auto result = runCommand({"log", "-", "--skipped"}, std::string(60000, 'y') + "\n");
    EXPECT_EQ(result.messages.find("standard input:1: skipped: Line [yyyyy"), 0U);
    EXPECT_NE(result.messages.find(" bytes left out) ... "), std::string::npos);
    EXPECT_LT(result.messages.size(), 600U);
}

TEST(LogInput, RotatedSetIsReadOldestFirst)
{
    const auto rotated = runCommand({"log", "logs/nightly.log", "--rotated", "--grep", "Job "});
    EXPECT_EQ(rotated.exitCode, 0);
    EXPECT_EQ(rotated.output,
              "2024-03-04 22:30:00 UTC 7d20f1a9-3c6e-4b85-9f47-e15b8c02d6a3 info Job started: nightly file server\n"
              "2024-03-04 22:56:27 UTC 7d20f1a9-3c6e-4b85-9f47-e15b8c02d6a3 info Job finished\n"
              "2024-03-05 22:30:00 UTC 0e94b6d3-5a1c-47f8-b0d2-c86f7a31e94b info Job started: nightly file server\n"
              "2024-03-05 22:57:12 UTC 0e94b6d3-5a1c-47f8-b0d2-c86f7a31e94b info Job finished\n"
              "2024-03-06 22:30:00 UTC 5f0c2b7a-91d4-4e38-8a66-0d3be1f7c295 info Job started: nightly file server\n"
              "2024-03-06 22:58:31 UTC 5f0c2b7a-91d4-4e38-8a66-0d3be1f7c295 info Job finished\n"
              "2024-03-07 22:30:00 UTC b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604 info Job started: nightly file server\n"
              "2024-03-07 23:04:03 UTC b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604 info Job failed\n");
    EXPECT_EQ(rotated.messages, "logs/nightly.log: 2 of 11 lines skipped (--skipped lists them)\n");
    // The order of a shell's pattern.
    const auto listed =
        runCommand({"log", "logs/nightly.log", "logs/nightly.log.1", "logs/nightly.log.2.gz", "--grep", "Job "});
    EXPECT_EQ(listed.output, rotated.output);
}

TEST(LogInput, AFileThatFailsDoesNotKeepTheOthersBack)
{
    const TemporaryFolder folder;
    const auto whole = gzipBytes(Start + "one\n" + Start + "two\n");
    const auto cut = folder.write("cut.gz", whole.substr(0, whole.size() - 1));
    const auto result = runCommand({"log", folder / "missing.log", cut, folder.write("last.log", Start + "three\n")});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, Start + "one\n" + Start + "two\n" + Start + "three\n");
    EXPECT_EQ(result.messages, folder / "missing.log" + ": cannot be read: No such file or directory\n" + cut +
                                   ": refused\n  The compressed data end too early, at byte " +
                                   std::to_string(whole.size() - 1) + ".\n");
    EXPECT_EQ(runCommand({"log", cut}).exitCode, 3);
    EXPECT_EQ(runCommand({"log", cut, "--check"}).exitCode, 3);
    EXPECT_EQ(runCommand({"log", folder / ""}).exitCode, 4);
    const auto noFolder = runCommand({"log", folder / "no/job.log", "--rotated"});
    EXPECT_EQ(noFolder.exitCode, 4);
    EXPECT_EQ(noFolder.messages, folder / "no/job.log" + ": cannot be read: No such file or directory\n");
    EXPECT_EQ(runCommand({"log", folder / "job.log", "--rotated", "--follow"}).exitCode, 4);
}

TEST(LogOutput, ThatCannotBeWrittenIsAFailure)
{
    const auto result = runCommandInto("/dev/full", {"log", "logs/nightly.log"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_NE(result.messages.find("zelmodel: the output cannot be written\n"), std::string::npos);
}

TEST(LogUsage, EndsWithTwo)
{
    const std::vector<std::string> calls[] = {{"log"},
                                              {"log", "a.log", "--severity", "warning"},
                                              {"log", "a.log", "--severity"},
                                              {"log", "a.log", "--severity", "warn", "--severity", "error"},
                                              {"log", "a.log", "--session", "b1d04c7e"},
                                              {"log", "a.log", "--since", "yesterday"},
                                              {"log", "a.log", "--since", "2024-02-30"},
                                              {"log", "a.log", "--since", "2024-03-07T13:05:09"},
                                              {"log", "a.log", "--until", "2024-03-07 13:05:60"},
                                              {"log", "a.log", "--until", "2024-03-07 13"},
                                              {"log", "a.log", "--since", "2024-03-08", "--until", "2024-03-07"},
                                              {"log", "a.log", "--summary", "--json-lines"},
                                              {"log", "-", "-"},
                                              {"log", "-", "--follow"},
                                              {"log", "-", "--rotated"},
                                              {"log", "a.log", "--tail"}};
    for (const auto& call : calls)
    {
        const auto result = runCommand(call);
        EXPECT_EQ(result.exitCode, 2) << testing::PrintToString(call);
        EXPECT_EQ(result.output, "") << testing::PrintToString(call);
        EXPECT_EQ(result.messages.find("zelmodel: "), 0U) << result.messages;
    }
    const auto result = runCommand({"log", "a.log", "--since", "\x1b[31m"});
    EXPECT_EQ(
        result.messages.find("zelmodel: --since: [\\x1b[31m] is no moment from 1400 to 9999 written as YYYY-MM-DD, "
                             "YYYY-MM-DD HH:MM or YYYY-MM-DD HH:MM:SS\n"),
        0U)
        << result.messages;
}

} // namespace
