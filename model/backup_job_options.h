#pragma once

#include <optional>
#include <string>

#include <zelmodel/backup_job_compression.h>
#include <zelmodel/enums/kb_block_size.h>
#include <zelmodel/enums/snapshot_mode.h>
#include <zelmodel/export.h>
#include <zelmodel/retention_type.h>
#include <zelmodel/structs/gfs/gfs_policy_info.h>
#include <zelmodel/structs/indexing_options.h>
#include <zelmodel/structs/schedule/schedule_options.h>
#include <zelplatform/xml/xml.h>

/// The data model: jobs, sessions, enumerations, dates.
namespace zelplatform::model
{

/// The settings document of one backup job. Written in the agent's form ("JobOptions"), read from that and from the
/// managing server's form ("JobOptionsRoot"), which carries a part of the settings and is tried first. Fields are
/// public and unchecked; a failed read leaves nothing behind.
struct ZELMODEL_API SBackupJobOptions
{
    /// The attribute "Version" that is written; readers do not look at it.
    static constexpr unsigned long s_version = 2;

    /// Retention by days, 7 points and 7 days, the rest as setDefault says, then the block size.
    explicit SBackupJobOptions(KbBlockSize::type blockSize);

    /// Sets compression Lz4, block size 1024 KB, deduplication on, no retries with 600000 ms between them, the
    /// schedule's start and active full reset, and the default snapshot mode. Leaves the rest alone.
    void setDefault();

    /// Restore points to keep, 1..730. Throws "Number of restore points to keep on disk should be ..." for any other
    /// number, before it is stored; verifyMaxPoints stores nothing.
    void setMaxPoints(unsigned long count);
    static void verifyMaxPoints(unsigned long count);

    /// Days to keep restore points, 1..730. Throws "Number of days for daily retention must be ..." for any other
    /// number, before it is stored; verifyMaxDays stores nothing.
    void setMaxDays(unsigned long count);
    static void verifyMaxDays(unsigned long count);

    /// Adds the element "JobOptions" to the parent. Retention by points with 0 points is refused before anything is
    /// written. Throws "BackupJobOptions: Converting to XML failed. ...".
    void toXml(const xml::xml_holder_t& parent) const;

    /// Reads a node that holds "JobOptionsRoot" or "JobOptions". Retention by points with 0 points is refused; the
    /// upper limit of the setters is not looked at. Throws "BackupJobOptions: Converting from XML failed. ...".
    static SBackupJobOptions fromXml(const xml::xml_holder_t& node);

    /// Reads the managing server's form into the object; false, with the object untouched, when the node has no
    /// "JobOptionsRoot". What the form does not carry keeps its value. Throws "BackupJobOptions: Converting QOR Job
    /// options from XML failed. ..." for bad content, with the object untouched.
    static bool tryParseQorJobOptions(const xml::xml_holder_t& node, SBackupJobOptions& out);

    /// Reads the agent's form. Throws "BackupJobOptions: Converting KIV Job options from XML failed. ...".
    static SBackupJobOptions parseKivJobOptions(const xml::xml_holder_t& node);

    /// The document as text. Throws "BackupJobOptions: Converting to string failed. ...".
    std::string toString() const;

    /// Reads a text in either form. The message of a failure holds the whole text: "BackupJobOptions: Converting from
    /// string [%1] failed. ...".
    static SBackupJobOptions fromStr(const std::string& text);

    /// How the backup is compressed.
    BackupJobCompression::type compression = BackupJobCompression::Default;

    /// The size of its blocks.
    KbBlockSize::type blockSize;

    /// Whether maxPoints or maxDays counts.
    ERetentionType::type retentionType = ERetentionType::Days;

    /// The numbers that the setters check, 1..730; a document may hold more.
    unsigned long maxPoints = 7;
    unsigned long maxDays = 7;

    /// When set, data of machines that vanished from the job is kept so many days.
    std::optional<unsigned long> deletedVmDataRetentionDays;

    /// Whether the backup is deduplicated.
    bool dedupEnabled = true;

    /// Whether it is taken from a snapshot.
    ESnapshotMode::type snapshotMode = ESnapshotMode::SnapshotRequired;

    /// Commands before the freeze and after the thaw.
    std::string preFreezeCommand;
    std::string postThawCommand;

    /// Whether failures of the two are ignored.
    std::optional<bool> ignoreFreezeThawFailures;

    /// Time-out of the freeze and thaw scripts, carried unchanged.
    std::optional<long> freezeThawScriptsTimeout;

    /// Commands before and after the job.
    std::string preJobCommand;
    std::string postJobCommand;

    /// How often a failed job is tried again.
    unsigned long retryCount = 0;

    /// Wait between retries, in milliseconds.
    unsigned long retryTimeoutMs = 600000;

    /// The parts of the document that are records of their own.
    structs::SIndexingOptions indexing;
    structs::CScheduleOptions schedule;
    structs::gfs::SGfsPolicyInfo gfsPolicy;

    /// Passed through unchanged.
    std::string productSpecific;
};

} // namespace zelplatform::model
