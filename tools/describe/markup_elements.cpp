#include "markup_elements.h"

#include <algorithm>

namespace describe
{

std::string textOf(const tinyxml2::XMLElement& element)
{
    std::string text;
    for (const auto* node = element.FirstChild(); node != nullptr; node = node->NextSibling())
        text += node->ToText() == nullptr ? "" : node->Value();
    const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
    text.erase(text.begin(), std::find_if_not(text.begin(), text.end(), isBlank));
    text.erase(std::find_if_not(text.rbegin(), text.rend(), isBlank).base(), text.end());
    return text;
}

ElementsByName::ElementsByName(const tinyxml2::XMLNode* parent)
{
    const auto* child = parent == nullptr ? nullptr : parent->FirstChildElement();
    for (; child != nullptr; child = child->NextSiblingElement())
        m_rows[child->Name()].elements.push_back(child);
}

const tinyxml2::XMLElement* ElementsByName::take(std::string_view name)
{
    const auto row = m_rows.find(name);
    if (row == m_rows.end() || row->second.taken == row->second.elements.size())
        return nullptr;
    return row->second.elements[row->second.taken++];
}

} // namespace describe
