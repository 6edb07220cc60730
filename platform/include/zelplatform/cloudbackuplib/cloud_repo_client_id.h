#pragma once

#include <string>
#include <utility>

#include <zelplatform/export.h>
#include <zelplatform/guid/guid.h>

/// Clients of cloud repositories.
namespace cloudbackuplib
{

/// Who uses a cloud repository: a GUID, and companion data that only the writer understands.
class ZELPLATFORM_API CCloudRepoClientId
{
public:
    CCloudRepoClientId() = default;

    /// The two parts, unchecked.
    explicit CCloudRepoClientId(const guid::guid_t& id, std::string companion = {})
        : m_companion(std::move(companion)), m_guid(id)
    {
    }

    /// The two parts.
    const guid::guid_t& GetGuid() const noexcept { return m_guid; }
    const std::string& GetCompanion() const noexcept { return m_companion; }

    /// The GUID; companion data follows a "|".
    std::string Serialize() const;

    /// Reads what Serialize writes; everything after the first "|" is companion data. Throws when the text before it is
    /// no GUID, also when it is empty.
    static CCloudRepoClientId Deserialize(const std::string& text);

    friend bool operator==(const CCloudRepoClientId& a, const CCloudRepoClientId& b) noexcept
    {
        return a.m_guid == b.m_guid && a.m_companion == b.m_companion;
    }
    friend bool operator!=(const CCloudRepoClientId& a, const CCloudRepoClientId& b) noexcept { return !(a == b); }

private:
    std::string m_companion; ///< first: when copying it fails, the GUID is not assigned either
    guid::guid_t m_guid;
};

} // namespace cloudbackuplib
