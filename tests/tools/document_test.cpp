#include "describe/document.h"

#include <exception>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <zelplatform/exc/exc.h>

#include "support/expect_failure.h"

namespace
{

using describe::Document;
using describe::EDocumentKind;
using zelmodel_test::failureText;

constexpr const char* Known =
    "Documents of jobs begin with JobOptionsRoot, JobOptions, ScheduleOptions, Schedule, ActiveFullOptions, "
    "SyntheticFullOptions, ScheduleWindow, GfsPolicy, OracleConfig, PostgresConfig. Documents of repositories begin "
    "with JobSettings, ImmutabilitySettings, DirectBackupImmutabilitySettings, AmazonS3SpecificParams, root with "
    "dotted attributes. Documents of sessions begin with Details, ProgressDetails, MountSessionDetails, "
    "BackupJobState, any element with ordinalId and updateUsn. Documents of transforms begin with "
    "DeletePointTransformSpec, FullTransformSpec, GfsFullTransformSpec. Documents of values begin with SqlVariant.";

struct KindCase
{
    const char* text;
    EDocumentKind kind;
};

TEST(Kind, IsToldByTheElementAtTheTop)
{
    const KindCase cases[] = {
        KindCase{"<JobOptions/>", EDocumentKind::AgentJobOptions},
        KindCase{"<JobOptionsRoot/>", EDocumentKind::ServerJobOptions},
        KindCase{"<ScheduleOptions/>", EDocumentKind::ScheduleOptions},
        KindCase{"<Schedule/>", EDocumentKind::LoneSchedule},
        KindCase{"<Schedule/><ActiveFullOptions/>", EDocumentKind::LoneSchedule},
        KindCase{"<ActiveFullOptions/>", EDocumentKind::LoneSchedule},
        KindCase{"<SyntheticFullOptions/>", EDocumentKind::LoneSchedule},
        KindCase{"<ScheduleWindow/>", EDocumentKind::ScheduleWindow},
        KindCase{"<GfsPolicy/>", EDocumentKind::GfsPolicy}, KindCase{"<OracleConfig/>", EDocumentKind::OracleConfig},
        KindCase{"<PostgresConfig/>", EDocumentKind::PostgresConfig},
        KindCase{"<JobSettings/>", EDocumentKind::RepositoryLimitations},
        KindCase{"<ImmutabilitySettings/>", EDocumentKind::Immutability},
        KindCase{"<DirectBackupImmutabilitySettings/>", EDocumentKind::DirectImmutability},
        KindCase{"<AmazonS3SpecificParams/>", EDocumentKind::S3Params},
        KindCase{"<root clientInfo.id=\"\"/>", EDocumentKind::CloudContainer},
        KindCase{"<SqlVariant/>", EDocumentKind::SqlVariant}, KindCase{"<Details/>", EDocumentKind::SessionDetails},
        KindCase{"<ProgressDetails/>", EDocumentKind::SessionProgress},
        KindCase{"<MountSessionDetails/>", EDocumentKind::MountSession},
        KindCase{"<BackupJobState/>", EDocumentKind::JobState},
        KindCase{"<DeletePointTransformSpec/>", EDocumentKind::DeletePointTransform},
        KindCase{"<FullTransformSpec/>", EDocumentKind::SyntheticFullTransform},
        KindCase{"<GfsFullTransformSpec/>", EDocumentKind::GfsSyntheticFullTransform},
        KindCase{"<!-- c --><JobOptions/>", EDocumentKind::AgentJobOptions},
        // The managing server's form is looked for first, as readers do.
        KindCase{"<JobOptions/><JobOptionsRoot/>", EDocumentKind::ServerJobOptions}};
    for (const auto& expected : cases)
    {
        EXPECT_EQ(Document(expected.text).kind(), expected.kind) << expected.text;
    }
}

TEST(Kind, OfALogRecordIsToldByItsAttributes)
{
    EXPECT_EQ(Document("<Anything ordinalId=\"\" updateUsn=\"\"/>").kind(), EDocumentKind::TaskLogRecord);
    EXPECT_EQ(Document("<root ordinalId=\"1\" updateUsn=\"2\"/>").kind(), EDocumentKind::TaskLogRecord);
    EXPECT_EQ(Document("<Details ordinalId=\"1\" updateUsn=\"2\"/>").kind(), EDocumentKind::TaskLogRecord);
    EXPECT_EQ(Document("<Details ordinalId=\"1\"/>").kind(), EDocumentKind::SessionDetails);
    EXPECT_NE(failureText([] { Document("<Anything updateUsn=\"1\"/>").kind(); }), "");
    EXPECT_NE(failureText([] { Document("<Log><Record ordinalId=\"1\" updateUsn=\"2\"/></Log>").kind(); }), "");
}

TEST(Kind, OfEnclosedSettingsIsToldByTheFirstOfThem)
{
    const KindCase cases[] = {
        KindCase{"<a><JobSettings/></a>", EDocumentKind::RepositoryLimitations},
        KindCase{"<a><b/><ImmutabilitySettings/></a>", EDocumentKind::Immutability},
        KindCase{"<a><DirectBackupImmutabilitySettings/></a>", EDocumentKind::DirectImmutability},
        KindCase{"<a><ImmutabilitySettings/><JobSettings/></a>", EDocumentKind::Immutability},
        KindCase{"<a><JobSettings/><ImmutabilitySettings/></a>", EDocumentKind::RepositoryLimitations},
        KindCase{"<JobSettings><ImmutabilitySettings/></JobSettings>", EDocumentKind::RepositoryLimitations},
        KindCase{"<DirectBackupImmutabilitySettings><ImmutabilitySettings/></DirectBackupImmutabilitySettings>",
                 EDocumentKind::DirectImmutability},
        KindCase{"<root><JobSettings/></root>", EDocumentKind::RepositoryLimitations},
        // A root that is known says more than its children.
        KindCase{"<Details><JobSettings/></Details>", EDocumentKind::SessionDetails}};
    for (const auto& expected : cases)
    {
        EXPECT_EQ(Document(expected.text).kind(), expected.kind) << expected.text;
    }
    EXPECT_NE(failureText([] { Document("<a><b><JobSettings/></b></a>").kind(); }), "");
    EXPECT_NE(failureText([] { Document("<a><AmazonS3SpecificParams/></a>").kind(); }), "");
}

TEST(Kind, OfACloudContainerNeedsADottedAttribute)
{
    for (const auto* attribute :
         {"clientInfo.id", "clientInfo.description", "SAmazonS3SpecificParams.creds.accessKeyId",
          "SAmazonS3SpecificParams.creds.secretAccessKey", "SAmazonS3SpecificParams.endpoint.apiEndpoint"})
    {
        EXPECT_EQ(Document(std::string("<root ") + attribute + "=\"\"/>").kind(), EDocumentKind::CloudContainer)
            << attribute;
    }
    EXPECT_EQ(failureText([] { Document("<root regionId=\"\" containerName=\"\"/>").kind(); }),
              std::string("The element [root] begins no document that is known. ") + Known);
    EXPECT_NE(failureText([] { Document("<Root clientInfo.id=\"\"/>").kind(); }), "");
}

TEST(Document, RefusesAnUnknownElement)
{
    const Document document("\n<Inventory>\n<Host/></Inventory>");
    EXPECT_EQ(failureText([&] { document.kind(); }),
              std::string("The element [Inventory] begins no document that is known. ") + Known);
    EXPECT_EQ(document.lastReadLine(), 2);
}

TEST(Document, NamesOfOtherLetterCaseAreUnknown)
{
    EXPECT_EQ(failureText([] { Document("<jobOptions/>").describe(); }),
              std::string("The element [jobOptions] begins no document that is known. ") + Known);
}

TEST(Document, RefusesMalformedText)
{
    EXPECT_EQ(failureText([] { Document("<JobOptions>"); }).substr(0, 24), "Unable to parse XML at l");
}

TEST(Document, OnlyJobsAndSchedulesHaveASchedule)
{
    EXPECT_FALSE(Document("<JobOptions/>").readSchedule().GetJobStartOptions().IsEnabled());
    EXPECT_FALSE(Document("<JobOptionsRoot/>").readSchedule().GetJobStartOptions().IsEnabled());
    EXPECT_FALSE(Document("<ScheduleOptions/>").readSchedule().GetJobStartOptions().IsEnabled());
    EXPECT_EQ(failureText([] { Document("<ScheduleWindow/>").readSchedule(); }),
              "The document is a backup window, which has no schedule.");
    EXPECT_EQ(failureText([] { Document("<JobSettings/>").readSchedule(); }),
              "The document is repository limitations, which has no schedule.");
    EXPECT_EQ(failureText([] { Document("<GfsPolicy/>").readSchedule(); }),
              "The document is a GFS policy, which has no schedule.");
}

TEST(Document, OnlyWindowsAreWindows)
{
    EXPECT_NE(Document("<ScheduleWindow Minutes=\"0\" Kind=\"0\"/>").readWindow(), nullptr);
    EXPECT_EQ(failureText([] { Document("<JobOptions/>").readWindow(); }),
              "The document is job options in the agent's form, not a backup window.");
    EXPECT_EQ(failureText([] { Document("<JobOptionsRoot/>").readWindow(); }),
              "The document is job options in the managing server's form, not a backup window.");
    EXPECT_EQ(failureText([] { Document("<ScheduleOptions/>").readWindow(); }),
              "The document is schedule options, not a backup window.");
}

struct LineCase
{
    const char* text;
    int line;
};

TEST(RefusedLine, IsWhereTheReaderStopped)
{
    const LineCase cases[] = {
        LineCase{"<JobOptions\nCompression=\"x\"\nBlockSize=\"y\"/>", 2},
        LineCase{"<JobOptions\nRetentionType=\"Days\"\nMaxPoints=\"1x\"/>", 3},
        LineCase{"<JobOptionsRoot>\n<RetainCycles>7</RetainCycles>\n<RetentionType>x</RetentionType>\n"
                 "</JobOptionsRoot>",
                 3},
        // The rule about the whole record is told of the number that breaks it.
        LineCase{"<JobOptions\nMaxPoints=\"0\">\n<GfsPolicy\nIsEnabled=\"true\"/></JobOptions>", 2},
        LineCase{"<JobOptionsRoot>\n<RetainCycles>0</RetainCycles>\n"
                 "<RetentionType>Cycles</RetentionType>\n</JobOptionsRoot>",
                 2},
        // Enclosed elements and their attributes.
        LineCase{"<a>\n<JobSettings\nChainLength=\"x\"/></a>", 3},
        LineCase{"<a>\n<ImmutabilitySettings IsEnabled=\"true\"\nIntervalDays=\"2147483648\"/></a>", 3},
        LineCase{"<AmazonS3SpecificParams>\n<Credentials AccessKeyId=\"\"\nSecretAccessKey=\"\"/>"
                 "</AmazonS3SpecificParams>",
                 2},
        // A missing attribute is told of its element.
        LineCase{"\n<Details repo_name=\"\"\nbackup_type=\"x\"/>", 3}, LineCase{"\n<Details\nrepo_name=\"\"/>", 2},
        LineCase{"<ProgressDetails total_size=\"1\"\ntotal_used_size=\"-1\"/>", 2},
        LineCase{"\n<ProgressDetails\ntotal_size=\"1\"/>", 2},
        LineCase{"<MountSessionDetails MountPoint=\"\"\n\nOibId=\"x\"/>", 3},
        LineCase{"<BackupJobState\nVersion=\"3\"\nObjectStorageOperationMode=\"3\"/>", 2},
        LineCase{"<BackupJobState\nVersion=\"2\"\nObjectStorageOperationMode=\"x\"/>", 3},
        LineCase{"<BackupJobState\nVersion=\"1\"\nObjectStorageOperationMode=\"3\"/>", 1},
        LineCase{"<OracleConfig\nusername=\"\">\n<LogsTruncateConfig mode=\"ByAge\"\nsizeGB=\"x\"/>"
                 "</OracleConfig>",
                 4},
        LineCase{"\n<OracleConfig>\n<LogsTruncateConfig/></OracleConfig>", 2},
        LineCase{"<PostgresConfig\nosUser=\"\"\nauthType=\"x\"/>", 3},
        LineCase{"<root regionId=\"\"\nrepoName=\"\"\nclientInfo.id=\"x\"/>", 3},
        LineCase{"\n<root regionId=\"\"\nclientInfo.id=\"x\"/>", 2},
        LineCase{"<FullTransformSpec Id=\"\"\nBackupId=\"x\"/>", 2}, LineCase{"<SqlVariant Value=\"\"\nType=\"\"/>", 2},
        LineCase{"<GfsPolicy\nIsEnabled=\"maybe\"/>", 2}, LineCase{"<ScheduleWindow Minutes=\"0\"\n Kind=\"x\"/>", 2}};
    for (const auto& expected : cases)
    {
        const Document document(expected.text);
        failureText([&] { document.describe(); });
        EXPECT_EQ(document.lastReadLine(), expected.line) << expected.text;
    }
}

TEST(Document, AnUnknownWindowKindIsAPointer)
{
    const Document document("<ScheduleWindow Minutes=\"0\"\nKind=\"2\"/>");
    std::unique_ptr<const exc::CRuntimeExc> refusal;
    try
    {
        document.describe();
    }
    catch (const exc::CRuntimeExc* thrown)
    {
        refusal.reset(thrown);
    }
    ASSERT_NE(refusal, nullptr);
    EXPECT_STREQ(refusal->what(), "An unsupported schedule window kind occurred: [].");
    EXPECT_EQ(document.lastReadLine(), 2);
}

} // namespace
