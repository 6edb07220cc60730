#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include <tinyxml2.h>

namespace zelmodel_test
{

/// A picture as another reader of XML understands it.
class Elements
{
public:
    using Element = tinyxml2::XMLElement;

    explicit Elements(const std::string& text)
    {
        if (m_document.Parse(text.c_str(), text.size()) != tinyxml2::XML_SUCCESS)
            throw std::runtime_error(m_document.ErrorStr());
        collect(*m_document.RootElement());
    }
    Elements(const Elements&) = delete;
    Elements& operator=(const Elements&) = delete;
    ~Elements() = default;

    const Element& root() const { return *m_document.RootElement(); }

    /// All elements in the order of the text.
    const std::vector<const Element*>& all() const noexcept { return m_all; }

    /// Those of the name.
    std::vector<const Element*> named(const std::string& name) const
    {
        std::vector<const Element*> found;
        for (const auto* element : m_all)
        {
            if (name == element->Name())
                found.push_back(element);
        }
        return found;
    }

private:
    void collect(const Element& element)
    {
        m_all.push_back(&element);
        for (const auto* child = element.FirstChildElement(); child != nullptr; child = child->NextSiblingElement())
            collect(*child);
    }

    tinyxml2::XMLDocument m_document;
    std::vector<const Element*> m_all;
};

/// The value of an attribute; empty when there is none.
inline std::string attributeOf(const tinyxml2::XMLElement& element, const char* name)
{
    const char* value = element.Attribute(name);
    return value == nullptr ? "" : value;
}

/// All text at and below an element.
inline std::string textIn(const tinyxml2::XMLNode& node)
{
    if (const auto* text = node.ToText())
        return text->Value();
    std::string all;
    for (const auto* child = node.FirstChild(); child != nullptr; child = child->NextSibling())
        all += textIn(*child);
    return all;
}

} // namespace zelmodel_test
