#include <zelplatform/xmlpp/xml_document.h>

#include <algorithm>
#include <cstdint>
#include <utility>

#include <tinyxml2.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "text_checks.h"
#include "xml_printer.h"

namespace xmlpp
{
namespace
{

[[noreturn]] void refuse(const std::string& reason, long line)
{
    throw exc::CRuntimeExc("Unable to parse XML at line %2: [%1].", reason, util::toStr(line));
}

long lineAt(const std::string& text, std::size_t offset)
{
    return 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(offset), '\n');
}

void checkTopLevel(const tinyxml2::XMLDocument& document)
{
    for (const auto* node = document.FirstChild(); node != nullptr; node = node->NextSibling())
    {
        if (node->ToText() != nullptr)
            refuse("text at the top", node->GetLineNum());
        if (node->ToDeclaration() != nullptr && node->PreviousSibling() != nullptr)
            refuse("second declaration", node->GetLineNum());
    }
    if (document.FirstChildElement() == nullptr)
        refuse("no element", 1);
}

// The deepest level of an element with an end tag. The parser has a limit of its own, which differs between its
// versions.
constexpr int MaxDepth = 98;

// The elements with an end tag of their own; refuses one that lies too deep.
std::size_t countOpenElements(const tinyxml2::XMLDocument& document)
{
    std::size_t count = 0;
    int depth = 0;
    const tinyxml2::XMLNode* node = &document;
    while (node != nullptr)
    {
        const auto* element = node->ToElement();
        if (element != nullptr && element->ClosingType() == tinyxml2::XMLElement::OPEN)
        {
            ++count;
            if (depth > MaxDepth)
                refuse("too deep", element->GetLineNum());
        }
        const auto* next = node->FirstChild();
        depth += next != nullptr ? 1 : 0;
        while (next == nullptr && node != nullptr)
        {
            next = node->NextSibling();
            depth -= next == nullptr ? 1 : 0;
            node = node->Parent();
        }
        node = next;
    }
    return count;
}

// The parser ends at an end tag that ends nothing and drops the rest in silence.
void checkReadToTheEnd(const tinyxml2::XMLDocument& document, const std::string& text)
{
    if (detail::countEndTags(text) == countOpenElements(document))
        return;
    const auto stray = detail::findStrayEndTag(text);
    if (stray != text.size())
        refuse("end tag of nothing", lineAt(text, stray));
}

} // namespace

CXmlDocument::CXmlDocument() : CXmlDocument(std::make_shared<tinyxml2::XMLDocument>()) {}

CXmlDocument::CXmlDocument(std::shared_ptr<tinyxml2::XMLDocument> document) noexcept : m_document(std::move(document))
{
}

CXmlDocument CXmlDocument::Unserialize(const std::string& text)
{
    const auto fault = detail::findTextFault(text);
    if (fault.reason != nullptr)
        refuse(fault.reason, lineAt(text, fault.offset));
    auto document = std::make_shared<tinyxml2::XMLDocument>();
    if (document->Parse(text.data(), text.size()) != tinyxml2::XML_SUCCESS)
        refuse(document->ErrorName(), std::max(document->ErrorLineNum(), 1));
    checkTopLevel(*document);
    checkReadToTheEnd(*document, text);
    return CXmlDocument(std::move(document));
}

std::string CXmlDocument::Serialize(bool withDeclaration) const
{
    std::string text;
    if (withDeclaration)
        text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
    detail::printXml(*m_document, text);
    return text;
}

CXmlNode CXmlDocument::AddRootNode(CXmlName name)
{
    return ToNode().AddNode(name);
}

CXmlNode CXmlDocument::GetRootNode() const
{
    auto* root = m_document->FirstChildElement();
    if (root == nullptr)
        throw exc::CRuntimeExc("Root node is not found.");
    return CXmlNode(m_document, root);
}

CXmlNode CXmlDocument::GetRootNode(CXmlName name) const
{
    auto* root = m_document->FirstChildElement();
    if (root == nullptr || std::string_view(root->Name()) != name.c_str())
        throw exc::CRuntimeExc("Root node [%1] is not found.", name.c_str());
    return CXmlNode(m_document, root);
}

CXmlNode CXmlDocument::ToNode() const
{
    return CXmlNode(m_document, m_document.get());
}

int CXmlDocument::LastReadLine() const
{
    return static_cast<int>(reinterpret_cast<std::intptr_t>(m_document->GetUserData()));
}

} // namespace xmlpp
