#include <zelmodel/structs/ownership_info.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model::structs
{

COwnershipInfo::COwnershipInfo() : m_mode(EOwnershipMode::NotSet), m_type(EOwnershipType::NoOwner) {}

COwnershipInfo::COwnershipInfo(EOwnershipType::type type, const std::string& mode) : m_mode(mode), m_type(type)
{
    CheckOwnershipAndModeCompatibility(type, mode);
}

bool COwnershipInfo::IsOwnershipAndModeCompatible(EOwnershipType::type type, const std::string& mode)
{
    const bool isNotSet = mode == EOwnershipMode::NotSet;
    switch (type)
    {
    case EOwnershipType::NoOwner: return isNotSet;
    case EOwnershipType::QOR: return isNotSet || EOwnershipMode::IsInclude(EOwnershipMode::_CategoryQOR, mode);
    case EOwnershipType::PEL: return isNotSet || EOwnershipMode::IsInclude(EOwnershipMode::_CategoryPEL, mode);
    default: return false;
    }
}

void COwnershipInfo::CheckOwnershipAndModeCompatibility(EOwnershipType::type type, const std::string& mode)
try
{
    if (!IsOwnershipAndModeCompatible(type, mode))
        throw exc::CRuntimeExc("Ownership type [%1] and mode [%2] are not compatible.", util::toStr(type), mode);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to check that type and mode is compatible.", "COwnershipInfo", cause);
}

} // namespace zelplatform::model::structs
