#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <tinyxml2.h>

#include <support/expect_failure.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using xmlpp::CXmlDocument;
using xmlpp::CXmlNode;
using zelmodel_test::failureText;

CXmlNode rootOf(const std::string& text)
{
    return CXmlDocument::Unserialize(text).GetRootNode();
}

CXmlNode attribute(const std::string& value)
{
    return rootOf("<a x=\"" + value + "\"/>");
}

std::vector<std::string> names(const xmlpp::CXmlNodeRange& range)
{
    std::vector<std::string> result;
    for (const CXmlNode& node : range)
        result.push_back(node.GetName());
    return result;
}

TEST(XmlNode, ListsItsAttributesWithTheirLines)
{
    const auto root = rootOf("<a x='1'\n y='&lt;'>text</a>");
    const auto attributes = root.GetAttributes();
    ASSERT_EQ(2U, attributes.size());
    EXPECT_EQ("x", attributes[0].name);
    EXPECT_EQ("1", attributes[0].value);
    EXPECT_EQ(1, attributes[0].line);
    EXPECT_EQ("y", attributes[1].name);
    EXPECT_EQ("<", attributes[1].value);
    EXPECT_EQ(2, attributes[1].line);
    EXPECT_TRUE(CXmlDocument::Unserialize("<a/>").ToNode().GetAttributes().empty());
}

TEST(XmlNode, KnowsTheLineOfItsText)
{
    EXPECT_EQ(0, rootOf("<a> <b>text</b>\n </a>").GetTextLine());
    EXPECT_EQ(1, rootOf("<a>text</a>").GetTextLine());
    EXPECT_EQ(2, rootOf("<a> <b/>\n<![CDATA[text]]></a>").GetTextLine());
    EXPECT_EQ(2, rootOf("<a><![CDATA[ ]]><b/>\n<![CDATA[text]]></a>").GetTextLine());
}

TEST(XmlNode, IsToldApartById)
{
    const auto root = rootOf("<a><b/><b/></a>");
    EXPECT_EQ(root.GetId(), CXmlNode(root).GetId());
    EXPECT_EQ(root.GetFirstChildNode("b").GetId(), root.GetFirstChildNode("b").GetId());
    const auto children = root.GetChildNodes("b");
    EXPECT_NE(children.begin()->GetId(), (++children.begin())->GetId());
}

TEST(XmlNode, NamesAndLines)
{
    const CXmlDocument document = CXmlDocument::Unserialize("<a>\n  <b/>\n\n  <c/></a>");
    EXPECT_EQ("", document.ToNode().GetName());
    EXPECT_EQ("a", document.GetRootNode().GetName());
    EXPECT_EQ(1, document.GetRootNode().GetLine());
    EXPECT_EQ(2, document.GetRootNode().GetFirstChildNode("b").GetLine());
    EXPECT_EQ(4, document.GetRootNode().GetFirstChildNode("c").GetLine());
    EXPECT_EQ(0, CXmlDocument().AddRootNode("built").GetLine());
}

TEST(XmlNode, IsTheDocumentOrAnElementOfIt)
{
    const auto document = std::make_shared<tinyxml2::XMLDocument>();
    ASSERT_EQ(tinyxml2::XML_SUCCESS, document->Parse("<?xml version=\"1.0\"?><a><!-- c -->text<b/></a>"));
    auto* const element = document->RootElement();
    EXPECT_EQ("", CXmlNode(document, document.get()).GetName());
    EXPECT_EQ("a", CXmlNode(document, element).GetName());
    EXPECT_EQ("b", CXmlNode(document, element->LastChild()).GetName());

    for (auto* other : {document->FirstChild(), element->FirstChild(), element->FirstChild()->NextSibling()})
        EXPECT_EQ("An XML node is an element of its document.", failureText([&] { CXmlNode(document, other); }));
    const auto another = std::make_shared<tinyxml2::XMLDocument>();
    for (tinyxml2::XMLNode* foreign : {static_cast<tinyxml2::XMLNode*>(element), element->LastChild(),
                                       static_cast<tinyxml2::XMLNode*>(document.get())})
        EXPECT_EQ("An XML node is an element of its document.", failureText([&] { CXmlNode(another, foreign); }));

    EXPECT_EQ("An XML node needs a document.", failureText([&] { CXmlNode(document, nullptr); }));
    EXPECT_EQ("An XML node needs a document.", failureText([&] { CXmlNode(nullptr, element); }));
}

