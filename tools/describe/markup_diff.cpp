#include "markup_diff.h"

#include <array>
#include <string_view>

#include <tinyxml2.h>

#include <zelplatform/exc/exc.h>

#include "document_names.h"
#include "markup_elements.h"

namespace describe
{
namespace
{

using tinyxml2::XMLElement;
using tinyxml2::XMLNode;

/// An attribute that older layouts keep on the element above its present one.
struct MovedRow
{
    const char* owner;
    const char* attribute;
    const char* child;
};

constexpr std::array<MovedRow, 2> Moved{{
    {schedule_names::Schedule, schedule_names::Hours, schedule_names::Time},
    {schedule_names::Schedule, schedule_names::Minutes, schedule_names::Time},
}};

void parse(const std::string& text, tinyxml2::XMLDocument& document)
{
    if (document.Parse(text.data(), text.size()) != tinyxml2::XML_SUCCESS)
        throw exc::CRuntimeExc("A document that was read cannot be parsed.");
}

const char* valueOf(const XMLElement& element, const char* name)
{
    const auto* attribute = element.FindAttribute(name);
    return attribute == nullptr ? nullptr : attribute->Value();
}

const char* findValue(const XMLElement& element, const XMLElement& written, const char* name)
{
    if (const auto* value = valueOf(written, name))
        return value;
    for (const auto& row : Moved)
    {
        const auto* child = written.FirstChildElement(row.child);
        if (child != nullptr && std::string_view(element.Name()) == row.owner &&
            std::string_view(name) == row.attribute)
            return valueOf(*child, name);
    }
    return nullptr;
}

std::string nameOf(const XMLNode* node)
{
    const auto* element = node == nullptr ? nullptr : node->ToElement();
    return element == nullptr ? std::string() : element->Name();
}

class Walk
{
public:
    explicit Walk(const IsRead& isRead) : m_isRead(isRead) {}

    void compareDocuments(const XMLNode& before, const XMLNode& after);

    MarkupDiff diff;

private:
    void compareElement(const XMLElement& element, const XMLElement* written);
    void compareChildren(const XMLNode& parent, const XMLNode* written);
    void compareAttributes(const XMLElement& element, const XMLElement* written);
    void compareTexts(const XMLElement& element, const XMLElement* written);
    void countOther(const XMLNode& parent);

    bool isRead(const XMLElement& element) const
    {
        return m_isRead(EMarkup::Element, element.Name(), element.GetLineNum());
    }

    const IsRead& m_isRead;
};

void Walk::countOther(const XMLNode& parent)
{
    for (const auto* node = parent.FirstChild(); node != nullptr; node = node->NextSibling())
    {
        diff.comments += node->ToComment() == nullptr ? 0U : 1U;
        diff.instructions += node->ToUnknown() == nullptr ? 0U : 1U;
        countOther(*node);
    }
}

void Walk::compareAttributes(const XMLElement& element, const XMLElement* written)
{
    for (const auto* attribute = element.FirstAttribute(); attribute != nullptr; attribute = attribute->Next())
    {
        const MarkupPart part{EMarkup::Attribute, attribute->Name(), element.Name(), attribute->GetLineNum()};
        const auto* value = written == nullptr ? nullptr : findValue(element, *written, attribute->Name());
        if (value == nullptr && !m_isRead(part.kind, part.name, part.line))
            diff.lost.push_back(part);
        else if (value != nullptr && std::string_view(value) != attribute->Value())
            diff.respelled.push_back(part);
    }
}

void Walk::compareTexts(const XMLElement& element, const XMLElement* written)
{
    const auto text = textOf(element);
    const auto writtenText = written == nullptr ? std::string() : textOf(*written);
    if (text.empty() || text == writtenText)
        return;
    const MarkupPart part{EMarkup::Text, {}, element.Name(), element.GetLineNum()};
    if (!writtenText.empty())
        diff.respelled.push_back(part);
    else if (!m_isRead(part.kind, part.owner, part.line))
        diff.lost.push_back(part);
}

void Walk::compareElement(const XMLElement& element, const XMLElement* written)
{
    if (written == nullptr && !isRead(element))
    {
        diff.lost.push_back({EMarkup::Element, element.Name(), nameOf(element.Parent()), element.GetLineNum()});
        return;
    }
    compareAttributes(element, written);
    compareTexts(element, written);
    compareChildren(element, written);
}

void Walk::compareChildren(const XMLNode& parent, const XMLNode* written)
{
    ElementsByName others(written);
    for (const auto* child = parent.FirstChildElement(); child != nullptr; child = child->NextSiblingElement())
        compareElement(*child, others.take(child->Name()));
}

// At the top an element counts only when it was read: job options may stand there in two forms. The form that was read
// may have another root than the one that is written.
void Walk::compareDocuments(const XMLNode& before, const XMLNode& after)
{
    countOther(before);
    ElementsByName others(&after);
    const auto* writtenRoot = after.FirstChildElement();
    for (const auto* root = before.FirstChildElement(); root != nullptr; root = root->NextSiblingElement())
    {
        const auto* enclosed = root->FirstChildElement(writtenRoot->Name());
        if (isRead(*root))
        {
            const auto* same = others.take(root->Name());
            compareElement(*root, same == nullptr ? writtenRoot : same);
        }
        else if (enclosed != nullptr && isRead(*enclosed))
        {
            diff.enclosing = {EMarkup::Element, root->Name(), {}, root->GetLineNum()};
            compareElement(*enclosed, writtenRoot);
        }
        else
            diff.lost.push_back({EMarkup::Element, root->Name(), {}, root->GetLineNum()});
    }
}

} // namespace

MarkupDiff compareMarkup(const std::string& before, const std::string& after, const IsRead& isRead)
{
    tinyxml2::XMLDocument first;
    tinyxml2::XMLDocument second;
    parse(before, first);
    parse(after, second);
    Walk walk(isRead);
    walk.compareDocuments(first, second);
    return std::move(walk.diff);
}

} // namespace describe
