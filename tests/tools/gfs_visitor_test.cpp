#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tree.h"

namespace
{

using zelmodel_test::at;
using zelmodel_test::namesOf;
using zelmodel_test::treeOf;

TEST(GfsTree, TellsTheRules)
{
    const auto policy = treeOf("<GfsPolicy IsEnabled=\"true\">\n"
                               "<Weekly IsEnabled=\"true\" KeepBackupsForNumberOfWeeks=\"4\"\n"
                               " BeginTimeUtc=\"03/31/2024 22:15:00\" DesiredTime=\"5\"/>\n"
                               "<Monthly IsEnabled=\"false\" KeepBackupsForNumberOfMonths=\"1\"\n"
                               " BeginTimeUtc=\"01/01/0001 00:00:00\" DesiredTime=\"-1\"/>\n"
                               "</GfsPolicy>");
    EXPECT_EQ(namesOf(policy), (std::vector<std::string>{"isEnabled", "weekly", "monthly", "yearly"}));
    EXPECT_EQ(policy.words, "on");
    EXPECT_EQ(at(policy, "weekly").words,
              "keeps 4 weekly restore points, effective from 2024-03-31 22:15 UTC on, slot 5");
    EXPECT_EQ(at(policy, "weekly").origin.line, 2);
    EXPECT_EQ(at(policy, "weekly/keepCount").value, "4");
    EXPECT_EQ(at(policy, "weekly/keepCount").origin.line, 2);
    EXPECT_EQ(at(policy, "weekly/beginTimeUtc").value, "03/31/2024 22:15:00");
    EXPECT_EQ(at(policy, "weekly/beginTimeUtc").origin.line, 3);
    EXPECT_EQ(at(policy, "monthly").words, "off (set to keep 1 monthly restore point, effective at once, slot -1)");
    EXPECT_EQ(at(policy, "yearly").words, "none");
    EXPECT_TRUE(at(policy, "yearly").isDetail);
}

TEST(GfsTree, ReadsTheLongNames)
{
    const auto policy =
        treeOf("<GfsPolicy IsEnabled=\"false\">\n<GfsYearlyPolicy IsEnabled=\"true\" NumberOfYears=\"7\" "
               "BeginTimeUtc=\"soon\" DesiredTime=\"12\"/></GfsPolicy>");
    EXPECT_EQ(policy.words, "off, its rules are not in force");
    EXPECT_EQ(at(policy, "yearly").words, "keeps 7 yearly restore points, effective at once, slot 12");
    EXPECT_EQ(at(policy, "yearly/keepCount").origin.line, 2);
}

TEST(GfsTree, WithoutRules)
{
    EXPECT_EQ(treeOf("<GfsPolicy IsEnabled=\"true\"/>").words, "on, but without rules");
    EXPECT_EQ(treeOf("<GfsPolicy IsEnabled=\"false\"/>").words, "off");
}

} // namespace
