#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/run_command.h"

namespace
{

using zelmodel_test::runCommand;

struct RefusedCase
{
    const char* file;
    const char* messages;
};

std::ostream& operator<<(std::ostream& stream, const RefusedCase& test)
{
    return stream << test.file;
}

class Refused : public testing::TestWithParam<RefusedCase>
{
};

TEST_P(Refused, TellsTheChainASentenceALine)
{
    const auto result = runCommand({"show", GetParam().file});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.messages, GetParam().messages);
}

INSTANTIATE_TEST_SUITE_P(
    Examples, Refused,
    testing::Values(
        RefusedCase{"refused/number-with-trailing-rubbish.xml",
                    "refused/number-with-trailing-rubbish.xml:3: refused\n"
                    "  BackupJobOptions: Converting from XML failed.\n"
                    "  BackupJobOptions: Converting KIV Job options from XML failed.\n"
                    "  Unable to convert string [14x] to [unsigned long].\n"},
        RefusedCase{"refused/unknown-compression.xml",
                    "refused/unknown-compression.xml:3: refused\n"
                    "  BackupJobOptions: Converting from XML failed.\n"
                    "  BackupJobOptions: Converting KIV Job options from XML failed.\n"
                    "  Unable to convert string [Zstd12] to BackupJobCompression::type.\n"},
        RefusedCase{"refused/no-restore-points.xml", "refused/no-restore-points.xml:3: refused\n"
                                                     "  BackupJobOptions: Converting from XML failed.\n"
                                                     "  Invalid 'maxPoints' parameter.\n"},
        RefusedCase{"refused/managing-server-level.xml",
                    "refused/managing-server-level.xml:3: refused\n"
                    "  BackupJobOptions: Converting from XML failed.\n"
                    "  BackupJobOptions: Converting QOR Job options from XML failed.\n"
                    "  Unable to convert QOR level string [2] to BackupJobCompression::type.\n"},
        RefusedCase{"refused/schedule-version-4.xml",
                    "refused/schedule-version-4.xml:3: refused\n"
                    "  BackupJobOptions: Converting from XML failed.\n"
                    "  BackupJobOptions: Converting KIV Job options from XML failed.\n"
                    "  ScheduleOptions: Failed to deserialize from Xml.\n"
                    "  CStartJobScheduleOptions: Failed to deserialize from Xml.\n"
                    "  Unknown version: [4].\n"},
        RefusedCase{"refused/gfs-count-too-large.xml", "refused/gfs-count-too-large.xml:3: refused\n"
                                                       "  Unable to parse [Yearly].\n"
                                                       "  Unable to cast value from [unsigned long] to [int].\n"},
        RefusedCase{"refused/window-of-unknown-kind.xml", "refused/window-of-unknown-kind.xml:3: refused\n"
                                                          "  An unsupported schedule window kind occurred: [].\n"},
        RefusedCase{"refused/window-beyond-midnight.xml", "refused/window-beyond-midnight.xml:4: refused\n"
                                                          "  Backup window matrix indices out of range.\n"},
        RefusedCase{"refused/malformed.xml", "refused/malformed.xml: refused\n"
                                             "  Unable to parse XML at line 2: [XML_ERROR_MISMATCHED_ELEMENT].\n"},
        RefusedCase{"refused/unknown-document.xml",
                    "refused/unknown-document.xml:2: refused\n"
                    "  The element [Inventory] begins no document that is known.\n"
                    "  Documents of jobs begin with JobOptionsRoot, JobOptions, ScheduleOptions, Schedule, "
                    "ActiveFullOptions, SyntheticFullOptions, ScheduleWindow, GfsPolicy, OracleConfig, "
                    "PostgresConfig.\n"
                    "  Documents of repositories begin with JobSettings, ImmutabilitySettings, "
                    "DirectBackupImmutabilitySettings, AmazonS3SpecificParams, root with dotted attributes.\n"
                    "  Documents of sessions begin with Details, ProgressDetails, MountSessionDetails, BackupJobState, "
                    "any element with ordinalId and updateUsn.\n"
                    "  Documents of transforms begin with DeletePointTransformSpec, FullTransformSpec, "
                    "GfsFullTransformSpec.\n"
                    "  Documents of values begin with SqlVariant.\n"}));

