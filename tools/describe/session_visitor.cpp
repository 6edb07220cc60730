#include "visitors.h"

#include <zelmodel/enums/oib_algorithm.h>
#include <zelplatform/util/util.h>

#include "document_names.h"
#include "element_fields.h"
#include "words.h"

namespace describe
{
namespace
{

using zelplatform::CSize;
using zelplatform::model::JobSessionDetails;
using zelplatform::model::OibAlgorithm;
using zelplatform::model::SBackupJobState;
using zelplatform::model::SJobSessionProgressDetails;
using zelplatform::model::SMountSessionDetails;
using zelplatform::model::STaskLogRecord;

constexpr long UnknownSpace = -1;

std::string tellBackupType(OibAlgorithm::type type)
{
    const auto stored = OibAlgorithm::toStr(type);
    const auto shown = OibAlgorithm::getDisplayStr(type);
    return stored == shown ? stored : shown + " (" + stored + ")";
}

std::string tellSpace(long bytes)
{
    if (bytes == UnknownSpace)
        return "not known";
    return bytes < 0 ? countOfSigned(bytes, "byte") : sizeOf(static_cast<unsigned long>(bytes));
}

bool isFirstLayout(const Place& place)
{
    const auto version = place.textOf(session_names::Version);
    return !version.empty() && util::fromStr<unsigned long>(version) == 1;
}

std::string numberOf(const CSize& size)
{
    return util::toStr(static_cast<unsigned long>(size));
}

} // namespace

Node visitSessionDetails(const JobSessionDetails& details, const Place& place)
{
    auto node = makeField("jobSessionDetails", "Job session", "", "", place.origin());
    ElementFields fields(node, place);
    fields.addText("repositoryName", "Repository", details.repositoryName, JobSessionDetails::m_xml_RepoName);
    fields.add("backupType", "Kind of backup", OibAlgorithm::toStr(details.backupType),
               tellBackupType(details.backupType), JobSessionDetails::m_xml_BackupType);
    fields.addIdentifier("restorePointId", "Restore point", details.restorePointId, JobSessionDetails::m_xml_OibId);
    fields.add("repositoryFreeSpace", "Free space", details.repositoryFreeSpace, tellSpace(details.repositoryFreeSpace),
               JobSessionDetails::m_xml_RepoFreeSpace);
    fields.add("repositoryTotalSpace", "Total space", details.repositoryTotalSpace,
               tellSpace(details.repositoryTotalSpace), JobSessionDetails::m_xml_RepoTotalSpace);
    fields.addNumber("initialRetriesNumber", "Retries at the start", details.initialRetriesNumber,
                     JobSessionDetails::m_xml_InitialRetriesNumber);
    fields.addNumber("currentAttemptNumber", "Current attempt", details.currentAttemptNumber,
                     JobSessionDetails::m_xml_CurrentAttemptNumber);
    fields.addFlag("isJobAwaitingForRetry", "Waits for a retry", details.isJobAwaitingForRetry, "yes", "no",
                   JobSessionDetails::m_xml_IsJobAwaitingForRetry);
    return node;
}

Node visitSessionProgress(const SJobSessionProgressDetails& progress, const Place& place)
{
    using Names = SJobSessionProgressDetails;
    auto node = makeField("jobSessionProgressDetails", "Progress of a job session", "",
                          progress.IsEmpty() ? "nothing yet" : "", place.origin());
    ElementFields fields(node, place);
    const auto size = [&](const char* name, const char* label, const CSize& bytes, const char* attribute) {
        fields.add(name, label, numberOf(bytes), bytes.ToNBytesStr(), attribute);
    };
    const auto load = [&](const char* name, const char* label, int percent, const char* attribute) {
        fields.add(name, label, percent, util::toStr(percent) + " %", attribute);
    };
    size("totalSize", "Total", progress.totalSize, Names::m_xml_TotalSize);
    size("totalUsedSize", "Used of it", progress.totalUsedSize, Names::m_xml_TotalUsedSize);
    size("processedDataSize", "Processed", progress.processedDataSize, Names::m_xml_ProcessedDataSize);
    size("readDataSize", "Read", progress.readDataSize, Names::m_xml_ReadDataSize);
    size("transferredDataSize", "Transferred", progress.transferredDataSize, Names::m_xml_TransferredDataSize);
    fields.add("processingSpeed", "Speed", numberOf(progress.processingSpeed),
               progress.processingSpeed.ToNBytesStr() + "/s", Names::m_xml_ProcessingSpeed);
    load("sourceReadLoad", "Load of reading the source", progress.sourceReadLoad, Names::m_xml_SourceReadLoad);
    load("sourceProcessingLoad", "Load of processing", progress.sourceProcessingLoad,
         Names::m_xml_SourceProcessingLoad);
    load("networkLoad", "Load of the network", progress.networkLoad, Names::m_xml_NetworkLoad);
    load("targetWriteLoad", "Load of writing the target", progress.targetWriteLoad, Names::m_xml_TargetWriteLoad);
    fields.addFlag("networkThrottlingEnabled", "Throttling of the network", progress.networkThrottlingEnabled, "on",
                   "off", Names::m_xml_NetworkThrottlingEnabled);
    fields.addFlag("repositoryThrottlingEnabled", "Throttling of the repository", progress.repositoryThrottlingEnabled,
                   "on", "off", Names::m_xml_RepositoryThrottlingEnabled);
    return node;
}

Node visitTaskLogRecord(const STaskLogRecord& record, const Place& place)
{
    auto node = makeField("taskLogRecord", "Task log record", "", "", place.origin());
    ElementFields fields(node, place);
    fields.addText("status", "Severity", record.status, session_names::Status);
    fields.addNumber("ordinalId", "Position in the log", record.ordinalId, session_names::OrdinalId);
    fields.addNumber("updateUsn", "Update number", record.updateUsn, session_names::UpdateUsn);
    fields.addText("title", "Title", record.title, session_names::Title);
    fields.addText("description", "Description", record.description, session_names::Description);
    fields.addMoment("updateTime", "Updated", record.updateTime, session_names::UpdateTime);
    fields.addText("object", "Object", record.object, session_names::Object);
    fields.addMoment("startTime", "Written", record.startTime, session_names::StartTime);
    fields.addText("cookie", "Cookie", record.cookie, session_names::Cookie);
    return node;
}

Node visitMountSession(const SMountSessionDetails& details, const Place& place)
{
    auto node = makeField("mountSessionDetails", "Mount session", "", details.IsEmpty() ? "nothing is mounted" : "",
                          place.origin());
    ElementFields fields(node, place);
    fields.addText("mountPoint", "Mount point", details.mountPoint, session_names::MountPoint);
    fields.addIdentifier("restorePointId", "Restore point", details.restorePointId, session_names::OibId);
    return node;
}

Node visitJobState(const SBackupJobState& state, const Place& place)
{
    const bool isFirst = isFirstLayout(place);
    auto node = makeField("backupJobState", "State of a backup job", "", isFirst ? "in the layout of version 1" : "",
                          place.origin());
    const Value mode(static_cast<long>(state.objectStorageOperationMode));
    const auto origin = place.originOf(session_names::ObjectStorageOperationMode);
    node.children.push_back(
        makeField("objectStorageOperationMode", "Object storage mode", mode, "number " + mode.text,
                  isFirst ? asOlder(place.originOf(session_names::ObjectStorageBackupMode)) : origin));
    return node;
}

} // namespace describe
