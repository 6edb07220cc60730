#pragma once

#include <string>
#include <vector>

#include <zelmodel/export.h>

namespace zelplatform::model::structs::gfs
{

/// A week of a month, counted in blocks of seven days from its first day. The numbers are stored: Last is 6, and 5
/// means nothing.
struct ZELMODEL_API ESennightOfMonth
{
    enum type : int
    {
        First = 1,
        Second = 2,
        Third = 3,
        Fourth = 4,
        Last = 6
    };

    /// Reads a stored name exactly; throws for any other text.
    static type fromStr(const std::string& text);

    /// The stored name; throws for any other number.
    static std::string toLongStr(type value);

    /// The five names in value order, kept for the life of the process.
    static const std::vector<std::string>& getLongStrSet();
};

} // namespace zelplatform::model::structs::gfs
