#pragma once

#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// A signed duration in whole seconds.
class ZELMODEL_API CTimeSpanEx
{
public:
    /// So many seconds; a negative number is a span backwards.
    explicit CTimeSpanEx(long seconds) noexcept : m_seconds(seconds) {}

    /// The span of so many hours of 3600 seconds; throws when the seconds do not fit into 64 bits.
    static CTimeSpanEx fromHours(long hours);

    /// The span of so many days of 86400 seconds; throws when the seconds do not fit into 64 bits.
    static CTimeSpanEx fromDays(long days);

    /// The seconds, with their sign.
    long getTotalSeconds() const noexcept { return m_seconds; }

    /// Spans compare by their seconds.
    friend bool operator<(const CTimeSpanEx& a, const CTimeSpanEx& b) noexcept { return a.m_seconds < b.m_seconds; }
    friend bool operator>(const CTimeSpanEx& a, const CTimeSpanEx& b) noexcept { return a.m_seconds > b.m_seconds; }
    friend bool operator<=(const CTimeSpanEx& a, const CTimeSpanEx& b) noexcept { return a.m_seconds <= b.m_seconds; }
    friend bool operator>=(const CTimeSpanEx& a, const CTimeSpanEx& b) noexcept { return a.m_seconds >= b.m_seconds; }

    /// Formats the span as strftime formats the moment so many seconds after 1970-01-01 00:00 UTC: "%H:%M:%S" shows a
    /// span below a day, whole days are lost in it. Throws when the text is empty or longer than 255 bytes, and for
    /// spans that no calendar year can show.
    std::string toStdString(const std::string& format) const;

private:
    long m_seconds;
};

} // namespace zelplatform::model
