#include <zelmodel/enums/job_session_state.h>

#include <set>

#include <gtest/gtest.h>

using zelplatform::model::JobSessionState;

namespace
{

TEST(JobSessionStateTest, KnowsWhichSessionsAreFinished)
{
    const std::set<int> finished{6, 7, 9};
    for (int value = -1; value <= 10; ++value)
        EXPECT_EQ(JobSessionState::IsSessionFinished(static_cast<JobSessionState::type>(value)),
                  finished.count(value) == 1)
            << value;
}

} // namespace
