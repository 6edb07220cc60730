#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>

#include "sample_jobs.h"

namespace
{

using namespace zelplatform::model;
using zelmodel_test::agentContext;
using zelmodel_test::expectSameJob;
using zelmodel_test::failureText;
using zelmodel_test::fullJob;
using zelmodel_test::golden;

SBackupJobOptions agentJob(const std::string& attributes, const std::string& children = {})
{
    return SBackupJobOptions::fromStr("<JobOptions " + attributes + ">" + children + "</JobOptions>");
}

TEST(AgentJobOptions, BareElementReadsAsDefaultsWithCycles)
{
    SBackupJobOptions expected(KbBlockSize::KbBlockSize1024);
    expected.retentionType = ERetentionType::Cycles;
    expectSameJob(SBackupJobOptions::fromStr(golden("JobOptions/bare.xml")), expected);
}

TEST(AgentJobOptions, AbsentRetentionTypeMeansCyclesAlthoughTheConstructorSaysDays)
{
    EXPECT_EQ(ERetentionType::Cycles, agentJob("MaxPoints=\"5\"").retentionType);
    EXPECT_EQ(ERetentionType::Days, SBackupJobOptions(KbBlockSize::KbBlockSize1024).retentionType);
}

TEST(AgentJobOptions, RetentionTypes)
{
    EXPECT_EQ(ERetentionType::Cycles, agentJob("RetentionType=\"Cycles\"").retentionType);
    EXPECT_EQ(ERetentionType::Days, agentJob("RetentionType=\"Days\"").retentionType);
    EXPECT_EQ(ERetentionType::_number, agentJob("RetentionType=\"_number\"").retentionType);
}

TEST(AgentJobOptions, VersionIsNeverRead)
{
    for (const char* version : {"", "0", "1", "2", "3", "99", "rubbish", "-1"})
        EXPECT_EQ(5UL, agentJob("MaxPoints=\"5\" Version=\"" + std::string(version) + "\"").maxPoints);
}

TEST(AgentJobOptions, CompressionAndBlockSizeByName)
{
    EXPECT_EQ(BackupJobCompression::NoCompression, agentJob("Compression=\"NoCompression\"").compression);
    EXPECT_EQ(BackupJobCompression::Zstd3, agentJob("Compression=\"Zstd3\"").compression);
    EXPECT_EQ(KbBlockSize::KbBlockSize256, agentJob("BlockSize=\"KbBlockSize256\"").blockSize);
    EXPECT_EQ(KbBlockSize::KbBlockSize8192, agentJob("BlockSize=\"KbBlockSize8192\"").blockSize);
    EXPECT_EQ(KbBlockSize::KbBlockSize1024, agentJob("BlockSize=\"Default\"").blockSize);
}

TEST(AgentJobOptions, EmptyCompressionAndBlockSizeKeepTheDefaults)
{
    const SBackupJobOptions job = agentJob("Compression=\"\" BlockSize=\"\"");
    EXPECT_EQ(BackupJobCompression::Lz4, job.compression);
    EXPECT_EQ(KbBlockSize::KbBlockSize1024, job.blockSize);
}

TEST(AgentJobOptions, OldCompressionNameIsWrittenBackAsTheNewOne)
{
    const SBackupJobOptions job = agentJob("Compression=\"ZlibHigh\"");
    EXPECT_EQ(BackupJobCompression::Zstd9, job.compression);
    EXPECT_NE(std::string::npos, job.toString().find(" Compression=\"Zstd9\" "));
}

TEST(AgentJobOptions, TextsAreCopiedAsTheyStand)
{
    const SBackupJobOptions job =
        agentJob("PrefreezeCommand=\" a \" PostthawCommand=\"b&#10;c\" PrejobCommand=\"&lt;d&gt;\" "
                 "PostjobCommand=\"\" ProductSpecific='\"e\"'");
    EXPECT_EQ(" a ", job.preFreezeCommand);
    EXPECT_EQ("b\nc", job.postThawCommand);
    EXPECT_EQ("<d>", job.preJobCommand);
    EXPECT_EQ("", job.postJobCommand);
    EXPECT_EQ("\"e\"", job.productSpecific);
}

TEST(AgentJobOptions, PointsAboveTheSettersLimitAreAccepted)
{
    for (const unsigned long count : {1UL, 730UL, 731UL, 900UL, 18446744073709551615UL})
    {
        const SBackupJobOptions job = agentJob("MaxPoints=\"" + std::to_string(count) + "\" MaxDays=\"" +
                                               std::to_string(count) + "\" RetentionType=\"Cycles\"");
        EXPECT_EQ(count, job.maxPoints);
        EXPECT_EQ(count, job.maxDays);
    }
    EXPECT_EQ(0UL, agentJob("MaxDays=\"0\"").maxDays);
}

TEST(AgentJobOptions, CyclesNeedPoints)
{
    const std::string reason = "Invalid 'maxPoints' parameter.";
    for (const char* attributes : {"RetentionType=\"Cycles\" MaxPoints=\"0\"", "MaxPoints=\"0\"", "MaxPoints=\"00\""})
    {
        const std::string text = "<JobOptions " + std::string(attributes) + "/>";
        EXPECT_EQ(zelmodel_test::fromStrContext(text) + reason, failureText([&] { SBackupJobOptions::fromStr(text); }));
    }
    EXPECT_EQ(0UL, agentJob("RetentionType=\"Days\" MaxPoints=\"0\"").maxPoints);
    EXPECT_EQ(0UL, agentJob("RetentionType=\"_number\" MaxPoints=\"0\"").maxPoints);
}

TEST(AgentJobOptions, AgentReaderAloneDoesNotLookAtThePoints)
{
    const auto document = xml::TiXmlParseExc("<JobOptions RetentionType=\"Cycles\" MaxPoints=\"0\"/>");
    const SBackupJobOptions job = SBackupJobOptions::parseKivJobOptions(document);
    EXPECT_EQ(ERetentionType::Cycles, job.retentionType);
    EXPECT_EQ(0UL, job.maxPoints);
}

TEST(AgentJobOptions, SnapshotRequiredMeansNoSnapshot)
{
    EXPECT_EQ(ESnapshotMode::NoSnapshot, agentJob("IsSnapshotRequired=\"true\"").snapshotMode);
    EXPECT_EQ(ESnapshotMode::NoSnapshot, agentJob("IsSnapshotRequired=\"1\"").snapshotMode);
    EXPECT_EQ(ESnapshotMode::SnapshotRequired, agentJob("IsSnapshotRequired=\"false\"").snapshotMode);
    EXPECT_EQ(ESnapshotMode::SnapshotRequired, agentJob("IsSnapshotRequired=\"0\"").snapshotMode);
}

TEST(AgentJobOptions, SnapshotModeWinsWhateverTheOrder)
{
    EXPECT_EQ(ESnapshotMode::Hybrid, agentJob("IsSnapshotRequired=\"true\" SnapshotMode=\"Hybrid\"").snapshotMode);
    EXPECT_EQ(ESnapshotMode::Hybrid, agentJob("SnapshotMode=\"Hybrid\" IsSnapshotRequired=\"true\"").snapshotMode);
    EXPECT_EQ(ESnapshotMode::SnapshotRequired,
              agentJob("SnapshotMode=\"SnapshotRequired\" IsSnapshotRequired=\"true\"").snapshotMode);
    EXPECT_EQ(ESnapshotMode::NoSnapshot,
              agentJob("SnapshotMode=\"NoSnapshot\" IsSnapshotRequired=\"false\"").snapshotMode);
}

TEST(AgentJobOptions, BooleansOfOtherWriters)
{
    const struct
    {
        const char* text;
        bool expected;
    } cases[] = {{"true", true},   {"True", true},   {"TRUE", true},   {"1", true},
                 {"false", false}, {"False", false}, {"FALSE", false}, {"0", false}};
    for (const auto& each : cases)
    {
        const std::string text = each.text;
        const SBackupJobOptions job =
            agentJob("IsDedupEnabled=\"" + text + "\" IgnoreFreezeThawFailures=\"" + text + "\"");
        EXPECT_EQ(each.expected, job.dedupEnabled) << text;
        ASSERT_TRUE(job.ignoreFreezeThawFailures) << text;
        EXPECT_EQ(each.expected, *job.ignoreFreezeThawFailures) << text;
    }
}

TEST(AgentJobOptions, RetriesAndTimeouts)
{
    const SBackupJobOptions job = agentJob("RetryCount=\"007\" RetryTimeOutMs=\"0\" FreezeThawScriptsTimeout=\"-30\"");
    EXPECT_EQ(7UL, job.retryCount);
    EXPECT_EQ(0UL, job.retryTimeoutMs);
    ASSERT_TRUE(job.freezeThawScriptsTimeout);
    EXPECT_EQ(-30L, *job.freezeThawScriptsTimeout);
    EXPECT_FALSE(job.ignoreFreezeThawFailures);
}

TEST(AgentJobOptions, DeletedDataDaysFromAttributeOrText)
{
    const struct
    {
        const char* children;
        std::optional<unsigned long> expected;
    } cases[] = {
        {"", std::nullopt},
        {"<RetainDays>30</RetainDays>", 30},
        {"<RetainDays>\n  30\n</RetainDays>", 30},
        {"<RetainDays RetainDays=\"30\"/>", 30},
        {"<RetainDays RetainDays=\"30\">14</RetainDays>", 30},
        {"<RetainDays RetainDays=\"30\">rubbish</RetainDays>", 30},
        {"<RetainDays Other=\"9\">0</RetainDays>", 0},
        {"<RetainDays>1</RetainDays><RetainDays>2</RetainDays>", 1},
        {"<EnableDeletedVmDataRetention>true</EnableDeletedVmDataRetention>", std::nullopt},
        // The switch is written for older readers and not asked here.
        {"<EnableDeletedVmDataRetention>false</EnableDeletedVmDataRetention><RetainDays>30</RetainDays>", 30},
        {"<EnableDeletedVmDataRetention>rubbish</EnableDeletedVmDataRetention><RetainDays>30</RetainDays>", 30},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, agentJob("", each.children).deletedVmDataRetentionDays) << each.children;
    EXPECT_FALSE(agentJob("RetainDays=\"30\"").deletedVmDataRetentionDays);
}

TEST(AgentJobOptions, AttributeScheduleIsNoChildSchedule)
{
    const SBackupJobOptions job = agentJob("Schedule=\"true\"");
    EXPECT_TRUE(job.schedule == structs::CScheduleOptions());
    EXPECT_TRUE(agentJob("Schedule=\"neither\"").schedule.GetJobStartOptions().IsDisabled());
}

TEST(AgentJobOptions, GfsPolicyOnlyWhenThere)
{
    EXPECT_FALSE(agentJob("GfsPolicy=\"true\"").gfsPolicy.isEnabled);
    EXPECT_TRUE(agentJob("", "<GfsPolicy IsEnabled=\"true\"/>").gfsPolicy.isEnabled);
    const SBackupJobOptions longNames =
        agentJob("", "<GfsPolicy IsEnabled=\"true\"><GfsWeeklyPolicy IsEnabled=\"true\"/></GfsPolicy>");
    EXPECT_FALSE(longNames.gfsPolicy.weekly);
}

TEST(AgentJobOptions, UnknownContentCommentsAndRepetitionsArePassedOver)
{
    const SBackupJobOptions job =
        SBackupJobOptions::fromStr("\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<!DOCTYPE JobOptions>\n<!-- one -->\n"
                                   "<Other/><JobOptions MaxPoints=\"5\" Colour=\"red\"><!-- two --><Colour>red</Colour>"
                                   "<RetainDays><!-- three -->3<!-- four -->0</RetainDays></JobOptions>"
                                   "<JobOptions MaxPoints=\"6\"/>");
    EXPECT_EQ(5UL, job.maxPoints);
    EXPECT_EQ(30UL, job.deletedVmDataRetentionDays);
}

TEST(AgentJobOptions, OlderLayoutDaily)
{
    SBackupJobOptions expected(KbBlockSize::KbBlockSize1024);
    expected.retentionType = ERetentionType::Cycles;
    expected.compression = BackupJobCompression::Zstd9;
    expected.snapshotMode = ESnapshotMode::NoSnapshot;
    expected.deletedVmDataRetentionDays = 30;
    expected.indexing.type = structs::EIndexingType::IndexOnly;
    expected.indexing.folders = "/etc;/home";
    using datetime::EDayOfWeek;
    expected.schedule.GetJobStartOptions().SetWeekly(
        3, 15, zelmodel_test::days({EDayOfWeek::Monday, EDayOfWeek::Wednesday, EDayOfWeek::Friday}));
    expectSameJob(SBackupJobOptions::fromStr(golden("legacy/job_options_daily.xml")), expected);
}

TEST(AgentJobOptions, OlderLayoutMonthly)
{
    SBackupJobOptions expected(KbBlockSize::KbBlockSize1024);
    expected.retentionType = ERetentionType::Cycles;
    expected.maxPoints = 3;
    expected.compression = BackupJobCompression::Zstd3;
    expected.indexing.type = structs::EIndexingType::IndexAll;
    structs::CMonthMask months(false);
    months.SetMonth(datetime::EMonth::January, true);
    months.SetMonth(datetime::EMonth::June, true);
    expected.schedule.GetJobStartOptions().SetMonthlyOnDay(1, 5, structs::CDayOfMonth(15), months);
    expected.schedule.GetJobStartOptions().Disable();
    expectSameJob(SBackupJobOptions::fromStr(golden("legacy/job_options_monthly.xml")), expected);
}

TEST(AgentJobOptions, OlderLayoutPeriodically)
{
    SBackupJobOptions expected(KbBlockSize::KbBlockSize1024);
    expected.retentionType = ERetentionType::Cycles;
    expected.indexing.type = structs::EIndexingType::IndexExcept;
    expected.indexing.folders = "/tmp";
    expected.schedule.GetJobStartOptions().SetPeriodically(4, 0);
    expectSameJob(SBackupJobOptions::fromStr(golden("legacy/job_options_periodically.xml")), expected);
}

} // namespace
