#include <zelplatform/xmlpp/xml_node.h>

#include <charconv>
#include <cstdint>
#include <cstring>
#include <utility>

#include <tinyxml2.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_undo.h>

#include "lookups.h"
#include "stored_text.h"
#include "text_checks.h"
#include "xml_printer.h"

namespace xmlpp
{
namespace
{

bool isNamed(const char* text, CXmlName name) noexcept
{
    return *text == *name.c_str() && std::strcmp(text, name.c_str()) == 0;
}

// The parser has just written the value byte by byte when it is asked for the first time; the wide loads of strlen
// would wait for those bytes, single ones do not.
std::string_view viewOf(const char* value) noexcept
{
    constexpr std::size_t shortSize = 40;
    for (std::size_t size = 0; size < shortSize; size += 4)
    {
        if (value[size] == '\0')
            return {value, size};
        if (value[size + 1] == '\0')
            return {value, size + 1};
        if (value[size + 2] == '\0')
            return {value, size + 2};
        if (value[size + 3] == '\0')
            return {value, size + 3};
    }
    return {value, shortSize + std::strlen(value + shortSize)};
}

// For the same reason a value is not compared by strcmp.
template <std::size_t N>
bool isValue(const char* value, const char (&text)[N]) noexcept
{
    for (std::size_t i = 0; i < N; ++i)
    {
        if (value[i] != text[i])
            return false;
    }
    return true;
}

// The document's user data is the line that was read last, see CXmlDocument::LastReadLine.
void noteLine(tinyxml2::XMLDocument& document, int line) noexcept
{
    document.SetUserData(reinterpret_cast<void*>(static_cast<std::intptr_t>(line)));
}

// The attribute of the name from one on, up to another or the end.
const tinyxml2::XMLAttribute* findNamed(const tinyxml2::XMLAttribute* from, const tinyxml2::XMLAttribute* end,
                                        CXmlName name) noexcept
{
    while (from != end && !isNamed(from->Name(), name))
        from = from->Next();
    return from != end ? from : nullptr;
}

// The attribute of the name, looked for behind one of another name and then from the start up to that.
const tinyxml2::XMLAttribute* searchFrom(const tinyxml2::XMLElement& element, const tinyxml2::XMLAttribute* from,
                                         CXmlName name) noexcept
{
    const auto* found = from != nullptr ? findNamed(from->Next(), nullptr, name) : nullptr;
    return found != nullptr ? found : findNamed(element.FirstAttribute(), from, name);
}

// An element's user data is the attribute at which the next look-up starts: attributes that are asked for in document
// order are found at once, others after one walk around the list.
inline const tinyxml2::XMLAttribute* lookUp(const tinyxml2::XMLElement& element, CXmlName name) noexcept
{
    const auto* at = static_cast<const tinyxml2::XMLAttribute*>(element.GetUserData());
    if (at == nullptr)
        at = element.FirstAttribute();
    return at != nullptr && isNamed(at->Name(), name) ? at : searchFrom(element, at, name);
}

void checkValue(CXmlName attribute, std::string_view value)
{
    if (!detail::isCarriedByXml(value))
        throw exc::CRuntimeExc("The value of attribute [%1] has a character that XML cannot carry.", attribute.c_str());
}

// The element of the name from the node on, or any element without a name. A text is passed over before its value is
// asked for, which would be worked out then.
tinyxml2::XMLNode* nextElement(tinyxml2::XMLNode* from, const char* name)
{
    while (from != nullptr && (from->ToElement() == nullptr || !(name == nullptr || isNamed(from->Value(), name))))
        from = from->NextSibling();
    return from;
}

} // namespace

CXmlNode::CXmlNode(std::shared_ptr<tinyxml2::XMLDocument> document, tinyxml2::XMLNode* node)
    : m_document(std::move(document)), m_node(node)
{
    if (m_document == nullptr || m_node == nullptr)
        throw exc::CRuntimeExc("An XML node needs a document.");
    if (m_node != m_document.get() && (m_node->ToElement() == nullptr || m_node->GetDocument() != m_document.get()))
        throw exc::CRuntimeExc("An XML node is an element of its document.");
}

// A handle that is not the document's is an element's, see the constructor.
tinyxml2::XMLElement* CXmlNode::findElement() const noexcept
{
    return m_node != m_document.get() ? static_cast<tinyxml2::XMLElement*>(m_node) : nullptr;
}

tinyxml2::XMLElement& CXmlNode::element() const
{
    auto* element = findElement();
    if (element == nullptr)
        throw exc::CRuntimeExc("A document has neither attributes nor text.");
    return *element;
}

std::string CXmlNode::GetName() const
{
    const auto* element = findElement();
    return element != nullptr ? element->Name() : "";
}

int CXmlNode::GetLine() const
{
    return m_node->GetLineNum();
}

tinyxml2::XMLNode* CXmlNode::findChild(CXmlName name) const
{
    auto* child = nextElement(m_node->FirstChild(), name.c_str());
    noteLine(*m_document, (child != nullptr ? child : m_node)->GetLineNum());
    noteLookup(ELookup::FirstChild, *this, name.c_str(), child != nullptr);
    return child;
}

CXmlNode CXmlNode::sharing(tinyxml2::XMLNode* node) const
{
    CXmlNode other(*this);
    other.m_node = node;
    return other;
}

bool CXmlNode::HasNode(CXmlName name) const
{
    return findChild(name) != nullptr;
}

std::optional<CXmlNode> CXmlNode::FindChildNode(CXmlName name) const
{
    auto* child = findChild(name);
    return child != nullptr ? std::optional(sharing(child)) : std::nullopt;
}

CXmlNode CXmlNode::GetFirstChildNode(CXmlName name) const
{
    if (auto* child = findChild(name))
        return sharing(child);
    throw exc::CRuntimeExc("Node [%1] is not found in [%2].", name.c_str(), GetName());
}

const void* CXmlNode::GetId() const noexcept
{
    return m_node;
}

int CXmlNode::GetTextLine() const
{
    for (const auto* child = m_node->FirstChild(); child != nullptr; child = child->NextSibling())
    {
        if (child->ToText() != nullptr && !util::str_trim(child->Value()).empty())
            return child->GetLineNum();
    }
    return 0;
}

std::vector<SXmlAttribute> CXmlNode::GetAttributes() const
{
    std::vector<SXmlAttribute> attributes;
    const auto* element = findElement();
    const auto* at = element != nullptr ? element->FirstAttribute() : nullptr;
    for (; at != nullptr; at = at->Next())
        attributes.push_back({at->Name(), at->Value(), at->GetLineNum()});
    return attributes;
}

CXmlNodeRange CXmlNode::GetChildNodes() const
{
    return CXmlNodeRange(*this, std::nullopt);
}

CXmlNodeRange CXmlNode::GetChildNodes(CXmlName name) const
{
    return CXmlNodeRange(*this, std::string(name.c_str()));
}

CXmlNode CXmlNode::AddNode(CXmlName name)
{
    auto* child = m_document->NewElement(name.c_str());
    m_node->InsertEndChild(child);
    return sharing(child);
}

inline const tinyxml2::XMLAttribute* CXmlNode::findAttribute(CXmlName name) const
{
    auto* element = findElement();
    if (element == nullptr)
        return nullptr;
    const auto* attribute = lookUp(*element, name);
    noteLine(*m_document, attribute != nullptr ? attribute->GetLineNum() : element->GetLineNum());
    noteLookup(ELookup::Attribute, *this, name.c_str(), attribute != nullptr);
    if (attribute != nullptr)
        element->SetUserData(const_cast<tinyxml2::XMLAttribute*>(attribute));
    return attribute;
}

inline const char* CXmlNode::takeAttribute(CXmlName name) const
{
    const auto* attribute = findAttribute(name);
    if (attribute == nullptr)
        return nullptr;
    m_node->SetUserData(const_cast<tinyxml2::XMLAttribute*>(attribute->Next()));
    return attribute->Value();
}

inline const char* CXmlNode::takeRequired(CXmlName name) const
{
    if (const auto* value = takeAttribute(name))
        return value;
    throw exc::CRuntimeExc("Attribute [%1] is not found in [%2].", name.c_str(), GetName());
}

bool CXmlNode::HasAttribute(CXmlName name) const
{
    return findAttribute(name) != nullptr;
}

std::optional<std::string_view> CXmlNode::FindAttribute(CXmlName name) const
{
    const auto* value = takeAttribute(name);
    return value != nullptr ? std::optional(viewOf(value)) : std::nullopt;
}

std::string_view CXmlNode::GetAttribute(CXmlName name) const
{
    return viewOf(takeRequired(name));
}

// The two spellings that are written come first.
bool CXmlNode::GetBoolAttribute(CXmlName name) const
{
    const auto* value = takeRequired(name);
    if (isValue(value, "true"))
        return true;
    if (isValue(value, "false"))
        return false;
    return util::fromStr<bool>(viewOf(value));
}

unsigned long CXmlNode::GetUint64Attribute(CXmlName name) const
{
    return util::fromStr<unsigned long>(GetAttribute(name));
}

long CXmlNode::GetInt64Attribute(CXmlName name, EInt64Form form) const
{
    const auto text = GetAttribute(name);
    unsigned long wrapped = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), wrapped);
    if (form == EInt64Form::UnsignedWrapped && parsed.ec == std::errc() && parsed.ptr == text.data() + text.size())
        return static_cast<long>(wrapped);
    return util::fromStr<long>(text);
}

