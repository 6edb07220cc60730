#pragma once

#include <string>
#include <typeinfo>

#include <zelplatform/export.h>

namespace util
{

namespace detail
{

ZELPLATFORM_API std::string readableName(const std::type_info& type);

} // namespace detail

/// The type's name with its namespaces: "long", "unsigned char", "boost::gregorian::greg_year".
template <class T>
std::string type_name()
{
    return detail::readableName(typeid(T));
}

} // namespace util
