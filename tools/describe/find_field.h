#pragma once

#include <string>

#include "node.h"

namespace describe
{

/// The first field of the name at or below the node, or nothing.
const Node* findField(const Node& node, const std::string& name);

} // namespace describe
