#include <zelplatform/xml/xml.h>

#include <zelplatform/xmlpp/xml_document.h>

namespace xml
{

xml_holder_t TiXmlCreateDoc()
{
    return xmlpp::CXmlDocument().ToNode();
}

std::string TiXmlSerialize(const xml_holder_t& holder)
{
    return holder.SerializeDocument();
}

xml_holder_t TiXmlParseExc(const std::string& text)
{
    return xmlpp::CXmlDocument::Unserialize(text).ToNode();
}

} // namespace xml
