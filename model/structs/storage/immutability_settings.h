#pragma once

#include <cstdint>

#include <zelmodel/enums/repository_immutability_mode.h>
#include <zelmodel/export.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

/// Immutability of an object-storage repository, element "ImmutabilitySettings". The mode is read and never written:
/// the managing side supplies it.
struct ZELMODEL_API SObjectStorageImmutabilitySettings
{
    /// Whether backups are immutable for a time.
    bool isEnabled = false;

    /// How many days a backup stays immutable.
    std::int32_t intervalDays = 0;

    /// Where the period comes from; a document may hold any number.
    ERepositoryImmutabilityMode::type mode = ERepositoryImmutabilityMode::ByRepositorySettings;

    /// Off; still with 10 days, on purpose.
    static SObjectStorageImmutabilitySettings CreateDisabled();

    /// True when the node has the child.
    static bool HasXmlNode(const xmlpp::CXmlNode& parent);

    /// Adds the child to the parent.
    void ToXml(xmlpp::CXmlNode& parent) const;

    /// Reads the child of the parent. The mode is a number, cut to 32 bits and not looked at. Throws "Unable to parse
    /// repository immutability settings. ...".
    static SObjectStorageImmutabilitySettings FromXml(const xmlpp::CXmlNode& parent);

    friend bool operator==(const SObjectStorageImmutabilitySettings& a, const SObjectStorageImmutabilitySettings& b)
    {
        return a.isEnabled == b.isEnabled && a.intervalDays == b.intervalDays && a.mode == b.mode;
    }
    friend bool operator!=(const SObjectStorageImmutabilitySettings& a, const SObjectStorageImmutabilitySettings& b)
    {
        return !(a == b);
    }
};

/// Immutability of a direct backup to a repository that may move data to a capacity or archive tier, element
/// "DirectBackupImmutabilitySettings". Read only.
struct ZELMODEL_API SDirectBackupImmutabilitySettings
{
    /// The settings of the repository itself.
    SObjectStorageImmutabilitySettings immutabilitySettings;

    /// Days after which backups move to the tier; 0 when not given.
    std::int32_t numberDaysForCapacityTierMoveOrArchiveTier = 0;

    /// Whether the repository has a capacity or archive tier extent that is itself immutable.
    bool hasImmutableCapacityOrArchiveTierExtent = false;

    /// SObjectStorageImmutabilitySettings::CreateDisabled and no tier.
    static SDirectBackupImmutabilitySettings CreateDisabled();

    /// True when the node has the child.
    static bool HasXmlNode(const xmlpp::CXmlNode& parent);

    /// The child of the parent; throws when there is none.
    static xmlpp::CXmlNode GetXmlNode(const xmlpp::CXmlNode& parent);

    /// Reads the child of the parent. Throws "Unable to parse direct backup immutability settings, ...".
    static SDirectBackupImmutabilitySettings FromXml(const xmlpp::CXmlNode& parent);

    friend bool operator==(const SDirectBackupImmutabilitySettings& a, const SDirectBackupImmutabilitySettings& b)
    {
        return a.immutabilitySettings == b.immutabilitySettings &&
               a.numberDaysForCapacityTierMoveOrArchiveTier == b.numberDaysForCapacityTierMoveOrArchiveTier &&
               a.hasImmutableCapacityOrArchiveTierExtent == b.hasImmutableCapacityOrArchiveTierExtent;
    }
    friend bool operator!=(const SDirectBackupImmutabilitySettings& a, const SDirectBackupImmutabilitySettings& b)
    {
        return !(a == b);
    }
};

} // namespace zelplatform::model::structs
