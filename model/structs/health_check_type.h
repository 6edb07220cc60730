#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model::structs
{

// The window kinds of this namespace have an enumerator of the same name; nothing is hidden that is meant here.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"

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

#pragma GCC diagnostic pop

} // namespace zelplatform::model::structs
