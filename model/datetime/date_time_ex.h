#pragma once

#include <zelmodel/datetime/time_span_ex.h>
#include <zelmodel/export.h>

#include <zelplatform/datetime/date_time.h>

namespace zelplatform::model
{

/// An instant: seconds since 1970-01-01 00:00:00 UTC, together with the local offset (seconds east of UTC) that was in
/// force where it was made. The offset is captured once and never read again, so the local reading of an old instant is
/// the one its maker saw. Zero seconds mean "not set". The constructor checks nothing.
class ZELMODEL_API CDateTimeEx
{
public:
    /// Not set.
    CDateTimeEx() noexcept = default;

    /// Seconds since 1970-01-01 00:00:00 UTC and the offset in seconds east of UTC, as they are given.
    CDateTimeEx(long utcSeconds, long offsetSeconds) noexcept : m_utc(utcSeconds), m_offset(offsetSeconds) {}

    CDateTimeEx(const CDateTimeEx&) noexcept = default;
    CDateTimeEx& operator=(const CDateTimeEx&) noexcept = default;
    virtual ~CDateTimeEx();

    /// The instant of a UTC reading, with the offset in force now. The reading of second 0 gives "not set".
    static CDateTimeEx fromUtcTime(const datetime::CDateTime& utcTime);

    /// The instant of a local reading, taken with the offset in force now. The reading of second 0 gives "not set".
    static CDateTimeEx fromLocalTime(const datetime::CDateTime& localTime);

    /// The instant that has both readings; its offset is their difference. Throws when the first is not flagged as UTC;
    /// "not set" when either is the reading of second 0.
    static CDateTimeEx fromTimes(const datetime::CDateTime& utcTime, const datetime::CDateTime& localTime);

    /// Now.
    static CDateTimeEx currentTime();

    /// The machine's local offset in force now, in seconds east of UTC.
    static long getLocalUtcOffset();

    /// Moves the instant to the start of its day, the UTC day or the local one, and returns its new UTC seconds. The
    /// offset is kept.
    long resetTime(bool utc);

    /// False for instants before 1970, too.
    bool isSet() const noexcept { return m_utc > 0; }

    /// The UTC reading; the empty UTC date-time when not set.
    datetime::CDateTime getUtcTime() const;

    /// The local reading; the empty UTC date-time when not set.
    datetime::CDateTime getLocalTime() const;

    /// Order is by the UTC seconds alone.
    friend bool operator<(const CDateTimeEx& a, const CDateTimeEx& b) noexcept { return a.m_utc < b.m_utc; }
    friend bool operator>(const CDateTimeEx& a, const CDateTimeEx& b) noexcept { return a.m_utc > b.m_utc; }

    /// The span from the other instant to this one; throws when it does not fit into 64 bits.
    CTimeSpanEx operator-(const CDateTimeEx& other) const;

    /// The instant so much later, with the same offset; throws when it does not fit into 64 bits.
    CDateTimeEx operator+(const CTimeSpanEx& span) const;

private:
    long m_utc = 0;
    long m_offset = 0;
};

} // namespace zelplatform::model
