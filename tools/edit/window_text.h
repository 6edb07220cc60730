#pragma once

#include <string>
#include <vector>

#include "fields.h"

namespace edit
{

/// The hours of a week as people write them: "20-24" on every day, "Mon-Fri 20-24,Sat 0-24", "Mon,Wed 0-6,20-24". Hours
/// without a day belong to the days before them. Gives the hours of each named day as values for the fields of a
/// window; what the hours themselves mean is asked when they are set. Throws for a day without hours.
std::vector<Assignment> hoursOfWeek(const std::string& text);

} // namespace edit
