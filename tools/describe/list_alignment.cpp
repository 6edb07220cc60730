#include "list_alignment.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <unordered_map>

namespace describe
{
namespace
{

using Pair = std::pair<std::size_t, std::size_t>;

/// Each item of the first list with its equal in the second, in the order of the first.
std::vector<Pair> matchItems(const std::vector<std::string>& first, const std::vector<std::string>& second)
{
    std::unordered_map<std::string_view, std::vector<std::size_t>> positions;
    for (std::size_t at = second.size(); at-- > 0;)
        positions[second[at]].push_back(at);
    std::vector<Pair> pairs;
    for (std::size_t at = 0; at < first.size(); ++at)
    {
        const auto found = positions.find(first[at]);
        if (found == positions.end() || found->second.empty())
            continue;
        pairs.emplace_back(at, found->second.back());
        found->second.pop_back();
    }
    return pairs;
}

/// The longest run of pairs whose second positions ascend.
std::vector<Pair> longestAscending(const std::vector<Pair>& pairs)
{
    std::vector<std::size_t> ends; // of the best run of each length, the pair that ends it
    std::vector<std::optional<std::size_t>> previous(pairs.size());
    for (std::size_t at = 0; at < pairs.size(); ++at)
    {
        const auto end =
            std::lower_bound(ends.begin(), ends.end(), pairs[at].second,
                             [&](std::size_t pair, std::size_t position) { return pairs[pair].second < position; });
        if (end != ends.begin())
            previous[at] = *std::prev(end);
        if (end == ends.end())
            ends.push_back(at);
        else
            *end = at;
    }
    std::vector<Pair> run;
    if (ends.empty())
        return run;
    for (std::optional<std::size_t> at = ends.back(); at; at = previous[*at])
        run.push_back(pairs[*at]);
    std::reverse(run.begin(), run.end());
    return run;
}

} // namespace

std::vector<Pair> alignLists(const std::vector<std::string>& first, const std::vector<std::string>& second)
{
    return longestAscending(matchItems(first, second));
}

} // namespace describe
