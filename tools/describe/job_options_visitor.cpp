#include "visitors.h"

#include <cstddef>
#include <utility>

#include <zelplatform/util/util.h>

#include "document_names.h"
#include "words.h"

namespace describe
{
namespace
{

using zelplatform::model::BackupJobCompression;
using zelplatform::model::ERetentionType;
using zelplatform::model::ESnapshotMode;
using zelplatform::model::KbBlockSize;
using zelplatform::model::SBackupJobOptions;
using zelplatform::model::structs::EIndexingType;
using zelplatform::model::structs::SIndexingOptions;

constexpr const char* OnlyInAgentForm = "snapshot mode, scripts, retries, indexing, schedule, GFS policy and "
                                        "product-specific text";

/// Where a field stands in the form at hand: an attribute of the agent's form, or an element of the managing server's.
class Lines
{
public:
    Lines(Place place, bool isServerForm) : m_place(std::move(place)), m_isServerForm(isServerForm) {}

    bool isServerForm() const noexcept { return m_isServerForm; }
    const Place& place() const noexcept { return m_place; }

    Origin of(const char* attribute, const char* element) const
    {
        return m_isServerForm ? m_place.child(element).origin() : m_place.originOf(attribute);
    }

    Origin ofFilled(const char* attribute, const char* element) const
    {
        return m_isServerForm ? m_place.child(element).origin() : m_place.originOfFilled(attribute);
    }

    Origin ofAgents(const char* attribute) const { return m_isServerForm ? Origin() : m_place.originOf(attribute); }

