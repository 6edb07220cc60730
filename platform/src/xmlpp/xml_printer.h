#pragma once

#include <string>

namespace tinyxml2
{
class XMLNode;
}

namespace xmlpp::detail
{

/// Appends the node and all below it as XML, compact. A declaration that was read is left out: whoever serialises
/// decides about it. Line breaks and tabs that a parser would change are written as references.
void printXml(const tinyxml2::XMLNode& node, std::string& out);

} // namespace xmlpp::detail
