#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "finding.h"

namespace check
{

/// A file and what was found in it.
struct CheckedFile
{
    std::string name;
    std::vector<Finding> findings;
    std::string failure; ///< why it cannot be read; empty when it was
};

/// A line for each finding, "FILE:LINE: refused|warning|note: text [id]", and indented below it the sentences of a
/// refusal. Everything that could act on a terminal is escaped.
std::string toText(const CheckedFile& file);

/// {"file", "findings": [{"line", "class", "id", "text", "refused": [...]}]}; "failed" for a file that was not read.
nlohmann::ordered_json toJson(const CheckedFile& file);

/// The findings in the Static Analysis Results Interchange Format, version 2.1.0.
nlohmann::ordered_json toSarif(const std::vector<CheckedFile>& files, const std::string& version);

} // namespace check