TEST(XmlNode, HasNodeSeesChildElementsOnly)
{
    const CXmlNode root = rootOf("<a Schedule=\"true\"><!-- <c/> --><b><d/></b>text<![CDATA[<e/>]]></a>");
    EXPECT_TRUE(root.HasNode("b"));
    EXPECT_TRUE(root.HasNode(std::string("b")));
    for (const char* name : {"Schedule", "a", "B", "c", "d", "e", "", "text"})
        EXPECT_FALSE(root.HasNode(name)) << name;
}

TEST(XmlNode, HasAttributeSeesAttributesOnly)
{
    const CXmlNode root = rootOf("<a x=\"\" y=\"1\"><b z=\"\"/></a>");
    EXPECT_TRUE(root.HasAttribute("x"));
    EXPECT_TRUE(root.HasAttribute("y"));
    for (const char* name : {"a", "b", "z", "X", ""})
        EXPECT_FALSE(root.HasAttribute(name)) << name;
}

TEST(XmlNode, DocumentHasNoAttributes)
{
    const CXmlDocument document = CXmlDocument::Unserialize("<Schedule Schedule=\"true\"/>");
    const CXmlNode node = document.ToNode();
    EXPECT_TRUE(node.HasNode("Schedule"));
    EXPECT_FALSE(node.HasAttribute("Schedule"));
    EXPECT_FALSE(node.FindAttribute("Schedule"));
    EXPECT_EQ("Attribute [Schedule] is not found in [].", failureText([&] { (void)node.GetAttribute("Schedule"); }));
    EXPECT_EQ("Attribute [Schedule] is not found in [].",
              failureText([&] { (void)node.GetBoolAttribute("Schedule"); }));
}

TEST(XmlNode, FirstChildOfTheName)
{
    const CXmlNode root = rootOf("<a><!-- <b n=\"0\"/> --><c/><b n=\"1\"/><b n=\"2\"/></a>");
    EXPECT_EQ("1", root.GetFirstChildNode("b").GetAttribute("n"));
    ASSERT_TRUE(root.FindChildNode("b"));
    EXPECT_EQ("1", root.FindChildNode("b")->GetAttribute("n"));
    EXPECT_FALSE(root.FindChildNode("d"));
    EXPECT_EQ("Node [d] is not found in [a].", failureText([&] { (void)root.GetFirstChildNode("d"); }));
    EXPECT_EQ("Node [e] is not found in [c].",
              failureText([&] { (void)root.GetFirstChildNode("c").GetFirstChildNode("e"); }));
    EXPECT_EQ("Node [b] is not found in [].",
              failureText([] { (void)CXmlDocument::Unserialize("<a/>").ToNode().GetFirstChildNode("b"); }));
}

TEST(XmlNode, ChildrenInDocumentOrder)
{
    const CXmlNode root = rootOf("<a>t<b n=\"1\"/><!-- c --><c/><![CDATA[d]]><b n=\"2\"><b n=\"3\"/></b>\n</a>");
    EXPECT_EQ((std::vector<std::string>{"b", "c", "b"}), names(root.GetChildNodes()));
    EXPECT_EQ((std::vector<std::string>{"b", "b"}), names(root.GetChildNodes("b")));
    EXPECT_EQ((std::vector<std::string>{}), names(root.GetChildNodes("x")));
    EXPECT_EQ((std::vector<std::string>{}), names(root.GetFirstChildNode("c").GetChildNodes()));

    std::string numbers;
    for (const CXmlNode& node : root.GetChildNodes("b"))
        numbers += node.GetAttribute("n");
    EXPECT_EQ("12", numbers);
}

TEST(XmlNode, SeveralTopLevelElementsAreTheDocumentsChildren)
{
    const CXmlDocument document = CXmlDocument::Unserialize("<!-- x --><a/><b/><a n=\"2\"/>");
    EXPECT_EQ((std::vector<std::string>{"a", "b", "a"}), names(document.ToNode().GetChildNodes()));
    EXPECT_EQ((std::vector<std::string>{"a", "a"}), names(document.ToNode().GetChildNodes("a")));
}

