#include "place.h"

#include <utility>

#include <zelplatform/xmlpp/lookup_record.h>

namespace describe
{
namespace
{

Origin found(int line, std::string name, std::string text = {})
{
    return {line != 0 ? EOrigin::Document : EOrigin::Default, line, std::move(name), std::move(text)};
}

} // namespace

Place::Place(const xmlpp::CXmlDocument& document, std::optional<xmlpp::CXmlNode> node)
    : Place(document, node, node ? node->GetName() : std::string())
{
}

Place::Place(const xmlpp::CXmlDocument& document, std::optional<xmlpp::CXmlNode> node, std::string name)
    : m_document(document), m_node(std::move(node)), m_name(std::move(name))
{
}

Origin Place::origin() const
{
    return found(m_node ? m_node->GetLine() : 0, m_name);
}

bool Place::has(xmlpp::CXmlName attribute) const
{
    const xmlpp::CLookupPause pause;
    return m_node && m_node->HasAttribute(attribute);
}

Origin Place::originOf(xmlpp::CXmlName attribute) const
{
    if (!has(attribute))
        return found(0, attribute.c_str());
    const int line = m_document.LastReadLine();
    return found(line, attribute.c_str(), textOf(attribute));
}

Origin Place::originOf(xmlpp::CXmlName attribute, std::initializer_list<xmlpp::CXmlName> olderNames) const
{
    auto origin = originOf(attribute);
    for (auto older = olderNames.begin(); !origin.isThere() && older != olderNames.end(); ++older)
    {
        if (has(*older))
            origin = asOlder(originOf(*older));
    }
    return origin;
}

Origin Place::originOfFilled(xmlpp::CXmlName attribute) const
{
    return textOf(attribute).empty() ? found(0, attribute.c_str()) : originOf(attribute);
}

std::string Place::textOf(xmlpp::CXmlName attribute) const
{
    const xmlpp::CLookupPause pause;
    return has(attribute) ? std::string(m_node->GetAttribute(attribute)) : std::string();
}

Place Place::child(xmlpp::CXmlName name) const
{
    const xmlpp::CLookupPause pause;
    return Place(m_document, m_node ? m_node->FindChildNode(name) : std::nullopt, name.c_str());
}

std::vector<Place> Place::children(xmlpp::CXmlName name) const
{
    const xmlpp::CLookupPause pause;
    std::vector<Place> places;
    if (!m_node)
        return places;
    for (const auto& node : m_node->GetChildNodes(name))
        places.emplace_back(m_document, node);
    return places;
}

Origin asOlder(Origin origin)
{
    if (origin.isThere())
        origin.kind = EOrigin::Older;
    return origin;
}

} // namespace describe
