#pragma once

#include <optional>
#include <string>
#include <vector>

#include <zelmodel/datetime/date.h>

#include "evaluation.h"

namespace when
{

/// The days that somebody asks for.
struct DaysAsked
{
    /// How many days one answer has at most, unless a last day is given.
    static constexpr unsigned MostDays = 1000;

    zelplatform::model::CDate from;                 ///< the first day that counts
    std::optional<zelplatform::model::CDate> until; ///< the last day that counts
    std::optional<unsigned> count;                  ///< 10, or all with a last day, unless given
    bool isPrevious = false;                        ///< the last days before the first one, the latest first
};

/// What is wrong with the last day, as a sentence without a full stop; empty when nothing is.
std::string faultOfUntil(const DaysAsked& asked);

/// The days on which the job starts.
std::vector<StartDay> findDays(const Evaluation& evaluation, const DaysAsked& asked);

/// Where days were looked for in vain: "no day comes within 41 years".
std::string tellNoDay(const DaysAsked& asked);

} // namespace when
