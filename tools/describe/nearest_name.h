#pragma once

#include <string>
#include <vector>

namespace describe
{

/// The known name that somebody who wrote the other one most likely meant: equal but for letter case, or with few
/// letters wrong, missing, added or swapped; at most a third of them. Empty when none is that close.
std::string nearestName(const std::string& name, const std::vector<std::string>& known);

} // namespace describe