    Origin ofAgents(const char* attribute, const char* olderName) const
    {
        return m_isServerForm ? Origin() : m_place.originOf(attribute, {olderName});
    }

private:
    Place m_place;
    bool m_isServerForm;
};

std::string tellRetention(const SBackupJobOptions& job)
{
    switch (job.retentionType)
    {
    case ERetentionType::Cycles: return "keeps " + countOf(job.maxPoints, "restore point");
    case ERetentionType::Days: return "keeps the restore points of " + countOf(job.maxDays, "day");
    case ERetentionType::_number: break;
    }
    return "of an unknown kind: neither points nor days";
}

std::string tellSnapshot(ESnapshotMode::type mode)
{
    switch (mode)
    {
    case ESnapshotMode::SnapshotRequired: return "required";
    case ESnapshotMode::NoSnapshot: return "none";
    case ESnapshotMode::Hybrid: break;
    }
    return "hybrid";
}

std::string tellIndexing(const SIndexingOptions& indexing)
{
    const auto folders = textOr(indexing.folders, "none named");
    switch (indexing.type)
    {
    case EIndexingType::IsOff: return "off";
    case EIndexingType::IndexAll: return "all files and folders";
    case EIndexingType::IndexOnly: return "only these folders: " + folders;
    case EIndexingType::IndexExcept: break;
    }
    return "all but these folders: " + folders;
}

std::string tellRetries(const SBackupJobOptions& job)
{
    if (job.retryCount == 0)
        return "none";
    return countOf(job.retryCount, "time") + " with " + duration(job.retryTimeoutMs) + " between";
}

Node visitCompression(const SBackupJobOptions& job, const Lines& lines)
{
    const auto name = BackupJobCompression::toStr(job.compression);
    const auto highest = BackupJobCompression::toLevelStringList().back();
    return makeField("compression", "Compression", name,
                     name + ", level " + BackupJobCompression::toLevelStr(job.compression) + " of 0 to " + highest,
                     lines.ofFilled(job_names::Compression, job_names::CompressionLevel));
}

Node visitBlockSize(const SBackupJobOptions& job, const Lines& lines)
{
    return makeField("blockSize", "Block size", KbBlockSize::toStr(job.blockSize),
                     util::toStr(KbBlockSize::toKbytes(job.blockSize)) + " KB",
                     lines.ofFilled(job_names::BlockSize, job_names::StgBlockSize));
}

// An older layout writes the number into an attribute of the element instead of its text. In the managing server's form
// a flag decides whether the number counts.
Origin originOfDeletedDataRule(const SBackupJobOptions& job, const Lines& lines)
{
    if (lines.isServerForm() && !job.deletedVmDataRetentionDays)
        return lines.place().child(job_names::EnableDeletedVmDataRetention).origin();
    const auto element = lines.place().child(job_names::RetainDays);
    return element.has(job_names::RetainDays) ? asOlder(element.originOf(job_names::RetainDays)) : element.origin();
}

void visitRetention(const SBackupJobOptions& job, const Lines& lines, std::vector<Node>& fields)
{
    auto retention = makeField("retentionType", "Retention", ERetentionType::ToStr(job.retentionType),
                               tellRetention(job), lines.of(job_names::RetentionType, job_names::RetentionType));
    fields.push_back(std::move(retention));
    fields.push_back(makeDetail("maxPoints", "Restore points", job.maxPoints, countOf(job.maxPoints, "restore point"),
                                lines.of(job_names::MaxPoints, job_names::RetainCycles)));
    fields.push_back(makeDetail("maxDays", "Days", job.maxDays, countOf(job.maxDays, "day"),
                                lines.of(job_names::MaxDays, job_names::RetainDaysToKeep)));
    const auto& days = job.deletedVmDataRetentionDays;
    fields.push_back(makeField("deletedVmDataRetentionDays", "Deleted data", days ? Value(*days) : "",
                               days ? "data of machines that vanished from the job is kept " + countOf(*days, "day")
                                    : "no rule for data of machines that vanished from the job",
                               originOfDeletedDataRule(job, lines)));
}

void visitScripts(const SBackupJobOptions& job, const Lines& lines, std::vector<Node>& fields)
{
    const auto script = [&](const char* name, const char* label, const std::string& command, const char* attribute) {
        fields.push_back(makeField(name, label, command, textOr(command, "none"), lines.ofAgents(attribute)));
    };
    script("preFreezeCommand", "Script before freezing", job.preFreezeCommand, job_names::PrefreezeCommand);
    script("postThawCommand", "Script after thawing", job.postThawCommand, job_names::PostthawCommand);
    const auto& areIgnored = job.ignoreFreezeThawFailures;
    fields.push_back(makeField("ignoreFreezeThawFailures", "Freeze and thaw failures",
                               areIgnored ? Value(*areIgnored) : "",
                               areIgnored ? (*areIgnored ? "ignored" : "not ignored") : "not set",
                               lines.ofAgents(job_names::IgnoreFreezeThawFailures)));
    const auto& timeout = job.freezeThawScriptsTimeout;
    fields.push_back(makeField("freezeThawScriptsTimeout", "Freeze and thaw time-out", timeout ? Value(*timeout) : "",
                               timeout ? util::toStr(*timeout) : "not set",
                               lines.ofAgents(job_names::FreezeThawScriptsTimeout)));
    script("preJobCommand", "Script before the job", job.preJobCommand, job_names::PrejobCommand);
    script("postJobCommand", "Script after the job", job.postJobCommand, job_names::PostjobCommand);
}

Node visitProductSpecific(const SBackupJobOptions& job, const Lines& lines)
{
    return makeField("productSpecific", "Product-specific text", job.productSpecific,
                     textOr(job.productSpecific, "none"), lines.ofAgents(job_names::ProductSpecific));
}

void markNotCarried(Node& node)
{
    node.isNotCarried = true;
    for (auto& child : node.children)
        markNotCarried(child);
}

// What the managing server's form does not carry has its default; telling each default would read as if it were set.
void hideWhatServersDoNotCarry(std::vector<Node>& fields, std::size_t first)
{
    for (auto field = fields.begin() + static_cast<std::ptrdiff_t>(first); field != fields.end(); ++field)
    {
        field->isDetail = true;
        markNotCarried(*field);
    }
}

Node visitMissingSchedule(const SBackupJobOptions& job, const Place& missing)
{
    auto node = visitSchedule(job.schedule, missing);
    node.words = "disabled: this form carries no schedule, so the job does not start by itself";
    markNotCarried(node);
    for (auto& part : node.children)
        part.isDetail = true;
    return node;
}

Node tellOtherForm(bool isServerForm)
{
    const std::string fields = OnlyInAgentForm;
    if (isServerForm)
        return makeField("notCarried", "Not in this form", "", fields);
    return makeField("notCarried", "Only in this form", "", fields + "; the managing server's form cannot carry them");
}

} // namespace

Node visitIndexing(const SIndexingOptions& indexing, const Place& owner)
{
    const auto element = owner.child(job_names::Indexing);
    auto origin = element.origin();
    if (!element.isThere())
        origin =
            owner.originOf(job_names::Indexing, {job_names::IndexExcept, job_names::IndexOnly, job_names::IndexAll});
    auto node = makeField("indexing", "Indexing", "", tellIndexing(indexing), origin);
    const auto type = EIndexingType::ToStr(indexing.type);
    node.children.push_back(
        makeDetail("type", "Type", type, type, element.isThere() ? element.originOf(job_names::Type) : origin));
    node.children.push_back(makeDetail("folders", "Folders", indexing.folders, textOr(indexing.folders, "none"),
                                       element.isThere() ? element.originOf(job_names::Folders) : origin));
    return node;
}

Node visitJobOptions(const SBackupJobOptions& job, const Place& place, bool isServerForm)
{
    const Lines lines(place, isServerForm);
    auto node = makeField("jobOptions", "Job options", "",
                          isServerForm ? "in the managing server's form" : "in the agent's form", place.origin());
    auto& fields = node.children;
    fields.push_back(visitCompression(job, lines));
    fields.push_back(visitBlockSize(job, lines));
    visitRetention(job, lines, fields);
    fields.push_back(makeField("dedupEnabled", "Deduplication", job.dedupEnabled, onOrOff(job.dedupEnabled),
                               lines.of(job_names::IsDedupEnabled, job_names::EnableDeduplication)));
    const auto firstOfAgent = fields.size();
    fields.push_back(makeField("snapshotMode", "Snapshot", ESnapshotMode::ToString(job.snapshotMode),
                               tellSnapshot(job.snapshotMode),
                               lines.ofAgents(job_names::SnapshotMode, job_names::IsSnapshotRequired)));
    visitScripts(job, lines, fields);
    fields.push_back(
        makeField("retryCount", "Retries", job.retryCount, tellRetries(job), lines.ofAgents(job_names::RetryCount)));
    fields.push_back(makeDetail("retryTimeoutMs", "Time between retries", job.retryTimeoutMs,
                                duration(job.retryTimeoutMs), lines.ofAgents(job_names::RetryTimeOutMs)));
    const auto owner = isServerForm ? place.none() : place;
    fields.push_back(visitIndexing(job.indexing, owner));
    fields.push_back(visitGfsPolicy(job.gfsPolicy, owner.child(job_names::GfsPolicy), true));
    fields.push_back(visitProductSpecific(job, lines));
    if (isServerForm)
        hideWhatServersDoNotCarry(fields, firstOfAgent);
    fields.push_back(isServerForm ? visitMissingSchedule(job, owner) : visitSchedule(job.schedule, place));
    fields.push_back(tellOtherForm(isServerForm));
    return node;
}

} // namespace describe
