#pragma once

#include "describe/node.h"
#include "rule.h"

namespace check
{

/// A rule: what it finds, why, and what to do about it.
describe::Node describeRule(const Rule& rule);

/// All rules as a list, for a table.
describe::Node describeRules();

} // namespace check
