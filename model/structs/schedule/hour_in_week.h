#pragma once

#include <zelmodel/export.h>

namespace zelplatform::model::structs
{

/// An hour of a week that goes round: hours above 23 carry into the day, days above 6 start again at Sunday. Negative
/// numbers are left as they are.
class ZELMODEL_API HourInWeek
{
public:
    /// Day 0 is Sunday; hours are 0..23 after the carry.
    HourInWeek(int day, int hour) noexcept;

    /// The hour after this one; after the last of Saturday comes the first of Sunday.
    HourInWeek getNextHour() const noexcept;

    /// True for the same day and hour.
    bool isEqualTo(const HourInWeek& other) const noexcept;

    /// Seconds forward to the other hour, less than a week; 0 for the same hour.
    int getDistanceSec(const HourInWeek& to) const noexcept;

    /// As the constructor left them.
    int day;
    int hour;
};

} // namespace zelplatform::model::structs
