#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include <zelmodel/structs/schedule/backup_window.h>
#include <zelplatform/datetime/names.h>

#include "day_plan.h"

namespace when
{

constexpr std::size_t HoursOfDay = 24;

/// What an hour of a week can be.
enum class EHour
{
    Open,
    Closed,
    OpenStart,
    ClosedStart
};

/// An hour as people see it, whatever draws it: the sign tells it without a colour.
struct HourMark
{
    EHour kind;
    char sign;
    const char* words;
};

/// A day of a window's week.
struct PlannedWeekDay
{
    datetime::EDayOfWeek::type day;
    std::array<const HourMark*, HoursOfDay> hours; ///< from midnight on
};

/// The days from Monday on.
using PlannedWeek = std::vector<PlannedWeekDay>;

/// The hours of the window. Those in which the job starts on one of the days are marked.
PlannedWeek planWeek(const zelplatform::model::structs::BackupWindow& window, const std::vector<PlannedMonth>& months);

/// The marks of a legend: open and closed always, the others when they occur.
std::vector<const HourMark*> legendOf(const PlannedWeek& week);

} // namespace when
