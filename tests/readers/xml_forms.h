#pragma once

#include <string>

#include <zelplatform/xmlpp/xmlpp.h>

namespace readers
{

/// The document as its own readers take it: a node whose children are the top-level elements.
inline xmlpp::CXmlNode topOf(const std::string& text)
{
    return xmlpp::CXmlDocument::Unserialize(text).ToNode();
}

inline xmlpp::CXmlNode rootOf(const std::string& text)
{
    return xmlpp::CXmlDocument::Unserialize(text).GetRootNode();
}

/// What is written below the top of a document.
template <class TWrite>
std::string writtenAtTop(const TWrite& write)
{
    const xmlpp::CXmlDocument document;
    auto top = document.ToNode();
    write(top);
    return document.Serialize();
}

/// What is written into an element.
template <class TWrite>
std::string writtenInto(const char* element, const TWrite& write)
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode(element);
    write(root);
    return document.Serialize();
}

} // namespace readers
