#pragma once

#include <cstdint>

#include <zelmodel/export.h>

namespace zelplatform::model::transform
{

/// What a transform does; documents hold the number, and a document may hold any.
struct ZELMODEL_API ETransformOperationType
{
    enum type : std::int32_t
    {
        DeletePoint = 0,
        CreateSyntheticFull = 1
    };
};

/// The kind of a delete-point transform. Its members belong to whoever performs it; here the number is carried.
struct ZELMODEL_API ETransformType
{
    enum type : std::int32_t
    {
    };
};

} // namespace zelplatform::model::transform
