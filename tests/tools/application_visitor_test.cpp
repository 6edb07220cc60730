#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tree.h"

namespace
{

using zelmodel_test::at;
using zelmodel_test::expectFields;
using zelmodel_test::namesOf;
using zelmodel_test::treeOf;

TEST(OracleTree, HoldsEveryFieldWithItsLine)
{
    const auto root =
        treeOf("<OracleConfig\nusername=\"j\xc3\xb8rn\">\n<LogsTruncateConfig mode=\"ByAge\"\nsizeGB=\"10\"\n"
               "lifetimeHours=\"1\"/></OracleConfig>");
    EXPECT_EQ(namesOf(root), (std::vector<std::string>{"username", "truncation"}));
    EXPECT_EQ(namesOf(at(root, "truncation")), (std::vector<std::string>{"mode", "sizeGB", "lifetimeHours"}));
    expectFields(root, {{"username", "j\xc3\xb8rn", "j\xc3\xb8rn", 2},
                        {"truncation", "", "truncated when older than 1 hour", 3},
                        {"truncation/mode", "ByAge", "ByAge", 3},
                        {"truncation/sizeGB", "10", "10.0 GB", 4},
                        {"truncation/lifetimeHours", "1", "1 hour", 5}});
}

TEST(OracleTree, WithoutTruncationHasTheDefaults)
{
    expectFields(treeOf("<OracleConfig username=\"\"/>"), {{"username", "", "none", 1},
                                                           {"truncation", "", "not truncated", 0},
                                                           {"truncation/mode", "Disabled", "Disabled", 0}});
}

struct TruncationCase
{
    const char* attributes;
    const char* words;
    const char* fault; ///< empty: none
};

TEST(OracleTree, TellsTheTruncationAndItsFaults)
{
    const TruncationCase cases[] = {
        {"mode=\"Disabled\" lifetimeHours=\"999\"", "not truncated", ""},
        {"mode=\"Disabled\" lifetimeHours=\"1000\"", "not truncated",
         "Maximum allowed 'logs age' value for truncation settings is '999H'."},
        {"mode=\"ByAge\" sizeGB=\"0\" lifetimeHours=\"999\"", "truncated when older than 999 hours", ""},
        {"mode=\"ByAge\"", "truncated when older than 0 hours", "Logs 'age' value must be a positive integer."},
        {"mode=\"BySize\" sizeGB=\"1\"", "truncated when larger than 1.0 GB", ""},
        {"mode=\"BySize\" sizeGB=\"0\"", "truncated when larger than 0.0 B",
         "'Logs maximum size' value for truncation settings must be greater than zero."},
        // 16 EB less a gigabyte still is a number of bytes, 16 EB is none.
        {"mode=\"BySize\" sizeGB=\"17179869183\"", "truncated when larger than 16.0 EB",
         "Maximum allowed 'logs size' value for truncation settings is 999G."},
        {"mode=\"BySize\" sizeGB=\"17179869184\"", "truncated when larger than 17179869184 GB",
         "Maximum allowed 'logs size' value for truncation settings is 999G."}};
    for (const auto& expected : cases)
    {
        const auto root = treeOf(std::string("<OracleConfig username=\"o\"><LogsTruncateConfig ") +
                                 expected.attributes + "/></OracleConfig>");
        const auto& truncation = at(root, "truncation");
        EXPECT_EQ(truncation.words, expected.words) << expected.attributes;
        const bool hasFault = truncation.children.back().name == "fault";
        EXPECT_EQ(hasFault ? truncation.children.back().words : "", expected.fault) << expected.attributes;
    }
}

TEST(PostgresTree, HoldsEveryFieldWithItsLine)
{
    const auto root = treeOf("<PostgresConfig\nosUser=\"postgres\"\nauthType=\"file\"/>");
    EXPECT_EQ(namesOf(root), (std::vector<std::string>{"osUser", "authType"}));
    expectFields(root, {{"osUser", "postgres", "postgres", 2}, {"authType", "file", "file", 3}});
}

} // namespace
