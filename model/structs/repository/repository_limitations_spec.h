#pragma once

#include <string>

#include <zelmodel/export.h>
#include <zelmodel/structs/repository/backup_mode.h>
#include <zelplatform/guid/guid.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

/// What a target repository allows a backup job, element "JobSettings". Values are carried unchecked.
class ZELMODEL_API CRepositoryLimitationsSpec
{
public:
    /// All zero or false.
    CRepositoryLimitationsSpec() = default;

    /// All fields in the order of the getters.
    CRepositoryLimitationsSpec(const guid::guid_t& repositoryId, EBackupMode::type backupMode, bool fullBackupEnabled,
                               bool compactFullEnabled, bool transformIncrementsToSynthetic,
                               bool transformFullToSynthetic, int chainLength);

    /// The repository that the limitations belong to.
    const guid::guid_t& GetRepositoryId() const noexcept { return m_repositoryId; }
    void SetRepositoryId(const guid::guid_t& repositoryId) noexcept { m_repositoryId = repositoryId; }

    /// The mode that it requires.
    EBackupMode::type GetBackupMode() const noexcept { return m_backupMode; }
    void SetBackupMode(EBackupMode::type backupMode) noexcept { m_backupMode = backupMode; }

    /// Whether active full backups are allowed.
    bool IsFullBackupEnabled() const noexcept { return m_fullBackupEnabled; }
    void SetFullBackupEnabled(bool enabled) noexcept { m_fullBackupEnabled = enabled; }

    /// Whether the full backup may be compacted.
    bool GetIsCompactFullEnabled() const noexcept { return m_compactFullEnabled; }
    void SetCompactFullEnabled(bool enabled) noexcept { m_compactFullEnabled = enabled; }

    /// Whether increments are to become synthetic backups.
    bool ShouldTransformIncrementsToSynthetic() const noexcept { return m_transformIncrementsToSynthetic; }
    void SetTransformIncrementsToSynthetic(bool transform) noexcept { m_transformIncrementsToSynthetic = transform; }

    /// Whether the full backup is to become a synthetic one.
    bool ShouldTransformFullToSynthetic() const noexcept { return m_transformFullToSynthetic; }
    void SetTransformFullToSynthetic(bool transform) noexcept { m_transformFullToSynthetic = transform; }

    /// The number of restore points that a chain may have; any number is carried.
    int GetChainLength() const noexcept { return m_chainLength; }
    void SetChainLength(int chainLength) noexcept { m_chainLength = chainLength; }

    /// A document whose root is "JobSettings". FromString does not read it as it is: see there.
    std::string ToString() const;

    /// Reads the first child "JobSettings" of the parent; every attribute must be there. Throws "Unable to parse xml
    /// repository limitations specification. ...".
    static CRepositoryLimitationsSpec FromXmlNode(const xmlpp::CXmlNode& parent);

    /// Reads a document whose root holds a child "JobSettings"; a text of ToString has to be put into such a root
    /// first, on purpose. Throws "Unable to parse string repository limitations specification. ...".
    static CRepositoryLimitationsSpec FromString(const std::string& text);

    friend bool operator==(const CRepositoryLimitationsSpec& a, const CRepositoryLimitationsSpec& b)
    {
        return a.m_repositoryId == b.m_repositoryId && a.m_backupMode == b.m_backupMode &&
               a.m_fullBackupEnabled == b.m_fullBackupEnabled && a.m_compactFullEnabled == b.m_compactFullEnabled &&
               a.m_transformIncrementsToSynthetic == b.m_transformIncrementsToSynthetic &&
               a.m_transformFullToSynthetic == b.m_transformFullToSynthetic && a.m_chainLength == b.m_chainLength;
    }
    friend bool operator!=(const CRepositoryLimitationsSpec& a, const CRepositoryLimitationsSpec& b)
    {
        return !(a == b);
    }

private:
    guid::guid_t m_repositoryId;
    EBackupMode::type m_backupMode{};
    bool m_fullBackupEnabled = false;
    bool m_compactFullEnabled = false;
    bool m_transformIncrementsToSynthetic = false;
    bool m_transformFullToSynthetic = false;
    int m_chainLength = 0;
};

} // namespace zelplatform::model::structs
