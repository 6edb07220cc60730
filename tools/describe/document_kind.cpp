#include "document_kind.h"

#include <array>
#include <initializer_list>
#include <optional>

#include <zelmodel/sessions/job_session_details.h>
#include <zelmodel/sessions/job_session_progress_details.h>
#include <zelmodel/structs/schedule/backup_window.h>
#include <zelplatform/exc/exc.h>

#include "document_names.h"

namespace describe
{
namespace
{

using zelplatform::model::JobSessionDetails;
using zelplatform::model::SJobSessionProgressDetails;
using zelplatform::model::structs::BackupWindow;

enum class EFamily
{
    Jobs,
    Repositories,
    Sessions,
    Transforms,
    Values,
};

/// How the element of a kind is found.
enum class EPosition
{
    Root,
    RootOrBelow,  ///< other documents enclose it
    ByAttributes, ///< the name alone does not tell
};

struct KindRow
{
    const char* element; ///< in words where attributes tell the kind
    EDocumentKind kind;
    EFamily family;
    const char* name;
    EPosition position = EPosition::Root;
};

constexpr const char* LoneScheduleName = "a schedule without a root of its own";

constexpr std::array<KindRow, 24> Kinds{{
    {job_names::JobOptionsRoot, EDocumentKind::ServerJobOptions, EFamily::Jobs,
     "job options in the managing server's form"},
    {job_names::JobOptions, EDocumentKind::AgentJobOptions, EFamily::Jobs, "job options in the agent's form"},
    {schedule_names::ScheduleOptions, EDocumentKind::ScheduleOptions, EFamily::Jobs, "schedule options"},
    {schedule_names::Schedule, EDocumentKind::LoneSchedule, EFamily::Jobs, LoneScheduleName},
    {schedule_names::ActiveFullOptions, EDocumentKind::LoneSchedule, EFamily::Jobs, LoneScheduleName},
    {schedule_names::SyntheticFullOptions, EDocumentKind::LoneSchedule, EFamily::Jobs, LoneScheduleName},
    {BackupWindow::BackupWindowTag, EDocumentKind::ScheduleWindow, EFamily::Jobs, "a backup window"},
    {job_names::GfsPolicy, EDocumentKind::GfsPolicy, EFamily::Jobs, "a GFS policy"},
    {application_names::OracleConfig, EDocumentKind::OracleConfig, EFamily::Jobs, "settings of Oracle processing"},
    {application_names::PostgresConfig, EDocumentKind::PostgresConfig, EFamily::Jobs,
     "settings of PostgreSQL processing"},
    {repository_names::JobSettings, EDocumentKind::RepositoryLimitations, EFamily::Repositories,
     "repository limitations", EPosition::RootOrBelow},
    {storage_names::ImmutabilitySettings, EDocumentKind::Immutability, EFamily::Repositories,
     "immutability settings of an object storage", EPosition::RootOrBelow},
    {storage_names::DirectBackupImmutabilitySettings, EDocumentKind::DirectImmutability, EFamily::Repositories,
     "immutability settings of direct backups", EPosition::RootOrBelow},
    {storage_names::AmazonS3SpecificParams, EDocumentKind::S3Params, EFamily::Repositories, "S3 parameters"},
    {"root with dotted attributes", EDocumentKind::CloudContainer, EFamily::Repositories, "a cloud container",
     EPosition::ByAttributes},
    {JobSessionDetails::m_xml_Details, EDocumentKind::SessionDetails, EFamily::Sessions, "details of a job session"},
    {SJobSessionProgressDetails::m_xml_ProgressDetails, EDocumentKind::SessionProgress, EFamily::Sessions,
     "progress of a job session"},
    {session_names::MountSessionDetails, EDocumentKind::MountSession, EFamily::Sessions, "details of a mount session"},
    {session_names::BackupJobState, EDocumentKind::JobState, EFamily::Sessions, "the state of a backup job"},
    {"any element with ordinalId and updateUsn", EDocumentKind::TaskLogRecord, EFamily::Sessions, "a task log record",
     EPosition::ByAttributes},
    {transform_names::DeletePointTransformSpec, EDocumentKind::DeletePointTransform, EFamily::Transforms,
     "a delete-point transform"},
    {transform_names::FullTransformSpec, EDocumentKind::SyntheticFullTransform, EFamily::Transforms,
     "a synthetic full transform"},
    {transform_names::GfsFullTransformSpec, EDocumentKind::GfsSyntheticFullTransform, EFamily::Transforms,
     "a GFS synthetic full transform"},
    {record_names::SqlVariant, EDocumentKind::SqlVariant, EFamily::Values, "an SQL value"},
}};

std::string listKnown(EFamily family)
{
    std::string text;
    for (const auto& row : Kinds)
    {
        if (row.family == family)
            text += (text.empty() ? "" : ", ") + std::string(row.element);
    }
    return text;
}

// A sentence for each family, so that the list can be read.
std::string tellKnown()
{
    return "Documents of jobs begin with " + listKnown(EFamily::Jobs) + ". Documents of repositories begin with " +
           listKnown(EFamily::Repositories) + ". Documents of sessions begin with " + listKnown(EFamily::Sessions) +
           ". Documents of transforms begin with " + listKnown(EFamily::Transforms) +
           ". Documents of values begin with " + listKnown(EFamily::Values) + ".";
}

std::optional<EDocumentKind> findKind(const std::string& element, std::initializer_list<EPosition> positions)
{
    for (const auto& row : Kinds)
    {
        for (const auto position : positions)
        {
            if (row.position == position && element == row.element)
                return row.kind;
        }
    }
    return std::nullopt;
}

bool isTaskLogRecord(const xmlpp::CXmlNode& root)
{
    return root.HasAttribute(session_names::OrdinalId) && root.HasAttribute(session_names::UpdateUsn);
}

// Any program may call its root "root"; the dotted names are the container's own.
bool isCloudContainer(const xmlpp::CXmlNode& root)
{
    if (root.GetName() != repository_names::CloudContainerRoot)
        return false;
    for (const auto* attribute :
         {repository_names::ClientId, repository_names::ClientDescription, repository_names::S3AccessKeyId,
          repository_names::S3SecretAccessKey, repository_names::S3ApiEndpoint})
    {
        if (root.HasAttribute(attribute))
            return true;
    }
    return false;
}

std::optional<EDocumentKind> findBelow(const xmlpp::CXmlNode& root)
{
    for (const auto& child : root.GetChildNodes())
    {
        if (const auto kind = findKind(child.GetName(), {EPosition::RootOrBelow}))
            return kind;
    }
    return std::nullopt;
}

} // namespace

std::string nameOf(EDocumentKind kind)
{
    for (const auto& row : Kinds)
    {
        if (row.kind == kind)
            return row.name;
    }
    return {};
}

EDocumentKind kindOf(const xmlpp::CXmlDocument& document)
{
    const auto top = document.ToNode();
    const auto root = document.GetRootNode();
    if (isTaskLogRecord(root))
        return EDocumentKind::TaskLogRecord;
    // Readers of job options look for both forms among all elements at the top, the managing server's first.
    if (top.HasNode(job_names::JobOptionsRoot))
        return EDocumentKind::ServerJobOptions;
    if (top.HasNode(job_names::JobOptions))
        return EDocumentKind::AgentJobOptions;
    if (const auto kind = findKind(root.GetName(), {EPosition::Root, EPosition::RootOrBelow}))
        return *kind;
    if (isCloudContainer(root))
        return EDocumentKind::CloudContainer;
    if (const auto kind = findBelow(root))
        return *kind;
    top.HasNode(root.GetName());
    throw exc::CRuntimeExc("The element [%1] begins no document that is known. %2", root.GetName(), tellKnown());
}

} // namespace describe
