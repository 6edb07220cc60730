#include "xml_target.h"

#include <zelplatform/xml/xml.h>

namespace zelmodel_test
{
namespace
{

constexpr const char* LongText = "a text that is longer than what a string keeps inside of itself";

XmlTarget withAttributes()
{
    auto document = xmlpp::CXmlDocument::Unserialize(
        R"(<Top><Owner first="1" second="2" third="3"><![CDATA[some]]> text<Item value="x"/></Owner></Top>)");
    return {document, document.GetRootNode().GetFirstChildNode("Owner")};
}

std::vector<Change<XmlTarget>> changes()
{
    return {
        {"AddNode", [](XmlTarget& target) { target.node.AddNode(LongText); }},
        {"AddRootNode", [](XmlTarget& target) { target.document.AddRootNode("Another"); }},
        {"SetName", [](XmlTarget& target) { target.node.SetName("AnotherNameOfTheElement"); }},
        {"RemoveAttribute", [](XmlTarget& target) { target.node.RemoveAttribute("second"); }},
        {"SetAttribute.new", [](XmlTarget& target) { target.node.SetAttribute("fourth", LongText); }},
        {"SetAttribute.again", [](XmlTarget& target) { target.node.SetAttribute("second", LongText); }},
        {"SetAttribute.string", [](XmlTarget& target) { target.node.SetAttribute("second", std::string(LongText)); }},
        {"SetBoolAttribute", [](XmlTarget& target) { target.node.SetBoolAttribute("second", true); }},
        {"SetUint64Attribute", [](XmlTarget& target) { target.node.SetUint64Attribute("second", 7); }},
        {"SetInt64Attribute", [](XmlTarget& target) { target.node.SetInt64Attribute("fourth", -7); }},
        {"SetGuidAttribute", [](XmlTarget& target) { target.node.SetGuidAttribute("fourth", guid::guid_t()); }},
        {"SetDateTimeAttribute",
         [](XmlTarget& target) {
             target.node.SetDateTimeAttribute("first", datetime::CDateTime(7, true),
                                              datetime::CDateTime::DefaultFormat);
         }},
        {"SetInnerText.again", [](XmlTarget& target) { target.node.SetInnerText(LongText); }},
        {"SetInnerText.new",
         [](XmlTarget& target) { target.node.GetFirstChildNode("Item").SetInnerText("<" + std::string(LongText)); }},
        {"AddStringArray",
         [](XmlTarget& target) {
             target.node.AddStringArray("List", "Item", "value", {"one", LongText, "three"});
         }},
        {"AddStringArray.empty", [](XmlTarget& target) { target.node.AddStringArray("List", "Item", "value", {}); }},
    };
}

std::vector<Question<XmlTarget>> questions()
{
    return {
        {"Serialize", [](const XmlTarget& target) { return target.document.Serialize(true); }},
        {"SerializeDocument", [](const XmlTarget& target) { return target.node.SerializeDocument(); }},
        {"TiXmlSerialize", [](const XmlTarget& target) { return xml::TiXmlSerialize(target.node); }},
        {"GetName", [](const XmlTarget& target) { return target.node.GetName(); }},
        {"GetInnerText", [](const XmlTarget& target) { return target.node.GetInnerText(); }},
        {"GetAttributes", [](const XmlTarget& target) { return std::string(target.node.GetAttributes().back().name); }},
        {"GetStringArray",
         [](const XmlTarget& target) {
             return target.document.GetRootNode().GetStringArray("Owner", "Item", "value").front();
         }},
        {"GetChildNodes",
         [](const XmlTarget& target) {
             std::string names;
             for (const auto& child : target.document.ToNode().GetChildNodes("Top"))
                 names += child.GetName();
             return names;
         }},
        {"CXmlDocument",
         [](const XmlTarget&) { return xmlpp::CXmlDocument().AddRootNode("Root").SerializeDocument(); }},
        {"TiXmlCreateDoc", [](const XmlTarget&) { return xml::TiXmlSerialize(xml::TiXmlCreateDoc()); }},
        {"CLookupRecord",
         [](const XmlTarget& target) {
             const xmlpp::CLookupRecord record;
             target.node.HasAttribute("third");
             return record.GetLookups().front().name;
         }},
    };
}

} // namespace

Operations xmlNodeOperations()
{
    return changing<XmlTarget>("CXmlNode", withAttributes, tellXml, changes()) +
           asking<XmlTarget>("CXmlNode", withAttributes, questions());
}

} // namespace zelmodel_test
