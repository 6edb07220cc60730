#include <iostream>

#include <zelmodel/job_options.h>
#include <zelplatform/exc/exc.h>

using namespace zelplatform::model;

int main()
try
{
    // Read: a document in the agent's form or the managing server's.
    auto job = SBackupJobOptions::fromStr("<JobOptions Compression='Zstd3' RetentionType='Days' MaxDays='14'/>");
    std::cout << BackupJobCompression::toStr(job.compression) << ", " << job.maxDays << " days are kept\n";

    // Change: the setters check, the fields do not.
    job.setMaxDays(30);
    try
    {
        job.setMaxDays(1000);
    }
    catch (const std::exception& refusal)
    {
        std::cout << "refused: " << refusal.what() << '\n';
    }

    // A full backup of each month is kept for a year.
    job.gfsPolicy.isEnabled = true;
    auto& monthly = job.gfsPolicy.monthly.emplace();
    monthly.isEnabled = true;
    monthly.keepCount = 12;
    job.schedule.GetJobStartOptions().SetWeekly(22, 30, structs::CWeekMask(true));

    // Write, and read what was written.
    const auto copy = SBackupJobOptions::fromStr(job.toString());
    std::cout << copy.maxDays << " days, " << copy.gfsPolicy.monthly->keepCount << " months; starts "
              << copy.schedule.GetJobStartOptions().ToLogStr(false) << '\n';

    // A document that cannot be read says where and why.
    SBackupJobOptions::fromStr("<JobOptions MaxDays='two weeks'/>");
}
catch (const exc::CRuntimeExc& refusal)
{
    for (const auto& sentence : refusal.trace())
        std::cout << "- " << sentence << '\n';
}
