#pragma once

#include <cstddef>
#include <string>

namespace zelmodel_test
{

/// Runs every call of the command that the page shows in a block of the kind "console", with the examples at hand, and
/// compares what it answers on both of its outputs with what is shown. In a page, a line of three dots stands for one
/// line or more, and a last line "(exit status N)" for the status. Gives the number of calls.
std::size_t expectAnswersAsShown(const std::string& page);

} // namespace zelmodel_test
