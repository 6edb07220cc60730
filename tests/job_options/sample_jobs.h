#pragma once

#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <support/schedule_samples.h>
#include <zelmodel/job_options.h>
#include <zelplatform/exc/exc.h>

namespace zelmodel_test
{

/// A job with a value of its own in every field; golden/JobOptions/full.xml is its document.
inline zelplatform::model::SBackupJobOptions fullJob()
{
    using namespace zelplatform::model;
    using namespace zelplatform::model::structs;

    SBackupJobOptions job(KbBlockSize::KbBlockSize4096);
    job.compression = BackupJobCompression::Zstd9;
    job.retentionType = ERetentionType::Cycles;
    job.maxPoints = 14;
    job.maxDays = 30;
    job.deletedVmDataRetentionDays = 21;
    job.dedupEnabled = false;
    job.snapshotMode = ESnapshotMode::Hybrid;
    job.preFreezeCommand = "/opt/scripts/freeze.sh \"db & logs\"";
    job.postThawCommand = "/opt/scripts/thaw.sh\r\necho done\t<ok>";
    job.ignoreFreezeThawFailures = true;
    job.freezeThawScriptsTimeout = 900;
    job.preJobCommand = "echo 'start'";
    job.postJobCommand = "/opt/scripts/post.sh";
    job.retryCount = 3;
    job.retryTimeoutMs = 120000;
    job.indexing.type = EIndexingType::IndexExcept;
    job.indexing.folders = "/tmp;/var/tmp";
    job.productSpecific = "<p a=\"1\"/>\n";

    const auto quarters =
        months({datetime::EMonth::January, datetime::EMonth::April, datetime::EMonth::July, datetime::EMonth::October});
    const auto saturday = days({datetime::EDayOfWeek::Saturday});
    CMonthMask withoutFebruary(true);
    withoutFebruary.SetMonth(datetime::EMonth::February, false);

    job.schedule.GetJobStartOptions().SetMonthly(22, 30, EWeekDayNumber::Last, datetime::EDayOfWeek::Friday, quarters);
    job.schedule.GetActiveFullOptions().SetWeekly(saturday);
    job.schedule.GetSyntheticFullOptions().SetMonthlyOnDay(CDayOfMonth(32), withoutFebruary);

    job.gfsPolicy.isEnabled = true;
    job.gfsPolicy.weekly.emplace();
    job.gfsPolicy.weekly->isEnabled = true;
    job.gfsPolicy.weekly->keepCount = 4;
    job.gfsPolicy.weekly->beginTimeUtc = datetime::CDateTime(1709251200, true); // 2024-03-01
    job.gfsPolicy.weekly->desiredTime = 6;
    job.gfsPolicy.monthly.emplace();
    job.gfsPolicy.monthly->isEnabled = true;
    job.gfsPolicy.monthly->keepCount = 12;
    job.gfsPolicy.monthly->beginTimeUtc = datetime::CDateTime(1705363198, true); // 2024-01-15 23:59:58
    job.gfsPolicy.yearly.emplace();
    job.gfsPolicy.yearly->keepCount = 3;
    job.gfsPolicy.yearly->desiredTime = 2;
    return job;
}

template <class TRule>
void expectSameRule(const std::optional<TRule>& actual, const std::optional<TRule>& expected, const char* name)
{
    ASSERT_EQ(actual.has_value(), expected.has_value()) << name;
    if (expected)
    {
        EXPECT_TRUE(*actual == *expected) << name;
    }
}

/// Compares every field that a document carries, one by one.
inline void expectSameJob(const zelplatform::model::SBackupJobOptions& actual,
                          const zelplatform::model::SBackupJobOptions& expected)
{
    EXPECT_EQ(actual.compression, expected.compression);
    EXPECT_EQ(actual.blockSize, expected.blockSize);
    EXPECT_EQ(actual.retentionType, expected.retentionType);
    EXPECT_EQ(actual.maxPoints, expected.maxPoints);
    EXPECT_EQ(actual.maxDays, expected.maxDays);
    EXPECT_EQ(actual.deletedVmDataRetentionDays, expected.deletedVmDataRetentionDays);
    EXPECT_EQ(actual.dedupEnabled, expected.dedupEnabled);
    EXPECT_EQ(actual.snapshotMode, expected.snapshotMode);
    EXPECT_EQ(actual.preFreezeCommand, expected.preFreezeCommand);
    EXPECT_EQ(actual.postThawCommand, expected.postThawCommand);
    EXPECT_EQ(actual.ignoreFreezeThawFailures, expected.ignoreFreezeThawFailures);
    EXPECT_EQ(actual.freezeThawScriptsTimeout, expected.freezeThawScriptsTimeout);
    EXPECT_EQ(actual.preJobCommand, expected.preJobCommand);
    EXPECT_EQ(actual.postJobCommand, expected.postJobCommand);
    EXPECT_EQ(actual.retryCount, expected.retryCount);
    EXPECT_EQ(actual.retryTimeoutMs, expected.retryTimeoutMs);
    EXPECT_EQ(actual.indexing.type, expected.indexing.type);
    EXPECT_EQ(actual.indexing.folders, expected.indexing.folders);
    EXPECT_TRUE(actual.schedule == expected.schedule);
    EXPECT_TRUE(actual.schedule.GetSyntheticFullOptions() == expected.schedule.GetSyntheticFullOptions());
    EXPECT_EQ(actual.gfsPolicy.isEnabled, expected.gfsPolicy.isEnabled);
    expectSameRule(actual.gfsPolicy.weekly, expected.gfsPolicy.weekly, "weekly");
    expectSameRule(actual.gfsPolicy.monthly, expected.gfsPolicy.monthly, "monthly");
    expectSameRule(actual.gfsPolicy.yearly, expected.gfsPolicy.yearly, "yearly");
    EXPECT_EQ(actual.productSpecific, expected.productSpecific);
}

/// The contexts of reading a text that precede the sentence about its root.
inline std::string fromStrContext(const std::string& text)
{
    return "BackupJobOptions: Converting from string [" + text +
           "] failed. BackupJobOptions: Converting from XML failed. ";
}

/// The contexts of a fault within "JobOptions".
inline std::string agentContext(const std::string& text)
{
    return fromStrContext(text) + "BackupJobOptions: Converting KIV Job options from XML failed. ";
}

/// The contexts of a fault within "JobOptionsRoot".
inline std::string serverContext(const std::string& text)
{
    return fromStrContext(text) + "BackupJobOptions: Converting QOR Job options from XML failed. ";
}

/// The entries of the trace that the action's failure carries.
template <class F>
std::vector<std::string> failureTrace(F&& action)
{
    try
    {
        std::forward<F>(action)();
    }
    catch (const exc::CRuntimeExc& failure)
    {
        return failure.trace();
    }
    ADD_FAILURE() << "nothing was thrown";
    return {};
}

} // namespace zelmodel_test
