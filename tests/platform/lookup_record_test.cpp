#include <ostream>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using xmlpp::CLookupPause;
using xmlpp::CLookupRecord;
using xmlpp::CXmlDocument;
using xmlpp::CXmlNode;
using xmlpp::ELookup;
using zelmodel_test::failureText;

constexpr const char* Text = "<a x='1' y='2'>\n  words <b z='3'/>\n  <b/><c/></a>";

/// "attribute a/x", "first child a/d missing": one line for each question.
std::vector<std::string> told(const CLookupRecord& record)
{
    constexpr const char* kinds[] = {"attribute", "first child", "named children", "all children", "text", "visit"};
    std::vector<std::string> lines;
    for (const auto& lookup : record.GetLookups())
    {
        lines.push_back(std::string(kinds[static_cast<int>(lookup.kind)]) + ' ' + lookup.node.GetName() + '/' +
                        lookup.name + (lookup.isFound ? "" : " missing"));
    }
    return lines;
}

TEST(LookupRecord, KeepsEveryQuestionInOrder)
{
    const auto document = CXmlDocument::Unserialize(Text);
    const CLookupRecord record;
    const auto root = document.ToNode().GetFirstChildNode("a");
    EXPECT_TRUE(root.HasAttribute("x"));
    EXPECT_EQ(1U, root.GetUint64Attribute("x"));
    EXPECT_FALSE(root.FindAttribute("w"));
    EXPECT_EQ("Attribute [v] is not found in [a].", failureText([&] { root.GetAttribute("v"); }));
    EXPECT_FALSE(root.HasNode("d"));
    EXPECT_FALSE(root.FindChildNode("e"));
    EXPECT_EQ("words", root.GetInnerText());
    const std::vector<std::string> expected{
        "first child /a",        "attribute a/x",           "attribute a/x",           "attribute a/w missing",
        "attribute a/v missing", "first child a/d missing", "first child a/e missing", "text a/"};
    EXPECT_EQ(expected, told(record));
}

TEST(LookupRecord, KeepsRangesAndTheElementsVisitedInThem)
{
    const auto root = CXmlDocument::Unserialize(Text).GetRootNode();
    const CLookupRecord record;
    for (const auto& child : root.GetChildNodes("b"))
        child.HasAttribute("z");
    for (const auto& child : root.GetChildNodes())
        child.GetName();
    const std::vector<std::string> expected{
        "named children a/b", "visit b/b", "attribute b/z", "visit b/b", "attribute b/z missing",
        "all children a/",    "visit b/b", "visit b/b",     "visit c/c"};
    EXPECT_EQ(expected, told(record));
}

TEST(LookupRecord, TellsNodesOfOneNameApart)
{
    const auto root = CXmlDocument::Unserialize(Text).GetRootNode();
    const CLookupRecord record;
    for (const auto& child : root.GetChildNodes("b"))
        child.HasAttribute("z");
    const auto& lookups = record.GetLookups();
    ASSERT_EQ(5U, lookups.size());
    EXPECT_EQ(root.GetId(), lookups[0].node.GetId());
    EXPECT_EQ(root.GetFirstChildNode("b").GetId(), lookups[2].node.GetId());
    EXPECT_EQ(lookups[3].node.GetId(), lookups[4].node.GetId());
    EXPECT_NE(lookups[2].node.GetId(), lookups[4].node.GetId());
}

TEST(LookupRecord, EndsWithItsLife)
{
    const auto root = CXmlDocument::Unserialize(Text).GetRootNode();
    root.HasAttribute("before");
    {
        const CLookupRecord record;
        EXPECT_TRUE(record.GetLookups().empty());
    }
    root.HasAttribute("after");
    const CLookupRecord record;
    root.HasAttribute("during");
    EXPECT_EQ(std::vector<std::string>{"attribute a/during missing"}, told(record));
}

TEST(LookupRecord, GivesWayToAnInnerOne)
{
    const auto root = CXmlDocument::Unserialize(Text).GetRootNode();
    const CLookupRecord outer;
    {
        const CLookupRecord inner;
        root.HasAttribute("y");
        EXPECT_EQ(std::vector<std::string>{"attribute a/y"}, told(inner));
    }
    root.HasAttribute("x");
    EXPECT_EQ(std::vector<std::string>{"attribute a/x"}, told(outer));
}

TEST(LookupRecord, IsDeafDuringAPause)
{
    const auto root = CXmlDocument::Unserialize(Text).GetRootNode();
    const CLookupRecord record;
    {
        const CLookupPause pause;
        {
            const CLookupPause another;
            root.HasAttribute("x");
        }
        root.HasAttribute("x");
    }
    root.HasAttribute("y");
    EXPECT_EQ(std::vector<std::string>{"attribute a/y"}, told(record));
}

TEST(LookupRecord, IsDeafToOtherThreads)
{
    const CLookupRecord record;
    std::thread([] { CXmlDocument::Unserialize(Text).GetRootNode().HasAttribute("x"); }).join();
    EXPECT_TRUE(record.GetLookups().empty());
}

} // namespace
