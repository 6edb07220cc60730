#pragma once

#include <string>
#include <vector>

#include "day_plan.h"
#include "describe/text_renderer.h"

namespace when
{

/// Months as grids whose weeks begin on Monday, up to four beside each other as the width allows, and the legend of the
/// marks that occur. A mark is a letter behind the day, so that no colour is needed; a terminal gets colours as well.
std::string renderMonths(const std::vector<PlannedMonth>& months, const describe::TextStyle& style);

} // namespace when
