#include <zelmodel/structs/storage/object_storage_type.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model::structs
{
namespace
{

constexpr const char* TypeName = "object storage type";
constexpr const char* CredentialTypeName = "credential type";

constexpr auto Names = detail::enumRows<EObjectStorageType::type>({
    {EObjectStorageType::AzureBlobStorage, "AzureBlobStorage"},
    {EObjectStorageType::AmazonS3, "AmazonS3"},
    {EObjectStorageType::AmazonS3Compatible, "AmazonS3Compatible"},
    {EObjectStorageType::Google, "Google"},
    // Written and never read, kept on purpose.
    {EObjectStorageType::Unknown, "Unknown", detail::ERowUse::WriteOnly},
});

struct CredentialRow
{
    EObjectStorageType::type storage;
    ECredentialType::type credential;
};

constexpr CredentialRow CredentialTypes[] = {
    {EObjectStorageType::AzureBlobStorage, ECredentialType::ObjectStorageAzure},
    {EObjectStorageType::AmazonS3, ECredentialType::ObjectStorageAWS},
    {EObjectStorageType::AmazonS3Compatible, ECredentialType::ObjectStorageS3Compat},
    {EObjectStorageType::Google, ECredentialType::ObjectStorageGoogle},
};

// A credential type without a name is told by its number.
std::string credentialTypeText(ECredentialType::type value)
try
{
    return ECredentialType::ToStr(value);
}
catch (const exc::CRuntimeExc&)
{
    return util::toStr(value);
}

} // namespace

std::string EObjectStorageType::ToStr(type value)
try
{
    if (const auto text = detail::findText(Names, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unknown enum type: %1.", util::toStr(value));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to convert %1 to string.", TypeName, cause);
}

std::string EObjectStorageType::ToUserFriendlyStr(type value)
{
    return ToStr(value);
}

EObjectStorageType::type EObjectStorageType::FromStr(const std::string& text)
try
{
    if (const auto value = detail::findValue(Names, text))
        return *value;
    throw exc::CRuntimeExc("Unknown string: [%1].", text);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to convert string to %1.", TypeName, cause);
}

bool EObjectStorageType::IsS3Family(type value) noexcept
{
    return value == AmazonS3 || value == AmazonS3Compatible || value == Google;
}

bool EObjectStorageType::CanUseFipsEndpoints(type value) noexcept
{
    return value == AmazonS3;
}

ECredentialType::type EObjectStorageType::ToCredentialType(const type& value)
{
    for (const auto& row : CredentialTypes)
    {
        if (row.storage == value)
            return row.credential;
    }
    throw exc::CRuntimeExc("Unable to convert %1 [%2] to %3.", TypeName, util::toStr(value), CredentialTypeName);
}

EObjectStorageType::type EObjectStorageType::FromCredentialType(const ECredentialType::type& credentialType)
{
    type value = Unknown;
    if (TryConvertFromCredentialType(credentialType, value))
        return value;
    throw exc::CRuntimeExc("Unable to convert %1 from %2 [%3].", TypeName, CredentialTypeName,
                           credentialTypeText(credentialType));
}

bool EObjectStorageType::TryConvertFromCredentialType(const ECredentialType::type& credentialType, type& out) noexcept
{
    for (const auto& row : CredentialTypes)
    {
        if (row.credential == credentialType)
        {
            out = row.storage;
            return true;
        }
    }
    return false;
}

} // namespace zelplatform::model::structs
