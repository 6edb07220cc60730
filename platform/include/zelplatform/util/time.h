#pragma once

#include <ctime>

#include <zelplatform/export.h>
#include <zelplatform/lin/lin.h>

namespace util
{

/// Breaks seconds since 1970 down into UTC fields; false when no calendar year can hold them.
ZELPLATFORM_API bool gmtime_safe(long seconds, std::tm& out) noexcept;

/// The file time of seconds since 1970; its nanoseconds are 0.
ZELPLATFORM_API lin::lin_filetime_t FiletimeFromUnixTime(long seconds) noexcept;

} // namespace util
