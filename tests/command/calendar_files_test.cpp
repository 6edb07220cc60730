#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/golden.h"
#include "support/run_command.h"
#include "support/temporary_folder.h"

namespace
{

using zelmodel_test::CommandResult;
using zelmodel_test::fileText;
using zelmodel_test::runCommand;
using zelmodel_test::runCommandOnTerminal;
using zelmodel_test::TemporaryFolder;

using Arguments = std::vector<std::string>;

constexpr const char* Options[] = {"--svg", "--html"};
constexpr const char* Example = "weekly-with-monthly-fulls-and-gfs.xml";

Arguments callOf(const char* option, const std::string& file, const Arguments& more = {})
{
    Arguments call{"calendar", Example, option, file};
    call.insert(call.end(), more.begin(), more.end());
    return call;
}

std::size_t countOf(const std::string& part, const std::string& text)
{
    std::size_t count = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

TEST(CalendarFile, HoldsWhatStandardOutputGets)
{
    const TemporaryFolder folder;
    for (const auto* option : Options)
    {
        const auto written = runCommand(callOf(option, folder / option, {"--year", "2026"}));
        EXPECT_EQ(written.exitCode, 0);
        EXPECT_EQ(written.output, "");
        EXPECT_EQ(written.messages, "");
        const auto printed = runCommand(callOf(option, "-", {"--year", "2026"}));
        EXPECT_EQ(printed.exitCode, 0);
        EXPECT_EQ(printed.output, folder.text(option));
        EXPECT_EQ(printed.output.substr(printed.output.size() - 7), option == Options[0] ? "</svg>\n" : "/html>\n");
    }
    EXPECT_EQ(folder.names(), (Arguments{"--html", "--svg"}));
}

TEST(CalendarFile, IsOfAYearUnlessAMonthIsGiven)
{
    struct Case
    {
        Arguments arguments;
        std::size_t months;
    };
    const Case rows[] = {{{}, 12}, {{"--year", "2026"}, 12}, {{"--month", "2026-02"}, 1}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(countOf("<caption>", runCommand(callOf("--html", "-", row.arguments)).output), row.months);
        EXPECT_EQ(countOf("transform=\"translate(", runCommand(callOf("--svg", "-", row.arguments)).output),
                  row.months);
    }
}

TEST(CalendarFile, TellsItsDocumentAndItsTime)
{
    const auto year = runCommand(callOf("--html", "-", {"--year", "2026"})).output;
    EXPECT_NE(year.find("<title>weekly-with-monthly-fulls-and-gfs.xml, 2026</title>"), std::string::npos);
    EXPECT_NE(year.find("<p>starts Every Monday, Friday at 21:00, local time of UTC (TZ), UTC+00:00 on 2026-01-01</p>"),
              std::string::npos);
    EXPECT_NE(year.find("<dt>Synthetic full</dt>\n                    <dd>First Monday of months January, July</dd>"),
              std::string::npos);
    const auto month = runCommand(callOf("--svg", "-", {"--month", "2026-01"})).output;
    EXPECT_NE(month.find("<title id=\"title\">weekly-with-monthly-fulls-and-gfs.xml, January 2026</title>"),
              std::string::npos);
    EXPECT_NE(month.find("January 2026: start: 9, 12, 16, 19, 23, 26 and 30; start that makes an active full: 2; start "
                         "that makes a synthetic full: 5.</desc>"),
              std::string::npos);
}

TEST(CalendarFile, HasTheWindowThatIsGiven)
{
    for (const auto* option : Options)
    {
        const auto with =
            runCommand(callOf(option, "-", {"--month", "2026-01", "--window", "office-hours-closed-window.xml"}))
                .output;
        EXPECT_NE(with.find("office-hours-closed-window.xml: open except in the hours that the document lists"),
                  std::string::npos);
        const auto without = runCommand(callOf(option, "-", {"--month", "2026-01"})).output;
        EXPECT_EQ(without.find("Backup window"), std::string::npos);
        const auto alone = runCommand({"calendar", "office-hours-closed-window.xml", option, "-"});
        EXPECT_EQ(alone.exitCode, 0);
        EXPECT_NE(alone.output.find("Backup window"), std::string::npos);
        EXPECT_EQ(alone.output.find("Calendar of"), std::string::npos);
    }
}

TEST(CalendarFile, IsNeverOverwritten)
{
    const TemporaryFolder folder;
    const auto file = folder.write("kept.svg", "kept");
    for (const auto* option : Options)
    {
        const auto result = runCommand(callOf(option, file));
        EXPECT_EQ(result.exitCode, 4);
        EXPECT_EQ(result.messages, file + ": cannot be written: File exists\n");
    }
    EXPECT_EQ(folder.text("kept.svg"), "kept");
    EXPECT_EQ(runCommand(callOf("--svg", folder / "none/file.svg")).messages,
              folder / "none/file.svg" + ": cannot be written: No such file or directory\n");
    EXPECT_EQ(folder.names(), Arguments{"kept.svg"});
}

TEST(CalendarFile, IsNotThereWhenNothingIsScheduledOrRead)
{
    const TemporaryFolder folder;
    const auto file = folder / "new";
    for (const auto* option : Options)
    {
        const auto disabled = runCommand({"calendar", "older/schedule-disabled.xml", option, file});
        EXPECT_EQ(disabled.exitCode, 5);
        EXPECT_EQ(disabled.messages, "older/schedule-disabled.xml: Nothing is scheduled: the job is disabled.\n");
        const auto refused = runCommand({"calendar", "gfs-policy.xml", option, file});
        EXPECT_EQ(refused.exitCode, 3);
        EXPECT_EQ(refused.messages,
                  "gfs-policy.xml:1: refused\n  The document is a GFS policy, which has no schedule.\n");
        EXPECT_EQ(runCommand({"calendar", "no-such-file.xml", option, file}).exitCode, 4);
    }
    EXPECT_TRUE(folder.names().empty());
}

TEST(CalendarFile, IsOfOneForm)
{
    struct Case
    {
        Arguments arguments;
        const char* message;
    };
    const Case rows[] = {{{"--svg", "-", "--json"}, "\"usage\": \"--json excludes --svg\""},
                         {{"--html", "-", "--json"}, "\"usage\": \"--json excludes --html\""},
                         {{"--svg", "-", "--html", "-"}, "zelmodel: --svg excludes --html\n"},
                         {{"--svg"}, "zelmodel: --svg: 1 required FILE missing\n"}};
    for (const auto& row : rows)
    {
        Arguments call{"calendar", Example};
        call.insert(call.end(), row.arguments.begin(), row.arguments.end());
        const auto result = runCommand(call);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_NE((result.output + result.messages).find(row.message), std::string::npos)
            << result.output << result.messages;
    }
}

TEST(CalendarFile, EscapesTheNameOfItsDocument)
{
    const TemporaryFolder folder;
    const std::string hostile = "<script>\"'&\x1b\xff.xml";
    const auto file = folder.write(hostile, fileText(std::string(ZELMODEL_EXAMPLES_DIR) + '/' + Example));
    for (const auto* option : Options)
    {
        const auto text = runCommand({"calendar", file, "--year", "2026", option, "-"}).output;
        EXPECT_NE(text.find("&lt;script&gt;\"'&amp;\\x1b\\xff.xml, 2026</title>"), std::string::npos);
        EXPECT_EQ(text.find("<script"), std::string::npos);
        EXPECT_EQ(text.find_first_of("\x1b\xff"), std::string::npos);
    }
}

TEST(CalendarFile, ATerminalGetsNoColours)
{
    const auto result = runCommandOnTerminal(callOf("--svg", "-", {"--month", "2026-01"}), 40);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output.find('\x1b'), std::string::npos);
}

TEST(CalendarFile, DevicesThatAreFullAreTold)
{
    const auto result = zelmodel_test::runCommandInto("/dev/full", callOf("--svg", "-", {"--month", "2026-01"}));
    EXPECT_EQ(result.exitCode, 4);
}

} // namespace
