#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/enums/credential_type.h>
#include <zelmodel/export.h>

namespace zelplatform::model::structs
{

/// The kind of an object storage, with its credential type.
struct ZELMODEL_API EObjectStorageType
{
    enum type : std::int32_t
    {
        Unknown = 0,
        AzureBlobStorage = 1,
        AmazonS3 = 2,
        AmazonS3Compatible = 3,
        Google = 4
    };

    /// The stored name; throws "Failed to convert object storage type to string. ...".
    static std::string ToStr(type value);

    /// The same text as ToStr.
    static std::string ToUserFriendlyStr(type value);

    /// Compares exactly. "Unknown" is written and not read, on purpose. Throws "Failed to convert string to object
    /// storage type. ...".
    static type FromStr(const std::string& text);

    /// True for the kinds that speak the S3 protocol.
    static bool IsS3Family(type value) noexcept;

    /// True for AmazonS3 alone.
    static bool CanUseFipsEndpoints(type value) noexcept;

    /// Throws "Unable to convert object storage type [%2] to credential type.".
    static ECredentialType::type ToCredentialType(const type& value);

    /// Throws "Unable to convert object storage type from credential type [...].".
    static type FromCredentialType(const ECredentialType::type& credentialType);

    /// False, with the output untouched, when the credential type belongs to no object storage.
    static bool TryConvertFromCredentialType(const ECredentialType::type& credentialType, type& out) noexcept;
};

} // namespace zelplatform::model::structs
