#pragma once

#include <string>

#include <zelmodel/export.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

/// The key of an option. Written only.
struct ZELMODEL_API SEntityOptionKey
{
    /// Any text that XML can carry.
    std::string key;

    /// Sets the attribute "Key" of the node.
    void ToXmlNode(xmlpp::CXmlNode& node) const;

    friend bool operator==(const SEntityOptionKey& a, const SEntityOptionKey& b) { return a.key == b.key; }
    friend bool operator!=(const SEntityOptionKey& a, const SEntityOptionKey& b) { return !(a == b); }
};

} // namespace zelplatform::model::structs
