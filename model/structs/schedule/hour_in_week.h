#pragma once

#include <zelmodel/export.h>

namespace zelplatform::model::structs
{

/// An hour of a week that goes round: hours above 23 carry into the day, days above 6 start again at Sunday. Negative
/// numbers are left as they are.
class ZELMODEL_API HourInWeek
{
public:
    HourInWeek(int day, int hour) noexcept;

    HourInWeek getNextHour() const noexcept;
    bool isEqualTo(const HourInWeek& other) const noexcept;

    /// Seconds forward to the other hour, less than a week; 0 for the same hour.
    int getDistanceSec(const HourInWeek& to) const noexcept;

    int day;
    int hour;
};

} // namespace zelplatform::model::structs
