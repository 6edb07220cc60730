#pragma once

#include <string>

namespace zelmodel_test
{

/// An example document that is changed in its text. Elements are named by a path such as "Schedule/WeekMask", which may
/// begin at any element; the first that fits is meant. Made for the examples of our own pages: no comments, no CDATA.
class XmlEdit
{
public:
    explicit XmlEdit(std::string text) : m_text(std::move(text)) {}

    const std::string& text() const { return m_text; }

    bool hasAttribute(const std::string& path, const std::string& name) const;
    void setAttribute(const std::string& path, const std::string& name, const std::string& value);
    void removeAttribute(const std::string& path, const std::string& name);

    bool hasChild(const std::string& path, const std::string& name) const;
    void removeChild(const std::string& path, const std::string& name);
    void setInnerText(const std::string& path, const std::string& value);

    /// The value of an attribute, or the text of an element without children; empty when there is none.
    std::string attribute(const std::string& path, const std::string& name) const;
    std::string innerText(const std::string& path) const;

private:
    struct Range
    {
        std::size_t begin = std::string::npos;
        std::size_t end = 0;

        explicit operator bool() const { return begin != std::string::npos; }
    };

    /// The start tag of the element, without its brackets.
    Range startTag(const std::string& path) const;
    Range attributeRange(const std::string& path, const std::string& name) const;
    Range innerRange(const std::string& path) const;

    std::string m_text;
};

} // namespace zelmodel_test
