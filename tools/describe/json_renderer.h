#pragma once

#include <nlohmann/json.hpp>

#include "node.h"
#include "text_renderer.h"

namespace describe
{

/// The tree for programs: an object for each field with its value, its words, where it came from ("line" and
/// "readFrom", with "olderForm" for a name of an older layout, or "default") and, when it has any, its "fields" by
/// their names or the "items" of a list. Numbers and flags are JSON numbers and booleans; numbers beyond 2^53 are text.
/// What the form of the document cannot carry is "notCarried". A secret has no value unless the style shows secrets,
/// and its words tell that it is hidden.
nlohmann::ordered_json toJson(const Node& node, const TextStyle& style);

} // namespace describe
