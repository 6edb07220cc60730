#pragma once

#include <string>

#include <zelmodel/export.h>

#include <zelplatform/datetime/date_time.h>

namespace zelplatform::model
{

/// A calendar date: a date-time whose time of day is always 00:00:00. The UTC flag of the date-time is kept, but takes
/// no part in comparison.
class ZELMODEL_API CDate
{
public:
    /// The date of the date-time; its time of day is dropped.
    explicit CDate(const datetime::CDateTime& dateTime) : m_midnight(dateTime)
    {
        if (dateTime.toUnixTime() % SecondsOfDay != 0)
            m_midnight.setTime(0, 0, 0);
    }

    /// The midnight that begins the date.
    operator datetime::CDateTime() const noexcept { return m_midnight; }

    /// Dates compare by year, month and day.
    friend bool operator<(const CDate& a, const CDate& b) noexcept { return a.m_midnight < b.m_midnight; }
    friend bool operator==(const CDate& a, const CDate& b) noexcept { return a.m_midnight == b.m_midnight; }
    friend bool operator<=(const CDate& a, const CDate& b) noexcept { return !(b < a); }
    friend bool operator>(const CDate& a, const CDate& b) noexcept { return b < a; }
    friend bool operator>=(const CDate& a, const CDate& b) noexcept { return !(a < b); }
    friend bool operator!=(const CDate& a, const CDate& b) noexcept { return !(a == b); }

    /// The date-time against the midnight of the date.
    friend bool operator<=(const datetime::CDateTime& a, const CDate& b) noexcept { return a <= b.m_midnight; }

    /// Month, day and year: "03/07/2024".
    std::string toString() const;

private:
    static constexpr long SecondsOfDay = 86400;

    datetime::CDateTime m_midnight;
};

} // namespace zelplatform::model
