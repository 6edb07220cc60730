#pragma once

#include <zelplatform/export.h>

namespace datetime
{

/// A signed duration in whole seconds.
class ZELPLATFORM_API CTimeSpan
{
public:
    /// So many seconds.
    explicit CTimeSpan(long seconds) noexcept : m_seconds(seconds) {}

    /// The seconds, with their sign.
    long getTotalSeconds() const noexcept { return m_seconds; }

    /// Splits the duration. Hours are the total, not the rest of a day; every part carries the sign.
    void getDurationHMS(long& hours, long& minutes, long& seconds) const noexcept;

private:
    long m_seconds;
};

} // namespace datetime
