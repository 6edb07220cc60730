#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/xml/xml.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using xmlpp::CXmlDocument;
using xmlpp::CXmlNode;
using zelmodel_test::failureText;

std::string attributeAsText(const std::string& value)
{
    CXmlDocument document;
    document.AddRootNode("a").SetAttribute("x", value);
    return document.Serialize();
}

TEST(XmlDocument, CompactWithoutDeclaration)
{
    CXmlDocument document;
    CXmlNode root = document.AddRootNode("a");
    EXPECT_EQ("<a/>", document.Serialize());
    EXPECT_EQ("<a/>", document.Serialize(false));
    root.SetAttribute("b", "c");
    EXPECT_EQ("<a b=\"c\"/>", document.Serialize());
    root.AddNode("d").AddNode("e").SetInnerText("f");
    EXPECT_EQ("<a b=\"c\"><d><e>f</e></d></a>", document.Serialize());
    EXPECT_EQ(document.Serialize(), document.ToNode().SerializeDocument());
    EXPECT_EQ(document.Serialize(), root.SerializeDocument());
}

TEST(XmlDocument, WhatIsNoElementIsWrittenAsItWasRead)
{
    const char* const texts[] = {"<a><![CDATA[<b> & \"c\"]]></a>", "<!-- <b> & \"c\" --><a/>", "<a>b<!-- c -->d</a>"};
    for (const auto* text : texts)
        EXPECT_EQ(text, CXmlDocument::Unserialize(text).Serialize());
}

TEST(XmlDocument, DeclarationOnDemand)
{
    CXmlDocument document;
    document.AddRootNode("a");
    EXPECT_EQ("<?xml version=\"1.0\" encoding=\"UTF-8\"?><a/>", document.Serialize(true));
    EXPECT_EQ("<a/>", document.Serialize(false));
}

TEST(XmlDocument, DeclarationOfAReadTextIsNotRepeated)
{
    const CXmlDocument document = CXmlDocument::Unserialize("<?xml version=\"1.0\"?><a/>");
    EXPECT_EQ("<?xml version=\"1.0\" encoding=\"UTF-8\"?><a/>", document.Serialize(true));
    EXPECT_EQ("<a/>", document.Serialize(false));
}

TEST(XmlDocument, SeveralRoots)
{
    CXmlDocument document;
    document.AddRootNode("a");
    document.AddRootNode("b").SetAttribute("c", "d");
    EXPECT_EQ("<a/><b c=\"d\"/>", document.Serialize());
    const CXmlDocument again = CXmlDocument::Unserialize(document.Serialize());
    EXPECT_EQ("a", again.GetRootNode().GetName());
    EXPECT_EQ("d", again.ToNode().GetFirstChildNode("b").GetAttribute("c"));
    EXPECT_EQ(document.Serialize(), again.Serialize());
}

TEST(XmlDocument, RootByName)
{
    const CXmlDocument document = CXmlDocument::Unserialize("<!-- x --><a/><b/>");
    EXPECT_EQ("a", document.GetRootNode().GetName());
    EXPECT_EQ("a", document.GetRootNode("a").GetName());
    // The first top-level element counts, not any of the name.
    EXPECT_EQ("Root node [b] is not found.", failureText([&] { (void)document.GetRootNode("b"); }));
    EXPECT_EQ("Root node [A] is not found.", failureText([&] { (void)document.GetRootNode("A"); }));
    EXPECT_EQ("Root node [a] is not found.", failureText([] { (void)CXmlDocument().GetRootNode("a"); }));
    EXPECT_THROW((void)CXmlDocument().GetRootNode(), exc::CRuntimeExc);
}

TEST(XmlDocument, MarkupInAttributesIsEscaped)
{
    EXPECT_EQ("<a x=\"&amp;&lt;&gt;&quot;&apos;\"/>", attributeAsText("&<>\"'"));
    EXPECT_EQ("<a x=\"&amp;amp;&amp;#10;\"/>", attributeAsText("&amp;&#10;"));
}

TEST(XmlDocument, LineBreaksAndTabsInAttributesAreReferences)
{
    EXPECT_EQ("<a x=\"1&#xD;&#xA;2&#xA;3&#xD;4&#x9;5\"/>", attributeAsText("1\r\n2\n3\r4\t5"));
}

