#include "xml_printer.h"

#include <array>
#include <string_view>

#include <tinyxml2.h>

namespace xmlpp::detail
{
namespace
{

constexpr std::string_view referenceFor(char c, bool inAttribute) noexcept
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

/// For each byte whether it ends a stretch that is copied as it stands: the terminator and what needs a reference.
using Stops = std::array<bool, 256>;

constexpr Stops stopsOf(bool inAttribute) noexcept
{
    Stops stops{};
    stops[0] = true;
    for (int c = 1; c < 128; ++c)
        stops[static_cast<std::size_t>(c)] = !referenceFor(static_cast<char>(c), inAttribute).empty();
    return stops;
}

constexpr Stops AttributeStops = stopsOf(true);
constexpr Stops TextStops = stopsOf(false);

/// Collects the many small pieces of a document, so that most documents are appended at once. The loops keep the write
/// position in a local: a store through it could be one to the member, which would be loaded again for each byte.
class Output
{
public:
    explicit Output(std::string& text) noexcept : m_text(text) {}

    void put(const char* piece)
    {
        auto* at = m_at;
        for (; *piece != '\0'; ++piece)
            at = put(*piece, at);
        m_at = at;
    }

    void putEscaped(const char* piece, bool inAttribute)
    {
        const auto& stops = inAttribute ? AttributeStops : TextStops;
        while (true)
        {
            auto* at = m_at;
            for (; !stops[static_cast<unsigned char>(*piece)]; ++piece)
                at = put(*piece, at);
            m_at = at;
            if (*piece == '\0')
                return;
            put(referenceFor(*piece++, inAttribute).data());
        }
    }

    void flush()
    {
        m_text.append(m_bytes.data(), static_cast<std::size_t>(m_at - m_bytes.data()));
        m_at = m_bytes.data();
    }

private:
    char* put(char c, char* at)
    {
        if (at == m_bytes.data() + m_bytes.size())
        {
            m_at = at;
            flush();
            at = m_at;
        }
        *at = c;
        return at + 1;
    }

    std::string& m_text;
    std::array<char, 4096> m_bytes;
    char* m_at = m_bytes.data();
};

void printElementStart(const tinyxml2::XMLElement& element, Output& out)
{
    out.put("<");
    out.put(element.Value());
    for (const auto* attribute = element.FirstAttribute(); attribute != nullptr; attribute = attribute->Next())
    {
        out.put(" ");
        out.put(attribute->Name());
        out.put("=\"");
        out.putEscaped(attribute->Value(), true);
        out.put("\"");
    }
    out.put(element.NoChildren() ? "/>" : ">");
}

void printWrapped(const char* opening, const char* content, const char* closing, Output& out)
{
    out.put(opening);
    out.put(content);
    out.put(closing);
}

void printStart(const tinyxml2::XMLNode& node, Output& out)
{
    if (const auto* element = node.ToElement())
        printElementStart(*element, out);
    else if (const auto* text = node.ToText())
    {
        if (text->CData())
            printWrapped("<![CDATA[", text->Value(), "]]>", out);
        else
            out.putEscaped(text->Value(), false);
    }
    else if (node.ToComment() != nullptr)
        printWrapped("<!--", node.Value(), "-->", out);
    else if (node.ToUnknown() != nullptr)
        printWrapped("<!", node.Value(), ">", out);
}

// Walks along the nodes' own links, so that the depth of a document costs no stack.
void print(const tinyxml2::XMLNode& root, Output& out)
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
                printWrapped("</", element->Value(), ">", out);
        }
        if (node == &root)
            return;
        node = node->NextSibling();
    }
}

} // namespace

void printXml(const tinyxml2::XMLNode& root, std::string& text)
{
    Output out(text);
    print(root, out);
    out.flush();
}

} // namespace xmlpp::detail
