#include <algorithm>
#include <exception>

#include <gtest/gtest.h>

#include "operation.h"
#include "tries.h"

namespace zelmodel_test
{
namespace
{

/// One try: what came of it, and what it left behind. No texts, which would count as left behind.
struct Try
{
    bool isRefused = false;
    bool isAsBefore = false;
    bool isDone = false;       ///< the target and the answer are those of a call that met no failure
    bool isRepeatable = false; ///< the same call is done without the failure
    long leaked = 0;
    Tried tried;
};

Try tryOperation(const Operation& operation, const std::string& done, EFailure failure, std::size_t number)
{
    Try result;
    result.leaked = blocksLeftBy([&] {
        const auto subject = operation.make();
        const auto before = subject->told();
        result.tried = tryWith(failure, number, [&] {
            try
            {
                subject->run();
            }
            catch (const std::exception&)
            {
                result.isRefused = true;
            }
        });
        const auto after = subject->told();
        result.isAsBefore = after == before;
        result.isDone = after == done;
        if (result.isRefused)
            subject->run();
        result.isRepeatable = subject->told() == done;
    });
    return result;
}

class FailingOperation : public testing::TestWithParam<std::size_t>
{
protected:
    const Operation& operation() const { return everyOperation()[GetParam()]; }

    void tryAll(EFailure failure)
    {
        const auto subject = operation().make();
        subject->run();
        const auto done = subject->told();
        // What is built once, at the first use, stays, for failures too.
        tryOperation(operation(), done, failure, 0);
        const auto expected = tryOperation(operation(), done, EFailure::None, 0);
        ASSERT_FALSE(expected.isRefused);
        ASSERT_TRUE(expected.isDone);
        ASSERT_EQ(0, expected.leaked);
        for (std::size_t number = 0; number < expected.tried.asked; ++number)
        {
            const auto result = tryOperation(operation(), done, failure, number);
            ASSERT_TRUE(result.tried.hasFailed) << number;
            EXPECT_EQ(0, result.leaked) << "allocation " << number;
            EXPECT_TRUE(result.isRefused || result.isDone) << "allocation " << number << " was passed over";
            EXPECT_TRUE(result.isRepeatable) << "allocation " << number;
            const bool mayChange = !result.isRefused || operation().guarantee == EGuarantee::Valid;
            EXPECT_TRUE(mayChange || result.isAsBefore) << "allocation " << number << " of " << expected.tried.asked;
        }
        RecordProperty("allocations", static_cast<int>(expected.tried.asked));
    }
};

TEST_P(FailingOperation, OnceLeavesTheTargetAndLeaksNothing)
{
    tryAll(EFailure::One);
}

TEST_P(FailingOperation, FromThereOnLeavesTheTargetAndLeaksNothing)
{
    tryAll(EFailure::AllFrom);
}

std::string operationName(const testing::TestParamInfo<std::size_t>& info)
{
    std::string name = everyOperation()[info.param].name;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(All, FailingOperation, testing::Range<std::size_t>(0, everyOperation().size()), operationName);

} // namespace
} // namespace zelmodel_test
