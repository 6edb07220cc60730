#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace describe
{

/// The positions of items that both lists hold in the same order, as many as there are: the position in the first list
/// and the one in the second, both ascending. Of an item that a list holds several times, each is compared with the one
/// of the same number in the other list only, so that the work is n log n for lists of any content.
std::vector<std::pair<std::size_t, std::size_t>> alignLists(const std::vector<std::string>& first,
                                                            const std::vector<std::string>& second);

} // namespace describe
