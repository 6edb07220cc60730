#include "find_field.h"

namespace describe
{

const Node* findField(const Node& node, const std::string& name)
{
    if (node.name == name)
        return &node;
    for (const auto& child : node.children)
    {
        if (const auto* found = findField(child, name))
            return found;
    }
    return nullptr;
}

} // namespace describe
