#include <filesystem>
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

using zelmodel_test::example;
using zelmodel_test::runCommand;
using zelmodel_test::runCommandInto;
using zelmodel_test::runCommandOnTerminal;
using zelmodel_test::TemporaryFolder;

using Arguments = std::vector<std::string>;

/// A call, and what it answers.
struct CheckCall
{
    Arguments arguments;
    int exitCode;
    const char* output;
};

std::ostream& operator<<(std::ostream& stream, const CheckCall& test)
{
    return stream << test.arguments.back();
}

class CheckExamples : public testing::TestWithParam<CheckCall>
{
};

TEST_P(CheckExamples, TellsEveryFinding)
{
    auto arguments = GetParam().arguments;
    arguments.insert(arguments.begin(), "check");
    const auto result = runCommand(arguments);
    EXPECT_EQ(result.exitCode, GetParam().exitCode);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(result.output, GetParam().output);
}

INSTANTIATE_TEST_SUITE_P(
    Accepted, CheckExamples,
    testing::Values(
        CheckCall{{"nightly-file-server.xml"}, 0, ""}, CheckCall{{"continuous.xml"}, 0, ""},
        CheckCall{{"object-storage.xml"}, 0, ""}, CheckCall{{"immutability-enclosed.xml"}, 0, ""},
        CheckCall{{"managing-server.xml"}, 0, ""},
        CheckCall{{"always-open-window.xml"},
                  1,
                  "always-open-window.xml:2: note: every hour of the week is open [window-never-closes]\n"},
        CheckCall{{"oracle-processing-by-size.xml"},
                  1,
                  "oracle-processing-by-size.xml:4: warning: Maximum allowed 'logs size' value for truncation "
                  "settings is 999G. [refused-when-applied]\n"},
        CheckCall{{"weekly-with-monthly-fulls-and-gfs.xml"},
                  1,
                  "weekly-with-monthly-fulls-and-gfs.xml:37: note: BeginTimeUtc=\"01/01/0001 00:00:00\" means that no "
                  "begin was set [no-begin]\n"},
        CheckCall{{"older/job-state-version-1.xml"},
                  1,
                  "older/job-state-version-1.xml:2: note: ObjectStorageBackupMode is read as an older form "
                  "[older-form]\n"}));

INSTANTIATE_TEST_SUITE_P(
    Refused, CheckExamples,
    testing::Values(CheckCall{{"refused/malformed.xml"},
                              3,
                              "refused/malformed.xml:2: refused: Unable to parse XML at line 2: "
                              "[XML_ERROR_MISMATCHED_ELEMENT]. [malformed-document]\n"
                              "    Unable to parse XML at line 2: [XML_ERROR_MISMATCHED_ELEMENT].\n"
                              "refused/malformed.xml:2: note: what stands behind this place was not checked "
                              "[rest-not-checked]\n"},
                    CheckCall{{"refused/no-restore-points.xml"},
                              3,
                              "refused/no-restore-points.xml:3: refused: MaxPoints of JobOptions: Invalid 'maxPoints' "
                              "parameter. [refused-value]\n"
                              "    BackupJobOptions: Converting from XML failed.\n"
                              "    Invalid 'maxPoints' parameter.\n"},
                    CheckCall{{"refused/sql-variant-without-type.xml"},
                              3,
                              "refused/sql-variant-without-type.xml:2: refused: Attribute [Type] is not found in "
                              "[SqlVariant]. [missing-attribute]\n"
                              "    Attribute [Type] is not found in [SqlVariant].\n"}));

INSTANTIATE_TEST_SUITE_P(
    Windows, CheckExamples,
    testing::Values(CheckCall{{"--window", "office-hours-closed-window.xml", "nightly-file-server.xml"}, 0, ""},
                    CheckCall{{"--window", "always-open-window.xml", "nightly-file-server.xml"},
                              1,
                              "always-open-window.xml:2: note: every hour of the week is open "
                              "[window-never-closes]\n"}));

