#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model::structs
{

// The window kinds of this namespace have an enumerator of the same name; nothing is hidden that is meant here.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"

/// Whether databases are processed when a job takes its snapshot.
struct ZELMODEL_API EApplicationProcessingType
{
    enum type : std::int32_t
    {
        Disabled = 0,
        Try = 1,
        Required = 2
    };

    /// "disabled", "try", "required"; throws "Failed to convert EApplicationProcessingType(%1) to str ...".
    static std::string ToStr(type value);

    /// Compares exactly; throws "Failed to convert string(%1) to EApplicationProcessingType ...".
    static type FromStr(const std::string& text);
};

#pragma GCC diagnostic pop

} // namespace zelplatform::model::structs
