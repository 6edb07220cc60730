#include <zelplatform/util/type_name.h>

#include <boost/core/demangle.hpp>

namespace util
{

std::string detail::readableName(const std::type_info& type)
{
    const char* const name = type.name();
    return boost::core::demangle(*name == '*' ? name + 1 : name);
}

} // namespace util
