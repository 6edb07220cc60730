#include <zelplatform/util/cast.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/type_name.h>

namespace util
{

void detail::failCast(const std::type_info& from, const std::type_info& to)
{
    throw exc::CRuntimeExc("Unable to cast value from [%1] to [%2].", readableName(from), readableName(to));
}

} // namespace util
