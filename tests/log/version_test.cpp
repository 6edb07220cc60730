#include <zelmodel/version.h>

#include <gtest/gtest.h>

namespace
{

TEST(VersionTest, IsThatOfTheProject)
{
    EXPECT_STREQ(ZELMODEL_VERSION, zelmodel::Version());
}

} // namespace
