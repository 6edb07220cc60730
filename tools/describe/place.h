#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include <zelplatform/xmlpp/xml_document.h>
#include <zelplatform/xmlpp/xml_node.h>

#include "node.h"

namespace describe
{

/// An element of a document, or one that is missing there: says where its parts stand. Its look-ups are its
/// own: a record of what the reader asks for does not hold them.
class Place
{
public:
    Place(const xmlpp::CXmlDocument& document, std::optional<xmlpp::CXmlNode> node);

    bool isThere() const noexcept { return m_node.has_value(); }

    /// The element itself, under the name that it was looked for.
    Origin origin() const;

    bool has(xmlpp::CXmlName attribute) const;

    /// The attribute.
    Origin originOf(xmlpp::CXmlName attribute) const;

    /// The attribute, or the first of its older names that is there when it is missing.
    Origin originOf(xmlpp::CXmlName attribute, std::initializer_list<xmlpp::CXmlName> olderNames) const;

    /// The attribute unless its text is empty, which counts as missing.
    Origin originOfFilled(xmlpp::CXmlName attribute) const;

    /// The attribute's text; empty when it is missing.
    std::string textOf(xmlpp::CXmlName attribute) const;

    /// The first child of the name.
    Place child(xmlpp::CXmlName name) const;

    /// The children of the name in document order.
    std::vector<Place> children(xmlpp::CXmlName name) const;

    /// An element that is missing in the same document.
    Place none() const { return Place(m_document, std::nullopt); }

private:
    Place(const xmlpp::CXmlDocument& document, std::optional<xmlpp::CXmlNode> node, std::string name);

    xmlpp::CXmlDocument m_document;
    std::optional<xmlpp::CXmlNode> m_node;
    std::string m_name;
};

/// The same place of an older layout.
Origin asOlder(Origin origin);

} // namespace describe
