#include <zelplatform/util/time.h>

namespace util
{

bool gmtime_safe(long seconds, std::tm& out) noexcept
{
    const std::time_t moment = seconds;
    return gmtime_r(&moment, &out) != nullptr;
}

lin::lin_filetime_t FiletimeFromUnixTime(long seconds) noexcept
{
    return {seconds, 0};
}

} // namespace util