TEST(XmlNode, AttributeTextsAsTheyStand)
{
    const CXmlNode root = rootOf("<a x=\"\" y=\" 1 \" z='\"&lt;&#10;'/>");
    EXPECT_EQ("", root.GetAttribute("x"));
    EXPECT_EQ(" 1 ", root.GetAttribute("y"));
    EXPECT_EQ("\"<\n", root.GetAttribute("z"));
    EXPECT_EQ(" 1 ", root.FindAttribute("y"));
    EXPECT_FALSE(root.FindAttribute("w"));
    EXPECT_EQ("Attribute [w] is not found in [a].", failureText([&] { (void)root.GetAttribute("w"); }));
}

TEST(XmlNode, AttributesAreFoundInAnyOrderOfAsking)
{
    const CXmlNode root = rootOf("<a n1=\"1\" n2=\"2\" n3=\"3\"/>");
    for (const char* name : {"n3", "n1", "n2", "n2", "n1", "n3", "n3"})
        EXPECT_EQ(std::string(name).substr(1), root.GetAttribute(name));
    EXPECT_FALSE(root.HasAttribute("n4"));
    EXPECT_EQ("1", root.GetAttribute("n1"));
    const CXmlNode other = rootOf("<b n1=\"x\"/>");
    EXPECT_EQ("x", other.GetAttribute("n1"));
    EXPECT_EQ("2", root.GetAttribute("n2"));
}

TEST(XmlNode, Booleans)
{
    for (const char* text : {"true", "TRUE", "True", "tRuE", "1"})
        EXPECT_TRUE(attribute(text).GetBoolAttribute("x")) << text;
    for (const char* text : {"false", "FALSE", "False", "0"})
        EXPECT_FALSE(attribute(text).GetBoolAttribute("x")) << text;
    for (const std::string text : {"", " ", "yes", "2", "-1", "01", "1abc", " true", "true ", "t", "truefalse"})
        EXPECT_EQ("Unable to convert string [" + text + "] to [bool].",
                  failureText([&] { (void)attribute(text).GetBoolAttribute("x"); }));
    EXPECT_EQ("Attribute [y] is not found in [a].", failureText([] { (void)attribute("1").GetBoolAttribute("y"); }));
}

TEST(XmlNode, UnsignedNumbers)
{
    EXPECT_EQ(0UL, attribute("0").GetUint64Attribute("x"));
    EXPECT_EQ(8UL, attribute("08").GetUint64Attribute("x"));
    EXPECT_EQ(18446744073709551615UL, attribute("18446744073709551615").GetUint64Attribute("x"));
    for (const std::string text : {"", " ", "-1", "-0", "+1", " 7", "7 ", "0x1F", "12abc", "1e3", "1.0", "1 2", "true",
                                   "18446744073709551616", "99999999999999999999999999"})
        EXPECT_EQ("Unable to convert string [" + text + "] to [unsigned long].",
                  failureText([&] { (void)attribute(text).GetUint64Attribute("x"); }));
    EXPECT_EQ("Attribute [y] is not found in [a].", failureText([] { (void)attribute("1").GetUint64Attribute("y"); }));
}

TEST(XmlNode, SignedNumbersAreStrict)
{
    EXPECT_EQ(0L, attribute("0").GetInt64Attribute("x"));
    EXPECT_EQ(-7L, attribute("-007").GetInt64Attribute("x"));
    EXPECT_EQ(9223372036854775807L, attribute("9223372036854775807").GetInt64Attribute("x"));
    EXPECT_EQ(-9223372036854775807L - 1, attribute("-9223372036854775808").GetInt64Attribute("x"));
    for (const std::string text : {"", " ", "-", "--1", "+1", " 7", "7 ", "0x1F", "12abc", "1e3", "-1.5",
                                   "9223372036854775808", "-9223372036854775809", "18446744073709551316"})
        EXPECT_EQ("Unable to convert string [" + text + "] to [long].",
                  failureText([&] { (void)attribute(text).GetInt64Attribute("x"); }));
    EXPECT_EQ("Attribute [y] is not found in [a].", failureText([] { (void)attribute("1").GetInt64Attribute("y"); }));
}

