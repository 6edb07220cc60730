#pragma once

#include <cstdint>

#include <zelmodel/export.h>

namespace zelplatform::model::structs
{

/// The backup mode that a repository requires. The wider job model names its members; here the number is carried.
struct ZELMODEL_API EBackupMode
{
    enum type : std::int32_t
    {
    };
};

} // namespace zelplatform::model::structs
