#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/run_command.h"
#include "support/temporary_folder.h"

namespace
{

using zelmodel_test::runCommand;
using zelmodel_test::TemporaryFolder;

using Names = std::vector<std::string>;

TEST(NewFiles, AreWrittenAsStandardOutputIs)
{
    const TemporaryFolder folder;
    const auto file = (folder / "job.xml");
    const auto result = runCommand({"new", "job", "--daily", "-o", file});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.messages, file + ": written\n");
    EXPECT_EQ(folder.text("job.xml"), runCommand({"new", "job", "--daily"}).output);
    EXPECT_EQ(folder.names(), Names{"job.xml"});
}

TEST(NewFiles, TheWindowStandsBesideTheJob)
{
    const TemporaryFolder folder;
    const auto result = runCommand({"new", "job", "--daily", "--window", "20-24", "--output", (folder / "job.xml")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, (folder / "job.xml") + ": written\n" + (folder / "job.window.xml") + ": written\n");
    const auto next = runCommand(
        {"next", (folder / "job.xml"), "--window", (folder / "job.window.xml"), "--from", "2024-03-01", "-n", "1"});
    EXPECT_EQ(next.output, "starts Every day at 00:30, local time of UTC (TZ), UTC+00:00 on 2024-03-01\n"
                           "Date        Day     Start  Window\n"
                           "2024-03-01  Friday  00:30  closed\n");
}

TEST(NewFiles, NamesOfWindows)
{
    const TemporaryFolder folder;
    EXPECT_EQ(runCommand({"new", "schedule", "--window", "1-2", "-o", (folder / "a.b")}).exitCode, 0);
    EXPECT_EQ(folder.names(), (Names{"a.b", "a.b.window.xml"}));
    const auto alone = runCommand({"new", "schedule", "--window", "1-2", "--window-output", (folder / "w")});
    EXPECT_EQ(alone.exitCode, 0);
    EXPECT_EQ(alone.output, runCommand({"new", "schedule"}).output);
    EXPECT_EQ(folder.text("w"), runCommand({"new", "window", "--open", "1-2"}).output);
}

TEST(NewFiles, NoneIsOverwritten)
{
    const TemporaryFolder folder;
    folder.write("job.xml", "kept");
    const auto result = runCommand({"new", "job", "-o", (folder / "job.xml")});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.messages, (folder / "job.xml") + ": cannot be written: File exists\n");
    EXPECT_EQ(folder.text("job.xml"), "kept");
}

TEST(NewFiles, BothOrNone)
{
    const TemporaryFolder folder;
    folder.write("job.window.xml", "kept");
    const auto result = runCommand({"new", "job", "--window", "1-2", "-o", (folder / "job.xml")});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.messages, (folder / "job.window.xml") + ": cannot be written: File exists\n");
    EXPECT_EQ(folder.names(), Names{"job.window.xml"});
    EXPECT_EQ(folder.text("job.window.xml"), "kept");
}

TEST(NewFiles, NothingIsWrittenWhenAnythingIsRefused)
{
    const TemporaryFolder folder;
    EXPECT_EQ(runCommand({"new", "job", "--keep-days", "0", "-o", (folder / "job.xml")}).exitCode, 3);
    EXPECT_EQ(runCommand({"new", "job", "--window", "6-1", "-o", (folder / "job.xml")}).exitCode, 3);
    EXPECT_EQ(folder.names(), Names{});
    EXPECT_EQ(runCommand({"new", "job", "-o", (folder / "no/job.xml")}).exitCode, 4);
}

TEST(NewJsonFiles, AreNamed)
{
    const TemporaryFolder folder;
    const auto file = (folder / "w.xml");
    const auto result = runCommand({"new", "window", "--json", "-o", file});
    EXPECT_EQ(result.messages, "");
    EXPECT_NE(result.output.find("\"output\": \"" + file + "\""), std::string::npos) << result.output;
}

} // namespace
