#include <gtest/gtest.h>

#include <stdexcept>

#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using xmlpp::CXmlDocument;
using xmlpp::CXmlUndo;

constexpr const char* Before = R"(<Top a="1" b=""><Own/>text</Top>)";
constexpr const char* Names[] = {"a", "b", "c"};

void writeAndFail(xmlpp::CXmlNode& node)
{
    const CXmlUndo undo(node, Names);
    node.SetAttribute("c", "3");
    node.SetAttribute("a", "another");
    node.SetAttribute("b", "2");
    node.AddNode("Added").AddNode("Below");
    node.AddNode("Another");
    throw std::runtime_error("later");
}

TEST(XmlUndo, TakesBackChildrenAndNamedAttributes)
{
    const auto document = CXmlDocument::Unserialize(Before);
    auto top = document.GetRootNode();
    EXPECT_THROW(writeAndFail(top), std::runtime_error);
    EXPECT_EQ(Before, document.Serialize());
    EXPECT_EQ("1", top.GetAttribute("a"));
    EXPECT_FALSE(top.HasAttribute("c"));
}

TEST(XmlUndo, KeepsWhatWasWrittenWithoutAFailure)
{
    const auto document = CXmlDocument::Unserialize(Before);
    auto top = document.GetRootNode();
    {
        const CXmlUndo undo(top, Names);
        top.SetAttribute("b", "2");
        top.AddNode("Added");
    }
    EXPECT_EQ(R"(<Top a="1" b="2"><Own/>text<Added/></Top>)", document.Serialize());
}

// A writer may be called while an exception is on its way, by whoever tidies up.
TEST(XmlUndo, KeepsWhatIsWrittenWhileAnotherFailureIsOnItsWay)
{
    struct Writer
    {
        ~Writer()
        {
            const CXmlUndo undo(node);
            node.AddNode("Added");
        }
        xmlpp::CXmlNode node;
    };
    const auto document = CXmlDocument::Unserialize(Before);
    try
    {
        const Writer writer{document.GetRootNode()};
        throw std::runtime_error("before");
    }
    catch (const std::runtime_error&)
    {
    }
    EXPECT_EQ(R"(<Top a="1" b=""><Own/>text<Added/></Top>)", document.Serialize());
}

TEST(XmlUndo, TakesBackWhatWasAddedToADocument)
{
    const auto document = CXmlDocument::Unserialize(Before);
    const auto write = [&] {
        auto top = document.ToNode();
        const CXmlUndo undo(top);
        top.AddNode("Second");
        top.SetAttribute("a", "1"); // a document takes none
    };
    EXPECT_THROW(write(), std::exception);
    EXPECT_EQ(Before, document.Serialize());
}

TEST(XmlUndo, ARefusedValueLeavesTheList)
{
    const auto document = CXmlDocument::Unserialize(Before);
    auto top = document.GetRootNode();
    EXPECT_THROW(top.AddStringArray("List", "Item", "value", {"one", "\x01"}), std::exception);
    EXPECT_EQ(Before, document.Serialize());
}

} // namespace
