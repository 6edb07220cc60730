#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include <zelplatform/xmlpp/xml_node.h>
#include <zelplatform/xmlpp/xml_undo.h>

namespace zelplatform::model::detail
{

/// The attribute of one flag; masks list them in the order in which documents carry them.
struct FlagAttribute
{
    std::size_t index;
    const char* name;
};

/// The names of the flags that are on, in index order; throws std::out_of_range for a name without a flag and for a
/// flag that is on without a name.
std::vector<std::string> namesOfFlags(const std::vector<bool>& mask, const std::vector<std::string>& names);

/// The value when all flags have it.
bool areAllFlags(const std::vector<bool>& mask, bool value) noexcept;

/// Adds the element with one boolean attribute for each flag.
template <std::size_t N>
void writeFlags(xmlpp::CXmlNode& parent, const char* element, const std::array<FlagAttribute, N>& attributes,
                const std::vector<bool>& mask)
{
    const xmlpp::CXmlUndo undo(parent);
    auto node = parent.AddNode(element);
    for (const auto& attribute : attributes)
        node.SetBoolAttribute(attribute.name, mask.at(attribute.index));
}

/// Reads what writeFlags writes; the element and every attribute must be there.
template <std::size_t N>
std::vector<bool> readFlags(const xmlpp::CXmlNode& parent, const char* element,
                            const std::array<FlagAttribute, N>& attributes)
{
    std::vector<bool> mask(N, false);
    const auto node = parent.GetFirstChildNode(element);
    for (const auto& attribute : attributes)
        mask[attribute.index] = node.GetBoolAttribute(attribute.name);
    return mask;
}

} // namespace zelplatform::model::detail
