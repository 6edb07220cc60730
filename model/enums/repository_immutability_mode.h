#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// Where the immutability period of a backup comes from.
struct ZELMODEL_API ERepositoryImmutabilityMode
{
    enum type : std::int32_t
    {
        ByRepositorySettings = 0,
        ByRetentionSettings = 1
    };

    /// Throws "Unexpected repository immutability mode: [%1]".
    static std::string ToStr(type value);

    /// Compares exactly; throws "Unknown repository immutability mode string: [%1].".
    static type FromStr(const std::string& text);

    /// ByRepositorySettings.
    static type Default() noexcept;
};

} // namespace zelplatform::model
