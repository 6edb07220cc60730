#pragma once

#include <optional>
#include <string>
#include <vector>

#include <zelplatform/xmlpp/xml_document.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace describe
{

/// An element of a document, or one that is missing there: says on which lines its parts stand, 0 for what is missing.
class Place
{
public:
    Place(const xmlpp::CXmlDocument& document, std::optional<xmlpp::CXmlNode> node);

    bool isThere() const noexcept { return m_node.has_value(); }

    /// The line of the element.
    int line() const;

    bool has(xmlpp::CXmlName attribute) const;

    /// The line of the attribute.
    int lineOf(xmlpp::CXmlName attribute) const;

    /// The line of the attribute unless its text is empty.
    int lineOfFilled(xmlpp::CXmlName attribute) const;

    /// The attribute's text; empty when it is missing.
    std::string textOf(xmlpp::CXmlName attribute) const;

    /// The first child of the name.
    Place child(xmlpp::CXmlName name) const;

    /// The children of the name in document order.
    std::vector<Place> children(xmlpp::CXmlName name) const;

    /// An element that is missing in the same document.
    Place none() const { return Place(m_document, std::nullopt); }

private:
    xmlpp::CXmlDocument m_document;
    std::optional<xmlpp::CXmlNode> m_node;
};

} // namespace describe
