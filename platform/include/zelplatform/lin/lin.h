#pragma once

/// Time stamps of files.
namespace lin
{

/// A moment as seconds since 1970 and the nanoseconds after them (0 to 999,999,999), also before 1970: half a second
/// before the epoch is second -1 and 500,000,000 nanoseconds.
struct lin_filetime_t
{
    /// Since 1970-01-01 00:00:00 UTC; negative before.
    long seconds = 0;

    /// After the second, 0..999,999,999; not checked here.
    unsigned nanoseconds = 0;

    /// Whole seconds since 1970, rounded down.
    long GetSecNum() const noexcept { return seconds; }
};

} // namespace lin
