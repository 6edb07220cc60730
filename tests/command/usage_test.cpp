#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/run_command.h"
#include "support/temporary_folder.h"

namespace
{

using zelmodel_test::runCommand;
using zelmodel_test::runCommandInto;
using zelmodel_test::runCommandOnTerminal;
using zelmodel_test::TemporaryFolder;

using Arguments = std::vector<std::string>;

TEST(Usage, EndsWithTwo)
{
    const Arguments calls[] = {Arguments{},
                               Arguments{"unknown"},
                               Arguments{"show"},
                               Arguments{"next"},
                               Arguments{"--wrong"},
                               Arguments{"show", "continuous.xml", "managing-server.xml"},
                               Arguments{"show", "continuous.xml", "--from", "2026-03-02"},
                               Arguments{"next", "continuous.xml", "-n", "0"},
                               Arguments{"next", "continuous.xml", "-n", "1001"},
                               Arguments{"next", "continuous.xml", "-n", "-1"},
                               Arguments{"next", "continuous.xml", "-n", "3x"},
                               Arguments{"next", "continuous.xml", "-n"},
                               Arguments{"next", "continuous.xml", "--window"},
                               Arguments{"next", "continuous.xml", "--from", "02.03.2026"},
                               Arguments{"next", "continuous.xml", "--from", "2026-3-2"},
                               Arguments{"next", "continuous.xml", "--from", "2026-02-29"},
                               Arguments{"next", "continuous.xml", "--from", "1399-12-31"},
                               Arguments{"next", "continuous.xml", "--from", ""},
                               Arguments{"next", "-", "--window", "-"},
                               Arguments{"show", "continuous.xml", "next", "continuous.xml"}};
    for (const auto& call : calls)
    {
        const auto result = runCommand(call);
        EXPECT_EQ(result.exitCode, 2) << testing::PrintToString(call);
        EXPECT_EQ(result.output, "") << testing::PrintToString(call);
        EXPECT_EQ(result.messages.find("zelmodel: "), 0U) << result.messages;
        EXPECT_NE(result.messages.find("\nRun with --help for more information.\n"), std::string::npos);
    }
}

TEST(UsageText, QuotesNoControlCharacters)
{
    const auto result = runCommand({"next", "continuous.xml", "--from", "\x1b[31m"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.messages, "zelmodel: --from: [\\x1b[31m] is no date from 1400 to 9999 written as YYYY-MM-DD\n"
                               "Run with --help for more information.\n");
}

TEST(Help, GoesToOutput)
{
    for (const auto& arguments : {Arguments{"--help"}, Arguments{"show", "--help"}, Arguments{"next", "-h"}})
    {
        const auto result = runCommand(arguments);
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.messages, "");
        EXPECT_NE(result.output.find("Usage: zelmodel"), std::string::npos);
    }
}

TEST(Version, IsTold)
{
    const auto result = runCommand({"--version"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "zelmodel " ZELMODEL_VERSION "\n");
    EXPECT_EQ(result.messages, "");
}

TEST(Bounds, TheMostDaysAndTheLastDate)
{
    EXPECT_EQ(runCommand({"next", "continuous.xml", "-n", "1000", "--from", "2026-03-02"}).exitCode, 0);
    EXPECT_EQ(runCommand({"next", "continuous.xml", "--from", "9999-12-31"}).output,
              "starts Continuously, local time of UTC (TZ), UTC+00:00 on 9999-12-31\n"
              "Date        Day     Start\n"
              "9999-12-31  Friday  all day\n");
    EXPECT_EQ(runCommand({"next", "continuous.xml", "--from", "1400-01-01", "-n", "1"}).exitCode, 0);
}

TEST(CannotRead, MissingFile)
{
    for (const auto* command : {"show", "next"})
    {
        const auto result = runCommand({command, "no-such-file.xml"});
        EXPECT_EQ(result.exitCode, 4);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.messages, "no-such-file.xml: cannot be read: No such file or directory\n");
    }
}

TEST(CannotRead, MissingWindow)
{
    const auto result = runCommand({"next", "continuous.xml", "--window", "no-such-window.xml"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.messages, "no-such-window.xml: cannot be read: No such file or directory\n");
}

TEST(CannotRead, Directory)
{
    const auto result = runCommand({"show", "refused"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.messages, "refused: cannot be read: Is a directory\n");
}

TEST(CannotRead, TheNameIsEscaped)
{
    EXPECT_EQ(runCommand({"show", "a\nb"}).messages, "a\\nb: cannot be read: No such file or directory\n");
}

TEST(CannotWrite, AFullDeviceIsTold)
{
    const auto result = runCommandInto("/dev/full", {"show", "continuous.xml"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.messages, "zelmodel: the output cannot be written\n");
}

TEST(TooLarge, AFileIsRefusedBeforeItIsRead)
{
    const TemporaryFolder folder;
    const auto name = folder.write("large.xml", "");
    std::filesystem::resize_file(name, 268435457);
    const auto result = runCommand({"show", name});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.messages, name + ": refused\n  The document is larger than 268435456 bytes.\n");
}

TEST(Terminal, HasABoldTitleAndBrokenLines)
{
    const auto result = runCommandOnTerminal({"show", "managing-server.xml"}, 60);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "   line  \x1b[1mJob options: in the managing server's form\x1b[0m\r\n"
                             "      4    Compression       Zstd3, level 3 of 0 to 4\r\n"
                             "      5    Block size        4096 KB\r\n"
                             "      8    Retention         keeps 14 restore points\r\n"
                             "     11    Deleted data      data of machines that vanished\r\n"
                             "                             from the job is kept 30 days\r\n"
                             "      9    Deduplication     off\r\n"
                             "default    Schedule          disabled: this form carries no\r\n"
                             "                             schedule, so the job does not\r\n"
                             "                             start by itself\r\n"
                             "           Not in this form  snapshot mode, scripts,\r\n"
                             "                             retries, indexing, schedule,\r\n"
                             "                             GFS policy and product-specific\r\n"
                             "                             text\r\n");
}

TEST(Terminal, WithoutColourWhenAsked)
{
    const auto result = runCommandOnTerminal({"show", "gfs-policy.xml"}, 200, {"NO_COLOR"});
    EXPECT_EQ(result.output,
              "   line  GFS policy: on\r\n"
              "      4    Weekly   keeps 6 weekly restore points, effective from 2024-03-31 22:00 UTC on, slot 0\r\n"
              "      5    Monthly  off (set to keep 3 monthly restore points, effective from 2024-04-01 00:00 UTC on, "
              "slot 6)\r\n");
}

} // namespace
