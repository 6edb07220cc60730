#include <zelmodel/structs/ownership_mode.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model::structs
{
namespace
{

struct FriendlyName
{
    const char* mode;
    const char* words;
};

constexpr FriendlyName FriendlyNames[] = {
    {EOwnershipMode::NotSet, "Standalone"},      {EOwnershipMode::QOR_Job, "Job"},
    {EOwnershipMode::QOR_Policy, "Policy"},      {EOwnershipMode::QOR_CatchAll, "Pre-installed agent"},
    {EOwnershipMode::PEL_ReadOnly, "Read-only"},
};

} // namespace

bool EOwnershipMode::IsInclude(const std::string& category, const std::string& mode)
{
    return util::str_is_starts_with(mode, category);
}

std::string EOwnershipMode::ToFriendlyName(const std::string& mode)
try
{
    for (const auto& name : FriendlyNames)
    {
        if (mode == name.mode)
            return name.words;
    }
    throw exc::CRuntimeExc("Unexpected value: [%1].", mode);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to convert [%2] to friendly name.", "EOwnershipMode", mode, cause);
}

} // namespace zelplatform::model::structs
