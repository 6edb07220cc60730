#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>
#include <zelplatform/xmlpp/xmlpp.h>

#include "sample_jobs.h"

namespace
{

using namespace zelplatform::model;
using zelmodel_test::expectSameJob;
using zelmodel_test::failureText;
using zelmodel_test::fullJob;
using zelmodel_test::golden;

TEST(BackupJobOptions, DefaultsAfterConstruction)
{
    const SBackupJobOptions job(KbBlockSize::KbBlockSize256);
    EXPECT_EQ(BackupJobCompression::Lz4, job.compression);
    EXPECT_EQ(KbBlockSize::KbBlockSize256, job.blockSize);
    EXPECT_EQ(ERetentionType::Days, job.retentionType);
    EXPECT_EQ(7UL, job.maxPoints);
    EXPECT_EQ(7UL, job.maxDays);
    EXPECT_FALSE(job.deletedVmDataRetentionDays);
    EXPECT_TRUE(job.dedupEnabled);
    EXPECT_EQ(ESnapshotMode::SnapshotRequired, job.snapshotMode);
    EXPECT_EQ("", job.preFreezeCommand);
    EXPECT_EQ("", job.postThawCommand);
    EXPECT_FALSE(job.ignoreFreezeThawFailures);
    EXPECT_FALSE(job.freezeThawScriptsTimeout);
    EXPECT_EQ("", job.preJobCommand);
    EXPECT_EQ("", job.postJobCommand);
    EXPECT_EQ(0UL, job.retryCount);
    EXPECT_EQ(600000UL, job.retryTimeoutMs);
    EXPECT_EQ(structs::EIndexingType::IsOff, job.indexing.type);
    EXPECT_EQ("", job.indexing.folders);
    EXPECT_TRUE(job.schedule == structs::CScheduleOptions());
    EXPECT_TRUE(job.schedule.GetJobStartOptions().IsDisabled());
    EXPECT_EQ(nullptr, job.schedule.getBackupWindow());
    EXPECT_FALSE(job.gfsPolicy.isEnabled);
    EXPECT_FALSE(job.gfsPolicy.weekly);
    EXPECT_FALSE(job.gfsPolicy.monthly);
    EXPECT_FALSE(job.gfsPolicy.yearly);
    EXPECT_EQ("", job.productSpecific);
    EXPECT_EQ(2UL, SBackupJobOptions::s_version);
}

TEST(BackupJobOptions, ConstructorTakesAnyBlockSize)
{
    for (const int number : {0, 1, 2, 3, 4, 5, 6, 42})
        EXPECT_EQ(number, static_cast<int>(SBackupJobOptions(static_cast<KbBlockSize::type>(number)).blockSize));
}

TEST(BackupJobOptions, SetDefaultTouchesOnlyItsOwnFields)
{
    SBackupJobOptions job = fullJob();
    job.setDefault();

    EXPECT_EQ(BackupJobCompression::Lz4, job.compression);
    EXPECT_EQ(KbBlockSize::KbBlockSize1024, job.blockSize);
    EXPECT_TRUE(job.dedupEnabled);
    EXPECT_EQ(0UL, job.retryCount);
    EXPECT_EQ(600000UL, job.retryTimeoutMs);
    EXPECT_EQ(ESnapshotMode::SnapshotRequired, job.snapshotMode);
    EXPECT_TRUE(job.schedule == structs::CScheduleOptions());

    // The synthetic full is no part of the schedule's reset.
    EXPECT_TRUE(job.schedule.GetSyntheticFullOptions() == fullJob().schedule.GetSyntheticFullOptions());

    SBackupJobOptions expected = fullJob();
    expected.compression = job.compression;
    expected.blockSize = job.blockSize;
    expected.dedupEnabled = job.dedupEnabled;
    expected.retryCount = job.retryCount;
    expected.retryTimeoutMs = job.retryTimeoutMs;
    expected.snapshotMode = job.snapshotMode;
    expected.schedule = job.schedule;
    expectSameJob(job, expected);
}

TEST(BackupJobOptions, LimitsOfPointsAndDays)
{
    for (const unsigned long count : {1UL, 2UL, 7UL, 729UL, 730UL})
    {
        SBackupJobOptions job(KbBlockSize::KbBlockSize1024);
        EXPECT_NO_THROW(SBackupJobOptions::verifyMaxPoints(count));
        EXPECT_NO_THROW(SBackupJobOptions::verifyMaxDays(count));
        job.setMaxPoints(count);
        job.setMaxDays(count);
        EXPECT_EQ(count, job.maxPoints);
        EXPECT_EQ(count, job.maxDays);
    }
}

TEST(BackupJobOptions, CountsOutsideTheLimitsAreRefusedAndNotStored)
{
    const struct
    {
        unsigned long count;
        const char* points;
        const char* days;
    } cases[] = {
        {0, "Number of restore points to keep on disk should be greater than 0.",
         "Number of days for daily retention must be greater than 0."},
        {731, "Number of restore points to keep on disk should be less than 731.",
         "Number of days for daily retention must be less than 731."},
        {900, "Number of restore points to keep on disk should be less than 731.",
         "Number of days for daily retention must be less than 731."},
        {18446744073709551615UL, "Number of restore points to keep on disk should be less than 731.",
         "Number of days for daily retention must be less than 731."},
    };
    for (const auto& each : cases)
    {
        SBackupJobOptions job(KbBlockSize::KbBlockSize1024);
        EXPECT_EQ(each.points, failureText([&] { SBackupJobOptions::verifyMaxPoints(each.count); }));
        EXPECT_EQ(each.points, failureText([&] { job.setMaxPoints(each.count); }));
        EXPECT_EQ(each.days, failureText([&] { SBackupJobOptions::verifyMaxDays(each.count); }));
        EXPECT_EQ(each.days, failureText([&] { job.setMaxDays(each.count); }));
        EXPECT_EQ(7UL, job.maxPoints);
        EXPECT_EQ(7UL, job.maxDays);
    }
}

TEST(BackupJobOptions, DefaultJobAsText)
{
    EXPECT_EQ(golden("JobOptions/default.xml"), SBackupJobOptions(KbBlockSize::KbBlockSize1024).toString());
}

TEST(BackupJobOptions, JobWithEverythingAsText)
{
    EXPECT_EQ(golden("JobOptions/full.xml"), fullJob().toString());
}

TEST(BackupJobOptions, EveryFieldComesBack)
{
    expectSameJob(SBackupJobOptions::fromStr(fullJob().toString()), fullJob());
    expectSameJob(SBackupJobOptions::fromStr(golden("JobOptions/full.xml")), fullJob());

    const SBackupJobOptions plain(KbBlockSize::KbBlockSize8192);
    expectSameJob(SBackupJobOptions::fromStr(plain.toString()), plain);
}

TEST(BackupJobOptions, TextReadAndWrittenAgainIsTheSame)
{
    for (const char* path : {"JobOptions/default.xml", "JobOptions/full.xml"})
        EXPECT_EQ(golden(path), SBackupJobOptions::fromStr(golden(path)).toString());
}

TEST(BackupJobOptions, GreatestNumbersComeBack)
{
    SBackupJobOptions job(KbBlockSize::KbBlockSize512);
    job.maxPoints = 18446744073709551615UL;
    job.maxDays = 18446744073709551615UL;
    job.deletedVmDataRetentionDays = 18446744073709551615UL;
    job.retryCount = 18446744073709551615UL;
    job.retryTimeoutMs = 18446744073709551615UL;
    for (const long timeout : {9223372036854775807L, -9223372036854775807L - 1, -1L, 0L})
    {
        job.freezeThawScriptsTimeout = timeout;
        job.ignoreFreezeThawFailures = timeout == 0;
        expectSameJob(SBackupJobOptions::fromStr(job.toString()), job);
    }
}

TEST(BackupJobOptions, EmptyOptionalStaysEmptyAlthoughItsSwitchIsWritten)
{
    const std::string text = SBackupJobOptions(KbBlockSize::KbBlockSize1024).toString();
    EXPECT_NE(std::string::npos, text.find("<EnableDeletedVmDataRetention>false</EnableDeletedVmDataRetention>"));
    EXPECT_EQ(std::string::npos, text.find("<RetainDays"));
    EXPECT_FALSE(SBackupJobOptions::fromStr(text).deletedVmDataRetentionDays);
}

TEST(BackupJobOptions, BackupWindowIsInNoDocument)
{
    SBackupJobOptions job = fullJob();
    job.schedule.setBackupWindow(
        std::make_shared<structs::BackupWindow>(structs::DayHourMatrix(structs::EScheduleWindowKind::Enabled), 0));
    EXPECT_EQ(golden("JobOptions/full.xml"), job.toString());
    EXPECT_EQ(nullptr, SBackupJobOptions::fromStr(job.toString()).schedule.getBackupWindow());
}

TEST(BackupJobOptions, LineBreaksAndTabsOfScriptsComeBack)
{
    const struct
    {
        std::string value;
        std::string written;
    } cases[] = {
        {"a\r\nb", "a&#xD;&#xA;b"},
        {"a\nb", "a&#xA;b"},
        {"a\rb", "a&#xD;b"},
        {"a\tb", "a&#x9;b"},
        {"\r\n", "&#xD;&#xA;"},
        {"  a  b  ", "  a  b  "},
        {"&amp;&lt;&#10;", "&amp;amp;&amp;lt;&amp;#10;"},
        {"]]>\xC3\xA4\xFF", "]]&gt;\xC3\xA4\xFF"},
    };
    for (const auto& each : cases)
    {
        SBackupJobOptions job(KbBlockSize::KbBlockSize1024);
        job.preFreezeCommand = each.value;
        job.postThawCommand = each.value;
        job.preJobCommand = each.value;
        job.postJobCommand = each.value;
        job.productSpecific = each.value;
        job.indexing.type = structs::EIndexingType::IndexOnly;
        job.indexing.folders = each.value;
        const std::string text = job.toString();
        EXPECT_NE(std::string::npos, text.find(" PrefreezeCommand=\"" + each.written + "\"")) << text;
        EXPECT_NE(std::string::npos, text.find(" ProductSpecific=\"" + each.written + "\"")) << text;
        expectSameJob(SBackupJobOptions::fromStr(text), job);
    }
}

TEST(BackupJobOptions, DocumentIsAppendedToItsParent)
{
    xmlpp::CXmlDocument document;
    xmlpp::CXmlNode root = document.AddRootNode("Envelope");
    root.AddNode("Before");
    SBackupJobOptions(KbBlockSize::KbBlockSize1024).toXml(root);
    EXPECT_EQ("<Envelope><Before/>" + golden("JobOptions/default.xml") + "</Envelope>", document.Serialize());
    expectSameJob(SBackupJobOptions::fromXml(root), SBackupJobOptions(KbBlockSize::KbBlockSize1024));
}

TEST(BackupJobOptions, CyclesWithoutPointsAreNotWritten)
{
    SBackupJobOptions job = fullJob();
    job.maxPoints = 0;
    // The check comes before all others.
    job.compression = static_cast<BackupJobCompression::type>(7);

    xmlpp::CXmlDocument document;
    xmlpp::CXmlNode root = document.AddRootNode("Envelope");
    EXPECT_EQ("BackupJobOptions: Converting to XML failed. Invalid 'maxPoints' parameter.",
              failureText([&] { job.toXml(root); }));
    EXPECT_EQ("<Envelope/>", document.Serialize());
    EXPECT_EQ("BackupJobOptions: Converting to string failed. BackupJobOptions: Converting to XML failed. "
              "Invalid 'maxPoints' parameter.",
              failureText([&] { (void)job.toString(); }));
}

TEST(BackupJobOptions, OtherRetentionWithoutPointsIsWritten)
{
    for (const auto type : {ERetentionType::Days, ERetentionType::_number})
    {
        SBackupJobOptions job(KbBlockSize::KbBlockSize1024);
        job.retentionType = type;
        job.maxPoints = 0;
        expectSameJob(SBackupJobOptions::fromStr(job.toString()), job);
    }
}

TEST(BackupJobOptions, ValuesOutsideTheTablesAreNotWritten)
{
    const std::string context =
        "BackupJobOptions: Converting to string failed. BackupJobOptions: Converting to XML failed. ";
    const struct
    {
        void (*spoil)(SBackupJobOptions&);
        std::string message;
    } cases[] = {
        {[](SBackupJobOptions& job) { job.compression = static_cast<BackupJobCompression::type>(7); },
         "Unable to convert BackupJobCompression::type [7] to string."},
        {[](SBackupJobOptions& job) { job.blockSize = static_cast<KbBlockSize::type>(2); },
         "Unable to convert KbBlockSize::type [2] to string."},
        {[](SBackupJobOptions& job) { job.retentionType = static_cast<ERetentionType::type>(3); },
         "Failed to convert retention type to string."},
        {[](SBackupJobOptions& job) { job.snapshotMode = static_cast<ESnapshotMode::type>(3); },
         "ESnapshotMode: Failed to convert [3] to string. Unexpected snapshot mode: [3]"},
        {[](SBackupJobOptions& job) { job.indexing.type = static_cast<structs::EIndexingType::type>(4); },
         "IndexingOptions: Failed to serialize to Xml. Unable to convert EIndexingType::type [4] to string."},
    };
    for (const auto& each : cases)
    {
        SBackupJobOptions job = fullJob();
        each.spoil(job);
        EXPECT_EQ(context + each.message, failureText([&] { (void)job.toString(); }));
    }
}

TEST(BackupJobOptions, ControlCharactersAreNotWrittenAndNotQuoted)
{
    const std::string context =
        "BackupJobOptions: Converting to string failed. BackupJobOptions: Converting to XML failed. ";
    for (int code = 0; code < 32; ++code)
    {
        if (code == '\t' || code == '\n' || code == '\r')
            continue;
        const std::string value = std::string("topsecret") + static_cast<char>(code) + "topsecret";
        for (const auto field : {&SBackupJobOptions::preFreezeCommand, &SBackupJobOptions::postThawCommand,
                                 &SBackupJobOptions::preJobCommand, &SBackupJobOptions::postJobCommand,
                                 &SBackupJobOptions::productSpecific})
        {
            SBackupJobOptions job(KbBlockSize::KbBlockSize1024);
            job.*field = value;
            const std::string message = failureText([&] { (void)job.toString(); });
            EXPECT_EQ(context, message.substr(0, context.size())) << code;
            EXPECT_GT(message.size(), context.size()) << code;
            EXPECT_EQ(std::string::npos, message.find("topsecret")) << message;
        }
    }
}

TEST(BackupJobOptions, CopiesAndMovesFieldByField)
{
    const SBackupJobOptions job = fullJob();
    SBackupJobOptions copy(job);
    expectSameJob(copy, job);
    SBackupJobOptions assigned(KbBlockSize::KbBlockSize256);
    assigned = copy;
    expectSameJob(assigned, job);
    const SBackupJobOptions moved(std::move(copy));
    expectSameJob(moved, job);
}

} // namespace
