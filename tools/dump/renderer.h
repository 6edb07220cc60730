#pragma once

#include <string>

#include <nlohmann/json.hpp>

#include "describe/text_renderer.h"
#include "dump.h"

namespace dump
{

/// A line for each field: where it stands, how long it is, what it is and holds. What an XML text in it says follows.
std::string renderText(const Dump& dump, const describe::TextStyle& style);

/// The same for programs: the form, and its fields by their names with "offset" and "length" beside value and words;
/// the refusal when there is one.
nlohmann::ordered_json toJson(const Dump& dump, const describe::TextStyle& style);

} // namespace dump
