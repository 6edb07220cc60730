#include <zelmodel/structs/certificate.h>

#include "assigning.h"
#include "samples.h"
#include "schedule_words.h"

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model;
using namespace zelplatform::model::structs;

// The document has no place for the window.
std::string tellJob(const SBackupJobOptions& job)
{
    return job.toString() + tellSchedule(job.schedule);
}

SBackupJobOptions otherJob()
{
    SBackupJobOptions job(KbBlockSize::KbBlockSize8192);
    job.preJobCommand = longText("another");
    job.productSpecific = longText("other");
    return job;
}

xml::xml_holder_t serverDocument()
{
    return xml::TiXmlParseExc(
        "<JobOptionsRoot><StgBlockSize>KbBlockSize256</StgBlockSize><RetainCycles>9</RetainCycles>"
        "<CompressionLevel>6</CompressionLevel></JobOptionsRoot>");
}

Operations optionsOperations()
{
    using Job = SBackupJobOptions;
    const auto server = serverDocument();
    const auto withoutMemory = [] {
        auto job = fullJob();
        job.schedule.GetActiveFullOptions().GetCalendar().GetMonthMask() = CMonthMask(std::vector<bool>());
        return job;
    };
    const Tell<Job> tell = tellJob;
    return changing<Job>("SBackupJobOptions", fullJob, tell,
                         {{"setDefault", [](Job& job) { job.setDefault(); }},
                          {"setMaxPoints", [](Job& job) { job.setMaxPoints(9); }},
                          {"setMaxDays", [](Job& job) { job.setMaxDays(9); }},
                          {"tryParseQorJobOptions",
                           [server](Job& job) { SBackupJobOptions::tryParseQorJobOptions(server, job); }},
                          {"assignedMove", [](Job& job) { job = otherJob(); }}}) +
           changing<Job>("SBackupJobOptions.withoutMasks", withoutMemory,
                         [](const Job& job) { return util::toStr(job.blockSize) + tellSchedule(job.schedule); },
                         {{"setDefault", [](Job& job) { job.setDefault(); }}}) +
           asking<Job>("SBackupJobOptions", fullJob,
                       {{"toString", [](const Job& job) { return job.toString(); }},
                        {"default", [](const Job&) { return tellJob(Job(KbBlockSize::KbBlockSize1024)); }},
                        {"toStringList",
                         [](const Job&) {
                             return BackupJobCompression::toStringList().back() +
                                    BackupJobCompression::toLevelStringList().back();
                         }}}) +
           assigningFields<Job>("SBackupJobOptions", fullJob, otherJob, tell);
}

SIndexingOptions indexing()
{
    return {EIndexingType::IndexOnly, longText("/etc")};
}

Operations indexingOperations()
{
    const Tell<SIndexingOptions> tell = [](const SIndexingOptions& options) { return options.ToLogStr(); };
    return asking<SIndexingOptions>("SIndexingOptions", indexing, {{"ToLogStr", tell}}) +
           assigningFields<SIndexingOptions>(
               "SIndexingOptions", indexing,
               [] {
                   return SIndexingOptions{EIndexingType::IndexExcept, longText("another folder")};
               },
               tell);
}

SApplicationProcessingOracleConfig oracle()
{
    SApplicationProcessingOracleConfig config;
    config.username = CUniString(std::wstring(40, L'u'));
    config.truncation = {EArchivedLogsTruncationMode::ByAge, 10, 24};
    return config;
}

SApplicationProcessingPostgresConfig postgres()
{
    SApplicationProcessingPostgresConfig config;
    config.osUser = CUniString(std::wstring(40, L'u'));
    config.authType = EPostgreSqlAuthType::Peer;
    return config;
}

template <class TConfig>
Operations configOperations(const std::string& name, const Make<TConfig>& make)
{
    const Tell<TConfig> tell = [](const TConfig& config) { return config.ToXmlString(); };
    return asking<TConfig>(name, make, {{"ToXmlString", tell}}) + assigningFields<TConfig>(
                                                                      name, make, [] { return TConfig(); }, tell);
}

Operations truncationOperations()
{
    using Config = SOracleArchivedLogsTruncationConfig;
    const auto node = xml::TiXmlParseExc(R"(<LogsTruncateConfig mode="BySize" sizeGB="10" lifetimeHours="24"/>)")
                          .GetFirstChildNode("LogsTruncateConfig");
    return changing<Config>(
               "SOracleArchivedLogsTruncationConfig", [] { return oracle().truncation; },
               [](const Config& config) { return util::toStr(config.mode) + util::toStr(config.lifetimeHours); },
               {{"FromXml", [node](Config& config) { config.FromXml(node); }}}) +
           asking<Config>("SOracleArchivedLogsTruncationConfig", [] { return oracle().truncation; },
                          {{"Validate", [](const Config& config) {
                                config.Validate();
                                return std::string("valid");
                            }}});
}

} // namespace

Operations jobOperations()
{
    return optionsOperations() + indexingOperations() +
           configOperations<SApplicationProcessingOracleConfig>("SApplicationProcessingOracleConfig", oracle) +
           configOperations<SApplicationProcessingPostgresConfig>("SApplicationProcessingPostgresConfig", postgres) +
           truncationOperations();
}

} // namespace zelmodel_test
