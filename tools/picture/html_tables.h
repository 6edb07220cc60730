#pragma once

#include <vector>

#include "markup.h"
#include "schedule_picture.h"

namespace picture
{

/// A table for each month below the legend of their marks. Below them what the clock does.
void addCalendar(Markup& markup, const std::vector<when::PlannedMonth>& months);

/// The week as a table, a row for each day, and the legend below it.
void addWeek(Markup& markup, const when::PlannedWeek& week);

} // namespace picture
