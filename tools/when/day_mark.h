#pragma once

#include <cstddef>
#include <vector>

#include "day_plan.h"

namespace when
{

/// What a day of a calendar is marked with.
enum class EDayMark
{
    Start,
    ActiveFull,
    SyntheticFull,
    BothFulls,
    ClosedWindow,
    ActiveFullWithoutStart,
    SyntheticFullWithoutStart,
    BothFullsWithoutStart
};

/// A mark as people see it, whatever draws it: the sign tells it without a colour, the words tell it without a picture.
struct DayMark
{
    EDayMark kind;
    char sign;
    const char* words;
};

/// The mark of the day; the null pointer when nothing is scheduled on it.
const DayMark* markOf(const PlannedDay& day) noexcept;

/// A mark that occurs, and on how many days.
struct UsedMark
{
    const DayMark* mark;
    std::size_t days;
};

/// The marks that occur, in the order of legends.
std::vector<UsedMark> usedMarks(const std::vector<PlannedMonth>& months);

/// What stands in place of a legend that has no mark.
constexpr const char* NothingScheduled = "nothing is scheduled in this time";

} // namespace when
