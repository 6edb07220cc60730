#pragma once

#include <array>
#include <cstddef>
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

constexpr std::size_t DaysOfWeek = 7;

/// The days of a week from Monday on; the null pointer for those of other months.
using Week = std::array<const PlannedDay*, DaysOfWeek>;

/// The month's weeks, which point into it.
std::vector<Week> weeksOf(const PlannedMonth& month);

/// "January 2026".
std::string tellMonth(const PlannedMonth& month);

/// The days on which the clock is changed and the job starts.
std::vector<const PlannedDay*> daysWithClock(const std::vector<PlannedMonth>& months);

/// The days on which something is scheduled, as a list "months" of lists of days.
describe::Node describeMonths(const std::vector<PlannedMonth>& months);

} // namespace when
