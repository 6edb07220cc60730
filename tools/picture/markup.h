#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <utility>

#include <tinyxml2.h>

namespace picture
{

/// Attributes of an element, in their order.
using Attributes = std::initializer_list<std::pair<const char*, std::string>>;

/// The one writer of SVG and HTML: well-formed XML in which texts and values of attributes may hold anything. What
/// could act on a reader's terminal, or what XML cannot hold, is escaped in words.
class Markup
{
public:
    using Content = std::function<void()>;

    /// "<?xml ...?>" before the first element.
    void addDeclaration();

    /// "<!DOCTYPE html>" before the first element.
    void addDocumentType();

    /// An element around what the content adds, each on a line of its own.
    void add(const char* name, Attributes attributes, const Content& content);

    /// The same on one line: nothing stands between the parts, where a blank would be seen.
    void addLine(const char* name, Attributes attributes, const Content& content);

    /// An element around a text, with an end tag of its own even when the text is empty.
    void add(const char* name, Attributes attributes, const std::string& text);

    /// An element that can hold nothing.
    void addEmpty(const char* name, Attributes attributes);

    /// A style sheet of ours, as it is. It must not hold "<", ">" or "&", which are read differently in SVG and HTML.
    void addStyle(const std::string& rules);

    /// Text behind what the open element holds already.
    void addText(const std::string& text);

    /// What was written, with a line break at its end.
    std::string text() const;

private:
    void open(const char* name, Attributes attributes);
    void close();

    bool m_isOneLine = false;
    tinyxml2::XMLPrinter m_printer;
};

} // namespace picture
