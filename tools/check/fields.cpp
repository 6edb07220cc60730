#include "fields.h"

#include <algorithm>

namespace check
{

const describe::Node* findField(const describe::Node& node, std::initializer_list<const char*> path)
{
    const auto* field = &node;
    for (const auto* name : path)
    {
        const auto& children = field->children;
        const auto found = std::find_if(children.begin(), children.end(),
                                        [&](const describe::Node& child) { return child.name == name; });
        if (found == children.end())
            return nullptr;
        field = &*found;
    }
    return field;
}

} // namespace check
