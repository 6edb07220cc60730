#include "xml_edit.h"

#include <sstream>
#include <stdexcept>

namespace zelmodel_test
{
namespace
{

/// Where a start tag of the name begins, after its bracket.
std::size_t findTag(const std::string& text, const std::string& name, std::size_t from)
{
    const auto open = '<' + name;
    for (auto at = text.find(open, from); at != std::string::npos; at = text.find(open, at + 1))
    {
        if (std::string(" \n/>").find(text[at + open.size()]) != std::string::npos)
            return at + 1;
    }
    return std::string::npos;
}

std::string lastName(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

} // namespace

XmlEdit::Range XmlEdit::startTag(const std::string& path) const
{
    std::istringstream names(path);
    std::size_t at = 0;
    for (std::string name; at != std::string::npos && std::getline(names, name, '/');)
        at = findTag(m_text, name, at);
    return at == std::string::npos ? Range{} : Range{at, m_text.find('>', at)};
}

XmlEdit::Range XmlEdit::attributeRange(const std::string& path, const std::string& name) const
{
    const auto tag = startTag(path);
    if (!tag)
        return {};
    for (auto at = m_text.find(name + "=\"", tag.begin); at < tag.end; at = m_text.find(name + "=\"", at + 1))
    {
        if (m_text[at - 1] == ' ')
            return {at, m_text.find('"', at + name.size() + 2) + 1};
    }
    return {};
}

bool XmlEdit::hasAttribute(const std::string& path, const std::string& name) const
{
    return static_cast<bool>(attributeRange(path, name));
}

std::string XmlEdit::attribute(const std::string& path, const std::string& name) const
{
    const auto range = attributeRange(path, name);
    const auto before = name.size() + 2;
    return range ? m_text.substr(range.begin + before, range.end - range.begin - before - 1) : std::string();
}

void XmlEdit::setAttribute(const std::string& path, const std::string& name, const std::string& value)
{
    removeAttribute(path, name);
    const auto tag = startTag(path);
    if (!tag)
        throw std::runtime_error("The example has no element " + path + ".");
    m_text.insert(tag.begin + lastName(path).size(), ' ' + name + "=\"" + value + '"');
}

void XmlEdit::removeAttribute(const std::string& path, const std::string& name)
{
    if (const auto range = attributeRange(path, name))
        m_text.erase(range.begin, range.end - range.begin);
}

bool XmlEdit::hasChild(const std::string& path, const std::string& name) const
{
    return static_cast<bool>(startTag(path + '/' + name));
}

void XmlEdit::removeChild(const std::string& path, const std::string& name)
{
    const auto tag = startTag(path + '/' + name);
    if (!tag)
        return;
    const auto closing = "</" + name + '>';
    const bool isEmpty = m_text[tag.end - 1] == '/';
    const auto end = isEmpty ? tag.end + 1 : m_text.find(closing, tag.end) + closing.size();
    m_text.erase(tag.begin - 1, end - tag.begin + 1);
}

XmlEdit::Range XmlEdit::innerRange(const std::string& path) const
{
    const auto tag = startTag(path);
    if (!tag || m_text[tag.end - 1] == '/')
        return {};
    return {tag.end + 1, m_text.find('<', tag.end)};
}

std::string XmlEdit::innerText(const std::string& path) const
{
    const auto range = innerRange(path);
    return range ? m_text.substr(range.begin, range.end - range.begin) : std::string();
}

void XmlEdit::setInnerText(const std::string& path, const std::string& value)
{
    const auto range = innerRange(path);
    if (!range)
        throw std::runtime_error("The example has no element " + path + " with a text.");
    m_text.replace(range.begin, range.end - range.begin, value);
}

} // namespace zelmodel_test
