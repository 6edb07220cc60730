#include <zelmodel/transform/create_synthetic_full_spec.h>

#include <utility>

#include <zelplatform/exc/exc.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "detail/transform_names.h"

namespace zelplatform::model::transform
{
namespace
{

namespace names = detail::transform_names;

std::vector<std::string> textsOf(const std::vector<guid::guid_t>& ids)
{
    std::vector<std::string> texts;
    texts.reserve(ids.size());
    for (const auto& id : ids)
        texts.push_back(id.ToAStr());
    return texts;
}

// Both generations of the form may be there: the single point is read first, and the list replaces it.
std::vector<guid::guid_t> readPoints(const xmlpp::CXmlNode& node)
{
    const bool hasList = node.HasNode(names::LastIncrementPointIds);
    const bool hasSingle = node.HasAttribute(names::LastIncrementPointId);
    if (!hasList && !hasSingle)
        throw exc::CRuntimeExc("Mandatory arguments not set (v11:%1 or v12:%2)", names::LastIncrementPointId,
                               names::LastIncrementPointIds);
    std::vector<guid::guid_t> points;
    if (hasSingle)
        points.push_back(node.GetGuidAttribute(names::LastIncrementPointId));
    if (!hasList)
        return points;
    points.clear();
    for (const auto& text : node.GetStringArray(names::LastIncrementPointIds, names::Guid, names::GuidValue))
        points.push_back(guid::guid_t::FromAStr(text));
    return points;
}

} // namespace

CCreateSyntheticFullSpec::CCreateSyntheticFullSpec(const guid::guid_t& sessionId, const guid::guid_t& backupId,
                                                   std::vector<guid::guid_t> lastIncrementPoints,
                                                   std::string jobTargetFile)
    : m_sessionId(sessionId),
      m_backupId(backupId),
      m_lastIncrementPoints(std::move(lastIncrementPoints)),
      m_jobTargetFile(std::move(jobTargetFile))
{
}

ETransformOperationType::type CCreateSyntheticFullSpec::GetTrasformOperationType() const
{
    return ETransformOperationType::CreateSyntheticFull;
}

std::string CCreateSyntheticFullSpec::ToString() const
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode(names::FullTransformSpec);
    root.SetGuidAttribute(names::Id, m_sessionId);
    root.SetGuidAttribute(names::BackupId, m_backupId);
    root.AddStringArray(names::LastIncrementPointIds, names::Guid, names::GuidValue, textsOf(m_lastIncrementPoints));
    if (!m_lastIncrementPoints.empty())
        root.SetGuidAttribute(names::LastIncrementPointId, m_lastIncrementPoints.back());
    root.SetAttribute(names::JobTargetFile, m_jobTargetFile);
    root.SetInt64Attribute(names::OperationType, GetTrasformOperationType());
    return document.Serialize();
}

// "OperationType" is written and not read: there is only one.
std::shared_ptr<CCreateSyntheticFullSpec> CCreateSyntheticFullSpec::FromXmlNode(const xmlpp::CXmlNode& node)
try
{
    const auto sessionId = node.GetGuidAttribute(names::Id);
    const auto backupId = node.GetGuidAttribute(names::BackupId);
    auto points = readPoints(node);
    return std::make_shared<CCreateSyntheticFullSpec>(sessionId, backupId, std::move(points),
                                                      std::string(node.GetAttribute(names::JobTargetFile)));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to parse xml create synthetic specification.", cause);
}

std::shared_ptr<CCreateSyntheticFullSpec> CCreateSyntheticFullSpec::FromString(const std::string& text)
try
{
    return FromXmlNode(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to parse string create synthetic specification.", cause);
}

} // namespace zelplatform::model::transform