INSTANTIATE_TEST_SUITE_P(
    Records, Refused,
    testing::Values(
        RefusedCase{"refused/oracle-unknown-mode.xml",
                    "refused/oracle-unknown-mode.xml:3: refused\n"
                    "  Failed to convert string to EArchivedLogsTruncationMode::type\n"
                    "  Unknown string: byage\n"},
        RefusedCase{"refused/postgres-unknown-authentication.xml",
                    "refused/postgres-unknown-authentication.xml:2: refused\n"
                    "  Unable to convert string(ticket) to EPostgreSqlAuthType\n"
                    "  Unknown PostgreSql authentication type\n"},
        RefusedCase{"refused/repository-limitations-without-mode.xml",
                    "refused/repository-limitations-without-mode.xml:2: refused\n"
                    "  Unable to parse xml repository limitations specification.\n"
                    "  Attribute [BackupMode] is not found in [JobSettings].\n"},
        RefusedCase{"refused/immutability-days-too-large.xml", "refused/immutability-days-too-large.xml:3: refused\n"
                                                               "  Unable to parse repository immutability settings.\n"
                                                               "  Unable to cast value from [long] to [int].\n"},
        RefusedCase{"refused/direct-backup-immutability-without-extent.xml",
                    "refused/direct-backup-immutability-without-extent.xml:2: refused\n"
                    "  Unable to parse direct backup immutability settings,\n"
                    "  Attribute [HasImmutableCapacityOrArchiveTierExtent] is not found in "
                    "[DirectBackupImmutabilitySettings].\n"},
        RefusedCase{"refused/object-storage-without-session-token.xml",
                    "refused/object-storage-without-session-token.xml:3: refused\n"
                    "  Failed to parse SAmazonS3SpecificParams from xml.\n"
                    "  Failed to parse SAmazonS3Credentials from xml.\n"
                    "  Attribute [SessionToken] is not found in [Credentials].\n"},
        RefusedCase{"refused/object-storage-false-certificate.xml",
                    "refused/object-storage-false-certificate.xml:5: refused\n"
                    "  Failed to parse SAmazonS3SpecificParams from xml.\n"
                    "  Failed to parse SAmazonS3Endpoint from XML.\n"
                    "  Unable to read certificate.\n"
                    "  There is no complete pair of BEGIN and END.\n"},
        RefusedCase{"refused/cloud-container-without-endpoint.xml",
                    "refused/cloud-container-without-endpoint.xml:2: refused\n"
                    "  Failed to SExternalRepoCloudContainer::Unserialize.\n"
                    "  Attribute [SAmazonS3SpecificParams.endpoint.apiEndpoint] is not found in [root].\n"},
        RefusedCase{"refused/sql-variant-without-type.xml", "refused/sql-variant-without-type.xml:2: refused\n"
                                                            "  Attribute [Type] is not found in [SqlVariant].\n"},
        RefusedCase{"refused/session-details-of-unknown-kind.xml",
                    "refused/session-details-of-unknown-kind.xml:2: refused\n"
                    "  Failed to deserialize session details.\n"
                    "  Unable to convert string [Synthetic] to OibAlgorithm::type.\n"},
        RefusedCase{"refused/session-progress-load-too-large.xml",
                    "refused/session-progress-load-too-large.xml:3: refused\n"
                    "  Failed to deserialize session progress details.\n"
                    "  Unable to cast value from [long] to [int].\n"},
        RefusedCase{"refused/task-log-record-of-unknown-status.xml",
                    "refused/task-log-record-of-unknown-status.xml:3: refused\n"
                    "  STaskLogRecord: Failed to unserial from xml.\n"
                    "  map::at\n"},
        RefusedCase{"refused/task-log-record-without-date.xml",
                    "refused/task-log-record-without-date.xml:3: refused\n"
                    "  STaskLogRecord: Failed to unserial from xml.\n"
                    "  Unable to convert string [02/30/2024 13:05:09] to date-time.\n"
                    "  Day of month is not valid for year\n"},
        RefusedCase{"refused/mount-session-unbalanced-braces.xml",
                    "refused/mount-session-unbalanced-braces.xml:2: refused\n"
                    "  SMountSessionDetails: Failed to deserialize from XML.\n"
                    "  Unable to convert string [{b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604] to GUID.\n"},
        RefusedCase{"refused/job-state-version-3.xml", "refused/job-state-version-3.xml:2: refused\n"
                                                       "  Failed to deserialize SBackupJobState.\n"
                                                       "  Unsupported backup job state xml version 3.\n"},
        RefusedCase{"refused/delete-points-without-list.xml",
                    "refused/delete-points-without-list.xml:2: refused\n"
                    "  Unable to parse xml transform specification.\n"
                    "  Node [IncrementPointIds] is not found in [DeletePointTransformSpec].\n"},
        RefusedCase{"refused/synthetic-full-without-points.xml",
                    "refused/synthetic-full-without-points.xml:2: refused\n"
                    "  Unable to parse xml create synthetic specification.\n"
                    "  Mandatory arguments not set (v11:LastIncrementPointId or v12:LastIncrementPointIds)\n"},
        RefusedCase{"refused/gfs-synthetic-full-wrong-operation.xml",
                    "refused/gfs-synthetic-full-wrong-operation.xml:4: refused\n"
                    "  Unable to parse xml create gfs synthetic specification.\n"
                    "  Unable to convert string [monthly] to [int].\n"}));

