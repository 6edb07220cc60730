#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "support/gzip_bytes.h"
#include "support/run_command.h"
#include "support/running_command.h"
#include "support/temporary_folder.h"

namespace
{

using zelmodel_test::CommandResult;
using zelmodel_test::gzipBytes;
using zelmodel_test::runCommand;
using zelmodel_test::runCommandOnTerminal;
using zelmodel_test::RunningCommand;
using zelmodel_test::TemporaryFolder;

constexpr std::size_t MiB = 1024UL * 1024;
constexpr long MostGrowthKiB = 8192;

/// A MiB of lines: records of two sessions, and one line that is none.
std::string mebibyteOfLines()
{
    std::string text;
    for (std::size_t i = 0; text.size() < MiB; ++i)
    {
        const auto second = std::to_string(10 + i % 50);
        if (i == 5000)
            text += "no record\n";
        text += "2024-03-07 13:05:" + second + " UTC 5f0c2b7a-91d4-4e38-8a66-0d3be1f7c29" + (i % 2 == 0 ? '5' : '6') +
                " info Backing up /export/home/user" + std::to_string(i) + ": 3.2 GB read at 112 MB/s\n";
    }
    return text;
}

std::string writeTimes(const TemporaryFolder& folder, const char* name, const std::string& piece, std::size_t times)
{
    std::ofstream file(folder / name, std::ios::binary);
    for (std::size_t i = 0; i < times; ++i)
        file << piece;
    return folder / name;
}

/// The memory of a process counts what the test had when it started it: the tests hold small pieces only.
struct Measured
{
    CommandResult result;
    long peakMemory;
};

Measured measure(const std::string& file, const char* option)
{
    RunningCommand command({"log", file, option});
    auto result = command.end();
    return {std::move(result), command.peakMemory()};
}

TEST(LargeLog, TakesTheMemoryOfASmallOne)
{
    const TemporaryFolder folder;
    const auto lines = mebibyteOfLines();
    const auto small = measure(writeTimes(folder, "small.log", lines, 1), "--summary");
    const auto large = measure(writeTimes(folder, "large.log", lines, 200), "--summary");
    EXPECT_EQ(large.result.exitCode, 0);
    EXPECT_EQ(large.result.output.find("2 sessions with "), 0U) << large.result.output;
    EXPECT_GT(small.peakMemory, 0);
    EXPECT_LT(large.peakMemory, small.peakMemory + MostGrowthKiB);
}

TEST(LargeLog, BombsOfOneLineAndOfManyTakeNoMore)
{
    const TemporaryFolder folder;
    const auto lines = mebibyteOfLines();
    const auto small = measure(writeTimes(folder, "small.gz", gzipBytes(lines), 1), "--summary");
    EXPECT_EQ(small.result.exitCode, 0);
    const auto many = measure(writeTimes(folder, "many.gz", gzipBytes(lines), 100), "--summary");
    EXPECT_EQ(many.result.output.find("2 sessions with "), 0U) << many.result.output;
    EXPECT_LT(many.peakMemory, small.peakMemory + MostGrowthKiB);
    const auto one = measure(writeTimes(folder, "one.gz", gzipBytes(std::string(MiB, 'x')), 1024), "--skipped");
    EXPECT_EQ(one.result.exitCode, 0);
    EXPECT_EQ(one.result.messages, folder / "one.gz" + ":1: skipped: The line is longer than 65536 bytes.\n");
    EXPECT_LT(one.peakMemory, small.peakMemory + MostGrowthKiB);
}

TEST(LargeLog, ShowsOnATerminalHowFarItIs)
{
    const TemporaryFolder folder;
    const auto file = writeTimes(folder, "large.log", mebibyteOfLines(), 17);
    const std::string erase = "\r\x1b[K";
    for (const auto width : {static_cast<unsigned short>(40), static_cast<unsigned short>(200)})
    {
        const auto output = runCommandOnTerminal({"log", file, "--summary"}, width).output;
        const std::string half(width == 40 ? 12 : 25, '#');
        EXPECT_EQ(output.find(erase + "reading ["), 0U) << output.substr(0, 80);
        EXPECT_NE(output.find(erase + "reading [" + half + std::string(half.size(), ' ') + "]  50 %" + erase),
                  std::string::npos);
        const auto last = output.rfind(erase);
        EXPECT_EQ(output.find("reading", last), std::string::npos);
        EXPECT_NE(output.find("2 sessions with ", last), std::string::npos);
    }
}

TEST(LargeLog, ShowsNoBarWhereItWouldDisturb)
{
    const TemporaryFolder folder;
    const auto lines = mebibyteOfLines();
    const auto large = writeTimes(folder, "large.log", lines, 17);
    const auto small = writeTimes(folder, "small.log", lines, 1);
    const std::string bar = "reading [";
    for (const auto& arguments :
         {std::vector<std::string>{"log", large, "--summary", "--no-color"},
          std::vector<std::string>{"log", large, "--json"}, std::vector<std::string>{"log", large},
          std::vector<std::string>{"log", small, "--summary"}})
    {
        EXPECT_EQ(runCommandOnTerminal(arguments, 80).output.find(bar), std::string::npos)
            << testing::PrintToString(arguments);
    }
    EXPECT_EQ(runCommandOnTerminal({"log", large, "--summary"}, 80, {"NO_COLOR"}).output.find(bar), std::string::npos);
    EXPECT_EQ(runCommand({"log", large, "--summary"}).messages.find(bar), std::string::npos);
}

} // namespace
