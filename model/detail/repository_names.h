#pragma once

/// Names of elements and attributes in the documents of repositories.
namespace zelplatform::model::detail::repository_names
{

inline constexpr const char* JobSettings = "JobSettings";
inline constexpr const char* RepositoryId = "RepositoryId";
inline constexpr const char* BackupMode = "BackupMode";
inline constexpr const char* FullBackupEnabled = "FullBackupEnabled";
inline constexpr const char* CompactFullEnabled = "CompactFullEnabled";
inline constexpr const char* TransformIncrementsToSynthetic = "TransformIncrementsToSynthetic";
inline constexpr const char* TransformFullToSynthetic = "TransformFullToSynthetic";
inline constexpr const char* ChainLength = "ChainLength";

inline constexpr const char* CloudContainerRoot = "root";
inline constexpr const char* RegionId = "regionId";
inline constexpr const char* ContainerName = "containerName";
inline constexpr const char* RepoName = "repoName";
inline constexpr const char* ClientId = "clientInfo.id";
inline constexpr const char* ClientDescription = "clientInfo.description";
inline constexpr const char* IsObjectLockEnabled = "isObjectLockEnabled";
inline constexpr const char* S3AccessKeyId = "SAmazonS3SpecificParams.creds.accessKeyId";
inline constexpr const char* S3SecretAccessKey = "SAmazonS3SpecificParams.creds.secretAccessKey";
inline constexpr const char* S3ApiEndpoint = "SAmazonS3SpecificParams.endpoint.apiEndpoint";

} // namespace zelplatform::model::detail::repository_names
