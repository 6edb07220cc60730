#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "edit/field_list.h"
#include "edit/fields.h"
#include "edit_support.h"
#include "support/expect_failure.h"
#include "tree.h"

namespace
{

using describe::EDocumentKind;
using describe::Node;
using edit::Assignment;
using zelmodel_test::at;
using zelmodel_test::failureText;
using zelmodel_test::made;

using Kinds = std::vector<EDocumentKind>;
const Kinds Written{EDocumentKind::AgentJobOptions, EDocumentKind::ScheduleOptions, EDocumentKind::ScheduleWindow,
                    EDocumentKind::GfsPolicy};

std::string slashed(std::string path)
{
    std::replace(path.begin(), path.end(), '.', '/');
    return path;
}

std::string valueOf(EDocumentKind kind, const std::vector<Assignment>& assignments, const std::string& path)
{
    return at(made(kind, assignments).tree, slashed(path)).value;
}

/// The new document of the kind with everything that may be missing.
edit::WrittenDocument fullDocument(EDocumentKind kind)
{
    std::vector<Assignment> rules;
    const std::string policy = kind == EDocumentKind::AgentJobOptions ? "gfsPolicy." : "";
    if (kind == EDocumentKind::AgentJobOptions || kind == EDocumentKind::GfsPolicy)
        rules = {{policy + "weekly.keepCount", "4"},
                 {policy + "monthly.keepCount", "12"},
                 {policy + "yearly.keepCount", "7"}};
    return made(kind, rules);
}

struct Paths
{
    std::set<std::string> all;
    std::set<std::string> leaves;
};

void collectPaths(const Node& node, const std::string& prefix, Paths& paths)
{
    for (const auto& child : node.children)
    {
        const auto path = prefix + child.name;
        paths.all.insert(path);
        if (child.children.empty())
            paths.leaves.insert(path);
        collectPaths(child, path + '.', paths);
    }
}

// A new field of the tree is either settable or named here.
TEST(SettableFields, AreTheFieldsOfTheTree)
{
    for (const auto kind : Written)
    {
        Paths paths;
        collectPaths(fullDocument(kind).tree, "", paths);
        std::set<std::string> settable;
        for (const auto& field : edit::fieldsOf(edit::newRecord(kind)))
            settable.insert(field.path);
        for (const auto& leaf : paths.leaves)
        {
            const auto name = leaf.substr(leaf.rfind('.') + 1);
            const bool isTold = name == "notCarried" || name == "backupWindow" || name == "logText" ||
                                name == "hours" || name == "minutes" || leaf.find("Full.time") != std::string::npos;
            EXPECT_NE(settable.count(leaf) > 0, isTold) << leaf;
        }
        for (const auto& path : settable)
            EXPECT_EQ(paths.all.count(path), 1U) << path;
    }
}

struct FieldCase
{
    const char* path;
    const char* text;
    const char* value; ///< what the tree holds then
};

void expectValues(EDocumentKind kind, const std::vector<FieldCase>& cases)
{
    for (const auto& [path, text, value] : cases)
        EXPECT_EQ(valueOf(kind, {{path, text}}, path), value) << path << '=' << text;
}

TEST(JobFields, TakeTexts)
{
    expectValues(EDocumentKind::AgentJobOptions,
                 {{"compression", "Zstd3", "Zstd3"},
                  {"compression", "ZlibHigh", "Zstd9"},
                  {"compression", "0", "NoCompression"},
                  {"compression", "4", "Zstd9"},
                  {"blockSize", "KbBlockSize256", "KbBlockSize256"},
                  {"blockSize", "8192", "KbBlockSize8192"},
                  {"retentionType", "Cycles", "Cycles"},
                  {"maxPoints", "730", "730"},
                  {"maxDays", "1", "1"},
                  {"deletedVmDataRetentionDays", "30", "30"},
                  {"deletedVmDataRetentionDays", "", ""},
                  {"dedupEnabled", "FALSE", "false"},
                  {"snapshotMode", "Hybrid", "Hybrid"},
                  {"preFreezeCommand", "/bin/a --b=\"c\"", "/bin/a --b=\"c\""},
                  {"postThawCommand", "b\tc\n", "b\tc\n"},
                  {"ignoreFreezeThawFailures", "true", "true"},
                  {"ignoreFreezeThawFailures", "", ""},
                  {"freezeThawScriptsTimeout", "-1", "-1"},
                  {"freezeThawScriptsTimeout", "", ""},
                  {"preJobCommand", "c", "c"},
                  {"postJobCommand", "d", "d"},
                  {"retryCount", "3", "3"},
                  {"retryTimeoutMs", "90000", "90000"},
                  {"retryTimeoutMs", "1h30m", "5400000"},
                  {"indexing.type", "IndexAll", "IndexAll"},
                  {"gfsPolicy.isEnabled", "1", "true"},
                  {"gfsPolicy.weekly.isEnabled", "true", "true"},
                  {"gfsPolicy.weekly.keepCount", "4", "4"},
                  {"gfsPolicy.monthly.beginTimeUtc", "03/31/2024 22:00:00", "03/31/2024 22:00:00"},
                  {"gfsPolicy.yearly.desiredTime", "-6", "-6"},
                  {"gfsPolicy.yearly", "none", ""},
                  {"productSpecific", "<x/>", "<x/>"},
                  {"schedule.jobStart.isEnabled", "true", "true"},
                  {"schedule.jobStart.time", "22:30", "22:30"},
                  {"schedule.jobStart.weekMask", "Mon-Wed", "Monday,Tuesday,Wednesday"}});
}

TEST(JobFields, FoldersNeedAKindOfIndexingThatNamesThem)
{
    EXPECT_EQ(valueOf(EDocumentKind::AgentJobOptions, {{"indexing.type", "IndexOnly"}, {"indexing.folders", "/a;/b"}},
                      "indexing.folders"),
              "/a;/b");
}

TEST(ScheduleFields, TakeTexts)
{
    const auto kind = EDocumentKind::ScheduleOptions;
    expectValues(kind, {{"jobStart.scheduleType", "weekly", "0"},
                        {"jobStart.scheduleType", "2", "2"},
                        {"jobStart.scheduleType", "periodically", "2"},
                        {"jobStart.scheduleType", "continuously", "3"},
                        {"activeFull.monthMask", "Jan,Jul", "January,July"},
                        {"activeFull.dayOfMonth", "31", "31"},
                        {"activeFull.dayOfMonth", "last", "32"},
                        {"syntheticFull.dayOfMonth", "LAST", "32"},
                        {"syntheticFull.isEnabled", "true", "true"}});
    EXPECT_EQ(valueOf(kind, {{"jobStart.scheduleType", "periodically"}, {"jobStart.time", "0:00"}}, "jobStart.time"),
              "24:00")
        << "the library's way to store a period of a whole day";
}

TEST(ScheduleFields, MeanTogetherWhatTheyMeanInTheEnd)
{
    const std::vector<Assignment> secondTuesday{{"activeFull.weekMask", "Tue"}, {"activeFull.weekDayNumber", "second"}};
    for (const auto& order : {std::vector<Assignment>{secondTuesday[0], secondTuesday[1]},
                              std::vector<Assignment>{secondTuesday[1], secondTuesday[0]}})
    {
        const auto& tree = made(EDocumentKind::ScheduleOptions, order).tree;
        EXPECT_EQ(at(tree, "activeFull/weekDayNumber").value, "Second");
        EXPECT_EQ(at(tree, "activeFull/weekMask").value, "Tuesday");
        EXPECT_EQ(at(tree, "activeFull/dayOfMonth").value, "0") << "the occurrence replaces the day";
    }
}

TEST(ScheduleFields, TurnNothingOn)
{
    EXPECT_EQ(valueOf(EDocumentKind::ScheduleOptions, {{"jobStart.time", "22:30"}}, "jobStart.isEnabled"), "false");
}

TEST(WindowFields, TakeTexts)
{
    expectValues(EDocumentKind::ScheduleWindow, {{"monday", "20-24", "20-24"},
                                                 {"sunday", "0-6,20-24", "00-06, 20-24"},
                                                 {"sunday", "0-6, 6-8", "00-08"},
                                                 {"friday", "", ""},
                                                 {"kind", "0", "0"},
                                                 {"hourlyOffsetMinutes", "-60", "-60"}});
}

TEST(GfsFields, KeepTheLongNames)
{
    const describe::Document document("<GfsPolicy IsEnabled=\"true\"><GfsWeeklyPolicy IsEnabled=\"true\" "
                                      "NumberOfWeeks=\"8\" BeginTimeUtc=\"01/01/2024 00:00:00\" DesiredTime=\"1\"/>"
                                      "</GfsPolicy>");
    auto record = edit::readRecord(document);
    edit::setField(record, {"weekly.keepCount", "5"});
    EXPECT_EQ(edit::writeRecord(record).text,
              "<GfsPolicy IsEnabled=\"true\"><GfsWeeklyPolicy IsEnabled=\"true\" NumberOfWeeks=\"5\" "
              "BeginTimeUtc=\"01/01/2024 00:00:00\" DesiredTime=\"1\"/></GfsPolicy>");
}

// A calendar that a setter would refuse stays as it is, until somebody changes it.
TEST(UntouchedCalendars, StayAsTheDocumentHoldsThem)
{
    const describe::Document document(
        R"(<ScheduleOptions><Schedule Version="3" IsEnabled="true" WeekDayNumber="Every" DayOfMonth="0" Type="0">
<WeekMask Monday="0" Tuesday="0" Wednesday="0" Thursday="0" Friday="1" Saturday="0" Sunday="0"/>
<MonthMask January="0" February="1" March="0" April="0" May="0" June="0" July="0" August="0" September="0" October="0"
 November="0" December="0"/><Time Hours="99" Minutes="0"/></Schedule></ScheduleOptions>)");
    auto record = edit::readRecord(document);
    edit::setField(record, {"jobStart.isEnabled", "false"});
    const auto& tree = edit::writeRecord(record).tree;
    EXPECT_EQ(at(tree, "jobStart/time").value, "99:00");
    EXPECT_EQ(at(tree, "jobStart/monthMask").value, "February");
    EXPECT_EQ(at(tree, "jobStart/isEnabled").value, "false");
    edit::setField(record, {"jobStart.weekMask", "Mon"});
    EXPECT_NE(failureText([&] { edit::writeRecord(record); }).find("Wrong hours of time."), std::string::npos);
}

TEST(FieldList, HasValuesAndWhatIsTaken)
{
    const auto record = edit::newRecord(EDocumentKind::GfsPolicy);
    const auto list = edit::listFields(record, edit::writeRecord(record).tree);
    EXPECT_TRUE(list.isList);
    ASSERT_EQ(list.children.size(), 16U);
    EXPECT_EQ(list.children[0].label, "isEnabled");
    EXPECT_EQ(list.children[0].value, "false");
    EXPECT_EQ(list.children[0].words, "false; takes true or false");
    EXPECT_EQ(list.children[3].label, "weekly.keepCount");
    EXPECT_EQ(list.children[3].words, "takes how many restore points are kept");
}

TEST(FieldList, KeepsSecretsSecret)
{
    const auto record = edit::newRecord(EDocumentKind::AgentJobOptions);
    Node tree;
    tree.children = {describe::makeSecret("preJobCommand", "", "c4n4ry")};
    const auto list = edit::listFields(record, tree);
    const auto found = std::find_if(list.children.begin(), list.children.end(),
                                    [](const Node& row) { return row.label == "preJobCommand"; });
    ASSERT_NE(found, list.children.end());
    EXPECT_TRUE(found->secret);
    EXPECT_EQ(found->words, "c4n4ry");
}

} // namespace
