#include "markup.h"

#include <array>
#include <utility>

#include "describe/terminal_text.h"

namespace picture
{
namespace
{

struct Noncharacter
{
    const char* bytes;
    const char* words;
};

// The two characters of UTF-8 that are printable for a terminal and that no XML may hold.
constexpr std::array<Noncharacter, 2> Noncharacters{{{"\xef\xbf\xbe", "\\ufffe"}, {"\xef\xbf\xbf", "\\uffff"}}};

std::string holdable(const std::string& text)
{
    auto held = describe::printable(text);
    for (const auto& character : Noncharacters)
    {
        for (auto at = held.find(character.bytes); at != std::string::npos; at = held.find(character.bytes, at))
            held.replace(at, 3, character.words);
    }
    return held;
}

} // namespace

void Markup::addDeclaration()
{
    m_printer.PushDeclaration("xml version=\"1.0\" encoding=\"UTF-8\"");
}

void Markup::addDocumentType()
{
    m_printer.PushUnknown("DOCTYPE html");
}

void Markup::add(const char* name, Attributes attributes, const Content& content)
{
    open(name, attributes);
    content();
    close();
}

void Markup::addLine(const char* name, Attributes attributes, const Content& content)
{
    open(name, attributes);
    const bool wasOneLine = std::exchange(m_isOneLine, true);
    content();
    close();
    m_isOneLine = wasOneLine;
}

void Markup::add(const char* name, Attributes attributes, const std::string& text)
{
    open(name, attributes);
    addText(text);
    close();
}

void Markup::addEmpty(const char* name, Attributes attributes)
{
    open(name, attributes);
    close();
}

void Markup::addStyle(const std::string& rules)
{
    open("style", {});
    m_printer.PushText(rules.c_str());
    close();
}

void Markup::addText(const std::string& text)
{
    m_printer.PushText(holdable(text).c_str());
}

std::string Markup::text() const
{
    return m_printer.CStr();
}

void Markup::open(const char* name, Attributes attributes)
{
    m_printer.OpenElement(name, m_isOneLine);
    for (const auto& [key, value] : attributes)
        m_printer.PushAttribute(key, holdable(value).c_str());
}

void Markup::close()
{
    m_printer.CloseElement(m_isOneLine);
}

} // namespace picture
