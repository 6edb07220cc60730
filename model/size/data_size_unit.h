#pragma once

#include <string>
#include <vector>

#include <zelmodel/export.h>

namespace zelplatform
{

/// A unit of data size; each is 1024 times the one before.
struct ZELMODEL_API EDataSizeUnit
{
    enum type : int
    {
        B = 0,
        KB = 1,
        MB = 2,
        GB = 3,
        TB = 4,
        PB = 5,
        EB = 6
    };

    /// How many units there are: 7.
    static unsigned GetNumber() noexcept { return EB + 1U; }

    /// "B", "KB" ... "EB", in value order.
    static const std::vector<std::string>& GetLongStrSet();

    /// "B", "K" ... "E", in value order.
    static const std::vector<std::string>& GetShortStrSet();

    /// The long name; throws for any other number.
    static std::string toStr(type value);

    /// The short name; throws for any other number.
    static std::string toShortStr(type value);

    /// Reads a long or a short name in any letter case; throws for any other text.
    static type FromStr(const std::string& text);
};

} // namespace zelplatform