// What is refused by one command is refused by the other.
TEST(Check, AgreesWithShowAboutEveryExample)
{
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(ZELMODEL_EXAMPLES_DIR))
    {
        if (entry.path().extension() != ".xml")
            continue;
        const auto file = entry.path().string();
        const bool isRefused = runCommand({"check", file}).exitCode == 3;
        EXPECT_EQ(isRefused, runCommand({"show", file}).exitCode == 3) << file;
        ++count;
    }
    EXPECT_GT(count, 60U);
}

TEST(Check, ToldTheWindowThatIsClosedThen)
{
    const auto result =
        runCommand({"check", "nightly-file-server.xml", "--window", "-"},
                   "<ScheduleWindow Minutes='0' Kind='0'><Days><Monday Intervals='00-24'/><Tuesday Intervals='00-24'/>"
                   "<Wednesday Intervals='00-24'/><Thursday Intervals='00-24'/><Friday Intervals='22-23'/>"
                   "<Saturday Intervals='22-24'/><Sunday Intervals='22-24'/></Days></ScheduleWindow>");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.output.find("warning: the job starts Every day at 22:30, and the backup window is closed then "
                                 "[window-closed-at-start]\n"),
              std::string::npos)
        << result.output;
}

TEST(Check, OfSeveralFilesTheWorstStatusWins)
{
    const auto two = runCommand({"check", "always-open-window.xml", "refused/unknown-compression.xml"});
    EXPECT_EQ(two.exitCode, 3);
    EXPECT_EQ(two.output.find("always-open-window.xml:2: note"), 0U);
    EXPECT_NE(two.output.find("refused/unknown-compression.xml:3: refused"), std::string::npos);
    const auto three = runCommand({"check", "refused/unknown-compression.xml", "no-such-file.xml", "continuous.xml"});
    EXPECT_EQ(three.exitCode, 4);
    EXPECT_EQ(three.messages, "no-such-file.xml: cannot be read: No such file or directory\n");
    EXPECT_NE(three.output.find("refused/unknown-compression.xml:3: refused"), std::string::npos);
}

TEST(Check, ReadsAPipe)
{
    const auto result = runCommand({"check", "-"}, example("refused/unknown-compression.xml"));
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.output.find("standard input:3: refused: Compression of JobOptions"), 0U);
}

TEST(Check, BadCalls)
{
    for (const auto& arguments :
         {Arguments{"check"}, Arguments{"check", "-", "-"}, Arguments{"check", "-", "--window", "-"}})
    {
        const auto result = runCommand(arguments);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_NE(result.messages, "");
    }
}

