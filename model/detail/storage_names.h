#pragma once

/// Names of elements and attributes in the documents of storage: immutability and object storage.
namespace zelplatform::model::detail::storage_names
{

inline constexpr const char* ImmutabilitySettings = "ImmutabilitySettings";
inline constexpr const char* IsEnabled = "IsEnabled";
inline constexpr const char* IntervalDays = "IntervalDays";
inline constexpr const char* ImmutabilityMode = "ImmutabilityMode";
inline constexpr const char* DirectBackupImmutabilitySettings = "DirectBackupImmutabilitySettings";
inline constexpr const char* NumberDaysForCapacityTierMoveOrArchiveTier = "NumberDaysForCapacityTierMoveOrArchiveTier";
inline constexpr const char* HasImmutableCapacityOrArchiveTierExtent = "HasImmutableCapacityOrArchiveTierExtent";

inline constexpr const char* AmazonS3SpecificParams = "AmazonS3SpecificParams";
inline constexpr const char* Credentials = "Credentials";
inline constexpr const char* AccessKeyId = "AccessKeyId";
inline constexpr const char* SecretAccessKey = "SecretAccessKey";
inline constexpr const char* SessionToken = "SessionToken";
inline constexpr const char* RoleName = "RoleName";
inline constexpr const char* MetadataHost = "MetadataHost";
inline constexpr const char* LastUpdateTimeUtc = "LastUpdateTimeUtc";
inline constexpr const char* Endpoint = "Endpoint";
inline constexpr const char* ApiEndpoint = "ApiEndpoint";
inline constexpr const char* ArnString = "ArnString";
inline constexpr const char* Fingerprint = "Fingerprint";
inline constexpr const char* ServerCertificate = "ServerCertificate";
inline constexpr const char* Proxy = "Proxy";
inline constexpr const char* ProxyEndpoint = "endpoint";
inline constexpr const char* ProxyLogin = "login";
inline constexpr const char* ProxyPassword = "password";

} // namespace zelplatform::model::detail::storage_names
