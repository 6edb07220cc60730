#pragma once

#include <string>
#include <vector>

#include <zelplatform/export.h>

namespace datetime
{

/// Day of the week; stored masks and windows are indexed by these numbers.
struct ZELPLATFORM_API EDayOfWeek
{
    enum type : int
    {
        Sunday = 0,
        Monday = 1,
        Tuesday = 2,
        Wednesday = 3,
        Thursday = 4,
        Friday = 5,
        Saturday = 6
    };

    /// "Sunday" ... "Saturday", in value order.
    static const std::vector<std::string>& GetLongStrSet();

    /// "Sun" ... "Sat", in value order.
    static const std::vector<std::string>& GetShortStrSet();

    /// Reads a long or short name in any letter case; throws "Unknown day of week: [%1].".
    static type FromStr(const std::string& text);

    /// The long name; a value that is no day throws "Unknown day of week: [%1].".
    static std::string ToStr(type value);
};

/// Month of the year, counted from 0 as stored masks are; calendar dates count months from 1.
struct ZELPLATFORM_API EMonth
{
    enum type : int
    {
        January = 0,
        February = 1,
        March = 2,
        April = 3,
        May = 4,
        June = 5,
        July = 6,
        August = 7,
        September = 8,
        October = 9,
        November = 10,
        December = 11
    };

    /// "January" ... "December", in value order.
    static const std::vector<std::string>& GetLongStrSet();

    /// "Jan" ... "Dec", in value order.
    static const std::vector<std::string>& GetShortStrSet();

    /// Reads a long or short name in any letter case; throws "Unknown month: [%1].".
    static type FromStr(const std::string& text);

    /// The long name; a value that is no month throws "Unknown month: [%1].".
    static std::string ToStr(type value);
};

} // namespace datetime
