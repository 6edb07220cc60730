#include "schema_kinds.h"

#include <algorithm>
#include <stdexcept>

namespace zelmodel_test
{

using describe::EDocumentKind;

const std::vector<SchemaKind>& schemaKinds()
{
    static const std::vector<SchemaKind> kinds{
        {"job-options", EDocumentKind::AgentJobOptions},
        {"server-job-options", EDocumentKind::ServerJobOptions},
        {"schedule-options", EDocumentKind::ScheduleOptions},
        {"lone-schedule", EDocumentKind::LoneSchedule},
        {"backup-window", EDocumentKind::ScheduleWindow},
        {"gfs-policy", EDocumentKind::GfsPolicy},
        {"oracle-config", EDocumentKind::OracleConfig},
        {"postgres-config", EDocumentKind::PostgresConfig},
        {"repository-limitations", EDocumentKind::RepositoryLimitations},
        {"immutability-settings", EDocumentKind::Immutability},
        {"direct-backup-immutability-settings", EDocumentKind::DirectImmutability},
        {"s3-params", EDocumentKind::S3Params},
        {"cloud-container", EDocumentKind::CloudContainer},
        {"sql-variant", EDocumentKind::SqlVariant},
        {"job-session-details", EDocumentKind::SessionDetails},
        {"job-session-progress-details", EDocumentKind::SessionProgress},
        {"task-log-record", EDocumentKind::TaskLogRecord},
        {"mount-session-details", EDocumentKind::MountSession},
        {"backup-job-state", EDocumentKind::JobState},
        {"transform-spec", EDocumentKind::DeletePointTransform},
        {"create-synthetic-full-spec", EDocumentKind::SyntheticFullTransform},
        {"create-gfs-synthetic-full-spec", EDocumentKind::GfsSyntheticFullTransform},
    };
    return kinds;
}

const SchemaKind& findSchemaKind(const std::string& name)
{
    const auto& kinds = schemaKinds();
    const auto found = std::find_if(kinds.begin(), kinds.end(), [&](const auto& kind) { return name == kind.name; });
    if (found == kinds.end())
        throw std::out_of_range("There are no schemas " + name + ".");
    return *found;
}

bool isOnlyRead(const SchemaKind& kind)
{
    return kind.kind == EDocumentKind::ServerJobOptions || kind.kind == EDocumentKind::DirectImmutability ||
           kind.kind == EDocumentKind::TaskLogRecord;
}

std::string nameOfKind(const testing::TestParamInfo<SchemaKind>& info)
{
    std::string name = info.param.name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

std::string pathOfXsd(const SchemaKind& kind)
{
    return std::string(ZELMODEL_EXAMPLES_DIR) + "/../schemas/" + kind.name + ".xsd";
}

std::string pathOfRng(const SchemaKind& kind)
{
    return std::string(ZELMODEL_EXAMPLES_DIR) + "/../schemas/" + kind.name + ".rng";
}

} // namespace zelmodel_test
