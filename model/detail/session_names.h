#pragma once

/// Names of attributes and argument keys of task log records, mount sessions and job states.
namespace zelplatform::model::detail::session_names
{

inline constexpr const char* Status = "status";
inline constexpr const char* OrdinalId = "ordinalId";
inline constexpr const char* Title = "title";
inline constexpr const char* Description = "description";
inline constexpr const char* Object = "object";
inline constexpr const char* Cookie = "cookie";

// As command arguments.
inline constexpr const char* Usn = "usn";
inline constexpr const char* UpdateTimeUtc = "updateTimeUtc";
inline constexpr const char* StartTimeUtc = "startTimeUtc";

// As attributes.
inline constexpr const char* UpdateUsn = "updateUsn";
inline constexpr const char* UpdateTime = "updateTime";
inline constexpr const char* StartTime = "startTime";

inline constexpr const char* MountSessionDetails = "MountSessionDetails";
inline constexpr const char* MountPoint = "MountPoint";
inline constexpr const char* OibId = "OibId";

inline constexpr const char* BackupJobState = "BackupJobState";
inline constexpr const char* Version = "Version";
inline constexpr const char* ObjectStorageBackupMode = "ObjectStorageBackupMode";
inline constexpr const char* ObjectStorageOperationMode = "ObjectStorageOperationMode";

} // namespace zelplatform::model::detail::session_names
