#pragma once

#include <optional>
#include <string>
#include <vector>

#include <zelplatform/xmlpp/lookup_record.h>

#include "describe/document.h"

namespace check
{

/// One reading of a document, accepted or refused.
struct Attempt
{
    std::optional<describe::Node> tree;  ///< nothing when the document is refused
    std::vector<std::string> sentences;  ///< of the refusal, outermost first
    int line = 0;                        ///< of the refusal
    std::vector<xmlpp::SLookup> lookups; ///< what the reader asked for; up to the refusal
};

/// Reads the document with its library's reader.
Attempt readDocument(const describe::Document& document);

/// Parses a text: nothing, with the sentences of the refusal, when it is no acceptable XML.
std::optional<describe::Document> parseDocument(const std::string& text, std::vector<std::string>& sentences);

} // namespace check
