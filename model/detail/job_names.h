#pragma once

/// Names of elements and attributes in the documents of job options, indexing and GFS policies.
namespace zelplatform::model::detail::job_names
{

inline constexpr const char* JobOptions = "JobOptions";
inline constexpr const char* Version = "Version";
inline constexpr const char* Compression = "Compression";
inline constexpr const char* BlockSize = "BlockSize";
inline constexpr const char* PrefreezeCommand = "PrefreezeCommand";
inline constexpr const char* PostthawCommand = "PostthawCommand";
inline constexpr const char* PrejobCommand = "PrejobCommand";
inline constexpr const char* PostjobCommand = "PostjobCommand";
inline constexpr const char* ProductSpecific = "ProductSpecific";
inline constexpr const char* RetentionType = "RetentionType";
inline constexpr const char* MaxPoints = "MaxPoints";
inline constexpr const char* MaxDays = "MaxDays";
inline constexpr const char* IsDedupEnabled = "IsDedupEnabled";
inline constexpr const char* IsSnapshotRequired = "IsSnapshotRequired";
inline constexpr const char* SnapshotMode = "SnapshotMode";
inline constexpr const char* RetryCount = "RetryCount";
inline constexpr const char* RetryTimeOutMs = "RetryTimeOutMs";
inline constexpr const char* EnableDeletedVmDataRetention = "EnableDeletedVmDataRetention";
inline constexpr const char* RetainDays = "RetainDays";
inline constexpr const char* Schedule = "Schedule";
inline constexpr const char* IgnoreFreezeThawFailures = "IgnoreFreezeThawFailures";
inline constexpr const char* FreezeThawScriptsTimeout = "FreezeThawScriptsTimeout";

inline constexpr const char* JobOptionsRoot = "JobOptionsRoot";
inline constexpr const char* CompressionLevel = "CompressionLevel";
inline constexpr const char* StgBlockSize = "StgBlockSize";
inline constexpr const char* RetainCycles = "RetainCycles";
inline constexpr const char* RetainDaysToKeep = "RetainDaysToKeep";
inline constexpr const char* EnableDeduplication = "EnableDeduplication";

inline constexpr const char* Indexing = "Indexing";
inline constexpr const char* Type = "Type";
inline constexpr const char* Folders = "Folders";
inline constexpr const char* IndexAll = "IndexAll";
inline constexpr const char* IndexOnly = "IndexOnly";
inline constexpr const char* IndexExcept = "IndexExcept";

inline constexpr const char* GfsPolicy = "GfsPolicy";
inline constexpr const char* IsEnabled = "IsEnabled";
inline constexpr const char* BeginTimeUtc = "BeginTimeUtc";
inline constexpr const char* DesiredTime = "DesiredTime";

} // namespace zelplatform::model::detail::job_names
