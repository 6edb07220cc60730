#include <csignal>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "support/gzip_bytes.h"
#include "support/run_command.h"
#include "support/running_command.h"
#include "support/temporary_folder.h"

namespace
{

using zelmodel_test::runCommand;
using zelmodel_test::RunningCommand;
using zelmodel_test::TemporaryFolder;

const std::string Start = "2024-03-07 13:05:09 UTC 5f0c2b7a-91d4-4e38-8a66-0d3be1f7c295 info ";

TEST(LogFollow, TellsWhatIsAppendedAndEndsOnSignals)
{
    for (const int signal : {SIGINT, SIGTERM})
    {
        const TemporaryFolder folder;
        const auto name = folder.write("job.log", Start + "one\n");
        RunningCommand command({"log", name, "--follow"});
        EXPECT_EQ(command.outputWith("one\n"), Start + "one\n");
        folder.append("job.log", Start + "tw");
        folder.append("job.log", "o\n" + Start + "unended");
        EXPECT_EQ(command.outputWith("two\n"), Start + "one\n" + Start + "two\n");
        command.signal(signal);
        const auto result = command.end();
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.output, Start + "one\n" + Start + "two\n" + Start + "unended\n");
        EXPECT_EQ(result.messages, "");
    }
}

TEST(LogFollow, GoesOnThroughRotationAndTruncation)
{
    const TemporaryFolder folder;
    const auto name = folder.write("job.log", Start + "one\n");
    RunningCommand command({"log", name, "--follow", "--skipped"});
    command.outputWith("one\n");
    std::filesystem::rename(name, folder / "job.log.1");
    folder.append("job.log.1", Start + "late\n");
    folder.write("job.log", "no record\n" + Start + "two, which is longer than what comes after it\n");
    command.outputWith("after it\n");
    std::filesystem::resize_file(name, 0);
    EXPECT_EQ(command.messagesWith("truncated"), name + ": replaced, going on with the new file\n" + name +
                                                     ":1: skipped: Line [no record] is skipped.\n" + name +
                                                     ": truncated, going on from its beginning\n");
    folder.append("job.log", Start + "three\n");
    command.outputWith("three\n");
    command.signal(SIGTERM);
    EXPECT_EQ(command.end().output, Start + "one\n" + Start + "late\n" + Start +
                                        "two, which is longer than what comes after it\n" + Start + "three\n");
}

TEST(LogFollow, ReadsTheOlderFilesFirst)
{
    const TemporaryFolder folder;
    folder.write("job.log.1", zelmodel_test::gzipBytes(Start + "older\n"));
    const auto name = folder.write("job.log", Start + "newer\n");
    RunningCommand command({"log", name, "--follow", "--rotated", "--json-lines"});
    const auto output = command.outputWith("newer");
    EXPECT_LT(output.find("older"), output.find("newer"));
    command.signal(SIGINT);
    EXPECT_EQ(command.end().exitCode, 0);
}

TEST(LogFollow, InTheMiddleOfARotationTheFileInUseIsTheOneThatIsMissing)
{
    const TemporaryFolder folder;
    folder.write("job.log.1", Start + "older\n");
    const auto result = runCommand({"log", folder / "job.log", "--follow", "--rotated"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, Start + "older\n");
    EXPECT_EQ(result.messages, folder / "job.log" + ": cannot be read: No such file or directory\n");
}

TEST(LogFollow, SumsUpAtTheEnd)
{
    const TemporaryFolder folder;
    const auto name = folder.write("job.log", Start + "one\nno record\n");
    RunningCommand command({"log", name, "--follow", "--summary", "--check", "--skipped"});
    command.messagesWith("skipped: ");
    command.signal(SIGTERM);
    const auto result = command.end();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output.find("1 session with 1 record\n"), 0U) << result.output;
}

TEST(LogFollow, RefusesWhatCannotBeFollowed)
{
    const TemporaryFolder folder;
    const auto compressed = folder.write("job.log.gz", zelmodel_test::gzipBytes(Start + "one\n"));
    const auto refused = runCommand({"log", compressed, "--follow"});
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_EQ(refused.messages, compressed + ": refused\n  A compressed file cannot be followed.\n");
    EXPECT_EQ(runCommand({"log", "/dev/null", "--follow"}).exitCode, 3);
    EXPECT_EQ(runCommand({"log", folder / "missing.log", "--follow"}).exitCode, 4);
}

} // namespace
