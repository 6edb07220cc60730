#include <zelmodel/backup_job_options.h>

#include <zelplatform/exc/exc.h>

namespace zelplatform::model
{
namespace
{

constexpr unsigned long FirstCountTooLarge = 731;
constexpr unsigned long DefaultRetryTimeoutMs = 600000;

} // namespace

// The members start as setDefault sets them: a new schedule is a reset one.
SBackupJobOptions::SBackupJobOptions(KbBlockSize::type size) : blockSize(size) {}

void SBackupJobOptions::setDefault()
{
    schedule.ResetBoth();
    compression = BackupJobCompression::Default;
    blockSize = KbBlockSize::KbBlockSize1024;
    dedupEnabled = true;
    retryCount = 0;
    retryTimeoutMs = DefaultRetryTimeoutMs;
    snapshotMode = ESnapshotMode::GetDefault();
}

void SBackupJobOptions::verifyMaxPoints(unsigned long count)
{
    if (count == 0)
        throw exc::CRuntimeExc("Number of restore points to keep on disk should be greater than 0.");
    if (count >= FirstCountTooLarge)
        throw exc::CRuntimeExc("Number of restore points to keep on disk should be less than 731.");
}

void SBackupJobOptions::setMaxPoints(unsigned long count)
{
    verifyMaxPoints(count);
    maxPoints = count;
}

void SBackupJobOptions::verifyMaxDays(unsigned long count)
{
    if (count == 0)
        throw exc::CRuntimeExc("Number of days for daily retention must be greater than 0.");
    if (count >= FirstCountTooLarge)
        throw exc::CRuntimeExc("Number of days for daily retention must be less than 731.");
}

void SBackupJobOptions::setMaxDays(unsigned long count)
{
    verifyMaxDays(count);
    maxDays = count;
}

} // namespace zelplatform::model
