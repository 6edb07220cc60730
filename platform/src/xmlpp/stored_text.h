#pragma once

namespace tinyxml2
{
class StrPair;
class XMLAttribute;
class XMLElement;
class XMLText;
} // namespace tinyxml2

namespace xmlpp::detail
{

/// Where the document keeps an attribute's value; for a text of its own it can be exchanged without memory.
tinyxml2::StrPair& valueOf(const tinyxml2::XMLAttribute& attribute) noexcept;

/// Replace a name or a text. When memory runs out the former one stays: the parser's own calls give it up first, and
/// leave a document that cannot be walked any more.
void setName(tinyxml2::XMLElement& element, const char* name);
void setText(tinyxml2::XMLText& node, const char* text);

/// Replaces the value of the attribute, or appends a new one. When memory runs out the element stays as it is.
void setAttribute(tinyxml2::XMLElement& element, const char* name, const char* value);

} // namespace xmlpp::detail
