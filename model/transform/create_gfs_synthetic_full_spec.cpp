#include <zelmodel/transform/create_gfs_synthetic_full_spec.h>

#include <utility>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "detail/transform_names.h"

namespace zelplatform::model::transform
{
namespace
{

namespace names = detail::transform_names;

} // namespace

CCreateGfsSyntheticFullSpec::CCreateGfsSyntheticFullSpec(const guid::guid_t& sessionId, const guid::guid_t& backupId,
                                                         ETransformOperationType::type operationType,
                                                         std::string jobTargetFile)
    : m_jobTargetFile(std::move(jobTargetFile)),
      m_sessionId(sessionId),
      m_backupId(backupId),
      m_operationType(operationType)
{
}

std::string CCreateGfsSyntheticFullSpec::ToString() const
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode(names::GfsFullTransformSpec);
    root.SetGuidAttribute(names::Id, m_sessionId);
    root.SetGuidAttribute(names::BackupId, m_backupId);
    root.SetAttribute(names::JobTargetFile, m_jobTargetFile);
    root.SetInt64Attribute(names::OperationType, m_operationType);
    return document.Serialize();
}

std::shared_ptr<CCreateGfsSyntheticFullSpec> CCreateGfsSyntheticFullSpec::FromXmlNode(const xmlpp::CXmlNode& node)
try
{
    const auto sessionId = node.GetGuidAttribute(names::Id);
    const auto backupId = node.GetGuidAttribute(names::BackupId);
    std::string jobTargetFile(node.GetAttribute(names::JobTargetFile));
    const auto operationType =
        static_cast<ETransformOperationType::type>(util::fromStr<int>(node.GetAttribute(names::OperationType)));
    return std::make_shared<CCreateGfsSyntheticFullSpec>(sessionId, backupId, operationType, std::move(jobTargetFile));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to parse xml create gfs synthetic specification.", cause);
}

std::shared_ptr<CCreateGfsSyntheticFullSpec> CCreateGfsSyntheticFullSpec::FromString(const std::string& text)
{
    return FromXmlNode(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}

} // namespace zelplatform::model::transform
