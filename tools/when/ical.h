#pragma once

#include <string>
#include <vector>

#include "evaluation.h"

namespace when
{

/// The starts as a calendar for other programs (RFC 5545): an event for each start, a whole day where a day has no
/// time. Instants are written in UTC, so that they are right in every zone. An identifier depends on the name of the
/// job and the local time of the start only: reading the calendar again changes events instead of doubling them. The
/// time stamp is the clock's. The name must be UTF-8 and may hold anything else.
std::string renderIcal(const Evaluation& evaluation, const std::vector<StartDay>& days, const std::string& job);

} // namespace when
