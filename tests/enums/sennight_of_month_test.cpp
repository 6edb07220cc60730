#include <zelmodel/enums/sennight_of_month.h>

#include <gtest/gtest.h>

using zelplatform::model::structs::gfs::ESennightOfMonth;

namespace
{

TEST(SennightOfMonthTest, ListsItsNamesOnce)
{
    const auto& names = ESennightOfMonth::getLongStrSet();
    EXPECT_EQ(names, (std::vector<std::string>{"First", "Second", "Third", "Fourth", "Last"}));
    EXPECT_EQ(&names, &ESennightOfMonth::getLongStrSet());
}

} // namespace
