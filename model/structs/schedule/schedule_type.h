#pragma once

#include <cstdint>

#include <zelmodel/export.h>

namespace zelplatform::model::structs
{

/// The kind of a schedule calendar; documents hold the number, and a document may hold any number.
struct ZELMODEL_API EScheduleType
{
    enum type : std::int32_t
    {
        Weekly = 0,
        Monthly = 1,
        Periodically = 2,
        Continuously = 3
    };
};

} // namespace zelplatform::model::structs