TEST(XmlNode, SignedNumbersWrittenAsUnsigned)
{
    const struct
    {
        const char* text;
        long expected;
    } cases[] = {
        {"0", 0},
        {"-300", -300},
        {"9223372036854775807", 9223372036854775807L},
        {"9223372036854775808", -9223372036854775807L - 1},
        {"18446744073709551316", -300},
        {"18446744073709551615", -1},
        {"-9223372036854775808", -9223372036854775807L - 1},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, attribute(each.text).GetInt64Attribute("x", xmlpp::EInt64Form::UnsignedWrapped))
            << each.text;
    for (const char* text : {"", "+1", " 1", "12abc", "18446744073709551616", "-9223372036854775809", "0x10"})
        EXPECT_THROW((void)attribute(text).GetInt64Attribute("x", xmlpp::EInt64Form::UnsignedWrapped), exc::CRuntimeExc)
            << text;
}

TEST(XmlNode, Guids)
{
    const std::string text = "0f8fad5b-d9cb-469f-a165-70867728950e";
    EXPECT_EQ(text, attribute(text).GetGuidAttribute("x").ToAStr());
    EXPECT_EQ(text, attribute("{0F8FAD5B-D9CB-469F-A165-70867728950E}").GetGuidAttribute("x").ToAStr());
    EXPECT_TRUE(attribute("").GetGuidAttribute("x").IsEmpty());
    EXPECT_EQ("Unable to convert string [0f8f] to GUID.",
              failureText([] { (void)attribute("0f8f").GetGuidAttribute("x"); }));
    EXPECT_EQ("Attribute [y] is not found in [a].", failureText([] { (void)attribute("").GetGuidAttribute("y"); }));

    CXmlDocument document;
    CXmlNode root = document.AddRootNode("a");
    root.SetGuidAttribute("x", guid::guid_t::FromAStr(text));
    root.SetGuidAttribute("y", guid::guid_t());
    EXPECT_EQ("<a x=\"" + text + "\" y=\"00000000-0000-0000-0000-000000000000\"/>", document.Serialize());
}

TEST(XmlNode, Dates)
{
    const std::string format = CXmlNode::DefaultDateTimeFormat;
    EXPECT_EQ("%m/%d/%Y %H:%M:%S", format);
    const auto date = attribute("03/06/2024 01:02:03").GetDateTimeAttribute("x", format, false);
    EXPECT_EQ(1709683200L + 3723, date.toUnixTime());
    EXPECT_FALSE(date.isUtcTime());
    EXPECT_TRUE(attribute("03/06/2024 01:02:03").GetDateTimeAttribute("x", format, true).isUtcTime());
    EXPECT_THROW((void)attribute("").GetDateTimeAttribute("x", format, true), exc::CRuntimeExc);
    EXPECT_THROW((void)attribute("02/30/2024 00:00:00").GetDateTimeAttribute("x", format, true), exc::CRuntimeExc);
    EXPECT_EQ("Attribute [y] is not found in [a].",
              failureText([&] { (void)attribute("").GetDateTimeAttribute("y", format, true); }));

    CXmlDocument document;
    CXmlNode root = document.AddRootNode("a");
    root.SetDateTimeAttribute("x", date, format);
    root.SetDateTimeAttribute("y", date, "%Y-%m-%d");
    EXPECT_EQ("<a x=\"03/06/2024 01:02:03\" y=\"2024-03-06\"/>", document.Serialize());
}

TEST(XmlNode, InnerTextIsJoinedAndTrimmed)
{
    const struct
    {
        const char* text;
        const char* expected;
    } cases[] = {
        {"<a/>", ""},
        {"<a></a>", ""},
        {"<a> \r\n\t </a>", ""},
        {"<a>12</a>", "12"},
        {"<a>\n  12\n</a>", "12"},
        {"<a>1<!-- 9 -->2</a>", "12"},
        {"<a><![CDATA[1]]>2<![CDATA[3]]></a>", "123"},
        {"<a><![CDATA[ <&> ]]></a>", "<&>"},
        {"<a>1<b>9</b>2</a>", "12"},
        {"<a>x y</a>", "x y"},
        {"<a>&lt;&amp;&#65;</a>", "<&A"},
        {"<a><b>9</b></a>", ""},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, rootOf(each.text).GetInnerText()) << each.text;
}

} // namespace
