#pragma once

#include <string>

#include "describe/text_renderer.h"
#include "week_plan.h"

namespace when
{

/// The week as a picture: a row for each day, a column or more for each hour as the width allows, and the legend.
std::string renderWindow(const PlannedWeek& week, const describe::TextStyle& style);

} // namespace when
