#pragma once

#include <optional>
#include <string>

#include "reader.h"

namespace readers
{

/// What became of an input.
struct Outcome
{
    std::optional<std::string> written; ///< nothing when the input was refused
    std::string refusal;                ///< the failure's text
};

/// Lets the reader take the input. A failure that is a std::exception, or the pointer that an unknown kind of window
/// throws, is a refusal; anything else passes on.
Outcome attempt(const Reader& reader, const std::string& input);

/// The same, and what is wrong when what was written does not read back as the reader promises, or when the input is
/// not treated the same way twice; empty when all is well.
std::string faultOf(const Reader& reader, const std::string& input);

} // namespace readers
