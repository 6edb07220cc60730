#include "field_list.h"

#include <algorithm>

#include <zelplatform/util/util.h>

#include "fields.h"

namespace edit
{
namespace
{

using describe::makeDetail;
using describe::makeField;
using describe::Node;

const Node* find(const Node& tree, const std::string& path)
{
    const auto* node = &tree;
    for (const auto& name : util::str_tokenize(path, '.'))
    {
        const auto& children = node->children;
        const auto found =
            std::find_if(children.begin(), children.end(), [&](const Node& child) { return child.name == name; });
        if (found == children.end())
            return nullptr;
        node = &*found;
    }
    return node;
}

// What could be given to the field again stands before what it takes; a group has no value, but words.
Node rowOf(const SettableField& field, const Node* present)
{
    auto row = makeField("field", field.path, "", "takes " + field.help);
    if (present != nullptr)
    {
        const auto& shown = present->value.empty() && !present->children.empty() ? present->words : present->value;
        row.value = present->value;
        row.valueType = present->valueType;
        row.secret = present->secret;
        if (!shown.empty())
            row.words = row.secret ? shown : shown + "; " + row.words;
    }
    row.children = {makeDetail("path", "Field", field.path, field.path),
                    makeDetail("takes", "Takes", field.help, field.help)};
    return row;
}

} // namespace

Node listFields(const Record& record, const Node& tree)
{
    auto list = makeField("fields", "Fields that can be set", "", "");
    list.isList = true;
    for (const auto& field : fieldsOf(record))
        list.children.push_back(rowOf(field, find(tree, field.path)));
    return list;
}

} // namespace edit
