#pragma once

#include <string>
#include <vector>

namespace describe
{

/// The sentences of a refusal, outermost first, each for itself. Some wrappers join the text of their cause into one
/// entry of the trace; such an entry is taken apart at every full stop before a capital letter that stands outside of
/// the brackets around values. What carries no full stop stays with the sentence after it.
std::vector<std::string> sentencesOf(const std::vector<std::string>& trace);

} // namespace describe
