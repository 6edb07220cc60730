#pragma once

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "describe/document.h"
#include "describe/node.h"

namespace zelmodel_test
{

/// The node at the path of names, "schedule/jobStart/time". It is a part of the root. The path is taken by
/// value, so that no compiler takes the node for a part of a temporary text.
inline const describe::Node& at(const describe::Node& root, std::string_view path)
{
    const auto* node = &root;
    std::istringstream names{std::string(path)};
    for (std::string name; std::getline(names, name, '/');)
    {
        const auto& children = node->children;
        const auto found =
            std::find_if(children.begin(), children.end(), [&](const auto& child) { return child.name == name; });
        if (found == children.end())
            throw std::runtime_error("There is no field " + std::string(path) + ".");
        node = &*found;
    }
    return *node;
}

/// The names of the children, in order.
inline std::vector<std::string> namesOf(const describe::Node& node)
{
    std::vector<std::string> names;
    for (const auto& child : node.children)
        names.push_back(child.name);
    return names;
}

/// The tree of a document.
inline describe::Node treeOf(const std::string& text)
{
    return describe::Document(text).describe();
}

/// What a field must hold.
struct ExpectedField
{
    const char* path;
    const char* value;
    const char* words;
    int line;
};

inline void expectFields(const describe::Node& root, const std::vector<ExpectedField>& fields)
{
    for (const auto& field : fields)
    {
        EXPECT_EQ(at(root, field.path).value, field.value) << field.path;
        EXPECT_EQ(at(root, field.path).words, field.words) << field.path;
        EXPECT_EQ(at(root, field.path).origin.line, field.line) << field.path;
    }
}

} // namespace zelmodel_test
