#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <zelplatform/datetime/names.h>
#include <zelplatform/export.h>

/// Dates, times of day, and the clock.
namespace datetime
{

/// A Gregorian date and time of day with a resolution of one second, and a flag that says whether it is a UTC
/// reading or a local one. Stored as wall-clock seconds since 1970-01-01 00:00:00; a local reading is never shifted.
/// Range: 1400-01-01 00:00:00 to 9999-12-31 23:59:59; nothing outside it can be constructed or set.
/// Comparison is by the wall clock alone: the UTC flag is left out.
class ZELPLATFORM_API CDateTime
{
public:
    /// The format of dates in job documents: month, day, year.
    static constexpr const char* QorDateFormat = "%m/%d/%Y %H:%M:%S";

    /// The format of dates in logs.
    static constexpr const char* DefaultFormat = "%m/%d/%Y %H:%M:%S";

    /// The empty date-time: 1970-01-01 00:00:00 with the flag.
    explicit CDateTime(bool isUtc) noexcept : m_seconds(0), m_isUtc(isUtc) {}

    /// The date-time of so many wall-clock seconds since 1970; throws exc::CRuntimeExc outside the range.
    CDateTime(long unixSeconds, bool isUtc);

    /// A lone number could mean seconds or a flag; it is refused at compile time.
    template <class T, std::enable_if_t<std::is_arithmetic_v<T>, int> = 0>
    explicit CDateTime(T) = delete;

    /// Same as the two-argument constructor.
    static CDateTime fromUnixTime(long unixSeconds, bool isUtc) { return CDateTime(unixSeconds, isUtc); }

    /// Reads a date written in the format: %Y (four digits), %m %d %H %M %S (one or two digits), anything else to the
    /// letter. The whole text must match and the date must exist; fields that the format lacks stay at 1970-01-01
    /// 00:00:00. Throws exc::CRuntimeExc.
    static CDateTime fromString(std::string_view text, std::string_view format, bool isUtc = true);

    /// Now, as a UTC reading.
    static CDateTime currentUtcTime();

    /// Now, as a local reading.
    static CDateTime currentLocalTime();

    /// The local offset in force now, in seconds east of UTC.
    static long localUtcOffsetSecs();

    /// Sets the time of day; throws exc::CRuntimeExc for an hour above 23, a minute or a second above 59, and
    /// negatives.
    void setTime(int hours, int minutes, int seconds);

    /// Sets the date, months counted from 1; throws the calendar's own error (a std::out_of_range) for a false date.
    void setDate(int year, int month, int day);

    /// What setDate and setTime refuse such fields with, the date first; empty when neither does. For readers of texts
    /// of which many may be none: an exception takes far longer than reading.
    static std::string faultOf(int year, int month, int day, int hours, int minutes, int seconds);

    /// Each sets one field and leaves the others; throws as setDate and setTime do, also when the day is not in the new
    /// month.
    void setYear(int year);
    void setMonth(int month);
    void setDay(int day);
    void setHours(int hours);
    void setMinutes(int minutes);
    void setSeconds(int seconds);

    /// Wall-clock seconds since 1970-01-01 00:00:00, of a local reading too.
    long toUnixTime() const noexcept { return m_seconds; }

    /// The flag as it was given.
    bool isUtcTime() const noexcept { return m_isUtc; }

    /// Year, month 1..12 and day of month.
    void getDate(int& year, int& month, int& day) const;

    /// The fields: the year 1400..9999, the day of month 1..31, the hour 0..23, minute and second 0..59.
    int year() const;
    unsigned day() const;
    int hour() const noexcept;
    int minute() const noexcept;
    int second() const noexcept;

    /// The month counted from 0, as masks are indexed; getDate counts from 1.
    EMonth::type getMonth() const;

    /// The week day, Sunday 0.
    EDayOfWeek::type getDayOfWeek() const noexcept;

    /// The number of days of the date's month, 28..31.
    unsigned getMonthLastDay() const;

    /// The days of the date's month that fall on the week day, ascending (four or five).
    std::vector<unsigned> getMonthDaysByDayOfWeek(EDayOfWeek::type dayOfWeek) const;

    /// Which occurrence of its week day in its month the date is, 1..5.
    unsigned long getMonthCurrWeekIndex() const;

    /// Formats the wall clock as strftime does in the "C" locale; the year always has four digits.
    std::string toStdString(std::string_view format) const;

    /// By the wall clock alone.
    friend bool operator==(const CDateTime& a, const CDateTime& b) noexcept { return a.m_seconds == b.m_seconds; }
    friend bool operator!=(const CDateTime& a, const CDateTime& b) noexcept { return a.m_seconds != b.m_seconds; }
    friend bool operator<(const CDateTime& a, const CDateTime& b) noexcept { return a.m_seconds < b.m_seconds; }
    friend bool operator<=(const CDateTime& a, const CDateTime& b) noexcept { return a.m_seconds <= b.m_seconds; }
    friend bool operator>(const CDateTime& a, const CDateTime& b) noexcept { return a.m_seconds > b.m_seconds; }
    friend bool operator>=(const CDateTime& a, const CDateTime& b) noexcept { return a.m_seconds >= b.m_seconds; }

private:
    long m_seconds;
    bool m_isUtc;
};

} // namespace datetime
