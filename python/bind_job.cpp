#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <zelmodel/backup_job_options.h>

#include "bindings.h"
#include "values.h"

namespace python
{
namespace
{

namespace py = pybind11;
using zelplatform::model::BackupJobCompression;
using zelplatform::model::ERetentionType;
using zelplatform::model::ESnapshotMode;
using zelplatform::model::KbBlockSize;
using zelplatform::model::SBackupJobOptions;
using zelplatform::model::structs::EIndexingType;

using Job = py::class_<SBackupJobOptions>;

/// A field of text.
void addText(Job& job, const char* name, std::string SBackupJobOptions::*field, const char* doc)
{
    job.def_property_readonly(
        name, [field](const SBackupJobOptions& options) { return Text{options.*field}; }, doc);
}

/// A field that is told as the word of its enumeration.
template <class TTell>
void addWord(Job& job, const char* name, const TTell& tell, const char* doc)
{
    job.def_property_readonly(
        name, [tell](const SBackupJobOptions& options) { return Text{tell(options)}; }, doc);
}

void addStorage(Job& job)
{
    addWord(
        job, "compression", [](const auto& options) { return BackupJobCompression::toStr(options.compression); },
        "The name of the compression, \"Lz4\".");
    job.def_property_readonly(
        "block_size_kb", [](const SBackupJobOptions& options) { return KbBlockSize::toKbytes(options.blockSize); },
        "The size of blocks in KiB.");
    job.def_readonly("dedup_enabled", &SBackupJobOptions::dedupEnabled, "Whether equal blocks are stored once.");
    addWord(
        job, "snapshot_mode", [](const auto& options) { return ESnapshotMode::ToString(options.snapshotMode); },
        "Whether a snapshot of the volumes is needed, as the document names it.");
}

void addRetention(Job& job)
{
    addWord(
        job, "retention_type", [](const auto& options) { return ERetentionType::ToStr(options.retentionType); },
        "\"Days\" when restore points are kept for days, \"Cycles\" when they are counted.");
    job.def_readonly("max_points", &SBackupJobOptions::maxPoints, "How many restore points are kept.");
    job.def_readonly("max_days", &SBackupJobOptions::maxDays, "For how many days restore points are kept.");
    job.def_readonly("deleted_vm_data_retention_days", &SBackupJobOptions::deletedVmDataRetentionDays,
                     "For how many days data of vanished machines are kept, or None.");
    job.def_readonly("gfs_policy", &SBackupJobOptions::gfsPolicy, "The long-term retention.");
}

void addScripts(Job& job)
{
    addText(job, "pre_freeze_command", &SBackupJobOptions::preFreezeCommand, "Runs before file systems are frozen.");
    addText(job, "post_thaw_command", &SBackupJobOptions::postThawCommand, "Runs after they are thawed.");
    job.def_readonly("ignore_freeze_thaw_failures", &SBackupJobOptions::ignoreFreezeThawFailures,
                     "Whether the job goes on when one of the two fails, or None.");
    job.def_readonly("freeze_thaw_scripts_timeout", &SBackupJobOptions::freezeThawScriptsTimeout,
                     "The time-out of the two, as the document holds it, or None.");
    addText(job, "pre_job_command", &SBackupJobOptions::preJobCommand, "Runs before the job.");
    addText(job, "post_job_command", &SBackupJobOptions::postJobCommand, "Runs after the job.");
}

} // namespace

void bindJob(py::module_& module)
{
    Job job(module, "JobOptions", "The settings of one backup job.");
    addStorage(job);
    addRetention(job);
    addScripts(job);
    job.def_readonly("retry_count", &SBackupJobOptions::retryCount, "How often a failed job is tried again.");
    job.def_readonly("retry_timeout_ms", &SBackupJobOptions::retryTimeoutMs,
                     "The wait between tries, in milliseconds.");
    addWord(
        job, "indexing_type", [](const auto& options) { return EIndexingType::ToStr(options.indexing.type); },
        "Which files are indexed, as the document names it.");
    addWord(
        job, "indexed_folders", [](const auto& options) { return options.indexing.folders; },
        "The folders that are meant, as one text.");
    job.def_readonly("schedule", &SBackupJobOptions::schedule, "When the job starts.");
    addText(job, "product_specific", &SBackupJobOptions::productSpecific, "Passed through unchanged.");
    job.def(
        "to_xml", [](const SBackupJobOptions& options) { return Text{options.toString()}; },
        "The document as the library writes it, in the agent's form.");
}

} // namespace python
