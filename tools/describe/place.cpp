#include "place.h"

#include <utility>

namespace describe
{

Place::Place(const xmlpp::CXmlDocument& document, std::optional<xmlpp::CXmlNode> node)
    : m_document(document), m_node(std::move(node))
{
}

int Place::line() const
{
    return m_node ? m_node->GetLine() : 0;
}

bool Place::has(xmlpp::CXmlName attribute) const
{
    return m_node && m_node->HasAttribute(attribute);
}

int Place::lineOf(xmlpp::CXmlName attribute) const
{
    return has(attribute) ? m_document.LastReadLine() : 0;
}

int Place::lineOfFilled(xmlpp::CXmlName attribute) const
{
    return textOf(attribute).empty() ? 0 : lineOf(attribute);
}

std::string Place::textOf(xmlpp::CXmlName attribute) const
{
    return has(attribute) ? std::string(m_node->GetAttribute(attribute)) : std::string();
}

Place Place::child(xmlpp::CXmlName name) const
{
    return Place(m_document, m_node ? m_node->FindChildNode(name) : std::nullopt);
}

std::vector<Place> Place::children(xmlpp::CXmlName name) const
{
    std::vector<Place> places;
    if (!m_node)
        return places;
    for (const auto& node : m_node->GetChildNodes(name))
        places.emplace_back(m_document, node);
    return places;
}

} // namespace describe
