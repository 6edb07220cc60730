#pragma once

#include <string>

#include <zelplatform/export.h>
#include <zelplatform/xmlpp/xml_node.h>

/// Documents as callers of the model hand them over: other names of xmlpp's.
namespace xml
{

/// A node within a shared document: another name of the one node type.
using xml_holder_t = xmlpp::CXmlNode;

/// A new empty document; the holder points at the document itself.
ZELPLATFORM_API xml_holder_t TiXmlCreateDoc();

/// The text of the holder's document, without declaration.
ZELPLATFORM_API std::string TiXmlSerialize(const xml_holder_t& holder);

/// Reads a text as xmlpp::CXmlDocument::Unserialize does and gives its document; throws exc::CRuntimeExc.
ZELPLATFORM_API xml_holder_t TiXmlParseExc(const std::string& text);

} // namespace xml