guid::guid_t CXmlNode::GetGuidAttribute(CXmlName name) const
{
    return guid::guid_t::FromAStr(GetAttribute(name));
}

datetime::CDateTime CXmlNode::GetDateTimeAttribute(CXmlName name, std::string_view format, bool isUtc) const
{
    return datetime::CDateTime::fromString(GetAttribute(name), format, isUtc);
}

std::string CXmlNode::GetInnerText() const
{
    noteLookup(ELookup::Text, *this, "", true);
    std::string text;
    for (const auto* child = element().FirstChild(); child != nullptr; child = child->NextSibling())
    {
        if (child->ToText() != nullptr)
            text += child->Value();
    }
    return util::str_trim(text);
}

void CXmlNode::setAttributeText(CXmlName name, const char* value)
{
    detail::setAttribute(element(), name.c_str(), value);
}

void CXmlNode::SetName(CXmlName name)
{
    detail::setName(element(), name.c_str());
}

void CXmlNode::RemoveAttribute(CXmlName name)
{
    auto& owner = element();
    owner.DeleteAttribute(name.c_str());
    owner.SetUserData(nullptr);
}

void CXmlNode::SetAttribute(CXmlName name, const std::string& value)
{
    checkValue(name, value);
    setAttributeText(name, value.c_str());
}

