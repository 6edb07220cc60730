#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model::structs
{

/// How deeply the health of a backup is checked.
struct ZELMODEL_API EHealthCheckType
{
    enum type : std::int32_t
    {
        Disabled = 0,
        Light = 1
    };

    /// Throws "Unable to convert health-check type [%1] to string.".
    static std::string ToStr(type value);

    /// Compares exactly; throws "Unable to convert string [%1] to health-check type.".
    static type FromStr(const std::string& text);
};

} // namespace zelplatform::model::structs
