#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// Whether restore points are counted or kept for days.
struct ZELMODEL_API ERetentionType
{
    enum type : std::int32_t
    {
        Cycles = 0,
        Days = 1,
        _number = 2 ///< how many there are; it converts like the others, on purpose
    };

    /// The enumerator's name; throws "Failed to convert retention type to string.".
    static std::string ToStr(type value);

    /// Reads an enumerator's name exactly; throws "Failed to convert retention type from string.".
    static type FromStr(const std::string& text);
};

} // namespace zelplatform::model
