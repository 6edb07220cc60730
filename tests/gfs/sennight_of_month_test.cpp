#include <thread>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/enums/sennight_of_month.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::structs::gfs::ESennightOfMonth;

TEST(SennightOfMonth, ConvertsEveryRow)
{
    const struct
    {
        int number;
        const char* text;
    } rows[] = {{1, "First"}, {2, "Second"}, {3, "Third"}, {4, "Fourth"}, {6, "Last"}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(row.text, ESennightOfMonth::toLongStr(static_cast<ESennightOfMonth::type>(row.number)));
        EXPECT_EQ(row.number, static_cast<int>(ESennightOfMonth::fromStr(row.text)));
    }
}

TEST(SennightOfMonth, RefusesOtherValuesAndTexts)
{
    for (const int number : {-1, 0, 5, 7, 100})
        EXPECT_EQ("Cannot convert ESennightOfMonth value [" + std::to_string(number) + "] to string.",
                  failureText([&] { ESennightOfMonth::toLongStr(static_cast<ESennightOfMonth::type>(number)); }));
    for (const std::string text : {"", "first", "LAST", " First", "Last ", "Fifth", "Every", "1", "6"})
        EXPECT_EQ("Cannot convert value [" + text + "] to ESennightOfMonth.",
                  failureText([&] { ESennightOfMonth::fromStr(text); }));
}

TEST(SennightOfMonth, SetIsBuiltOnceForAllThreads)
{
    const std::vector<std::string>* fromThread = nullptr;
    std::thread([&] { fromThread = &ESennightOfMonth::getLongStrSet(); }).join();
    EXPECT_EQ(fromThread, &ESennightOfMonth::getLongStrSet());
    EXPECT_EQ((std::vector<std::string>{"First", "Second", "Third", "Fourth", "Last"}),
              ESennightOfMonth::getLongStrSet());
}

} // namespace
