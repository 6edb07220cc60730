#include <zelmodel/datetime/date_time_ex.h>

#include <zelplatform/exc/exc.h>

#include "detail/checked_math.h"

namespace zelplatform::model
{

CDateTimeEx::~CDateTimeEx() = default;

CDateTimeEx CDateTimeEx::fromUtcTime(const datetime::CDateTime& utcTime)
try
{
    const long utc = utcTime.toUnixTime();
    return utc == 0 ? CDateTimeEx() : CDateTimeEx(utc, getLocalUtcOffset());
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("DateTimeEx: Failed to convert from UTC time.", cause);
}

CDateTimeEx CDateTimeEx::fromLocalTime(const datetime::CDateTime& localTime)
try
{
    const long local = localTime.toUnixTime();
    if (local == 0)
        return CDateTimeEx();
    const long offset = getLocalUtcOffset();
    return CDateTimeEx(detail::checkedSubtract(local, offset), offset);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("DateTimeEx: Failed to convert from Local time.", cause);
}

CDateTimeEx CDateTimeEx::fromTimes(const datetime::CDateTime& utcTime, const datetime::CDateTime& localTime)
try
{
    if (!utcTime.isUtcTime())
        throw exc::CRuntimeExc("Local time instead UTC.");
    const long utc = utcTime.toUnixTime();
    const long local = localTime.toUnixTime();
    return utc == 0 || local == 0 ? CDateTimeEx() : CDateTimeEx(utc, local - utc);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("DateTimeEx: Failed to convert from times.", cause);
}

CDateTimeEx CDateTimeEx::currentTime()
{
    return fromUtcTime(datetime::CDateTime::currentUtcTime());
}

long CDateTimeEx::getLocalUtcOffset()
{
    return datetime::CDateTime::localUtcOffsetSecs();
}

long CDateTimeEx::resetTime(bool utc)
{
    auto day = utc ? getUtcTime() : getLocalTime();
    day.setTime(0, 0, 0);
    m_utc = utc ? day.toUnixTime() : detail::checkedSubtract(day.toUnixTime(), m_offset);
    return m_utc;
}

datetime::CDateTime CDateTimeEx::getUtcTime() const
{
    return isSet() ? datetime::CDateTime(m_utc, true) : datetime::CDateTime(true);
}

datetime::CDateTime CDateTimeEx::getLocalTime() const
{
    // Not set reads as the empty UTC date-time here too: kept on purpose.
    return isSet() ? datetime::CDateTime(detail::checkedAdd(m_utc, m_offset), false) : datetime::CDateTime(true);
}

CTimeSpanEx CDateTimeEx::operator-(const CDateTimeEx& other) const
{
    return CTimeSpanEx(detail::checkedSubtract(m_utc, other.m_utc));
}

CDateTimeEx CDateTimeEx::operator+(const CTimeSpanEx& span) const
{
    return CDateTimeEx(detail::checkedAdd(m_utc, span.getTotalSeconds()), m_offset);
}

} // namespace zelplatform::model
