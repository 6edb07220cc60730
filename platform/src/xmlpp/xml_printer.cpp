#include "xml_printer.h"

#include <string_view>

#include <tinyxml2.h>

namespace xmlpp::detail
{
namespace
{

std::string_view referenceFor(char c, bool inAttribute) noexcept
{
    switch (c)
    {
    case '&': return "&amp;";
    case '<': return "&lt;";
    case '>': return "&gt;";
    case '"': return "&quot;";
    case '\'': return "&apos;";
    case '\r': return "&#xD;";
    case '\n': return inAttribute ? std::string_view("&#xA;") : std::string_view();
    case '\t': return inAttribute ? std::string_view("&#x9;") : std::string_view();
    default: return {};
    }
}

void printEscaped(std::string_view text, bool inAttribute, std::string& out)
{
    std::size_t plainFrom = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const auto reference = text[i] > '>' ? std::string_view() : referenceFor(text[i], inAttribute);
        if (reference.empty())
            continue;
        out.append(text, plainFrom, i - plainFrom);
        out.append(reference);
        plainFrom = i + 1;
    }
    out.append(text, plainFrom, text.size() - plainFrom);
}

void printElementStart(const tinyxml2::XMLElement& element, std::string& out)
{
    out.push_back('<');
    out.append(element.Value());
    for (const auto* attribute = element.FirstAttribute(); attribute != nullptr; attribute = attribute->Next())
    {
        out.push_back(' ');
        out.append(attribute->Name());
        out.append("=\"");
        printEscaped(attribute->Value(), true, out);
        out.push_back('"');
    }
    out.append(element.NoChildren() ? "/>" : ">");
}

void printElementEnd(const tinyxml2::XMLElement& element, std::string& out)
{
    out.append("</");
    out.append(element.Value());
    out.push_back('>');
}

void printStart(const tinyxml2::XMLNode& node, std::string& out)
{
    if (const auto* element = node.ToElement())
        printElementStart(*element, out);
    else if (const auto* text = node.ToText())
    {
        if (text->CData())
            out.append("<![CDATA[").append(text->Value()).append("]]>");
        else
            printEscaped(text->Value(), false, out);
    }
    else if (node.ToComment() != nullptr)
        out.append("<!--").append(node.Value()).append("-->");
    else if (node.ToUnknown() != nullptr)
        out.append("<!").append(node.Value()).append(">");
}

} // namespace

// Walks along the nodes' own links, so that the depth of a document costs no stack.
void printXml(const tinyxml2::XMLNode& root, std::string& out)
{
    const tinyxml2::XMLNode* node = &root;
    while (true)
    {
        printStart(*node, out);
        if (const auto* child = node->FirstChild())
        {
            node = child;
            continue;
        }
        while (node != &root && node->NextSibling() == nullptr)
        {
            node = node->Parent();
            if (const auto* element = node->ToElement())
                printElementEnd(*element, out);
        }
        if (node == &root)
            return;
        node = node->NextSibling();
    }
}

} // namespace xmlpp::detail
