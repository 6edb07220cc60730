#include <zelmodel/structs/sql_variant.h>

#include <zelplatform/xmlpp/xml_document.h>

#include "detail/record_names.h"

namespace zelplatform::model::structs
{

std::string SSqlVariant::ToXmlStr() const
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode(detail::record_names::SqlVariant);
    root.SetInt64Attribute(detail::record_names::Type, type);
    root.SetAttribute(detail::record_names::Value, value);
    return document.Serialize(false);
}

} // namespace zelplatform::model::structs
