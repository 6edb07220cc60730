#include <zelmodel/structs/entity_option_key.h>

#include "detail/record_names.h"

namespace zelplatform::model::structs
{

void SEntityOptionKey::ToXmlNode(xmlpp::CXmlNode& node) const
{
    node.SetAttribute(detail::record_names::Key, key);
}

} // namespace zelplatform::model::structs