void CXmlNode::SetAttribute(CXmlName name, const char* value)
{
    checkValue(name, value);
    setAttributeText(name, value);
}

void CXmlNode::SetBoolAttribute(CXmlName name, bool value)
{
    setAttributeText(name, value ? "true" : "false");
}

void CXmlNode::SetUint64Attribute(CXmlName name, unsigned long value)
{
    char text[24] = {};
    std::to_chars(text, text + sizeof text - 1, value);
    setAttributeText(name, text);
}

void CXmlNode::SetInt64Attribute(CXmlName name, long value)
{
    char text[24] = {};
    std::to_chars(text, text + sizeof text - 1, value);
    setAttributeText(name, text);
}

void CXmlNode::SetGuidAttribute(CXmlName name, const guid::guid_t& value)
{
    setAttributeText(name, value.ToAStr().c_str());
}

void CXmlNode::SetDateTimeAttribute(CXmlName name, const datetime::CDateTime& value, std::string_view format)
{
    SetAttribute(name, value.toStdString(format));
}

void CXmlNode::SetInnerText(const std::string& value)
{
    if (!detail::isCarriedByXml(value))
        throw exc::CRuntimeExc("The text of [%1] has a character that XML cannot carry.", GetName());
    auto& owner = element();
    auto* first = owner.FirstChild();
    if (first != nullptr && first->ToText() != nullptr)
        detail::setText(*first->ToText(), value.c_str());
    else
        owner.InsertFirstChild(owner.GetDocument()->NewText(value.c_str()));
}

CXmlNode CXmlNode::AddStringArray(CXmlName name, CXmlName itemName, CXmlName attributeName,
                                  const std::vector<std::string>& values)
{
    const CXmlUndo undo(*this);
    auto list = AddNode(name);
    for (const auto& value : values)
        list.AddNode(itemName).SetAttribute(attributeName, value);
    return list;
}

std::vector<std::string> CXmlNode::GetStringArray(CXmlName name, CXmlName itemName, CXmlName attributeName) const
{
    std::vector<std::string> values;
    for (const auto& item : GetFirstChildNode(name).GetChildNodes(itemName))
        values.emplace_back(item.GetAttribute(attributeName));
    return values;
}

std::string CXmlNode::SerializeDocument() const
{
    std::string text;
    detail::printXml(*m_document, text);
    return text;
}

CXmlNodeRange::CXmlNodeRange(CXmlNode parent, std::optional<std::string> name)
    : m_parent(std::move(parent)), m_name(std::move(name))
{
}

CXmlNodeRange::iterator CXmlNodeRange::begin() const
{
    const char* name = m_name ? m_name->c_str() : nullptr;
    noteLookup(m_name ? ELookup::NamedChildren : ELookup::AllChildren, m_parent, m_name ? name : "", true);
    return iterator(m_parent, nextElement(m_parent.m_node->FirstChild(), name), name);
}

CXmlNodeRange::iterator CXmlNodeRange::end() const
{
    return iterator(m_parent, nullptr, nullptr);
}

CXmlNodeRange::iterator::iterator(CXmlNode parent, tinyxml2::XMLNode* at, const char* name)
    : m_current(std::move(parent)), m_name(name)
{
    moveTo(at);
}

CXmlNodeRange::iterator& CXmlNodeRange::iterator::operator++()
{
    moveTo(nextElement(m_current.m_node->NextSibling(), m_name));
    return *this;
}

void CXmlNodeRange::iterator::moveTo(tinyxml2::XMLNode* at)
{
    m_current.m_node = at;
    if (at == nullptr)
        return;
    noteLine(*m_current.m_document, at->GetLineNum());
    noteLookup(ELookup::Visit, m_current, at->Value(), true);
}

bool CXmlNodeRange::iterator::operator!=(const iterator& other) const noexcept
{
    return m_current.m_node != other.m_current.m_node;
}

} // namespace xmlpp
