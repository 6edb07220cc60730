#include <zelmodel/transform/transform_spec.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "detail/transform_names.h"

namespace zelplatform::model::transform
{
namespace
{

namespace names = detail::transform_names;

// We write the attribute; other writers put the identifier into the element's text.
guid::guid_t readPoint(const xmlpp::CXmlNode& node)
{
    if (const auto value = node.FindAttribute(names::GuidValue))
        return guid::guid_t::FromAStr(*value);
    return guid::guid_t::FromAStr(node.GetInnerText());
}

} // namespace

std::string CTransformSpec::ToString() const
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode(names::DeletePointTransformSpec);
    root.SetGuidAttribute(names::Id, m_sessionId);
    root.SetGuidAttribute(names::BackupId, m_backupId);
    root.SetInt64Attribute(names::OperationType, m_operationType);
    root.SetInt64Attribute(names::TransformType, m_transformType);
    root.SetBoolAttribute(names::EnableIntegrityChecks, m_integrityCheckEnabled);
    auto list = root.AddNode(names::IncrementPointIds);
    for (const auto& pointId : m_pointIds)
        list.AddNode(names::Guid).SetGuidAttribute(names::GuidValue, pointId);
    return document.Serialize();
}

std::shared_ptr<CTransformSpec> CTransformSpec::FromXmlNode(const xmlpp::CXmlNode& node)
try
{
    auto spec = std::make_shared<CTransformSpec>();
    spec->m_sessionId = node.GetGuidAttribute(names::Id);
    spec->m_backupId = node.GetGuidAttribute(names::BackupId);
    spec->m_operationType =
        static_cast<ETransformOperationType::type>(util::fromStr<int>(node.GetAttribute(names::OperationType)));
    spec->m_transformType =
        static_cast<ETransformType::type>(util::fromStr<int>(node.GetAttribute(names::TransformType)));
    spec->m_integrityCheckEnabled = node.GetBoolAttribute(names::EnableIntegrityChecks);
    const auto list = node.GetFirstChildNode(names::IncrementPointIds);
    for (const auto& point : list.GetChildNodes(names::Guid))
        spec->AddPointId(readPoint(point));
    return spec;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to parse xml transform specification.", cause);
}

std::shared_ptr<CTransformSpec> CTransformSpec::FromString(const std::string& text)
try
{
    return FromXmlNode(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to parse string transform specification.", cause);
}

} // namespace zelplatform::model::transform
