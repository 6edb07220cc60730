#include "describe/tree_diff.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tree.h"

namespace
{

using describe::compareTrees;
using describe::Difference;
using describe::EDifference;
using describe::EOrigin;
using describe::makeDetail;
using describe::makeField;
using describe::makeSecret;
using describe::Node;
using describe::Origin;
using zelmodel_test::treeOf;

const Origin Here{EOrigin::Document, 3, "Name"};

Node field(const char* name, const char* value, const char* words)
{
    return makeField(name, std::string("Label of ") + name, value, words, Here);
}

Node detail(const char* name, const char* value)
{
    return makeDetail(name, std::string("Label of ") + name, value, value, Here);
}

Node group(const char* name, const char* words, std::vector<Node> children)
{
    auto node = field(name, "", words);
    node.children = std::move(children);
    return node;
}

/// "path kind first->second" of each difference, details behind a bar.
std::string told(const std::vector<Difference>& differences)
{
    std::string text;
    for (const auto& difference : differences)
    {
        for (const auto& name : difference.names)
            text += '/' + name;
        if (difference.kind == EDifference::OnlyInFirst)
            text += " first: " + difference.first.words;
        else if (difference.kind == EDifference::OnlyInSecond)
            text += " second: " + difference.second.words;
        else
            text += ' ' + difference.first.words + "->" + difference.second.words;
        text += '\n';
        if (!difference.details.empty())
            text += "| " + told(difference.details);
    }
    return text;
}

std::string diffOf(const Node& first, const Node& second)
{
    return told(compareTrees(first, second).differences);
}

TEST(TreeDiff, EqualTreesDifferInNothing)
{
    const auto tree = group("root", "", {field("a", "1", "one"), group("g", "of b", {detail("b", "2")})});
    EXPECT_TRUE(compareTrees(tree, tree).isSame());
}

TEST(TreeDiff, TheValueCountsAndNotThePlaceOrTheSpelling)
{
    auto other = field("a", "1", "uno");
    other.origin = {EOrigin::Older, 77, "Alias"};
    EXPECT_EQ(diffOf(group("root", "", {field("a", "1", "one")}), group("root", "", {other})), "");
    EXPECT_EQ(diffOf(group("root", "", {field("a", "1", "one")}), group("root", "", {field("a", "2", "two")})),
              "/a one->two\n");
}

TEST(TreeDiff, TheOrderOfFieldsDoesNotCount)
{
    EXPECT_EQ(diffOf(group("root", "", {field("a", "1", "one"), field("b", "2", "two")}),
                     group("root", "", {field("b", "2", "two"), field("a", "1", "one")})),
              "");
}

TEST(TreeDiff, WordsOfAGroupTellItsDetails)
{
    const auto first = group("root", "x", {group("g", "at 1", {detail("hour", "1"), detail("kind", "w")})});
    const auto second = group("root", "y", {group("g", "at 2", {detail("hour", "2"), detail("kind", "w")})});
    EXPECT_EQ(diffOf(first, second), "/g at 1->at 2\n| /g/hour 1->2\n");
}

TEST(TreeDiff, DetailsThatTheWordsDoNotTellStandAlone)
{
    const auto first = group("root", "", {group("g", "off", {detail("hour", "1")})});
    const auto second = group("root", "", {group("g", "off", {detail("hour", "2")})});
    EXPECT_EQ(diffOf(first, second), "/g/hour 1->2\n");
}

TEST(TreeDiff, WordsOfAGroupAloneAreNoDifference)
{
    EXPECT_EQ(diffOf(group("root", "", {group("g", "off", {detail("hour", "1")})}),
                     group("root", "", {group("g", "off, set to 1", {detail("hour", "1")})})),
              "");
}

TEST(TreeDiff, AGroupOnOneSideAlone)
{
    const auto rule = group("rule", "keeps 4", {detail("count", "4")});
    const auto proxy = group("rule", "", {field("count", "4", "four")});
    EXPECT_EQ(diffOf(group("root", "", {field("rule", "", "none")}), group("root", "", {rule})),
              "/rule none->keeps 4\n");
    EXPECT_EQ(diffOf(group("root", "", {field("rule", "", "none")}), group("root", "", {proxy})),
              "/rule/count second: four\n");
    EXPECT_EQ(diffOf(group("root", "", {proxy}), group("root", "", {field("a", "", "b")})),
              "/rule/count first: four\n/a second: b\n");
    EXPECT_EQ(diffOf(group("root", "", {rule}), group("root", "", {field("a", "", "b")})),
              "/rule first: keeps 4\n/a second: b\n");
}

TEST(TreeDiff, ItemsOfAListAreFoundByWhatTheyHold)
{
    auto first = group("list", "3 points", {field("p", "x", "x"), field("p", "y", "y"), field("p", "z", "z")});
    auto second = group("list", "2 points", {field("p", "x", "x"), field("p", "z", "z")});
    first.isList = second.isList = true;
    EXPECT_EQ(diffOf(group("root", "", {first}), group("root", "", {second})),
              "/list 3 points->2 points\n| /list/p first: y\n");
    second.children.clear();
    EXPECT_EQ(diffOf(group("root", "", {second}), group("root", "", {first})),
              "/list 2 points->3 points\n| /list/p second: x\n/list/p second: y\n/list/p second: z\n");
}

TEST(TreeDiff, WhatWasWorkedOutIsLeftOut)
{
    const auto first = group("root", "", {makeField("log", "Log", "at 1", "at 1"), field("a", "1", "1")});
    const auto second = group("root", "", {makeField("log", "Log", "at 2", "at 2"), field("a", "1", "1")});
    EXPECT_EQ(diffOf(first, second), "");
    EXPECT_EQ(diffOf(first, group("root", "", {field("a", "1", "1")})), "");
}

/// The parts of a value are told by the value.
TEST(TreeDiff, AFieldWithAValueIsComparedAsAWhole)
{
    auto first = group("time", "22:30", {detail("hours", "22"), detail("minutes", "30")});
    auto second = group("time", "22:45", {detail("hours", "22"), detail("minutes", "45")});
    first.value = "22:30";
    second.value = "22:45";
    EXPECT_EQ(diffOf(group("root", "", {first}), group("root", "", {second})), "/time 22:30->22:45\n");
    EXPECT_EQ(diffOf(group("root", "", {first}), group("root", "", {field("time", "", "not set")})),
              "/time 22:30->not set\n");
    EXPECT_EQ(diffOf(group("root", "", {first}), group("root", "", {first})), "");
}

/// A misspelled name means nothing to a reader, and so it makes no difference.
TEST(TreeDiff, WhatReadersIgnoreIsLeftOut)
{
    const std::string known = "<BackupJobState Version='2' ObjectStorageOperationMode='3'";
    const auto first = treeOf(known + " Colour='red' Size='1'/>");
    EXPECT_EQ(diffOf(first, treeOf(known + "/>")), "");
    EXPECT_EQ(diffOf(first, treeOf(known + " Colour='blue'><Extra/></BackupJobState>")), "");
}

TEST(TreeDiff, WhatAFormCannotCarryIsToldOnceAndNoDifference)
{
    auto missing = group("g", "off", {field("a", "0", "none"), field("b", "0", "none")});
    missing.isNotCarried = true;
    const auto first = group("root", "", {missing, field("c", "1", "1")});
    const auto second =
        group("root", "", {group("g", "on", {field("a", "1", "1"), field("b", "1", "1")}), field("c", "1", "1")});
    const auto diff = compareTrees(first, second);
    EXPECT_TRUE(diff.isSame());
    EXPECT_EQ(diff.notCarriedByFirst, std::vector<std::string>{"Label of g"});
    EXPECT_TRUE(diff.notCarriedBySecond.empty());
    EXPECT_EQ(compareTrees(second, first).notCarriedBySecond, std::vector<std::string>{"Label of g"});
    EXPECT_TRUE(compareTrees(first, first).notCarriedByFirst.empty());
}

TEST(TreeDiff, SecretsAreComparedAndStaySecrets)
{
    const auto first = group("root", "", {makeSecret("key", "Key", "abc", Here)});
    const auto second = group("root", "", {makeSecret("key", "Key", "abd", Here)});
    EXPECT_TRUE(compareTrees(first, first).isSame());
    const auto diff = compareTrees(first, second);
    ASSERT_EQ(diff.differences.size(), 1U);
    EXPECT_TRUE(diff.differences.front().first.secret);
    EXPECT_TRUE(diff.differences.front().second.secret);
}

/// The same hours, listed as the open ones or as the closed ones: only the way of listing differs.
TEST(TreeDiff, HoursOfAWindowAreComparedNotTheirLists)
{
    const auto open = treeOf("<ScheduleWindow Minutes='0' Kind='0'><Days><Monday Intervals='00-08'/></Days>"
                             "</ScheduleWindow>");
    const auto closed = treeOf("<ScheduleWindow Minutes='0' Kind='1'><Days><Monday Intervals='08-24'/>"
                               "<Tuesday Intervals='00-24'/><Wednesday Intervals='00-24'/><Thursday Intervals='00-24'/>"
                               "<Friday Intervals='00-24'/><Saturday Intervals='00-24'/><Sunday Intervals='00-24'/>"
                               "</Days></ScheduleWindow>");
    const auto diff = compareTrees(open, closed);
    ASSERT_EQ(diff.differences.size(), 1U) << told(diff.differences);
    EXPECT_EQ(diff.differences.front().names, std::vector<std::string>{"kind"});
}

} // namespace