TEST(RefusedByNext, TheWindowIsNamed)
{
    const auto result = runCommand({"next", "continuous.xml", "--window", "refused/window-of-unknown-kind.xml"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.messages, "refused/window-of-unknown-kind.xml:3: refused\n"
                               "  An unsupported schedule window kind occurred: [].\n");
}

TEST(RefusedByNext, DocumentsOfOtherKinds)
{
    const auto noSchedule = runCommand({"next", "gfs-policy.xml"});
    EXPECT_EQ(noSchedule.exitCode, 3);
    EXPECT_EQ(noSchedule.messages.substr(noSchedule.messages.find('\n')),
              "\n  The document is a GFS policy, which has no schedule.\n");
    const auto noWindow = runCommand({"next", "continuous.xml", "--window", "gfs-policy.xml"});
    EXPECT_EQ(noWindow.exitCode, 3);
    EXPECT_EQ(noWindow.messages.substr(0, 14), "gfs-policy.xml");
    EXPECT_EQ(noWindow.messages.substr(noWindow.messages.find('\n')),
              "\n  The document is a GFS policy, not a backup window.\n");
}

TEST(RefusedByNext, ACalendarThatCannotBeEvaluated)
{
    const auto result =
        runCommand({"next", "-", "--from", "2026-03-02"},
                   R"(<Schedule Version="3" IsEnabled="true" WeekDayNumber="Every" DayOfMonth="0" Type="7">
<WeekMask Monday="1" Tuesday="1" Wednesday="1" Thursday="1" Friday="1" Saturday="1" Sunday="1"/>
<MonthMask January="1" February="1" March="1" April="1" May="1" June="1" July="1" August="1" September="1" October="1"
 November="1" December="1"/></Schedule>)");
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.messages, "standard input: refused\n"
                               "  ScheduleCalendar: Failed to check that date [03/02/2026] is on.\n"
                               "  Unsupported schedule type [7]\n");
}

struct BadInputCase
{
    const char* name;
    std::string text;
};

std::ostream& operator<<(std::ostream& stream, const BadInputCase& test)
{
    return stream << test.name;
}

class BadInput : public testing::TestWithParam<BadInputCase>
{
};

TEST_P(BadInput, IsRefusedWithoutQuotingIt)
{
    const auto result = runCommand({"show", "-"}, GetParam().text);
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.messages.find("standard input: refused\n  Unable to parse XML at line "), 0U) << result.messages;
    EXPECT_LT(result.messages.size(), 200U);
}

std::string nested(int levels)
{
    std::string text;
    for (int i = 0; i < levels; ++i)
        text += "<a>";
    for (int i = 0; i < levels; ++i)
        text += "</a>";
    return text;
}

std::string attributes(int count)
{
    std::string text = "<JobOptions";
    for (int i = 0; i < count; ++i)
        text += " a" + std::to_string(i) + "=\"\"";
    return text + "/>";
}

INSTANTIATE_TEST_SUITE_P(
    Texts, BadInput,
    testing::Values(BadInputCase{"empty", ""}, BadInputCase{"blank", " \n"}, BadInputCase{"noXml", "Compression=Lz4"},
                    BadInputCase{"nul", std::string("<JobOptions/>\0<x/>", 18)},
                    BadInputCase{"nulReference", "<JobOptions a=\"x&#0;y\"/>"}, BadInputCase{"nesting", nested(10000)},
                    BadInputCase{"attributes", attributes(100000)},
                    BadInputCase{"encoding", "<?xml version=\"1.0\" encoding=\"UTF-16\"?><JobOptions/>"}),
    [](const auto& test) { return test.param.name; });

TEST(RefusedSentence, IsEscapedAndCut)
{
    const auto result =
        runCommand({"show", "-"}, "<JobOptions Compression=\"a&#10;" + std::string(100000, 'x') + "\"/>");
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.messages.find('\x1b'), std::string::npos);
    EXPECT_NE(result.messages.find("[a\\nxxx"), std::string::npos);
    EXPECT_NE(result.messages.find(" bytes left out) ... "), std::string::npos);
    EXPECT_LT(result.messages.size(), 700U);
}

} // namespace
