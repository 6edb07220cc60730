#include <zelmodel/structs/ownership_type.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model::structs
{
namespace
{

constexpr const char* TypeName = "EOwnershipType::type";

constexpr auto StoredNames = detail::enumRows<EOwnershipType::type>({
    {EOwnershipType::NoOwner, "NoOwner"},
    {EOwnershipType::QOR, "QOR"},
    {EOwnershipType::PEL, "PEL"},
});

constexpr auto FriendlyNames = detail::enumRows<EOwnershipType::type>({
    {EOwnershipType::NoOwner, "Not set"},
    {EOwnershipType::QOR, "Backup server"},
    {EOwnershipType::PEL, "Service provider console"},
});

template <std::size_t N>
std::string textOf(const detail::EnumRows<EOwnershipType::type, N>& rows, EOwnershipType::type value)
{
    if (const auto text = detail::findText(rows, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unable to convert %1 [%2] to string.", TypeName, util::toStr(value));
}

} // namespace

std::string EOwnershipType::ToStr(type value)
{
    return textOf(StoredNames, value);
}

std::string EOwnershipType::ToFriendlyName(type value)
{
    return textOf(FriendlyNames, value);
}

EOwnershipType::type EOwnershipType::FromStr(const std::string& text)
{
    if (const auto value = detail::findValueIgnoringCase(StoredNames, text))
        return *value;
    throw exc::CRuntimeExc("Unable to convert string [%1] to %2.", text, TypeName);
}

} // namespace zelplatform::model::structs
