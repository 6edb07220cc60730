#pragma once

#include <optional>
#include <string>
#include <vector>

namespace check
{

/// Values that a reader may accept in place of the one that it refused, the likeliest first: what was most likely
/// meant, what suits the name, and one of each kind that documents have. Nothing stands for a removed attribute.
std::vector<std::optional<std::string>> valuesToTry(const std::string& name, const std::string& refused);

/// Names that an element may have where its own is refused.
std::vector<std::string> namesToTry(const std::string& refused);

} // namespace check
