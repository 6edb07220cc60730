#include <cstdlib>
#include <filesystem>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "show_case.h"
#include "support/run_command.h"
#include "support/temporary_folder.h"

namespace
{

using zelmodel_test::acceptedExamples;
using zelmodel_test::example;
using zelmodel_test::runCommand;
using zelmodel_test::runCommandOnTerminal;
using zelmodel_test::TemporaryFolder;

struct ConvertCase
{
    const char* file;
    const char* messages;
};

std::ostream& operator<<(std::ostream& stream, const ConvertCase& test)
{
    return stream << test.file;
}

class Convert : public testing::TestWithParam<ConvertCase>
{
};

TEST_P(Convert, TellsWhatIsLostOrChanged)
{
    for (const auto& result :
         {runCommand({"convert", GetParam().file}), runCommand({"convert", "-"}, example(GetParam().file))})
    {
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.messages, GetParam().messages);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Examples, Convert,
    testing::Values(
        ConvertCase{"nightly-file-server.xml", "Not written: 1 comment\n"},
        ConvertCase{"managing-server.xml", "Not written: 1 comment\n"
                                           "Job options: written as JobOptions instead of JobOptionsRoot (line 3)\n"
                                           "Compression: written as Compression instead of CompressionLevel (line 4)\n"
                                           "Block size: written as BlockSize instead of StgBlockSize (line 5)\n"
                                           "Restore points: written as MaxPoints instead of RetainCycles (line 6)\n"
                                           "Days: written as MaxDays instead of RetainDaysToKeep (line 7)\n"
                                           "Deduplication: written as IsDedupEnabled instead of EnableDeduplication "
                                           "(line 9)\n"
                                           "Written out: 28 defaults\n"},
        ConvertCase{"cloud-container.xml", "Container: backups-site-b, in the document only: readers leave it out -> "
                                           "none (line 3)\n"
                                           "Not written: 1 comment\n"
                                           "Written with another text: attribute clientInfo.id of root (line 4)\n"},
        ConvertCase{"immutability.xml", "Period: follows the retention of the job -> the one that is set on the "
                                        "repository (line 3)\n"
                                        "Not written: 1 comment\n"},
        ConvertCase{"immutability-enclosed.xml",
                    "Not written: what stands around it, element RepositoryOptions (line 3)\n"
                    "Not written: 1 comment\n"},
        ConvertCase{"gfs-policy-long-names.xml",
                    "Not written: 1 comment\n"
                    "Written with another text: attribute BeginTimeUtc of GfsWeeklyPolicy (line 3)\n"},
        ConvertCase{"older/indexing-only.xml", "Not written: 1 comment\n"
                                               "Indexing: written as Indexing instead of IndexOnly (line 2)\n"
                                               "Written out: 31 defaults\n"},
        ConvertCase{"older/retain-days-as-attribute.xml",
                    "Not written: 1 comment\n"
                    "Deleted data: written in the current form of RetainDays (line 3)\n"
                    "Written out: 31 defaults\n"},
        ConvertCase{"older/schedule-calendar-without-type.xml",
                    "Not written: 1 comment\n"
                    "Schedule / Start / Kind: written in the current form of Type (line 10)\n"
                    "Written out: 24 defaults\n"},
        ConvertCase{"older/schedule-monthly.xml",
                    "Not written: 1 comment\n"
                    "Snapshot: written as SnapshotMode instead of IsSnapshotRequired (line 4)\n"
                    "Schedule / Start / Enabled: written as IsEnabled instead of Schedule (line 4)\n"
                    "Written with another text: attribute Compression of JobOptions (line 4)\n"
                    "Written with another text: attribute Version of Schedule (line 5)\n"
                    "Written out: 25 defaults\n"},
        ConvertCase{"older/synthetic-full-single-point.xml",
                    "Not written: 1 comment\n"
                    "Last increments: written as LastIncrementPointIds instead of LastIncrementPointId (line 3)\n"}));

TEST(ConvertText, IsTheCurrentFormAndALineBreak)
{
    EXPECT_EQ(runCommand({"convert", "older/job-state-version-1.xml"}).output,
              "<BackupJobState Version=\"2\" ObjectStorageOperationMode=\"3\"/>\n");
    EXPECT_EQ(runCommand({"convert", "gfs-policy-long-names.xml"}).output,
              "<GfsPolicy IsEnabled=\"true\"><GfsWeeklyPolicy IsEnabled=\"true\" NumberOfWeeks=\"8\" "
              "BeginTimeUtc=\"01/01/1970 00:00:00\" DesiredTime=\"1\"/><GfsYearlyPolicy IsEnabled=\"true\" "
              "NumberOfYears=\"1\" BeginTimeUtc=\"12/31/2023 23:00:00\" DesiredTime=\"12\"/></GfsPolicy>\n");
    // Writers of containers put a declaration first.
    EXPECT_EQ(runCommand({"convert", "cloud-container.xml"}).output.find("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"),
              0U);
}

/// The certificate is never written, its fingerprint is; the time of reading becomes the time of the last refresh.
TEST(ConvertText, ACertificateBecomesItsFingerprint)
{
    const auto result = runCommand({"convert", "object-storage-certificate.xml"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output.find("CERTIFICATE"), std::string::npos);
    EXPECT_NE(result.output.find("Fingerprint=\"E61085B84B9A641A45FA1088081765D517DE12102B4DE106BDF37842EC4E4016\""),
              std::string::npos);
    EXPECT_EQ(result.messages.find("Credentials / Refreshed: not known: readers take the time of reading -> "), 0U);
    EXPECT_NE(result.messages.find("\nEndpoint / Certificate: written as Fingerprint instead of ServerCertificate "
                                   "(line 6)\n"),
              std::string::npos)
        << result.messages;
}

TEST(ConvertText, WhatReadersPassOverIsToldAsLost)
{
    const auto result =
        runCommand({"convert", "-"}, "<?xml version='1.0'?>\n"
                                     "<!DOCTYPE x>\n"
                                     "<JobOptions MaxPoint='7' IsSnapshotRequired='true'\n"
                                     "            SnapshotMode='Hybrid'>some words\n"
                                     "  <Schedule Version='2' Type='0' Hours='5' Minutes='0'>\n"
                                     "    <WeekMask Monday='1' Tuesday='true' Wednesday='true' Thursday='true' "
                                     "Friday='false' Saturday='false' Sunday='true' Fryday='1'/>\n"
                                     "  </Schedule>\n"
                                     "  <Schedule Version='9'/>\n"
                                     "  <Extra A='1'><B/></Extra>\n"
                                     "</JobOptions>\n"
                                     "<Other/>\n");
    EXPECT_EQ(result.exitCode, 0) << result.messages;
    EXPECT_EQ(result.messages, "Not written: attribute MaxPoint of JobOptions (line 3)\n"
                               "Not written: attribute IsSnapshotRequired of JobOptions (line 3)\n"
                               "Not written: text of JobOptions (line 3)\n"
                               "Not written: attribute Fryday of WeekMask (line 6)\n"
                               "Not written: element Schedule of JobOptions (line 8)\n"
                               "Not written: element Extra of JobOptions (line 9)\n"
                               "Not written: element Other (line 11)\n"
                               "Not written: 1 instruction\n"
                               "Written with another text: attribute Version of Schedule (line 5)\n"
                               "Written with another text: attribute Monday of WeekMask (line 6)\n"
                               "Written out: 30 defaults\n");
}

/// A number that the flag beside it switches off is not read.
TEST(ConvertText, TheServersNumberWithoutItsFlagIsLost)
{
    const auto result = runCommand(
        {"convert", "-"}, "<JobOptionsRoot>\n<EnableDeletedVmDataRetention>false</EnableDeletedVmDataRetention>\n"
                          "<RetainDays>30</RetainDays>\n</JobOptionsRoot>\n<JobOptions MaxPoints='3'/>");
    EXPECT_EQ(result.messages.find("Not written: element RetainDays of JobOptionsRoot (line 3)\n"
                                   "Not written: element JobOptions (line 5)\n"),
              0U)
        << result.messages;
    EXPECT_NE(result.output.find("MaxPoints=\"7\""), std::string::npos);
}

bool isNeverWritten(const std::string& path)
{
    const auto name = std::filesystem::path(path).filename();
    return name == "direct-backup-immutability.xml" || name == "task-log-record.xml";
}

TEST(ConvertEach, ExampleIsTheSameWhenItIsConvertedAgain)
{
    int count = 0;
    for (const auto& path : acceptedExamples())
    {
        const auto once = runCommand({"convert", path});
        if (isNeverWritten(path))
        {
            EXPECT_EQ(once.exitCode, 3) << path;
            EXPECT_EQ(once.output, "") << path;
            EXPECT_NE(once.messages.find(", which is read and never written.\n"), std::string::npos) << once.messages;
            continue;
        }
        const auto twice = runCommand({"convert", "-"}, once.output);
        EXPECT_EQ(once.exitCode, 0) << path << once.messages;
        EXPECT_EQ(twice.output, once.output) << path;
        EXPECT_EQ(twice.messages, "") << path;
        ++count;
    }
    EXPECT_GT(count, 40);
}

/// What diff finds between a document and its current form, convert has told.
TEST(ConvertEach, ExampleDiffersAsItWasTold)
{
    const auto withoutPlaces = [](const std::string& line) { return line.substr(0, line.rfind(" (")); };
    int count = 0;
    for (const auto& path : acceptedExamples())
    {
        if (isNeverWritten(path))
            continue;
        const auto converted = runCommand({"convert", path});
        const auto diff = runCommand({"diff", path, "-"}, converted.output);
        std::istringstream lines(diff.output);
        for (std::string line; std::getline(lines, line);)
        {
            const bool isNote = line.rfind("Not carried by", 0) == 0;
            EXPECT_TRUE(isNote || converted.messages.find(withoutPlaces(line) + " (") != std::string::npos)
                << path << ": " << line << "\ntold:\n"
                << converted.messages;
            count += isNote ? 0 : 1;
        }
    }
    EXPECT_EQ(count, 3);
}

TEST(ConvertOnATerminal, ADocumentWithSecretsIsNotShown)
{
    const auto hidden = runCommandOnTerminal({"convert", "object-storage.xml"}, 200);
    EXPECT_EQ(hidden.exitCode, 2);
    EXPECT_EQ(hidden.output, "object-storage.xml: holds secrets, which the terminal would show. Use --reveal, -o, "
                             "--in-place or a pipe.\r\n");
    const auto shown = runCommandOnTerminal({"convert", "object-storage.xml", "--reveal"}, 200);
    EXPECT_EQ(shown.exitCode, 0);
    EXPECT_NE(shown.output.find("password=\"not-a-real-password\""), std::string::npos);
}

TEST(ConvertOnATerminal, ControlCharactersAreShownNotSent)
{
    const TemporaryFolder folder;
    const auto path = folder.write("control.xml", "<MountSessionDetails MountPoint=\"\xc2\x9b\xff\" OibId=\"\"/>");
    const auto result = runCommandOnTerminal({"convert", path}, 200);
    EXPECT_EQ(result.output, "<MountSessionDetails MountPoint=\"\\x9b\\xff\" "
                             "OibId=\"00000000-0000-0000-0000-000000000000\"/>\r\n"
                             "Written with another text: attribute OibId of MountSessionDetails (line 1)\r\n");
}

TEST(ConvertOnATerminal, MessagesAreAsWideAsIt)
{
    EXPECT_EQ(runCommandOnTerminal({"convert", "older/job-state-version-1.xml"}, 40).output,
              "<BackupJobState Version=\"2\" ObjectStorageOperationMode=\"3\"/>\r\n"
              "Not written: 1 comment\r\n"
              "Object storage mode: written as\r\n"
              "    ObjectStorageOperationMode instead\r\n"
              "    of ObjectStorageBackupMode (line 2)\r\n"
              "Written with another text: attribute\r\n"
              "    Version of BackupJobState (line 2)\r\n");
}

TEST(ConvertJson, HoldsTheDocumentAndWhatBecameOfTheOldOne)
{
    const auto result = runCommand({"convert", "older/job-state-version-1.xml", "--json"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(result.output, R"({
  "kind": "conversion",
  "schema": 1,
  "file": "older/job-state-version-1.xml",
  "document": "<BackupJobState Version=\"2\" ObjectStorageOperationMode=\"3\"/>\n",
  "differences": [],
  "renamed": [
    {
      "label": "Object storage mode",
      "line": 2,
      "readFrom": "ObjectStorageBackupMode",
      "olderForm": true,
      "writtenAs": "ObjectStorageOperationMode"
    }
  ],
  "lost": [],
  "respelled": [
    {
      "part": "attribute",
      "name": "Version",
      "owner": "BackupJobState",
      "line": 2
    }
  ],
  "comments": 1,
  "instructions": 0,
  "writtenDefaults": 0
}
)");
}

TEST(ConvertJson, NamesWhatStandsAroundTheDocument)
{
    const auto result = runCommand({"convert", "immutability-enclosed.xml", "--json"});
    EXPECT_NE(result.output.find(R"(
  "enclosing": {
    "part": "element",
    "name": "RepositoryOptions",
    "owner": "",
    "line": 3
  }
)"),
              std::string::npos)
        << result.output;
}

TEST(ConvertJson, HidesADocumentWithSecrets)
{
    const auto hidden = runCommand({"convert", "object-storage.xml", "--json"});
    EXPECT_EQ(hidden.exitCode, 0);
    EXPECT_NE(hidden.output.find("\"documentHidden\": true"), std::string::npos) << hidden.output;
    EXPECT_EQ(hidden.output.find("not-a-real"), std::string::npos) << hidden.output;
    const auto shown = runCommand({"convert", "object-storage.xml", "--json", "--reveal"});
    EXPECT_NE(shown.output.find("not-a-real-password"), std::string::npos) << shown.output;
}

/// A window of an unknown kind among them, which the library throws in its own way.
TEST(ConvertFailures, EachRefusedExampleIsRefusedAsByShow)
{
    for (const auto& entry : std::filesystem::directory_iterator(std::string(ZELMODEL_EXAMPLES_DIR) + "/refused"))
    {
        const auto path = entry.path().string();
        if (entry.path().extension() != ".xml")
            continue;
        const auto messages = runCommand({"show", path}).messages;
        for (const auto& arguments :
             {std::vector<std::string>{"convert", path}, std::vector<std::string>{"diff", path, "continuous.xml"}})
        {
            const auto result = runCommand(arguments);
            EXPECT_EQ(result.exitCode, 3) << path;
            EXPECT_EQ(result.output, "") << path;
            EXPECT_EQ(result.messages, messages) << path;
        }
    }
}

TEST(ConvertFailures, AreToldLikeThoseOfShow)
{
    const auto refused = runCommand({"convert", "refused/unknown-compression.xml"});
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_EQ(refused.output, "");
    EXPECT_EQ(refused.messages, runCommand({"show", "refused/unknown-compression.xml"}).messages);
    const auto record = runCommand({"convert", "task-log-record.xml"});
    EXPECT_EQ(record.exitCode, 3);
    EXPECT_EQ(record.messages, "task-log-record.xml: refused\n"
                               "  The document is a task log record, which is read and never written.\n");
    EXPECT_EQ(runCommand({"convert", "missing.xml"}).exitCode, 4);
    EXPECT_EQ(runCommand({"convert", "continuous.xml", "-o", ""}).exitCode, 4);
    EXPECT_EQ(runCommand({"convert", "-", "--in-place"}).exitCode, 2);
    EXPECT_EQ(runCommand({"convert", "continuous.xml", "--in-place", "-o", "x.xml"}).exitCode, 2);
    EXPECT_EQ(runCommand({"convert"}).exitCode, 2);
}

} // namespace
