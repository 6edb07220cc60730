#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "describe/nearest_name.h"

namespace
{

struct NameCase
{
    const char* written;
    const char* nearest;
};

std::ostream& operator<<(std::ostream& stream, const NameCase& test)
{
    return stream << test.written;
}

class NearestName : public testing::TestWithParam<NameCase>
{
};

TEST_P(NearestName, IsProposedWhenItIsClose)
{
    const std::vector<std::string> known{"MaxPoints", "MaxDays", "Type", "Kind", "RetryTimeOutMs"};
    EXPECT_EQ(describe::nearestName(GetParam().written, known), GetParam().nearest);
}

INSTANTIATE_TEST_SUITE_P(Names, NearestName,
                         testing::Values(NameCase{"MaxPoint", "MaxPoints"}, NameCase{"maxpoints", "MaxPoints"},
                                         NameCase{"MaxPiont", "MaxPoints"}, NameCase{"MaxPionts", "MaxPoints"},
                                         NameCase{"xaMPoints", "MaxPoints"}, NameCase{"MaxDay", "MaxDays"},
                                         NameCase{"RetryTimeout", "RetryTimeOutMs"}, NameCase{"Typ", "Type"},
                                         NameCase{"Find", "Kind"}, NameCase{"Fond", ""},
                                         NameCase{"Points", "MaxPoints"}, NameCase{"Retention", ""}, NameCase{"", ""},
                                         NameCase{"x", ""}));

TEST(NearestName, OfManyEquallyCloseOnesIsTheFirst)
{
    EXPECT_EQ(describe::nearestName("aXc", {"abc", "adc"}), "abc");
    EXPECT_EQ(describe::nearestName("adc", {"abc", "adc"}), "adc");
}

TEST(NearestName, IsNotLookedForWhenTheNameIsNone)
{
    const std::string endless(65, 'a');
    EXPECT_EQ(describe::nearestName(endless, {endless}), "");
    EXPECT_EQ(describe::nearestName("a", {}), "");
    EXPECT_EQ(describe::nearestName("a", {endless}), "");
}

} // namespace
