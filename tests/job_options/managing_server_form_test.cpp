#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>

#include "sample_jobs.h"

namespace
{

using namespace zelplatform::model;
using zelmodel_test::expectSameJob;
using zelmodel_test::failureText;
using zelmodel_test::fromStrContext;
using zelmodel_test::fullJob;
using zelmodel_test::golden;
using zelmodel_test::serverContext;

std::string serverDocument(const std::string& children)
{
    return "<JobOptionsRoot>" + children + "</JobOptionsRoot>";
}

SBackupJobOptions serverJob(const std::string& children)
{
    return SBackupJobOptions::fromStr(serverDocument(children));
}

SBackupJobOptions expectedServerJob()
{
    SBackupJobOptions job(KbBlockSize::KbBlockSize512);
    job.compression = BackupJobCompression::Zstd9;
    job.maxPoints = 12;
    job.maxDays = 45;
    job.retentionType = ERetentionType::Cycles;
    job.dedupEnabled = false;
    job.deletedVmDataRetentionDays = 14;
    return job;
}

TEST(ServerJobOptions, ReadsEveryElement)
{
    expectSameJob(SBackupJobOptions::fromStr(golden("JobOptionsRoot/full.xml")), expectedServerJob());
}

TEST(ServerJobOptions, ReadsAnIndentedDocumentInAnyOrder)
{
    expectSameJob(SBackupJobOptions::fromStr(golden("JobOptionsRoot/indented.xml")), expectedServerJob());
}

TEST(ServerJobOptions, EmptyDocumentKeepsTheConstructorsDaysAndBlockSize1024)
{
    expectSameJob(SBackupJobOptions::fromStr(golden("JobOptionsRoot/empty.xml")),
                  SBackupJobOptions(KbBlockSize::KbBlockSize1024));
}

TEST(ServerJobOptions, EveryServerLevel)
{
    for (const int level : {0, 1, 5, 6, 9})
        EXPECT_EQ(level,
                  static_cast<int>(
                      serverJob("<CompressionLevel>" + std::to_string(level) + "</CompressionLevel>").compression));
}

TEST(ServerJobOptions, ZeroPointsAreRepairedUnlessCyclesAreKept)
{
    EXPECT_EQ(7UL, serverJob("<RetainCycles>0</RetainCycles><RetentionType>Days</RetentionType>").maxPoints);
    EXPECT_EQ(7UL, serverJob("<RetentionType>Days</RetentionType><RetainCycles>0</RetainCycles>").maxPoints);
    EXPECT_EQ(7UL, serverJob("<RetentionType>_number</RetentionType><RetainCycles>0</RetainCycles>").maxPoints);
    EXPECT_EQ(5UL, serverJob("<RetentionType>Days</RetentionType><RetainCycles>5</RetainCycles>").maxPoints);
    // Without "RetentionType" nothing is repaired.
    EXPECT_EQ(0UL, serverJob("<RetainCycles>0</RetainCycles>").maxPoints);

    const std::string text = serverDocument("<RetainCycles>0</RetainCycles><RetentionType>Cycles</RetentionType>");
    EXPECT_EQ(fromStrContext(text) + "Invalid 'maxPoints' parameter.",
              failureText([&] { SBackupJobOptions::fromStr(text); }));
}

TEST(ServerJobOptions, ZeroPointsOfTheTargetAreRepairedToo)
{
    SBackupJobOptions job(KbBlockSize::KbBlockSize1024);
    job.maxPoints = 0;
    EXPECT_TRUE(SBackupJobOptions::tryParseQorJobOptions(
        xml::TiXmlParseExc(serverDocument("<RetentionType>Days</RetentionType>")), job));
    EXPECT_EQ(7UL, job.maxPoints);
}

TEST(ServerJobOptions, ReaderAloneDoesNotRefuseCyclesWithoutPoints)
{
    SBackupJobOptions job(KbBlockSize::KbBlockSize1024);
    EXPECT_TRUE(SBackupJobOptions::tryParseQorJobOptions(
        xml::TiXmlParseExc(serverDocument("<RetainCycles>0</RetainCycles><RetentionType>Cycles</RetentionType>")),
        job));
    EXPECT_EQ(0UL, job.maxPoints);
    EXPECT_EQ(ERetentionType::Cycles, job.retentionType);
}

TEST(ServerJobOptions, LimitsAreNotEnforced)
{
    const SBackupJobOptions job = serverJob("<RetainCycles>900</RetainCycles><RetainDaysToKeep>0</RetainDaysToKeep>");
    EXPECT_EQ(900UL, job.maxPoints);
    EXPECT_EQ(0UL, job.maxDays);
}

TEST(ServerJobOptions, DeletedDataDaysAreGated)
{
    const std::string on = "<EnableDeletedVmDataRetention>true</EnableDeletedVmDataRetention>";
    const std::string off = "<EnableDeletedVmDataRetention>false</EnableDeletedVmDataRetention>";
    const struct
    {
        std::string children;
        std::optional<unsigned long> expected;
    } cases[] = {
        {on + "<RetainDays>14</RetainDays>", 14},
        {"<RetainDays>14</RetainDays>" + on, 14},
        {on, std::nullopt},
        {off + "<RetainDays>14</RetainDays>", std::nullopt},
        {"<RetainDays>14</RetainDays>", std::nullopt},
        // What the gate keeps out is not looked at.
        {off + "<RetainDays>rubbish</RetainDays>", std::nullopt},
        {"<RetainDays/>", std::nullopt},
        {on + "<RetainDays>0</RetainDays>", 0},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, serverJob(each.children).deletedVmDataRetentionDays) << each.children;
}

TEST(ServerJobOptions, AttributeOfTheAgentsFormIsNotReadHere)
{
    const std::string text = serverDocument("<EnableDeletedVmDataRetention>true</EnableDeletedVmDataRetention>"
                                            "<RetainDays RetainDays=\"30\"/>");
    EXPECT_EQ(serverContext(text) + "Unable to convert string [] to [unsigned long].",
              failureText([&] { SBackupJobOptions::fromStr(text); }));
}

TEST(ServerJobOptions, WinsOverTheAgentsForm)
{
    const std::string agent = "<JobOptions Compression=\"Rle\" MaxPoints=\"3\" RetentionType=\"Cycles\"/>";
    const std::string server = serverDocument("<RetainDaysToKeep>9</RetainDaysToKeep>");
    SBackupJobOptions expected(KbBlockSize::KbBlockSize1024);
    expected.maxDays = 9;
    expectSameJob(SBackupJobOptions::fromStr(agent + server), expected);
    expectSameJob(SBackupJobOptions::fromStr(server + agent), expected);

    const auto node = xml::TiXmlParseExc("<Envelope>" + agent + server + "</Envelope>");
    expectSameJob(SBackupJobOptions::fromXml(node.GetFirstChildNode("Envelope")), expected);
}

TEST(ServerJobOptions, BadContentDoesNotFallThroughToTheAgentsForm)
{
    const std::string text = serverDocument("<RetainCycles>x</RetainCycles>") + "<JobOptions MaxPoints=\"3\"/>";
    EXPECT_EQ(serverContext(text) + "Unable to convert string [x] to [unsigned long].",
              failureText([&] { SBackupJobOptions::fromStr(text); }));
}

TEST(ServerJobOptions, WithoutTheElementTheTargetStays)
{
    for (const char* text : {"<JobOptions MaxPoints=\"3\"/>", "<Other><JobOptionsRoot/></Other>", "<JobOptionsroot/>",
                             "<Other JobOptionsRoot=\"1\"/>"})
    {
        SBackupJobOptions job = fullJob();
        EXPECT_FALSE(SBackupJobOptions::tryParseQorJobOptions(xml::TiXmlParseExc(text), job)) << text;
        expectSameJob(job, fullJob());
    }
}

TEST(ServerJobOptions, WhatTheFormDoesNotCarryKeepsItsValue)
{
    SBackupJobOptions job = fullJob();
    EXPECT_TRUE(SBackupJobOptions::tryParseQorJobOptions(xml::TiXmlParseExc(golden("JobOptionsRoot/empty.xml")), job));
    expectSameJob(job, fullJob());

    EXPECT_TRUE(SBackupJobOptions::tryParseQorJobOptions(xml::TiXmlParseExc(golden("JobOptionsRoot/full.xml")), job));
    SBackupJobOptions expected = fullJob();
    expected.blockSize = KbBlockSize::KbBlockSize512;
    expected.maxPoints = 12;
    expected.maxDays = 45;
    expected.deletedVmDataRetentionDays = 14;
    expectSameJob(job, expected);
}

TEST(ServerJobOptions, SwitchThatIsOffKeepsTheTargetsDays)
{
    SBackupJobOptions job = fullJob();
    EXPECT_TRUE(SBackupJobOptions::tryParseQorJobOptions(
        xml::TiXmlParseExc(serverDocument("<EnableDeletedVmDataRetention>false</EnableDeletedVmDataRetention>"
                                          "<RetainDays>3</RetainDays>")),
        job));
    EXPECT_EQ(21UL, job.deletedVmDataRetentionDays);
}

TEST(ServerJobOptions, FailedReadLeavesTheTargetUntouched)
{
    const struct
    {
        const char* children;
        const char* reason;
    } cases[] = {
        {"<CompressionLevel>2</CompressionLevel>",
         "Unable to convert QOR level string [2] to BackupJobCompression::type."},
        {"<CompressionLevel/>", "Unable to convert QOR level string [] to BackupJobCompression::type."},
        {"<CompressionLevel>Lz4</CompressionLevel>",
         "Unable to convert QOR level string [Lz4] to BackupJobCompression::type."},
        {"<StgBlockSize>4096</StgBlockSize>", "Unable to convert string [4096] to KbBlockSize::type."},
        {"<StgBlockSize/>", "Unable to convert string [] to KbBlockSize::type."},
        {"<RetainCycles/>", "Unable to convert string [] to [unsigned long]."},
        {"<RetainCycles>12abc</RetainCycles>", "Unable to convert string [12abc] to [unsigned long]."},
        {"<RetainCycles>1 2</RetainCycles>", "Unable to convert string [1 2] to [unsigned long]."},
        {"<RetainCycles>-1</RetainCycles>", "Unable to convert string [-1] to [unsigned long]."},
        {"<RetainCycles>+1</RetainCycles>", "Unable to convert string [+1] to [unsigned long]."},
        {"<RetainCycles>1e3</RetainCycles>", "Unable to convert string [1e3] to [unsigned long]."},
        {"<RetainCycles>0x1F</RetainCycles>", "Unable to convert string [0x1F] to [unsigned long]."},
        {"<RetainDaysToKeep>18446744073709551616</RetainDaysToKeep>",
         "Unable to convert string [18446744073709551616] to [unsigned long]."},
        {"<RetainDaysToKeep>1.0</RetainDaysToKeep>", "Unable to convert string [1.0] to [unsigned long]."},
        {"<RetentionType>cycles</RetentionType>", "Failed to convert retention type from string."},
        {"<RetentionType/>", "Failed to convert retention type from string."},
        {"<EnableDeduplication>yes</EnableDeduplication>", "Unable to convert string [yes] to [bool]."},
        {"<EnableDeduplication/>", "Unable to convert string [] to [bool]."},
        {"<EnableDeletedVmDataRetention>2</EnableDeletedVmDataRetention>", "Unable to convert string [2] to [bool]."},
        {"<EnableDeletedVmDataRetention>1</EnableDeletedVmDataRetention><RetainDays>14d</RetainDays>",
         "Unable to convert string [14d] to [unsigned long]."},
        // The last element is at fault: all others were read before it.
        {"<CompressionLevel>0</CompressionLevel><StgBlockSize>KbBlockSize256</StgBlockSize>"
         "<RetainCycles>1</RetainCycles><RetainDaysToKeep>1</RetainDaysToKeep><RetentionType>Days</RetentionType>"
         "<EnableDeduplication>true</EnableDeduplication>"
         "<EnableDeletedVmDataRetention>true</EnableDeletedVmDataRetention><RetainDays>x</RetainDays>",
         "Unable to convert string [x] to [unsigned long]."},
        // Faults are told in the reader's order, not the document's.
        {"<RetainCycles>x</RetainCycles><CompressionLevel>y</CompressionLevel>",
         "Unable to convert QOR level string [y] to BackupJobCompression::type."},
    };
    for (const auto& each : cases)
    {
        const std::string text = serverDocument(each.children);
        SBackupJobOptions job = fullJob();
        EXPECT_EQ(std::string("BackupJobOptions: Converting QOR Job options from XML failed. ") + each.reason,
                  failureText([&] { SBackupJobOptions::tryParseQorJobOptions(xml::TiXmlParseExc(text), job); }));
        expectSameJob(job, fullJob());
        EXPECT_EQ(serverContext(text) + each.reason, failureText([&] { SBackupJobOptions::fromStr(text); }));
    }
}

} // namespace
