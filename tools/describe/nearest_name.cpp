#include "nearest_name.h"

#include <algorithm>
#include <cstddef>

#include <zelplatform/util/util.h>

namespace describe
{
namespace
{

constexpr std::size_t LongestName = 64;
constexpr std::size_t LettersPerFault = 3;

// Letters that are wrong, missing, added or swapped with their neighbour.
std::size_t faultsBetween(const std::string& a, const std::string& b)
{
    std::vector<std::size_t> beforeLast(b.size() + 1);
    std::vector<std::size_t> last(b.size() + 1);
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i)
    {
        beforeLast.swap(last);
        last.swap(row);
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j)
        {
            const std::size_t wrong = a[i - 1] == b[j - 1] ? 0 : 1;
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + wrong});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
    }
    return row[b.size()];
}

std::size_t mostFaults(const std::string& a, const std::string& b)
{
    return std::max<std::size_t>(1, std::max(a.size(), b.size()) / LettersPerFault);
}

} // namespace

std::string nearestName(const std::string& name, const std::vector<std::string>& known)
{
    std::string nearest;
    if (name.size() > LongestName)
        return nearest;
    const auto written = util::tolower(name);
    std::size_t fewest = LongestName;
    for (const auto& candidate : known)
    {
        const auto faults = candidate.size() > LongestName ? fewest : faultsBetween(written, util::tolower(candidate));
        if (faults < fewest && faults <= mostFaults(written, candidate))
        {
            fewest = faults;
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace describe
