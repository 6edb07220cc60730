#pragma once

/// Names of elements and attributes of the small records that the agent exchanges with the managing server.
namespace zelplatform::model::detail::record_names
{

inline constexpr const char* SqlVariant = "SqlVariant";
inline constexpr const char* Type = "Type";
inline constexpr const char* Value = "Value";
inline constexpr const char* Key = "Key";

} // namespace zelplatform::model::detail::record_names
