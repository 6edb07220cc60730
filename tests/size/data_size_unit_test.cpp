#include <zelmodel/size/data_size_unit.h>

#include <gtest/gtest.h>

using zelplatform::EDataSizeUnit;

namespace
{

TEST(DataSizeUnitTest, ListsItsUnits)
{
    EXPECT_EQ(EDataSizeUnit::GetNumber(), 7U);
    EXPECT_EQ(EDataSizeUnit::GetLongStrSet(), (std::vector<std::string>{"B", "KB", "MB", "GB", "TB", "PB", "EB"}));
    EXPECT_EQ(EDataSizeUnit::GetShortStrSet(), (std::vector<std::string>{"B", "K", "M", "G", "T", "P", "E"}));
    EXPECT_EQ(&EDataSizeUnit::GetLongStrSet(), &EDataSizeUnit::GetLongStrSet());
}

TEST(DataSizeUnitTest, ReadsUnitsInAnyLetters)
{
    for (const char* text : {"kb", "K", "Kb", "KB", "k", "kB"})
        EXPECT_EQ(EDataSizeUnit::FromStr(text), EDataSizeUnit::KB) << text;
}

} // namespace
