#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::detail
{

template <class T>
struct IsOptional : std::false_type
{
};

template <class T>
struct IsOptional<std::optional<T>> : std::true_type
{
};

/// The one way to read an attribute that may be missing: the target changes only when the attribute is there. Texts are
/// taken as they stand, numbers and flags are converted strictly, an optional target becomes engaged.
template <class T>
void readIfPresent(const xmlpp::CXmlNode& node, const char* name, T& target)
{
    const auto text = node.FindAttribute(name);
    if (!text)
        return;
    if constexpr (std::is_same_v<T, std::string>)
        target = std::string(*text);
    else if constexpr (IsOptional<T>::value)
        target = util::fromStr<typename T::value_type>(*text);
    else
        target = util::fromStr<T>(*text);
}

} // namespace zelplatform::model::detail
