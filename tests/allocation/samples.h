#pragma once

#include <string>

#include <zelmodel/job_options.h>
#include <zelmodel/repositories.h>

namespace zelmodel_test
{

/// Text that no string keeps inside of itself.
inline std::string longText(const std::string& begin = "text")
{
    return begin + " that is longer than what a string keeps inside of itself";
}

inline zelplatform::model::structs::CWeekMask weekend()
{
    using datetime::EDayOfWeek;
    zelplatform::model::structs::CWeekMask mask(false);
    mask.SetDay(EDayOfWeek::Saturday, true);
    mask.SetDay(EDayOfWeek::Sunday, true);
    return mask;
}

inline zelplatform::model::structs::CMonthMask summer()
{
    using datetime::EMonth;
    zelplatform::model::structs::CMonthMask mask(false);
    mask.SetMonth(EMonth::June, true);
    mask.SetMonth(EMonth::July, true);
    return mask;
}

/// A window that is open in some hours of two days.
inline zelplatform::model::structs::BackupWindow officeHours()
{
    using namespace zelplatform::model::structs;
    ScheduleParser parser(Disabled);
    parser.parseDay(1, "08-12, 13-17");
    parser.parseDay(5, "08-12");
    return BackupWindow(parser.getMatrix(), -30);
}

inline zelplatform::model::structs::gfs::SGfsPolicyInfo allRules()
{
    zelplatform::model::structs::gfs::SGfsPolicyInfo policy;
    policy.isEnabled = true;
    policy.weekly.emplace();
    policy.monthly.emplace();
    policy.yearly.emplace();
    return policy;
}

/// A schedule with no part at its default, and a window.
inline zelplatform::model::structs::CScheduleOptions fullSchedule()
{
    using namespace zelplatform::model::structs;
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetMonthly(22, 30, EWeekDayNumber::Last, datetime::EDayOfWeek::Friday, summer());
    schedule.GetActiveFullOptions().SetWeekly(weekend());
    schedule.GetSyntheticFullOptions().SetMonthlyOnDay(CDayOfMonth(15), summer());
    schedule.setBackupWindow(std::make_shared<BackupWindow>(officeHours()));
    return schedule;
}

/// A job with every setting engaged.
inline zelplatform::model::SBackupJobOptions fullJob()
{
    using namespace zelplatform::model;
    SBackupJobOptions job(KbBlockSize::KbBlockSize512);
    job.compression = BackupJobCompression::Zstd9;
    job.retentionType = ERetentionType::Cycles;
    job.deletedVmDataRetentionDays = 60;
    job.snapshotMode = ESnapshotMode::NoSnapshot;
    job.dedupEnabled = false;
    job.preFreezeCommand = longText("before freezing");
    job.postThawCommand = longText("after thawing");
    job.ignoreFreezeThawFailures = true;
    job.freezeThawScriptsTimeout = -1;
    job.preJobCommand = longText("before the job");
    job.postJobCommand = longText("after the job");
    job.retryCount = 3;
    job.retryTimeoutMs = 1;
    job.indexing = {structs::EIndexingType::IndexExcept, longText("/etc;/home/folder")};
    job.schedule = fullSchedule();
    job.gfsPolicy = allRules();
    job.productSpecific = longText("product");
    return job;
}

inline zelplatform::model::structs::SAmazonS3SpecificParams fullS3()
{
    zelplatform::model::structs::SAmazonS3SpecificParams params;
    params.endpoint = {longText("https://s3.example"), longText("arn:aws"), longText("ABCDEF"), std::nullopt};
    params.endpoint.proxy = {longText("proxy"), longText("login"), longText("password")};
    params.credentials = {longText("key"),  longText("secret"), longText("token"),
                          longText("role"), longText("host"),   datetime::CDateTime(7, true)};
    return params;
}

} // namespace zelmodel_test
