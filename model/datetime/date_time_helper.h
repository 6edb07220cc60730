#pragma once

#include <zelmodel/enums/sennight_of_month.h>
#include <zelmodel/export.h>

#include <zelplatform/datetime/date_time.h>

namespace zelplatform::model
{

/// The unit of a step through the calendar.
struct ZELMODEL_API EDateUnit
{
    enum type : int
    {
        Day = 0,
        Week = 1,
        Month = 2,
        Year = 3
    };
};

/// Questions about weeks within a month, and steps through the calendar.
class ZELMODEL_API CDateTimeHelper
{
public:
    /// The number, 1 to 5, of the block of seven days that holds the date, counted from the first day of its month;
    /// with the flag, from the last day, which then is day 1.
    static unsigned getSennightOfMonth(const datetime::CDateTime& date, bool fromEnd);

    /// True when getSennightOfMonth gives exactly the number of the week. ESennightOfMonth::Last is 6 and therefore
    /// never matches, whatever the date and the flag: kept on purpose.
    static bool isSennightOfMonth(const datetime::CDateTime& date, structs::gfs::ESennightOfMonth::type sennight,
                                  bool fromEnd);

    /// True when the date seven days later lies in another month.
    static bool isLastDayOfWeekInMonth(const datetime::CDateTime& date);

    /// The date so many units later (earlier when negative), at the same time of day. Where the target month is too
    /// short for the day, its last day is taken: 31 January and one month is 28 or 29 February. Throws when the result
    /// lies outside 1400 to 9999, and for an unknown unit.
    static datetime::CDateTime BasicDateAdvance(const datetime::CDateTime& date, EDateUnit::type unit, int count);
};

} // namespace zelplatform::model
