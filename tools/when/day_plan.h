#pragma once

#include <string>
#include <vector>

#include <zelmodel/datetime/date.h>
#include <zelplatform/datetime/date_time.h>

#include "describe/node.h"
#include "evaluation.h"

namespace when
{

/// What a day of a calendar's picture holds.
struct PlannedDay
{
    zelplatform::model::CDate date;
    bool isStart = false;
    bool isWindowClosed = false; ///< whenever the job starts on the day
    Fulls fulls;                 ///< that are scheduled on the day, whether the job starts or not
    std::vector<datetime::CDateTime> starts;
    std::string clock; ///< what the clock does on a day with starts that has not 24 hours
};

/// A month of them.
struct PlannedMonth
{
    zelplatform::model::CDate first; ///< its first day
    std::vector<PlannedDay> days;    ///< all, in order
};

/// Months in order, from the month of the date on.
std::vector<PlannedMonth> planMonths(const Evaluation& evaluation, const zelplatform::model::CDate& first,
                                     std::size_t count);

/// The days on which something is scheduled, as a list "months" of lists of days.
describe::Node describeMonths(const std::vector<PlannedMonth>& months);

} // namespace when
