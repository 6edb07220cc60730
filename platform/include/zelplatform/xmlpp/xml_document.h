#pragma once

#include <memory>
#include <string>

#include <zelplatform/export.h>
#include <zelplatform/xmlpp/xml_node.h>

/// XML documents and their nodes.
namespace xmlpp
{

/// An XML document. Several top-level elements may stand side by side: binary forms carry such documents.
class ZELPLATFORM_API CXmlDocument
{
public:
    /// The longest text that is read, in bytes.
    static constexpr std::size_t MaxTextSize = 256UL * 1024 * 1024;

    /// The most attributes that one element of a text may have. A text full of elements of more than 80 is refused too:
    /// looking for duplicates would cost more than reading. Documents have about 20. Looked at in texts of more than
    /// 16 KiB only, shorter ones cannot hold enough to matter.
    static constexpr unsigned MaxAttributes = 1024;

    /// The most elements of a text, comments and the like included: a list of a million identifiers fits.
    static constexpr std::size_t MaxElements = 1UL << 20;

    /// An empty document.
    CXmlDocument();

    /// Reads a text. Refused with "Unable to parse XML at line %2: [%1].": malformed text, text without an element or
    /// with text at the top, one that is too large, too deep (98 levels are the most) or has too many elements or too
    /// many attributes on one, a NUL byte or another control character but tab, CR and LF, a malformed character
    /// reference or one to a character that XML does not have, a second declaration, and a declared encoding other than
    /// UTF-8 and US-ASCII. Bytes that are no UTF-8 pass unchanged.
    static CXmlDocument Unserialize(const std::string& text);

    /// The document as text; with the flag an XML declaration comes first. No white space is added. Line breaks and
    /// tabs in values are written as references, so that they read back unchanged.
    std::string Serialize(bool withDeclaration = false) const;

    /// Appends a new top-level element.
    CXmlNode AddRootNode(CXmlName name);

    /// The first top-level element; throws when there is none.
    CXmlNode GetRootNode() const;

    /// The first top-level element, which must have the name: "Root node [%1] is not found.".
    CXmlNode GetRootNode(CXmlName name) const;

    /// The document itself, as the parent of its top-level elements.
    CXmlNode ToNode() const;

    /// The line of the element or attribute that a getter of this document touched last; 0 when none was.
    int LastReadLine() const;

private:
    explicit CXmlDocument(std::shared_ptr<tinyxml2::XMLDocument> document) noexcept;

    std::shared_ptr<tinyxml2::XMLDocument> m_document;
};

} // namespace xmlpp
