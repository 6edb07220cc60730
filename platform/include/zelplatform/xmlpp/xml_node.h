#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <zelplatform/datetime/date_time.h>
#include <zelplatform/export.h>
#include <zelplatform/guid/guid.h>
#include <zelplatform/xmlpp/xml_name.h>

namespace tinyxml2
{
class XMLAttribute;
class XMLDocument;
class XMLElement;
class XMLNode;
} // namespace tinyxml2

namespace xmlpp
{

class CXmlNodeRange;

/// Which texts a signed attribute may hold.
enum class EInt64Form
{
    Strict,          ///< a signed number within 64 bits
    UnsignedWrapped, ///< also 2^63 .. 2^64-1, taken as two's complement
};

/// An attribute as it stands.
struct SXmlAttribute
{
    /// The texts as they stand in the document, which they point into.
    std::string_view name;
    std::string_view value;
    int line; ///< the line of the text at which it starts; 0 for one that was built in memory
};

/// A handle to an element, or to a document itself, whose children are the top-level elements. The handle shares
/// ownership of the document, so it cannot dangle; copies refer to the same node, and const is of the handle.
/// What changes the document changes nothing when it fails.
/// Getters throw exc::CRuntimeExc for what is missing or malformed; texts they give point into the document and live
/// as long as it does. Reading attributes in the order in which they were written visits each one once.
/// One document is for one thread at a time, also when it is only read.
class ZELPLATFORM_API CXmlNode
{
public:
    /// The format of dates that no document gives a format of its own.
    static constexpr const char* DefaultDateTimeFormat = "%m/%d/%Y %H:%M:%S";

    /// A node of the document, or the document itself; neither pointer may be empty.
    CXmlNode(std::shared_ptr<tinyxml2::XMLDocument> document, tinyxml2::XMLNode* node);

    /// The element's name; empty for a document.
    std::string GetName() const;

    /// The line of the text at which the node starts; 0 for one that was built in memory.
    int GetLine() const;

    /// Tells nodes apart: the same for every handle to one node.
    const void* GetId() const noexcept;

    /// The line of the first text in the element that is not blank; 0 when there is none.
    int GetTextLine() const;

    /// The attributes in document order; none for a document.
    std::vector<SXmlAttribute> GetAttributes() const;

    /// True when there is a child element of the name; an attribute of the name does not count.
    bool HasNode(CXmlName name) const;

    /// The first child element of the name; "Node [%1] is not found in [%2]." when there is none.
    CXmlNode GetFirstChildNode(CXmlName name) const;

    /// The first child element of the name, or nothing.
    std::optional<CXmlNode> FindChildNode(CXmlName name) const;

    /// The child elements in document order.
    CXmlNodeRange GetChildNodes() const;

    /// The child elements of the name in document order.
    CXmlNodeRange GetChildNodes(CXmlName name) const;

    /// Appends a new child element.
    CXmlNode AddNode(CXmlName name);

    /// True when the element has the attribute; always false for a document.
    bool HasAttribute(CXmlName name) const;

    /// The attribute's text as it stands, or nothing.
    std::optional<std::string_view> FindAttribute(CXmlName name) const;

    /// The attribute's text as it stands; "Attribute [%1] is not found in [%2]." when there is none.
    std::string_view GetAttribute(CXmlName name) const;

    /// "true" or "false" in any letter case, "1" or "0". Throws for any other text, as all these getters do.
    bool GetBoolAttribute(CXmlName name) const;

    /// A decimal number without sign.
    unsigned long GetUint64Attribute(CXmlName name) const;

    /// A decimal number; see EInt64Form.
    long GetInt64Attribute(CXmlName name, EInt64Form form = EInt64Form::Strict) const;

    /// A GUID as guid_t::FromAStr reads it; the empty text is the zero GUID.
    guid::guid_t GetGuidAttribute(CXmlName name) const;

    /// A date as CDateTime::fromString reads it.
    datetime::CDateTime GetDateTimeAttribute(CXmlName name, std::string_view format, bool isUtc) const;

    /// All direct text and CDATA of the element, joined and trimmed.
    std::string GetInnerText() const;

    /// Gives the element another name.
    void SetName(CXmlName name);

    /// Removes the attribute, if it is there.
    void RemoveAttribute(CXmlName name);

    /// Sets an attribute: a new one goes to the end. Values with a character that XML cannot carry (a control character
    /// other than tab, CR and LF) are refused with a message that does not quote them. A document takes no attribute.
    void SetAttribute(CXmlName name, const std::string& value);
    void SetAttribute(CXmlName name, const char* value);
    void SetBoolAttribute(CXmlName name, bool value);
    void SetUint64Attribute(CXmlName name, unsigned long value);
    void SetInt64Attribute(CXmlName name, long value);
    void SetGuidAttribute(CXmlName name, const guid::guid_t& value);
    void SetDateTimeAttribute(CXmlName name, const datetime::CDateTime& value, std::string_view format);

    /// Replaces the element's text.
    void SetInnerText(const std::string& value);

    /// Appends a child element that holds one item element for each text; an empty list writes the child alone.
    CXmlNode AddStringArray(CXmlName name, CXmlName itemName, CXmlName attributeName,
                            const std::vector<std::string>& values);

    /// Reads what AddStringArray writes.
    std::vector<std::string> GetStringArray(CXmlName name, CXmlName itemName, CXmlName attributeName) const;

    /// The document as text, without declaration and without added white space.
    std::string SerializeDocument() const;

private:
    friend class CXmlNodeRange;
    friend class CXmlDocument;
    friend class CXmlUndo;

    tinyxml2::XMLElement* findElement() const noexcept;
    tinyxml2::XMLElement& element() const;
    const tinyxml2::XMLAttribute* findAttribute(CXmlName name) const;
    const char* takeAttribute(CXmlName name) const;
    const char* takeRequired(CXmlName name) const;
    tinyxml2::XMLNode* findChild(CXmlName name) const;
    CXmlNode sharing(tinyxml2::XMLNode* node) const;
    void setAttributeText(CXmlName name, const char* value);

    std::shared_ptr<tinyxml2::XMLDocument> m_document;
    tinyxml2::XMLNode* m_node;
};

/// The child elements of a node, visited one by one without a list of them.
class ZELPLATFORM_API CXmlNodeRange
{
public:
    /// A place in the range, for range-based loops.
    class ZELPLATFORM_API iterator
    {
    public:
        /// The element here.
        const CXmlNode& operator*() const noexcept { return m_current; }
        const CXmlNode* operator->() const noexcept { return &m_current; }

        /// Goes on to the next element; not beyond the end.
        iterator& operator++();
        bool operator!=(const iterator& other) const noexcept;

    private:
        friend class CXmlNodeRange;
        iterator(CXmlNode parent, tinyxml2::XMLNode* at, const char* name);
        void moveTo(tinyxml2::XMLNode* at);

        CXmlNode m_current;
        const char* m_name;
    };

    /// The first element and the place behind the last.
    iterator begin() const;
    iterator end() const;

private:
    friend class CXmlNode;
    CXmlNodeRange(CXmlNode parent, std::optional<std::string> name);

    CXmlNode m_parent;
    std::optional<std::string> m_name;
};

} // namespace xmlpp
