#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "describe/list_alignment.h"

namespace
{

using Items = std::vector<std::string>;
using Pairs = std::vector<std::pair<std::size_t, std::size_t>>;

struct AlignmentCase
{
    Items first;
    Items second;
    Pairs pairs;
};

TEST(ListAlignment, PairsTheLongestCommonRun)
{
    const std::vector<AlignmentCase> cases{
        {{}, {}, {}},
        {{"a"}, {}, {}},
        {{}, {"a"}, {}},
        {{"a", "b", "c"}, {"a", "b", "c"}, {{0, 0}, {1, 1}, {2, 2}}},
        {{"a", "b", "c"}, {"a", "c"}, {{0, 0}, {2, 1}}},
        {{"b", "c"}, {"a", "b", "x", "c"}, {{0, 1}, {1, 3}}},
        {{"x", "a", "b", "c"}, {"a", "b", "c", "x"}, {{1, 0}, {2, 1}, {3, 2}}},
        {{"a", "b"}, {"c", "d"}, {}},
        // Of two runs of one length, the one that ends earlier in the second list.
        {{"a", "a", "b"}, {"a", "b", "a"}, {{0, 0}, {2, 1}}},
    };
    for (const auto& test : cases)
        EXPECT_EQ(describe::alignLists(test.first, test.second), test.pairs) << test.first.size();
}

/// Lists come from outside: many equal items must not take the product of the lengths.
TEST(ListAlignment, ManyEqualItemsArePairedOneByOne)
{
    const Items first(200000, "a");
    const Items second(150000, "a");
    EXPECT_EQ(describe::alignLists(first, second).size(), 150000U);
}

} // namespace
