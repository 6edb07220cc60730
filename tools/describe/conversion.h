#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "document_diff.h"
#include "markup_diff.h"
#include "text_renderer.h"

namespace describe
{

/// A field that the document holds under another name, or in an older form of the same one.
struct RenamedField
{
    std::vector<std::string> labels;
    Origin origin;
    std::string writtenName;
};

/// A document in the current form, and what became of the one that it was made from.
struct Conversion
{
    std::string text; ///< the document as the library writes it, and a line break
    bool holdsSecrets = false;

    std::vector<Difference> differences; ///< fields that hold something else than before
    std::vector<RenamedField> renamedFields;
    MarkupDiff markup;               ///< without what the differences tell
    std::size_t writtenDefaults = 0; ///< fields that the document left to their defaults
};

/// Converts the text of a document that was read; kind and tree are its own. The result is read again before it is
/// given back. Throws what rewrite throws.
Conversion convert(const std::string& text, EDocumentKind kind, const Node& tree);

/// What was changed and lost, a line each; empty when nothing was.
std::string renderConversion(const Conversion& conversion, const TextStyle& style);

/// The same for programs: {"differences", "renamed", "lost", "respelled", "comments", "instructions",
/// "writtenDefaults"}.
nlohmann::ordered_json toJson(const Conversion& conversion, const TextStyle& style);

} // namespace describe
