#include "wrong_documents.h"

namespace zelmodel_test
{
namespace
{

using Rows = std::vector<WrongDocument>;

constexpr auto WhereWritten = EWrong::WhereWritten;

Rows wrongJobs()
{
    const char* const job = "JobOptions/full.xml";
    const char* const server = "JobOptionsRoot/full.xml";
    return {
        {"job-options", job, " Compression=\"Zstd9\"", "", WhereWritten},
        {"job-options", job, "\"Zstd9\"", "\"ZlibHigh\"", WhereWritten},
        {"job-options", job, "\"Zstd9\"", "\"zstd9\""},
        {"job-options", job, "\"KbBlockSize4096\"", "\"Default\"", WhereWritten},
        {"job-options", job, "\"KbBlockSize4096\"", "\"4096\""},
        {"job-options", job, "\"Cycles\" MaxPoints=\"14\"", "\"Cycles\" MaxPoints=\"014\"", WhereWritten},
        {"job-options", job, "MaxPoints=\"14\"", "MaxPoints=\"14x\""},
        {"job-options", job, "MaxPoints=\"14\"", "MaxPoints=\"18446744073709551616\""},
        {"job-options", job, "\"Hybrid\"", "\"hybrid\""},
        {"job-options", job, "<RetainDays>21</RetainDays>", "<RetainDays RetainDays=\"21\"/>", WhereWritten},
        {"job-options", job, "<RetainDays>21<", "<RetainDays><"},
        {"job-options", job, "Version=\"2\" Type=\"IndexExcept\"", "Version=\"3\" Type=\"IndexExcept\""},
        {"job-options", job, " Folders=\"/tmp;/var/tmp\"", ""},
        {"job-options", job, "<GfsPolicy", "<Later/><GfsPolicy", WhereWritten},
        {"job-options", job, " IsDedupEnabled=\"false\"", " IsDedupEnabled=\"FALSE\"", WhereWritten},
        {"job-options", job, " IsDedupEnabled=\"false\"", " IsDedupEnabled=\"off\""},
        {"server-job-options", server, "<CompressionLevel>9<", "<CompressionLevel>2<"},
        {"server-job-options", server, "<RetainCycles>12<", "<RetainCycles>-12<"},
        {"server-job-options", server, "<JobOptionsRoot>", "<JobOptionsRoot Version=\"7\">", WhereWritten},
        {"server-job-options", server, "<RetainDays>14<", "<RetainDays>x<"},
        {"server-job-options", server, "<StgBlockSize>KbBlockSize512<", "<StgBlockSize>512<"},
        {"server-job-options", server, "<StgBlockSize>", "<StgBlockSize> ", WhereWritten},
    };
}

Rows wrongSchedules()
{
    const char* const schedule = "ScheduleOptions/weekly_with_fulls.xml";
    const char* const lone = "Schedule/weekly.xml";
    const char* const window = "ScheduleWindow/office_hours_closed.xml";
    return {
        {"schedule-options", schedule, "Version=\"3\"", "Version=\"4\""},
        {"schedule-options", schedule, "Version=\"3\"", "Version=\"0\"", WhereWritten},
        {"schedule-options", schedule, "Version=\"1\" IsEnabled", "Version=\"2\" IsEnabled"},
        {"schedule-options", schedule, " WeekDayNumber=\"Every\"", ""},
        {"schedule-options", schedule, "WeekDayNumber=\"Every\"", "WeekDayNumber=\"every\"", WhereWritten},
        {"schedule-options", schedule, "WeekDayNumber=\"Every\"", "WeekDayNumber=\"Fifth\""},
        {"schedule-options", schedule, "DayOfMonth=\"0\"", "DayOfMonth=\"33\"", WhereWritten},
        {"schedule-options", schedule, "DayOfMonth=\"0\"", "DayOfMonth=\"-1\""},
        {"schedule-options", schedule, " Type=\"0\"", "", WhereWritten},
        {"schedule-options", schedule, " Type=\"0\"", " Type=\"weekly\""},
        {"schedule-options", schedule, " Sunday=\"false\"", ""},
        {"schedule-options", schedule, " Hours=\"22\"", ""},
        {"schedule-options", schedule, " Hours=\"22\"", " Hours=\"300\"", WhereWritten},
        {"schedule-options", schedule, "<WeekMask", "<Later/><WeekMask", WhereWritten},
        {"schedule-options", schedule, "<ScheduleOptions>", "<ScheduleOptions>text", WhereWritten},
        {"lone-schedule", lone, " IsEnabled=\"true\"", " IsEnabled=\"yes\""},
        {"lone-schedule", "ActiveFullOptions/weekly.xml", "Version=\"1\"", "Version=\"2\""},
        {"lone-schedule", lone, " Version=\"3\"", " Version=\"3\" Later=\"\"", WhereWritten},
        {"backup-window", window, " Kind=\"0\"", ""},
        {"backup-window", window, " Kind=\"0\"", " Kind=\"2\""},
        {"backup-window", window, " Kind=\"0\"", " Kind=\"00\"", WhereWritten},
        {"backup-window", window, "Minutes=\"18446744073709551316\"", "Minutes=\"-300\"", WhereWritten},
        {"backup-window", window, "Minutes=\"18446744073709551316\"", "Minutes=\"5 h\""},
        {"backup-window", window, "\"08-17\"", "\"8-17\"", WhereWritten},
        {"backup-window", window, "\"08-17\"", "\"08-25\""},
        {"backup-window", window, "\"00-03, 22-24\"", "\"00-03,22-24\""},
        {"backup-window", window, "<Sunday", "<sunday"},
        {"backup-window", window, "<Days>", "<Days><Saturday/>", WhereWritten},
    };
}

Rows wrongPolicies()
{
    return {
        {"gfs-policy", "GfsPolicy/short.xml", "Weeks=\"4\"", "Weeks=\"-4\""},
        {"gfs-policy", "GfsPolicy/short.xml", "Weeks=\"4\"", "Weeks=\"2147483648\""},
        {"gfs-policy", "GfsPolicy/short.xml", "03/01/2024 00:00:00", "01/01/0001 00:00:00", WhereWritten},
        {"gfs-policy", "GfsPolicy/short.xml", " DesiredTime=\"6\"", ""},
        {"gfs-policy", "GfsPolicy/short.xml", "<Weekly", "<Yearly/><Weekly"},
        {"gfs-policy", "GfsPolicy/long.xml", "NumberOfWeeks=\"4\"", "NumberOfWeeks=\"four\""},
        {"gfs-policy", "GfsPolicy/long.xml", "<GfsWeeklyPolicy", "<Weekly/><GfsWeeklyPolicy", WhereWritten},
        {"gfs-policy", "GfsPolicy/long.xml", "<GfsPolicy IsEnabled=\"true\"", "<GfsPolicy"},
        {"oracle-config", "OracleConfig/by_age.xml", " username=\"oracle\"", ""},
        {"oracle-config", "OracleConfig/by_age.xml", "\"ByAge\"", "\"byage\""},
        {"oracle-config", "OracleConfig/by_age.xml", " sizeGB=\"10\"", "", WhereWritten},
        {"oracle-config", "OracleConfig/by_age.xml", " sizeGB=\"10\"", " sizeGB=\"10GB\""},
        {"postgres-config", "PostgresConfig/peer.xml", "\"peer\"", "\"Peer\""},
        {"postgres-config", "PostgresConfig/peer.xml", " osUser=\"postgres\"", ""},
        {"postgres-config", "PostgresConfig/peer.xml", " osUser", " Later=\"\" osUser", WhereWritten},
    };
}

Rows wrongRepositories()
{
    const char* const limitations = "JobSettings/full.xml";
    const char* const immutability = "ImmutabilitySettings/enabled.xml";
    const char* const direct = "DirectBackupImmutabilitySettings/full.xml";
    const char* const storage = "AmazonS3SpecificParams/full.xml";
    const char* const container = "root/full.xml";
    return {
        {"repository-limitations", limitations, " ChainLength=\"14\"", ""},
        {"repository-limitations", limitations, " ChainLength=\"14\"", " ChainLength=\"2147483648\""},
        {"repository-limitations", limitations, "RepositoryId=\"6b1f2c3d-", "RepositoryId=\"6B1F2C3D-", WhereWritten},
        {"repository-limitations", limitations, "RepositoryId=\"6b1f2c3d-", "RepositoryId=\"{6b1f2c3d-"},
        {"immutability-settings", immutability, " IntervalDays=\"30\"", ""},
        {"immutability-settings", immutability, " IntervalDays=\"30\"", " IntervalDays=\"2147483648\""},
        {"immutability-settings", immutability, " IntervalDays", " ImmutabilityMode=\"1\" IntervalDays", WhereWritten},
        {"immutability-settings", immutability, " IntervalDays", " ImmutabilityMode=\"one\" IntervalDays"},
        {"direct-backup-immutability-settings", direct, "HasImmutable", "HaveImmutable"},
        {"direct-backup-immutability-settings", direct, "Tier=\"21\"", "Tier=\"21.0\""},
        {"direct-backup-immutability-settings", direct, "<ImmutabilitySettings", "<Later/><ImmutabilitySettings",
         WhereWritten},
        {"s3-params", storage, " SessionToken=\"token==\"", ""},
        {"s3-params", storage, "03/06/2024 12:34:56", "3/6/2024 12:34:56", WhereWritten},
        {"s3-params", storage, "03/06/2024 12:34:56", "2024-03-06 12:34:56"},
        {"s3-params", storage, "03/06/2024 12:34:56", "02/30/2024 12:34:56"},
        {"s3-params", storage, " password=\"proxy-pass\"", ""},
        {"s3-params", storage, "<Endpoint ", "<Credentials/><Endpoint ", WhereWritten},
        {"cloud-container", container, " regionId=\"eu-central-1\"", ""},
        {"cloud-container", container, " containerName=\"backups\"", "", WhereWritten},
        {"cloud-container", container, "\"6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab\"", "\"\""},
        {"cloud-container", container, "\"6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab\"", "\"|companion\""},
    };
}

Rows wrongSessions()
{
    const char* const details = "Details/full.xml";
    const char* const progress = "ProgressDetails/full.xml";
    const char* const record = "Record/warning.xml";
    return {
        {"sql-variant", "SqlVariant/text.xml", " Type=\"12\"", ""},
        {"sql-variant", "SqlVariant/text.xml", " Type=\"12\"", " Type=\"text\""},
        {"sql-variant", "SqlVariant/text.xml", " Type=\"12\"", " Type=\"12\" Later=\"\"", WhereWritten},
        {"job-session-details", details, "\"Increment\"", "\"Synthetic\""},
        {"job-session-details", details, " oib_id=\"0f8fad5b-d9cb-469f-a165-70867728950e\"", "", WhereWritten},
        {"job-session-details", details, " repo_name", " name"},
        {"job-session-details", details, "repo_free_space=\"549755813888\"", "repo_free_space=\"512 GB\""},
        {"job-session-progress-details", progress, " total_size=\"1099511627776\"", "", WhereWritten},
        {"job-session-progress-details", progress, " processing_speed=\"104857600\"", ""},
        {"job-session-progress-details", progress, "network_load=\"7\"", "network_load=\"2147483648\""},
        {"task-log-record", record, "\"EWarning\"", "\"EUnknown\""},
        {"task-log-record", record, " cookie=\"c-17\"", ""},
        {"task-log-record", record, "03/07/2024 13:05:09", "03/07/2024 24:05:09"},
        {"task-log-record", record, "<Record ", "<LogRecord ", WhereWritten},
        {"mount-session-details", "MountSessionDetails/mounted.xml", "OibId=\"0f8fad5b-", "OibId=\"0f8fad5-"},
        {"mount-session-details", "MountSessionDetails/mounted.xml", " MountPoint=", " Point="},
        {"mount-session-details", "MountSessionDetails/mounted.xml", "/>", "><Later/></MountSessionDetails>",
         WhereWritten},
        {"backup-job-state", "BackupJobState/mode_3.xml", "Version=\"2\"", "Version=\"3\""},
        {"backup-job-state", "BackupJobState/mode_3.xml", "Version=\"2\"", "Version=\"1\""},
        {"backup-job-state", "BackupJobState/mode_3.xml", "Version=\"2\" ObjectStorageOperationMode",
         "Version=\"1\" ObjectStorageBackupMode", WhereWritten},
        {"backup-job-state", "BackupJobState/mode_3.xml", " ObjectStorageOperationMode=\"3\"", ""},
    };
}

Rows wrongTransforms()
{
    const char* const deletion = "DeletePointTransformSpec/three_points.xml";
    const char* const full = "FullTransformSpec/three_points.xml";
    const char* const gfs = "GfsFullTransformSpec/weekly.xml";
    return {
        {"transform-spec", deletion, " TransformType=\"4\"", ""},
        {"transform-spec", deletion, "value=\"cccccccc-", "value=\"first-"},
        {"transform-spec", deletion, "<Guid value=\"cccccccc-0000-0000-0000-000000000003\"/>",
         "<Guid>cccccccc-0000-0000-0000-000000000003</Guid>", WhereWritten},
        {"transform-spec", deletion, "<Guid value=\"cccccccc-0000-0000-0000-000000000003\"/>", "<Guid>first</Guid>"},
        {"create-synthetic-full-spec", full, " JobTargetFile=\"/backups/nightly/job.meta\"", ""},
        {"create-synthetic-full-spec", full, "OperationType=\"1\"", "OperationType=\"2\"", WhereWritten},
        {"create-synthetic-full-spec", full, "<Guid value=\"cccccccc-0000-0000-0000-000000000003\"/>", "<Guid/>"},
        {"create-synthetic-full-spec", full, "LastIncrementPointId=\"bbbbbbbb-", "LastIncrementPointId=\"last-"},
        {"create-gfs-synthetic-full-spec", gfs, "OperationType=\"2\"", "OperationType=\"monthly\""},
        {"create-gfs-synthetic-full-spec", gfs, " BackupId=", " Backup="},
        {"create-gfs-synthetic-full-spec", gfs, "OperationType=\"2\"", "OperationType=\"02\"", WhereWritten},
    };
}

} // namespace

std::vector<WrongDocument> wrongDocuments()
{
    Rows all;
    for (const auto family :
         {wrongJobs, wrongSchedules, wrongPolicies, wrongRepositories, wrongSessions, wrongTransforms})
    {
        const auto rows = family();
        all.insert(all.end(), rows.begin(), rows.end());
    }
    return all;
}

} // namespace zelmodel_test
