#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "document_diff.h"
#include "text_renderer.h"

namespace describe
{

/// How text tells the two sides of a difference.
struct DiffWords
{
    std::string onlyInFirst;  ///< "only in a.xml"
    std::string onlyInSecond; ///< "only in b.xml"
    bool tellsSecondPlace = true;
};

/// "Retention / Days", as a terminal may get it.
std::string joinLabels(const std::vector<std::string>& labels);

/// One line of text for people, broken at the width with a hanging indent, and indented as a whole.
std::string renderLine(const std::string& text, const TextStyle& style, std::size_t indent = 0);

/// The differences as text, a line for each: "Retention / Days: 7 days -> 14 days (line 3 -> line 5)", and below a
/// change that words tell as a whole a line for each of its fields.
std::string renderDifferences(const std::vector<Difference>& differences, const DiffWords& words,
                              const TextStyle& style);

/// The same of two documents. That only a part was compared, and what one of the forms cannot carry, stands at the end.
/// Empty when there is nothing to tell.
std::string renderDiff(const DocumentDiff& diff, const DocumentSide& first, const DocumentSide& second,
                       const TextStyle& style);

/// The differences for programs: an array of {"path", "label", "change", "first", "second", "fields"}, where the sides
/// are fields as the tree's JSON shows them (see toJson of a node).
nlohmann::ordered_json toJson(const std::vector<Difference>& differences, const TextStyle& style);

/// The members {"same", "comparable", "sharedPart", "differences", "notCarriedByFirst", "notCarriedBySecond"}.
nlohmann::ordered_json toJson(const DocumentDiff& diff, const TextStyle& style);

} // namespace describe
