#include <zelmodel/enums/oib_algorithm.h>

#include <gtest/gtest.h>

#include "support/expect_failure.h"

using zelmodel_test::failureText;
using zelplatform::model::OibAlgorithm;

namespace
{

TEST(OibAlgorithmTest, FoldsToTheBaseKind)
{
    EXPECT_EQ(OibAlgorithm::convertToType(OibAlgorithm::Full), OibAlgorithm::Full);
    EXPECT_EQ(OibAlgorithm::convertToType(OibAlgorithm::Syntethic), OibAlgorithm::Full);
    EXPECT_EQ(OibAlgorithm::convertToType(OibAlgorithm::Increment), OibAlgorithm::Increment);
}

TEST(OibAlgorithmTest, RefusesKindsWithoutBase)
{
    for (const int value : {-1, 3, 4, 5, 6})
        EXPECT_EQ(failureText([&] { OibAlgorithm::convertToType(static_cast<OibAlgorithm::type>(value)); }),
                  "Not supported.");
}

} // namespace
