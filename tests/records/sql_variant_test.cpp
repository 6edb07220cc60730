#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>
#include <zelmodel/structs/sql_variant.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using zelmodel_test::failureText;
using zelmodel_test::golden;
using zelplatform::model::structs::SSqlVariant;

SSqlVariant variant(int type, const std::string& value)
{
    SSqlVariant result;
    result.type = type;
    result.value = value;
    return result;
}

TEST(SqlVariant, DefaultIsEmpty)
{
    EXPECT_EQ(0, SSqlVariant().type);
    EXPECT_EQ("", SSqlVariant().value);
}

TEST(SqlVariant, EqualityComparesEveryField)
{
    EXPECT_TRUE(variant(1, "a") == variant(1, "a"));
    EXPECT_FALSE(variant(1, "a") != variant(1, "a"));
    EXPECT_TRUE(variant(1, "a") != variant(2, "a"));
    EXPECT_TRUE(variant(1, "a") != variant(1, "A"));
}

TEST(SqlVariant, Documents)
{
    EXPECT_EQ(golden("SqlVariant/default.xml"), SSqlVariant().ToXmlStr());
    EXPECT_EQ(golden("SqlVariant/text.xml"), variant(12, "nightly & weekly").ToXmlStr());
    EXPECT_EQ(golden("SqlVariant/markup.xml"),
              variant(std::numeric_limits<int>::min(), "<a b=\"c\">\r\n\t' 10 %1").ToXmlStr());
}

TEST(SqlVariant, AnyTypeCodeIsWrittenAsADecimal)
{
    EXPECT_EQ("<SqlVariant Type=\"-1\" Value=\"x\"/>", variant(-1, "x").ToXmlStr());
    EXPECT_EQ("<SqlVariant Type=\"2147483647\" Value=\"x\"/>",
              variant(std::numeric_limits<int>::max(), "x").ToXmlStr());
}

TEST(SqlVariant, ValueSurvivesTheParser)
{
    for (const std::string value : {"", " ", "  a  b  ", "\r\n", "\t", "&amp;", "]]>", "\xF0\x9F\x98\x80", "\xFF\xFE"})
    {
        const auto root = xmlpp::CXmlDocument::Unserialize(variant(1, value).ToXmlStr()).GetRootNode();
        EXPECT_EQ(value, root.GetAttribute("Value"));
        EXPECT_EQ(1, root.GetInt64Attribute("Type"));
    }
}

TEST(SqlVariant, RefusesValuesThatXmlCannotCarryWithoutQuotingThem)
{
    for (const std::string& value :
         {std::string("pass\0word", 9), std::string("pass\x01word"), std::string("pass\x1F")})
        EXPECT_EQ(std::string::npos, failureText([&] { (void)variant(1, value).ToXmlStr(); }).find("pass"));
}

} // namespace
