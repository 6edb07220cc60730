#pragma once

/// Names of elements and attributes in the documents of transforms.
namespace zelplatform::model::detail::transform_names
{

inline constexpr const char* DeletePointTransformSpec = "DeletePointTransformSpec";
inline constexpr const char* FullTransformSpec = "FullTransformSpec";
inline constexpr const char* GfsFullTransformSpec = "GfsFullTransformSpec";
inline constexpr const char* Id = "Id";
inline constexpr const char* BackupId = "BackupId";
inline constexpr const char* OperationType = "OperationType";
inline constexpr const char* TransformType = "TransformType";
inline constexpr const char* EnableIntegrityChecks = "EnableIntegrityChecks";
inline constexpr const char* IncrementPointIds = "IncrementPointIds";
inline constexpr const char* Guid = "Guid";
inline constexpr const char* GuidValue = "value";
inline constexpr const char* LastIncrementPointIds = "LastIncrementPointIds";
inline constexpr const char* LastIncrementPointId = "LastIncrementPointId";
inline constexpr const char* JobTargetFile = "JobTargetFile";

} // namespace zelplatform::model::detail::transform_names
