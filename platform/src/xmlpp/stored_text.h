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

/// Replace a name, a value or a text. When memory runs out the former one stays: the parser's own calls give it up
/// first, and leave a document that cannot be walked any more.
void setName(tinyxml2::XMLElement& element, const char* name);
void setValue(const tinyxml2::XMLAttribute& attribute, const char* value);
void setText(tinyxml2::XMLText& node, const char* text);

/// Appends an attribute of a name that the element does not have. When memory runs out none is left behind.
void addAttribute(tinyxml2::XMLElement& element, const char* name, const char* value);

} // namespace xmlpp::detail