TEST(Check, AWindowThatIsNoneIsRefused)
{
    const auto result = runCommand({"check", "continuous.xml", "--window", "continuous.xml"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_NE(result.messages.find("not a backup window"), std::string::npos);
    EXPECT_EQ(runCommand({"check", "continuous.xml", "--window", "no-such-file.xml"}).exitCode, 4);
}

TEST(Check, AFullDeviceIsTold)
{
    EXPECT_EQ(runCommandInto("/dev/full", {"check", "always-open-window.xml"}).exitCode, 4);
}

TEST(Check, LinesAreWholeOnEveryTerminal)
{
    for (const unsigned short width : {static_cast<unsigned short>(40), static_cast<unsigned short>(200)})
    {
        const auto result = runCommandOnTerminal({"check", "always-open-window.xml"}, width);
        EXPECT_EQ(result.output,
                  "always-open-window.xml:2: note: every hour of the week is open [window-never-closes]\r\n");
    }
}

TEST(Check, EscapesWhatCouldActOnATerminal)
{
    const auto result = runCommand({"check", "-"}, "<JobOptions BlockSize='a\xc2\x9b"
                                                   "b' n\xff"
                                                   "ame='1'/>");
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_NE(result.output.find("Unable to convert string [a\\x9bb]"), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("attribute n\\xffame of JobOptions"), std::string::npos) << result.output;
}

TEST(Check, IgnoredValuesAreNotTold)
{
    const auto result = runCommand({"check", "-", "--reveal"}, "<JobOptions Password='c4n4ry'>c4n4ry</JobOptions>");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output.find("c4n4ry"), std::string::npos);
}

TEST(Check, WhatIsTooLongForADocumentIsAFindingWithoutALine)
{
    const TemporaryFolder folder;
    const auto name = folder.write("large.xml", "");
    std::filesystem::resize_file(name, 268435457);
    const std::string sentence = "The document is larger than 268435456 bytes.";

    const auto result = runCommand({"check", name});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(result.output, name + ": refused: " + sentence + " [malformed-document]\n    " + sentence + '\n');

    const auto listed = nlohmann::json::parse(runCommand({"check", name, "--json"}).output);
    const auto& finding = listed.at("files").at(0).at("findings").at(0);
    EXPECT_EQ(finding.at("text"), sentence);
    EXPECT_EQ(finding.count("line"), 0U);
    const auto sarif = nlohmann::json::parse(runCommand({"check", name, "--sarif"}).output);
    const auto& place = sarif.at("runs").at(0).at("results").at(0).at("locations").at(0).at("physicalLocation");
    EXPECT_EQ(place.at("artifactLocation").at("uri"), name);
    EXPECT_EQ(place.count("region"), 0U);
}

TEST(CheckJson, ListsTheFindingsOfEachFile)
{
    const auto result = runCommand({"check", "--json", "refused/no-restore-points.xml", "no-such-file.xml"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.messages, "");
    const auto json = nlohmann::json::parse(result.output);
    EXPECT_EQ(json["kind"], "check");
    EXPECT_EQ(json["schema"], 1);
    ASSERT_EQ(json["files"].size(), 2U);
    EXPECT_EQ(json["files"][0]["file"], "refused/no-restore-points.xml");
    const auto& finding = json["files"][0]["findings"][0];
    EXPECT_EQ(finding["line"], 3);
    EXPECT_EQ(finding["class"], "refused");
    EXPECT_EQ(finding["id"], "refused-value");
    EXPECT_EQ(finding["text"], "MaxPoints of JobOptions: Invalid 'maxPoints' parameter.");
    EXPECT_EQ(finding["refused"],
              (Arguments{"BackupJobOptions: Converting from XML failed.", "Invalid 'maxPoints' parameter."}));
    EXPECT_EQ(json["files"][1]["failed"], "cannot be read: No such file or directory");
}

TEST(CheckJson, ReplacesMalformedText)
{
    const auto result = runCommand({"check", "--json", "-"}, "<JobOptions n\xff='1'/>");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(nlohmann::json::parse(result.output)["files"][0]["findings"].size(), 1U);
}

TEST(CheckSarif, HoldsWhatReadersOfTheFormatNeed)
{
    const auto result = runCommand({"check", "--sarif", "refused/no-restore-points.xml", "always-open-window.xml"});
    EXPECT_EQ(result.exitCode, 3);
    const auto json = nlohmann::json::parse(result.output);
    EXPECT_EQ(json["version"], "2.1.0");
    EXPECT_EQ(json["$schema"], "https://json.schemastore.org/sarif-2.1.0.json");
    ASSERT_EQ(json["runs"].size(), 1U);
    const auto& run = json["runs"][0];
    const auto& driver = run["tool"]["driver"];
    EXPECT_EQ(driver["name"], "zelmodel");
    EXPECT_EQ(driver["version"], "1.0.0");
    EXPECT_EQ(run["invocations"][0]["executionSuccessful"], true);
    ASSERT_EQ(run["results"].size(), 2U);
    for (const auto& finding : run["results"])
        EXPECT_EQ(driver["rules"][finding["ruleIndex"].get<std::size_t>()]["id"], finding["ruleId"]);
    EXPECT_EQ(run["results"][0]["level"], "error");
    EXPECT_EQ(run["results"][1]["level"], "note");
    EXPECT_EQ(run["results"][1]["message"]["text"], "every hour of the week is open");
    const auto& place = run["results"][1]["locations"][0]["physicalLocation"];
    EXPECT_EQ(place["artifactLocation"]["uri"], "always-open-window.xml");
    EXPECT_EQ(place["region"]["startLine"], 2);
}

TEST(CheckSarif, SaysWhenAFileCouldNotBeRead)
{
    const auto result = runCommand({"check", "--sarif", "no such file.xml"});
    EXPECT_EQ(result.exitCode, 4);
    const auto json = nlohmann::json::parse(result.output);
    EXPECT_EQ(json["runs"][0]["invocations"][0]["executionSuccessful"], false);
    EXPECT_TRUE(json["runs"][0]["results"].empty());
}

TEST(CheckSarif, EscapesNamesOfFiles)
{
    const auto json = nlohmann::json::parse(runCommand({"check", "--sarif", "-"}, "<a/>").output);
    EXPECT_EQ(json["runs"][0]["results"][0]["locations"][0]["physicalLocation"]["artifactLocation"]["uri"],
              "standard%20input");
}

TEST(Explain, TellsCauseAndCure)
{
    const auto result = runCommand({"explain", "window-never-closes"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "window-never-closes: note, the window never closes\n"
                             "  Cause  Every hour of the week is open: the backup window restricts nothing.\n"
                             "  Cure   Remove the window, or list the hours that are meant, and check the kind.\n");
}

TEST(Explain, ListsAllWithoutAnId)
{
    const auto result = runCommand({"explain"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output.find("Findings of check\nId "), 0U);
    EXPECT_NE(result.output.find("\nnarrowed-number          warning  a number is cut when it is read\n"),
              std::string::npos)
        << result.output;
    const auto json = nlohmann::json::parse(runCommand({"explain", "--json"}).output);
    EXPECT_EQ(json["kind"], "explain");
    EXPECT_GT(json["rules"]["items"].size(), 20U);
}

TEST(Explain, UnknownIdsAreABadCall)
{
    const auto close = runCommand({"explain", "narowed-number"});
    EXPECT_EQ(close.exitCode, 2);
    EXPECT_EQ(close.output, "");
    EXPECT_NE(close.messages.find("did you mean narrowed-number?"), std::string::npos);
    const auto other = runCommand({"explain", "\x1b[1m"});
    EXPECT_EQ(other.exitCode, 2);
    EXPECT_EQ(other.messages.find('\x1b'), std::string::npos);
    EXPECT_EQ(other.messages.find("did you mean"), std::string::npos);
}

TEST(Explain, FitsTheTerminal)
{
    const auto result = runCommandOnTerminal({"explain", "window-never-closes"}, 40, {"NO_COLOR"});
    EXPECT_EQ(result.output, "window-never-closes: note, the window\r\n"
                             "never closes\r\n"
                             "  Cause  Every hour of the week is open:\r\n"
                             "         the backup window restricts\r\n"
                             "         nothing.\r\n"
                             "  Cure   Remove the window, or list the\r\n"
                             "         hours that are meant, and check\r\n"
                             "         the kind.\r\n");
}

TEST(ShowIgnored, ComesLast)
{
    const auto result = runCommand({"show", "-"}, "<SqlVariant Type='1'\nValue='2'\nValeu='c4n4ry'/>");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "   line  SQL value\n"
                             "      1    Type                   number 1\n"
                             "      2    Value                  2\n"
                             "           Ignored by the reader  1 part\n"
                             "      3                           attribute Valeu of SqlVariant\n");
}

TEST(ShowIgnored, StandsInJsonToo)
{
    const auto result = runCommand({"show", "--json", "-"}, "<JobOptions MaxPoint='c4n4ry'/>");
    EXPECT_EQ(result.output.find("c4n4ry"), std::string::npos);
    const auto json = nlohmann::json::parse(result.output);
    const auto& part = json["jobOptions"]["fields"]["ignored"]["items"][0];
    EXPECT_EQ(part["value"], "MaxPoint");
    EXPECT_EQ(part["line"], 1);
    EXPECT_EQ(part["fields"]["kind"]["value"], "attribute");
    EXPECT_EQ(part["fields"]["owner"]["value"], "JobOptions");
    EXPECT_EQ(part["fields"]["nearest"]["value"], "MaxPoints");
}

} // namespace
