#pragma once

/// Time stamps of files.
namespace lin
{

/// A moment as seconds since 1970 and the nanoseconds after them (0 to 999,999,999), also before 1970: half a second
/// before the epoch is second -1 and 500,000,000 nanoseconds.
struct lin_filetime_t
{
    long seconds = 0;
    unsigned nanoseconds = 0;

    /// Whole seconds since 1970, rounded down.
    long GetSecNum() const noexcept { return seconds; }
};

} // namespace lin
