#pragma once

#include <vector>

#include "svg_layout.h"

namespace picture
{

/// The months with the legend of their marks: those of a year four beside each other, one alone as large as two.
std::vector<Block> makeCalendar(const std::vector<when::PlannedMonth>& months);

/// The week with its legend.
std::vector<Block> makeWeek(const when::PlannedWeek& week);

} // namespace picture
