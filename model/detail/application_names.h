#pragma once

/// Names of elements and attributes in the documents of database processing.
namespace zelplatform::model::detail::application_names
{

inline constexpr const char* OracleConfig = "OracleConfig";
inline constexpr const char* Username = "username";
inline constexpr const char* LogsTruncateConfig = "LogsTruncateConfig";
inline constexpr const char* Mode = "mode";
inline constexpr const char* SizeGB = "sizeGB";
inline constexpr const char* LifetimeHours = "lifetimeHours";
inline constexpr const char* PostgresConfig = "PostgresConfig";
inline constexpr const char* OsUser = "osUser";
inline constexpr const char* AuthType = "authType";

} // namespace zelplatform::model::detail::application_names
