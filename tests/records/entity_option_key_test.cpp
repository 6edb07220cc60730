#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/structs/entity_option_key.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::structs::SEntityOptionKey;

SEntityOptionKey option(const std::string& key)
{
    SEntityOptionKey result;
    result.key = key;
    return result;
}

std::string written(const SEntityOptionKey& value)
{
    xmlpp::CXmlDocument document;
    xmlpp::CXmlNode node = document.AddRootNode("Option");
    value.ToXmlNode(node);
    return document.Serialize();
}

TEST(EntityOptionKey, EqualityComparesTheKey)
{
    EXPECT_EQ("", SEntityOptionKey().key);
    EXPECT_TRUE(option("a") == option("a"));
    EXPECT_FALSE(option("a") != option("a"));
    EXPECT_TRUE(option("a") != option("A"));
}

TEST(EntityOptionKey, WritesTheKeyOnTheNodeGiven)
{
    EXPECT_EQ("<Option Key=\"\"/>", written(SEntityOptionKey()));
    EXPECT_EQ("<Option Key=\"MaxConcurrentTasks\"/>", written(option("MaxConcurrentTasks")));
    EXPECT_EQ("<Option Key=\"a&amp;b &lt;&quot;c&quot;&gt;&#xA;\"/>", written(option("a&b <\"c\">\n")));
}

TEST(EntityOptionKey, LeavesTheRestOfTheNodeAlone)
{
    xmlpp::CXmlDocument document;
    xmlpp::CXmlNode node = document.AddRootNode("Option");
    node.SetAttribute("Owner", "job");
    node.AddNode("Value");
    option("first").ToXmlNode(node);
    EXPECT_EQ("<Option Owner=\"job\" Key=\"first\"><Value/></Option>", document.Serialize());
    option("second").ToXmlNode(node);
    EXPECT_EQ("<Option Owner=\"job\" Key=\"second\"><Value/></Option>", document.Serialize());
}

TEST(EntityOptionKey, RefusesKeysThatXmlCannotCarryWithoutQuotingThem)
{
    EXPECT_EQ(std::string::npos, failureText([] { written(option("quiet\x02key")); }).find("quiet"));
}

} // namespace
