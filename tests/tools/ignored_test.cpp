#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tree.h"

namespace
{

using zelmodel_test::at;
using zelmodel_test::treeOf;

/// A document, and what is told of the parts that its reader ignores, "line: words" each.
struct IgnoredCase
{
    const char* document;
    std::vector<std::string> parts;
};

std::ostream& operator<<(std::ostream& stream, const IgnoredCase& test)
{
    return stream << test.document;
}

std::vector<std::string> ignoredOf(const std::string& document)
{
    std::vector<std::string> parts;
    const auto tree = treeOf(document);
    if (tree.children.back().name != "ignored")
        return parts;
    for (const auto& part : tree.children.back().children)
        parts.push_back(std::to_string(part.origin.line) + ": " + part.words);
    return parts;
}

class Ignored : public testing::TestWithParam<IgnoredCase>
{
};

TEST_P(Ignored, IsListedWithItsLineAndTheNearestName)
{
    EXPECT_EQ(ignoredOf(GetParam().document), GetParam().parts);
}

INSTANTIATE_TEST_SUITE_P(
    Jobs, Ignored,
    testing::Values(IgnoredCase{"<JobOptions MaxPoint='3'\n maxDays='4'/>",
                                {"1: attribute MaxPoint of JobOptions: did you mean MaxPoints?",
                                 "2: attribute maxDays of JobOptions: did you mean MaxDays?"}},
                    IgnoredCase{"<JobOptions MaxPoint='3' MaxPoints='4'/>", {"1: attribute MaxPoint of JobOptions"}},
                    IgnoredCase{"<JobOptions>\n<Shedule/>\n text</JobOptions>",
                                {"3: text of JobOptions", "2: element Shedule of JobOptions: did you mean Schedule?"}},
                    IgnoredCase{"<JobOptions><Other><Schedule/></Other></JobOptions>\n<More/>",
                                {"1: element Other of JobOptions", "2: element More at the top"}},
                    IgnoredCase{"<JobOptions><RetainDays>1</RetainDays>\n<RetainDays>2</RetainDays></JobOptions>",
                                {"2: element RetainDays of JobOptions: only the first one counts"}},
                    IgnoredCase{"<JobOptions><RetainDays RetainDays='1'>2</RetainDays></JobOptions>",
                                {"1: text of RetainDays"}},
                    IgnoredCase{"<JobOptionsRoot/><JobOptions/>", {"1: element JobOptions at the top"}},
                    IgnoredCase{"<JobOptionsRoot><RetainCycle>3</RetainCycle></JobOptionsRoot>",
                                {"1: element RetainCycle of JobOptionsRoot: did you mean RetainCycles?"}}));

INSTANTIATE_TEST_SUITE_P(
    Others, Ignored,
    testing::Values(
        IgnoredCase{"<ScheduleWindow Minutes='0' Kind='0'><Days><Monday Interval='00-06'/></Days></ScheduleWindow>",
                    {"1: attribute Interval of Monday: did you mean Intervals?"}},
        IgnoredCase{"<GfsPolicy IsEnabled='true'><GfsWeeklyPolicy IsEnabled='true' NumberOfWeeks='1' "
                    "BeginTimeUtc='' DesiredTime='1'/><Weekly/></GfsPolicy>",
                    {"1: element Weekly of GfsPolicy"}},
        IgnoredCase{"<SqlVariant Type='1' Value='2' Values='3'/>", {"1: attribute Values of SqlVariant"}},
        // What stands around enclosed settings is not for their reader.
        IgnoredCase{"<Answer Code='0'>text<Other/><ImmutabilitySettings IsEnabled='true' IntervalDays='3'\n "
                    "Mode='1'/></Answer>",
                    {"2: attribute Mode of ImmutabilitySettings"}}));

INSTANTIATE_TEST_SUITE_P(BelongToTheForm, Ignored,
                         testing::Values(IgnoredCase{"<JobOptions Version='2' Schedule='true' IndexOnly='/a'>"
                                                     "<EnableDeletedVmDataRetention>true</EnableDeletedVmDataRetention>"
                                                     "<Indexing Type='IndexOnly' Folders='/a'/></JobOptions>",
                                                     {}},
                                         IgnoredCase{"<JobOptions xmlns='urn:a' xmlns:b='urn:b'/>", {}},
                                         IgnoredCase{"<JobOptions IsSnapshotRequired='true' SnapshotMode='Hybrid'/>",
                                                     {}},
                                         IgnoredCase{"<JobOptionsRoot><RetainDays>3</RetainDays></JobOptionsRoot>", {}},
                                         IgnoredCase{"<BackupJobState Version='1' ObjectStorageBackupMode='3'/>", {}}));

TEST(Ignored, ValuesAreNotTold)
{
    const auto tree = treeOf("<JobOptions SecretAccesKey='CANARY'>CANARY<Other Password='CANARY'/></JobOptions>");
    for (const auto& part : at(tree, "ignored").children)
    {
        EXPECT_EQ(part.words.find("CANARY"), std::string::npos);
        EXPECT_EQ(part.value.find("CANARY"), std::string::npos);
    }
}

TEST(Ignored, IsAListWithDetailsForPrograms)
{
    const auto tree = treeOf("<JobOptions MaxPoint='3'/>");
    const auto& ignored = at(tree, "ignored");
    EXPECT_TRUE(ignored.isList);
    EXPECT_EQ(ignored.words, "1 part");
    EXPECT_EQ(at(ignored, "part").value, "MaxPoint");
    EXPECT_EQ(at(ignored, "part/kind").value, "attribute");
    EXPECT_EQ(at(ignored, "part/owner").value, "JobOptions");
    EXPECT_EQ(at(ignored, "part/nearest").value, "MaxPoints");
}

TEST(Ignored, ListEndsWhereNobodyWouldReadOn)
{
    std::string document = "<JobOptions>";
    for (int i = 0; i < 1500; ++i)
        document += "<Other/>";
    const auto tree = treeOf(document + "</JobOptions>");
    EXPECT_EQ(at(tree, "ignored").children.size(), 1000U);
    EXPECT_EQ(at(tree, "ignored").words, "1000 parts, more are not listed");
}

} // namespace
