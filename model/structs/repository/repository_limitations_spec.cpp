#include <zelmodel/structs/repository/repository_limitations_spec.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "detail/repository_names.h"

namespace zelplatform::model::structs
{
namespace
{

namespace names = detail::repository_names;

} // namespace

CRepositoryLimitationsSpec::CRepositoryLimitationsSpec(const guid::guid_t& repositoryId, EBackupMode::type backupMode,
                                                       bool fullBackupEnabled, bool compactFullEnabled,
                                                       bool transformIncrementsToSynthetic,
                                                       bool transformFullToSynthetic, int chainLength)
    : m_repositoryId(repositoryId),
      m_backupMode(backupMode),
      m_fullBackupEnabled(fullBackupEnabled),
      m_compactFullEnabled(compactFullEnabled),
      m_transformIncrementsToSynthetic(transformIncrementsToSynthetic),
      m_transformFullToSynthetic(transformFullToSynthetic),
      m_chainLength(chainLength)
{
}

std::string CRepositoryLimitationsSpec::ToString() const
{
    xmlpp::CXmlDocument document;
    auto node = document.AddRootNode(names::JobSettings);
    node.SetGuidAttribute(names::RepositoryId, m_repositoryId);
    node.SetInt64Attribute(names::BackupMode, m_backupMode);
    node.SetBoolAttribute(names::FullBackupEnabled, m_fullBackupEnabled);
    node.SetBoolAttribute(names::CompactFullEnabled, m_compactFullEnabled);
    node.SetBoolAttribute(names::TransformIncrementsToSynthetic, m_transformIncrementsToSynthetic);
    node.SetBoolAttribute(names::TransformFullToSynthetic, m_transformFullToSynthetic);
    node.SetInt64Attribute(names::ChainLength, m_chainLength);
    return document.Serialize(false);
}

// Read from the last attribute to the first, so that of several faults the last one is told. The mode is cut to 32
// bits.
CRepositoryLimitationsSpec CRepositoryLimitationsSpec::FromXmlNode(const xmlpp::CXmlNode& parent)
try
{
    const auto node = parent.GetFirstChildNode(names::JobSettings);
    const auto chainLength = util::fromStr<int>(node.GetAttribute(names::ChainLength));
    const bool transformFullToSynthetic = node.GetBoolAttribute(names::TransformFullToSynthetic);
    const bool transformIncrementsToSynthetic = node.GetBoolAttribute(names::TransformIncrementsToSynthetic);
    const bool compactFullEnabled = node.GetBoolAttribute(names::CompactFullEnabled);
    const bool fullBackupEnabled = node.GetBoolAttribute(names::FullBackupEnabled);
    const auto backupMode = static_cast<EBackupMode::type>(util::fromStr<long>(node.GetAttribute(names::BackupMode)));
    const auto repositoryId = node.GetGuidAttribute(names::RepositoryId);
    return CRepositoryLimitationsSpec(repositoryId, backupMode, fullBackupEnabled, compactFullEnabled,
                                      transformIncrementsToSynthetic, transformFullToSynthetic, chainLength);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to parse xml repository limitations specification.", cause);
}

CRepositoryLimitationsSpec CRepositoryLimitationsSpec::FromString(const std::string& text)
try
{
    return FromXmlNode(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to parse string repository limitations specification.", cause);
}

} // namespace zelplatform::model::structs