TEST(XmlDocument, AttributesComeBackToTheLetter)
{
    std::string bytes;
    for (int code = 1; code < 256; ++code)
        if (code >= 32 || code == '\t' || code == '\n' || code == '\r')
            bytes.push_back(static_cast<char>(code));
    for (const std::string& value :
         {bytes, std::string(), std::string("\r\n"), std::string("\r\r\n\n"), std::string("  x  "), std::string("]]>"),
          std::string("&#xD;"), std::string("\xEF\xBB\xBF"), std::string("\xED\xA0\x80"), std::string("\xC0\x80")})
        EXPECT_EQ(value, CXmlDocument::Unserialize(attributeAsText(value)).GetRootNode().GetAttribute("x"));
}

TEST(XmlDocument, InnerText)
{
    CXmlDocument document;
    CXmlNode root = document.AddRootNode("a");
    root.SetInnerText("1 & 2 < 3 > 2\r4");
    const std::string text = document.Serialize();
    EXPECT_EQ("<a>1 &amp; 2 &lt; 3 &gt; 2&#xD;4</a>", text);
    EXPECT_EQ("1 & 2 < 3 > 2\r4", CXmlDocument::Unserialize(text).GetRootNode().GetInnerText());

    root.SetInnerText("\"quoted\" 'text'\r\nand ]]> more");
    EXPECT_EQ("\"quoted\" 'text'\r\nand ]]> more",
              CXmlDocument::Unserialize(document.Serialize()).GetRootNode().GetInnerText());
}

TEST(XmlDocument, DeepDocumentThatWasReadIsWritten)
{
    std::string text = "<b/>";
    for (int level = 0; level < 96; ++level)
        text = "<a>" + text + "</a>";
    EXPECT_EQ(text, CXmlDocument::Unserialize(text).Serialize());
}

TEST(XmlDocument, LineThatAGetterTouchedLast)
{
    const CXmlDocument document = CXmlDocument::Unserialize("<a>\n <b\n   x=\"1\"\n   y=\"2\"/>\n <c>3</c>\n</a>");
    EXPECT_EQ(0, CXmlDocument().LastReadLine());
    const CXmlNode b = document.GetRootNode().GetFirstChildNode("b");
    EXPECT_EQ(2, document.LastReadLine());
    (void)b.GetAttribute("y");
    EXPECT_EQ(4, document.LastReadLine());
    (void)b.GetUint64Attribute("x");
    EXPECT_EQ(3, document.LastReadLine());
    EXPECT_EQ("3", document.GetRootNode().GetFirstChildNode("c").GetInnerText());
    EXPECT_EQ(5, document.LastReadLine());
    std::vector<int> lines;
    for (const CXmlNode& child : document.GetRootNode().GetChildNodes())
    {
        (void)child.GetName();
        lines.push_back(document.LastReadLine());
    }
    EXPECT_EQ((std::vector<int>{2, 5}), lines);
}

TEST(XmlDocument, FaultOfAnEmptyTextIsOnItsFirstLine)
{
    EXPECT_EQ(failureText([] { CXmlDocument::Unserialize(""); }),
              "Unable to parse XML at line 1: [XML_ERROR_EMPTY_DOCUMENT].");
}

TEST(XmlHolder, CreateSerializeParse)
{
    xml::xml_holder_t holder = xml::TiXmlCreateDoc();
    EXPECT_EQ("", holder.GetName());
    EXPECT_EQ("", xml::TiXmlSerialize(holder));
    CXmlNode root = holder.AddNode("a");
    root.SetAttribute("x", "1\n2");
    EXPECT_EQ("<a x=\"1&#xA;2\"/>", xml::TiXmlSerialize(holder));
    // The text is that of the whole document, whatever node of it is given.
    EXPECT_EQ("<a x=\"1&#xA;2\"/>", xml::TiXmlSerialize(root));

    const xml::xml_holder_t parsed = xml::TiXmlParseExc("<?xml version=\"1.0\"?>\n<a x=\"1\"/><b/>");
    EXPECT_EQ("", parsed.GetName());
    EXPECT_EQ("1", parsed.GetFirstChildNode("a").GetAttribute("x"));
    EXPECT_TRUE(parsed.HasNode("b"));
}

TEST(XmlHolder, ParsesAsTheDocumentDoes)
{
    for (const char* text : {"", "x", "<a>", "<a/>x", "<?xml version=\"1.0\" encoding=\"UTF-16\"?><a/>"})
        EXPECT_EQ(failureText([&] { CXmlDocument::Unserialize(text); }),
                  failureText([&] { (void)xml::TiXmlParseExc(text); }));
}

} // namespace
