#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <zelmodel/export.h>

namespace zelplatform::model::structs
{

/// Which occurrence of a week day in its month is meant.
struct ZELMODEL_API EWeekDayNumber
{
    enum type : std::int32_t
    {
        First = 1,
        Second = 2,
        Third = 3,
        Fourth = 4,
        Last = 5,
        Every = 6
    };

    /// "First" ... "Last", "Every"; throws "Unable to convert EWeekDayNumber::type [%1] to string.".
    static std::string ToStr(type value);

    /// Reads a name in any letter case; throws "Value [%1] is not a valid week number.".
    static type FromStr(const std::string& text);

    /// The names that are offered to people: "First" ... "Last", without "Every".
    static std::vector<std::string> GetWeekNumberStrSet();
};

} // namespace zelplatform::model::structs
