#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/structs/gfs/gfs_tracking_candidate.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::structs::gfs::EGfsTrackingCandidate;

TEST(GfsTrackingCandidate, ListsEveryStateButNone)
{
    const std::vector<EGfsTrackingCandidate::type> states{
        EGfsTrackingCandidate::Outdated, EGfsTrackingCandidate::Outlying, EGfsTrackingCandidate::Legacy,
        EGfsTrackingCandidate::Retained, EGfsTrackingCandidate::Candidate};
    EXPECT_EQ(states, EGfsTrackingCandidate::enumerate());

    int number = 1;
    for (const auto state : EGfsTrackingCandidate::enumerate())
        EXPECT_EQ(number++, static_cast<int>(state));
}

TEST(GfsTrackingCandidate, NamesEveryListedState)
{
    std::vector<std::string> names;
    for (const auto state : EGfsTrackingCandidate::enumerate())
        names.push_back(EGfsTrackingCandidate::toString(state));
    EXPECT_EQ((std::vector<std::string>{"Outdated", "Outlying", "Legacy", "Retained", "Candidate"}), names);
}

TEST(GfsTrackingCandidate, RefusesNoneAndNumbersBeyondTheLast)
{
    for (const int number : {0, 6, 100, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_EQ(
            "Unable to convert GfsTrackingCandidate value [" + std::to_string(number) + "] to string.",
            failureText([&] { EGfsTrackingCandidate::toString(static_cast<EGfsTrackingCandidate::type>(number)); }));
}

} // namespace
