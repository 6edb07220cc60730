#pragma once

#include <initializer_list>

#include "describe/node.h"

namespace check
{

/// Calls the work for the field and everything below it.
template <class TWork>
void forEachField(const describe::Node& field, const TWork& work)
{
    work(field);
    for (const auto& child : field.children)
        forEachField(child, work);
}

/// The field at the path of names below the node, or nothing.
const describe::Node* findField(const describe::Node& node, std::initializer_list<const char*> path);

} // namespace check
