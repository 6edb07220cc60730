#pragma once

#include <functional>
#include <string>
#include <vector>

#include "describe/document_kind.h"
#include "fields.h"

namespace edit
{

/// An option that says what a new document holds.
struct NewOption
{
    std::string name;     ///< "--keep-days"
    std::string typeName; ///< what it takes; empty for a flag
    std::string help;

    /// What it sets; throws for a text that means nothing. A flag is given an empty text.
    std::function<std::vector<Assignment>(const std::string& text)> assignments;

    /// Options of one choice exclude each other.
    std::string choice = {};

    /// One of these must be given too.
    std::vector<std::string> needs = {};

    /// Words that it takes, as far as they are known.
    std::vector<std::string> words = {};
};

/// The options for a new document of the kind; none for a kind that is not written.
const std::vector<NewOption>& newOptions(describe::EDocumentKind kind);

} // namespace edit
