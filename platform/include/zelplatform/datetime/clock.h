#pragma once

#include <functional>

#include <zelplatform/export.h>

namespace datetime
{

/// Replaces the sources of "now" (seconds since 1970 UTC) and of the local offset in force (seconds east of UTC).
/// An empty function puts the machine's own source back. For tests; safe to call from any thread.
ZELPLATFORM_API void set_clock_for_tests(std::function<long()> now, std::function<long()> localOffset);

/// Seconds since 1970-01-01 00:00:00 UTC.
ZELPLATFORM_API long clock_now();

/// The local offset in force now: local wall clock minus UTC, in seconds.
ZELPLATFORM_API long clock_local_offset();

} // namespace datetime
