#pragma once

#include <string>

#include <zelmodel/export.h>
#include <zelmodel/structs/ownership_mode.h>
#include <zelmodel/structs/ownership_type.h>

namespace zelplatform::model::structs
{

/// Who owns the agent and in which mode. A pair that does not belong together cannot be built.
class ZELMODEL_API COwnershipInfo
{
public:
    /// No owner, mode "NotSet".
    COwnershipInfo();

    /// Throws "COwnershipInfo: Failed to check that type and mode is compatible. ...".
    COwnershipInfo(EOwnershipType::type type, const std::string& mode);

    /// The pair.
    EOwnershipType::type GetType() const noexcept { return m_type; }
    const std::string& GetMode() const noexcept { return m_mode; }

    /// One question each about the owner, or about owner and mode.
    bool HasNoOwner() const noexcept { return m_type == EOwnershipType::NoOwner; }
    bool HasQOR() const noexcept { return m_type == EOwnershipType::QOR; }
    bool HasQOR_Job() const noexcept { return HasQOR() && m_mode == EOwnershipMode::QOR_Job; }
    bool HasQOR_Policy() const noexcept { return HasQOR() && m_mode == EOwnershipMode::QOR_Policy; }
    bool HasQOR_CatchAll() const noexcept { return HasQOR() && m_mode == EOwnershipMode::QOR_CatchAll; }
    bool HasPEL() const noexcept { return m_type == EOwnershipType::PEL; }
    bool HasPEL_ReadOnly() const noexcept { return HasPEL() && m_mode == EOwnershipMode::PEL_ReadOnly; }

    /// No owner goes with "NotSet" alone; the others with "NotSet" and with every mode of their category.
    static bool IsOwnershipAndModeCompatible(EOwnershipType::type type, const std::string& mode);

    /// Throws when the pair is not compatible.
    static void CheckOwnershipAndModeCompatibility(EOwnershipType::type type, const std::string& mode);

    friend bool operator==(const COwnershipInfo& a, const COwnershipInfo& b)
    {
        return a.m_type == b.m_type && a.m_mode == b.m_mode;
    }
    friend bool operator!=(const COwnershipInfo& a, const COwnershipInfo& b) { return !(a == b); }

private:
    std::string m_mode; ///< first: when copying it fails, the type is not assigned either
    EOwnershipType::type m_type;
};

} // namespace zelplatform::model::structs
