#include "visitors.h"

#include <zelplatform/util/util.h>

#include "document_names.h"
#include "element_fields.h"

namespace describe
{

Node visitSqlVariant(const zelplatform::model::structs::SSqlVariant& variant, const Place& place)
{
    auto node = makeField("sqlVariant", "SQL value", "", "", place.origin());
    ElementFields fields(node, place);
    fields.add("type", "Type", variant.type, "number " + util::toStr(variant.type), record_names::Type);
    fields.add("value", "Value", variant.value, variant.value.empty() ? "empty" : variant.value, record_names::Value);
    return node;
}

} // namespace describe
