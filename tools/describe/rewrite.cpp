#include "rewrite.h"

#include <algorithm>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "document.h"
#include "document_names.h"
#include "visitors.h"

namespace describe
{
namespace
{

namespace model = zelplatform::model;
namespace gfs = zelplatform::model::structs::gfs;
namespace structs = zelplatform::model::structs;
namespace transform = zelplatform::model::transform;

using xmlpp::CXmlDocument;
using xmlpp::CXmlNode;

/// A document that the writer fills.
template <class TWrite>
std::string written(const TWrite& write)
{
    const CXmlDocument document;
    auto top = document.ToNode();
    write(top);
    return document.Serialize();
}

/// The node above the record, which may be the root or stand below it.
CXmlNode parentOf(const CXmlDocument& xml, const Node& tree)
{
    const auto root = xml.GetRootNode();
    return root.GetName() == tree.origin.name ? xml.ToNode() : root;
}

std::string rewriteSchedule(const Document& document, EDocumentKind kind)
{
    const auto schedule = document.readSchedule();
    if (kind == EDocumentKind::ScheduleOptions)
        return schedule.ToXmlString();
    return written([&](CXmlNode& top) { schedule.ToXml(top); });
}

std::string rewriteGfsPolicy(const CXmlDocument& xml, const Node& tree)
{
    const bool isLong = std::any_of(tree.children.begin(), tree.children.end(), [](const Node& rule) {
        return rule.origin.name == gfs::SGfsWeeklyPolicyInfoTraits::LongElement;
    });
    return gfs::SGfsPolicyInfo::fromXml(xml.ToNode(), !isLong).toXmlString(!isLong);
}

// There is no reader of it; the tree has all of it.
std::string rewriteSqlVariant(const Node& tree)
{
    structs::SSqlVariant variant;
    for (const auto& field : tree.children)
    {
        if (field.valueType == EValueType::Number)
            variant.type = util::fromStr<int>(field.value);
        else
            variant.value = field.value;
    }
    return variant.ToXmlStr();
}

} // namespace

std::string rewrite(const std::string& text, EDocumentKind kind, const Node& tree)
{
    const auto xml = CXmlDocument::Unserialize(text);
    const auto root = xml.GetRootNode();
    switch (kind)
    {
    case EDocumentKind::AgentJobOptions:
    case EDocumentKind::ServerJobOptions: return model::SBackupJobOptions::fromXml(xml.ToNode()).toString();
    case EDocumentKind::ScheduleOptions:
    case EDocumentKind::LoneSchedule: return rewriteSchedule(Document(text), kind);
    case EDocumentKind::ScheduleWindow:
        return written([&](CXmlNode& top) { structs::BackupWindow::fromXml(xml.ToNode())->toXml(top); });
    case EDocumentKind::GfsPolicy: return rewriteGfsPolicy(xml, tree);
    case EDocumentKind::OracleConfig:
        return structs::SApplicationProcessingOracleConfig::FromXmlNode(root).ToXmlString();
    case EDocumentKind::PostgresConfig:
        return structs::SApplicationProcessingPostgresConfig::FromXmlNode(root).ToXmlString();
    case EDocumentKind::RepositoryLimitations:
        return structs::CRepositoryLimitationsSpec::FromXmlNode(parentOf(xml, tree)).ToString();
    case EDocumentKind::Immutability:
        return written([&](CXmlNode& top) {
            structs::SObjectStorageImmutabilitySettings::FromXml(parentOf(xml, tree)).ToXml(top);
        });
    case EDocumentKind::S3Params: return structs::SAmazonS3SpecificParams::FromXmlNode(xml.ToNode()).ToXmlStr();
    case EDocumentKind::CloudContainer: return structs::SExternalRepoCloudContainer::FromXmlNode(root).Serialize();
    case EDocumentKind::SqlVariant: return rewriteSqlVariant(tree);
    case EDocumentKind::SessionDetails: return model::JobSessionDetails::fromXmlNode(root).toXmlStr();
    case EDocumentKind::SessionProgress: return model::SJobSessionProgressDetails::FromXmlNode(root).ToXml();
    case EDocumentKind::MountSession: return model::SMountSessionDetails::FromXmlNode(root).ToXmlStr();
    case EDocumentKind::JobState: return model::SBackupJobState::FromXmlNode(root).ToXmlString();
    case EDocumentKind::DeletePointTransform: return transform::CTransformSpec::FromXmlNode(root)->ToString();
    case EDocumentKind::SyntheticFullTransform:
        return transform::CCreateSyntheticFullSpec::FromXmlNode(root)->ToString();
    case EDocumentKind::GfsSyntheticFullTransform:
        return transform::CCreateGfsSyntheticFullSpec::FromXmlNode(root)->ToString();
    case EDocumentKind::DirectImmutability:
    case EDocumentKind::TaskLogRecord: break;
    }
    throw exc::CRuntimeExc("The document is %1, which is read and never written.", nameOf(kind));
}

} // namespace describe
