#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace zelmodel_test
{

struct Attribute
{
    std::string name;
    std::string value;
};

using Attributes = std::vector<Attribute>;

/// An element of that name with the attributes; their values stand as they are.
inline std::string elementText(const std::string& name, const Attributes& attributes)
{
    std::string text = "<" + name;
    for (const auto& each : attributes)
        text += " " + each.name + "=\"" + each.value + "\"";
    return text + "/>";
}

inline Attributes withValue(Attributes attributes, const std::string& name, const std::string& value)
{
    for (auto& each : attributes)
    {
        if (each.name == name)
            each.value = value;
    }
    return attributes;
}

inline Attributes without(Attributes attributes, std::size_t at)
{
    attributes.erase(attributes.begin() + static_cast<std::ptrdiff_t>(at));
    return attributes;
}

inline Attributes firstOf(Attributes attributes, std::size_t count)
{
    attributes.resize(count);
    return attributes;
}

} // namespace zelmodel_test
