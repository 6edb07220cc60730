#include <zelmodel/structs/storage/immutability_settings.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_undo.h>

#include "detail/storage_names.h"

namespace zelplatform::model::structs
{
namespace
{

namespace names = detail::storage_names;

constexpr std::int32_t DaysWhenDisabled = 10;

std::int32_t readDays(const xmlpp::CXmlNode& node, const char* name)
{
    return util::safe_cast<std::int32_t>(node.GetInt64Attribute(name));
}

} // namespace

SObjectStorageImmutabilitySettings SObjectStorageImmutabilitySettings::CreateDisabled()
{
    return {false, DaysWhenDisabled, ERepositoryImmutabilityMode::Default()};
}

bool SObjectStorageImmutabilitySettings::HasXmlNode(const xmlpp::CXmlNode& parent)
{
    return parent.HasNode(names::ImmutabilitySettings);
}

void SObjectStorageImmutabilitySettings::ToXml(xmlpp::CXmlNode& parent) const
{
    const xmlpp::CXmlUndo undo(parent);
    auto node = parent.AddNode(names::ImmutabilitySettings);
    node.SetBoolAttribute(names::IsEnabled, isEnabled);
    node.SetInt64Attribute(names::IntervalDays, intervalDays);
}

SObjectStorageImmutabilitySettings SObjectStorageImmutabilitySettings::FromXml(const xmlpp::CXmlNode& parent)
try
{
    const auto node = parent.GetFirstChildNode(names::ImmutabilitySettings);
    SObjectStorageImmutabilitySettings settings;
    settings.isEnabled = node.GetBoolAttribute(names::IsEnabled);
    settings.intervalDays = readDays(node, names::IntervalDays);
    // A child of the name counts as a mode too, although only the attribute is read.
    if (node.HasAttribute(names::ImmutabilityMode) || node.HasNode(names::ImmutabilityMode))
        settings.mode = static_cast<ERepositoryImmutabilityMode::type>(
            util::fromStr<long>(node.GetAttribute(names::ImmutabilityMode)));
    return settings;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to parse repository immutability settings.", cause);
}

SDirectBackupImmutabilitySettings SDirectBackupImmutabilitySettings::CreateDisabled()
{
    return {SObjectStorageImmutabilitySettings::CreateDisabled(), 0, false};
}

bool SDirectBackupImmutabilitySettings::HasXmlNode(const xmlpp::CXmlNode& parent)
{
    return parent.HasNode(names::DirectBackupImmutabilitySettings);
}

xmlpp::CXmlNode SDirectBackupImmutabilitySettings::GetXmlNode(const xmlpp::CXmlNode& parent)
{
    return parent.GetFirstChildNode(names::DirectBackupImmutabilitySettings);
}

// The sentence ends in a comma, kept on purpose.
SDirectBackupImmutabilitySettings SDirectBackupImmutabilitySettings::FromXml(const xmlpp::CXmlNode& parent)
try
{
    const auto node = GetXmlNode(parent);
    SDirectBackupImmutabilitySettings settings;
    if (node.HasAttribute(names::NumberDaysForCapacityTierMoveOrArchiveTier))
        settings.numberDaysForCapacityTierMoveOrArchiveTier =
            readDays(node, names::NumberDaysForCapacityTierMoveOrArchiveTier);
    settings.hasImmutableCapacityOrArchiveTierExtent =
        node.GetBoolAttribute(names::HasImmutableCapacityOrArchiveTierExtent);
    settings.immutabilitySettings = SObjectStorageImmutabilitySettings::FromXml(node);
    return settings;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to parse direct backup immutability settings,", cause);
}

} // namespace zelplatform::model::structs
