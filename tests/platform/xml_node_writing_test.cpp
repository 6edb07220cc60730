#include <optional>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using xmlpp::CXmlDocument;
using xmlpp::CXmlNode;
using zelmodel_test::failureText;

TEST(XmlNodeWriting, SettersWriteInTheOrderOfTheCalls)
{
    CXmlDocument document;
    CXmlNode root = document.AddRootNode("a");
    root.SetUint64Attribute("u", 18446744073709551615UL);
    root.SetInt64Attribute("i", -9223372036854775807L - 1);
    root.SetBoolAttribute("t", true);
    root.SetBoolAttribute("f", false);
    root.SetAttribute("s", std::string("text"));
    root.SetAttribute("c", "literal");
    root.SetAttribute("e", "");
    EXPECT_EQ("<a u=\"18446744073709551615\" i=\"-9223372036854775808\" t=\"true\" f=\"false\" s=\"text\" "
              "c=\"literal\" e=\"\"/>",
              document.Serialize());
    root.SetAttribute("t", "again");
    EXPECT_EQ("again", root.GetAttribute("t"));
    EXPECT_NE(std::string::npos, document.Serialize().find(" t=\"again\" f=\"false\""));
}

TEST(XmlNodeWriting, ChildrenAreAppended)
{
    CXmlDocument document;
    CXmlNode root = document.AddRootNode("a");
    root.AddNode("b").SetInnerText("1");
    CXmlNode second = root.AddNode("b");
    second.SetInnerText("old");
    second.SetInnerText("2");
    root.AddNode(std::string("c")).AddNode("d");
    EXPECT_EQ("<a><b>1</b><b>2</b><c><d/></c></a>", document.Serialize());

    document.ToNode().AddNode("top");
    EXPECT_EQ("<a><b>1</b><b>2</b><c><d/></c></a><top/>", document.Serialize());
}

TEST(XmlNodeWriting, ValuesThatXmlCannotCarryAreRefusedAndNotQuoted)
{
    CXmlDocument document;
    CXmlNode root = document.AddRootNode("a");
    for (int code = 0; code < 32; ++code)
    {
        const std::string value = std::string("secret") + static_cast<char>(code) + "secret";
        if (code == '\t' || code == '\n' || code == '\r')
        {
            EXPECT_NO_THROW(root.SetAttribute("x", value)) << code;
            EXPECT_NO_THROW(root.SetInnerText(value)) << code;
            continue;
        }
        const std::string inAttribute = failureText([&] { root.SetAttribute("x", value); });
        const std::string inText = failureText([&] { root.SetInnerText(value); });
        for (const std::string& message : {inAttribute, inText})
        {
            EXPECT_EQ(std::string::npos, message.find("secret")) << message;
            ASSERT_FALSE(message.empty());
            EXPECT_EQ('.', message.back()) << message;
        }
    }
    EXPECT_THROW(root.SetAttribute("x", "\x1B[31m"), exc::CRuntimeExc);
    EXPECT_NO_THROW(root.SetAttribute("x", "\x7F\x80\xFF"));
    EXPECT_EQ("\x7F\x80\xFF", root.GetAttribute("x"));
}

TEST(XmlNodeWriting, DocumentTakesNoAttribute)
{
    CXmlDocument document;
    document.AddRootNode("a");
    CXmlNode node = document.ToNode();
    EXPECT_THROW(node.SetAttribute("x", "1"), exc::CRuntimeExc);
    EXPECT_THROW(node.SetAttribute("x", std::string("1")), exc::CRuntimeExc);
    EXPECT_THROW(node.SetBoolAttribute("x", true), exc::CRuntimeExc);
    EXPECT_THROW(node.SetUint64Attribute("x", 1), exc::CRuntimeExc);
    EXPECT_THROW(node.SetInt64Attribute("x", 1), exc::CRuntimeExc);
    EXPECT_EQ("<a/>", document.Serialize());
}

TEST(XmlNodeWriting, StringArrays)
{
    CXmlDocument document;
    CXmlNode root = document.AddRootNode("a");
    root.AddStringArray("Ids", "Guid", "value", {"one", "", "<3>"});
    root.AddStringArray("Empty", "Guid", "value", {});
    EXPECT_EQ("<a><Ids><Guid value=\"one\"/><Guid value=\"\"/><Guid value=\"&lt;3&gt;\"/></Ids><Empty/></a>",
              document.Serialize());
    EXPECT_EQ((std::vector<std::string>{"one", "", "<3>"}), root.GetStringArray("Ids", "Guid", "value"));
    EXPECT_EQ((std::vector<std::string>{}), root.GetStringArray("Empty", "Guid", "value"));
    EXPECT_EQ("Node [Other] is not found in [a].", failureText([&] { root.GetStringArray("Other", "Guid", "value"); }));
    EXPECT_EQ("Attribute [name] is not found in [Guid].",
              failureText([&] { root.GetStringArray("Ids", "Guid", "name"); }));
}

TEST(XmlNodeWriting, HandlesKeepTheirDocument)
{
    std::optional<CXmlNode> node;
    {
        const CXmlDocument document = CXmlDocument::Unserialize("<a><b x=\"1\"/></a>");
        node = document.GetRootNode().GetFirstChildNode("b");
    }
    const CXmlNode copy = *node;
    node.reset();
    EXPECT_EQ("1", copy.GetAttribute("x"));
    EXPECT_EQ("<a><b x=\"1\"/></a>", copy.SerializeDocument());
}

TEST(XmlNodeWriting, CopiesReferToTheSameElement)
{
    CXmlDocument document;
    CXmlNode root = document.AddRootNode("a");
    CXmlNode copy = root;
    copy.SetAttribute("x", "1");
    EXPECT_EQ("1", root.GetAttribute("x"));
    EXPECT_EQ("<a x=\"1\"/>", document.Serialize());
}

TEST(XmlNodeWriting, RenamesAnElement)
{
    auto document = CXmlDocument::Unserialize("<a x='1'><b/></a>");
    document.GetRootNode().SetName(std::string("other"));
    EXPECT_EQ("<other x=\"1\"><b/></other>", document.Serialize());
}

// Look-ups begin where the last one ended, so the removed attribute must not be remembered there.
TEST(XmlNodeWriting, RemovesAnAttributeThatWasJustRead)
{
    auto document = CXmlDocument::Unserialize("<a x='1' y='2' z='3'/>");
    auto root = document.GetRootNode();
    EXPECT_EQ("1", root.GetAttribute("x"));
    EXPECT_TRUE(root.HasAttribute("y"));
    root.RemoveAttribute("y");
    EXPECT_FALSE(root.HasAttribute("y"));
    EXPECT_EQ("3", root.GetAttribute("z"));
    root.RemoveAttribute("missing");
    EXPECT_EQ("<a x=\"1\" z=\"3\"/>", document.Serialize());
}

} // namespace
