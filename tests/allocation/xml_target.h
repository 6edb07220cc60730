#pragma once

#include <functional>
#include <string>

#include <zelplatform/xmlpp/xmlpp.h>

#include "operation.h"

namespace zelmodel_test
{

/// A document of a caller, and the element of it that is written into.
struct XmlTarget
{
    xmlpp::CXmlDocument document;
    xmlpp::CXmlNode node;
};

inline std::string tellXml(const XmlTarget& target)
{
    return target.document.Serialize();
}

/// An element with content of its own.
inline XmlTarget ownElement()
{
    auto document = xmlpp::CXmlDocument::Unserialize(
        R"(<Top before="a value that is longer than any that is kept inside"><Owner own="stays"><!-- c --><Own/>text)"
        R"(</Owner><After/></Top>)");
    return {document, document.GetRootNode().GetFirstChildNode("Owner")};
}

using WriteXml = std::function<void(xmlpp::CXmlNode&)>;

/// An element that the writer wrote into before, with other values.
inline XmlTarget writtenElement(const WriteXml& write)
{
    auto target = ownElement();
    write(target.node);
    for (const auto& attribute : target.node.GetAttributes())
        target.node.SetAttribute(std::string(attribute.name), "a former value that is longer than any new one");
    return target;
}

/// The writer into an element that it has not seen, and into one that it wrote into before.
inline Operations writing(const std::string& name, const WriteXml& write)
{
    return changing<XmlTarget>(name, ownElement, tellXml,
                               {{"intoAnElement", [write](XmlTarget& target) { write(target.node); }}}) +
           changing<XmlTarget>(name, [write] { return writtenElement(write); }, tellXml,
                               {{"again", [write](XmlTarget& target) { write(target.node); }}});
}

} // namespace zelmodel_test
