#include <zelmodel/structs/schedule/schedule_time.h>

#include <cstdint>
#include <limits>

#include <zelplatform/datetime/time_span.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model::structs
{
namespace
{

constexpr unsigned long LastHourOfPeriod = 24;
constexpr unsigned long LastHourOfDay = 23;
constexpr unsigned long MinutesOfHour = 60;

// The message names the value, unlike the platform's cast, which names the source type.
std::uint8_t narrowToByte(long value)
{
    if (value < 0 || value > std::numeric_limits<std::uint8_t>::max())
        throw exc::CRuntimeExc("Unable to cast value from [%1] to [%2].", util::toStr(value),
                               util::type_name<std::uint8_t>());
    return static_cast<std::uint8_t>(value);
}

} // namespace

CScheduleTime::CScheduleTime(unsigned long hours, unsigned long minutes) noexcept : m_hours(hours), m_minutes(minutes)
{
}

CScheduleTime CScheduleTime::FromTimeStr(const std::string& text, bool /*periodical*/)
try
{
    const auto parts = util::str_tokenize(text, ':');
    if (parts.size() != 2)
        throw exc::CRuntimeExc("Bad time pair string.");
    return CScheduleTime(util::str_to_uint(parts[0]), util::str_to_uint(parts[1]));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to parse time.", cause);
}

CScheduleTime CScheduleTime::FromUnixTime(long seconds)
try
{
    long hours = 0;
    long minutes = 0;
    long rest = 0;
    datetime::CTimeSpan(seconds).getDurationHMS(hours, minutes, rest);
    return CScheduleTime(narrowToByte(hours), narrowToByte(minutes));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to convert from UnixTime.", cause);
}

void CScheduleTime::Set(unsigned long hours, unsigned long minutes) noexcept
{
    m_hours = hours;
    m_minutes = minutes;
}

void CScheduleTime::SetHours(unsigned long hours) noexcept
{
    m_hours = hours;
}

void CScheduleTime::SetMinutes(unsigned long minutes) noexcept
{
    m_minutes = minutes;
}

// The flag is taken and ignored, kept on purpose.
void CScheduleTime::Reset(bool /*periodical*/) noexcept
{
    Set(0, 0);
}

void CScheduleTime::FixQorTimeFormat(bool periodical) noexcept
{
    if (periodical && m_hours == 0 && m_minutes == 0)
        m_hours = LastHourOfPeriod;
}

std::pair<unsigned long, unsigned long> CScheduleTime::Get() const noexcept
{
    return {m_hours, m_minutes};
}

unsigned long CScheduleTime::GetHours() const noexcept
{
    return m_hours;
}

unsigned long CScheduleTime::GetMinutes() const noexcept
{
    return m_minutes;
}

unsigned long CScheduleTime::ToSeconds() const noexcept
{
    return m_hours * 3600 + m_minutes * 60;
}

// 24:30 passes as a period, kept on purpose.
void CScheduleTime::Validate(bool periodically) const
try
{
    if (periodically && m_hours > LastHourOfPeriod)
        throw exc::CRuntimeExc("Wrong hours of period.");
    if (!periodically && m_hours > LastHourOfDay)
        throw exc::CRuntimeExc("Wrong hours of time.");
    if (m_minutes >= MinutesOfHour)
        throw exc::CRuntimeExc("Wrong minutes.");
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to validate time [%1] (schedule is periodically? [%2]).", ToTimeStr(),
                       util::toStr(periodically), cause);
}

std::string CScheduleTime::ToTimeStr() const
{
    return util::str_format("%1:%2", NumberToTwoDigitNumber(m_hours), NumberToTwoDigitNumber(m_minutes));
}

std::string CScheduleTime::ToUserFriendlyStr() const
{
    const auto hours = HoursToUserFriendlyStr(m_hours);
    const auto minutes = MinutesToUserFriendlyStr(m_minutes);
    if (m_hours != 0 && m_minutes != 0)
        return util::str_format("%1 %2", hours, minutes);
    return m_hours != 0 ? hours : minutes;
}

std::string CScheduleTime::NumberToTwoDigitNumber(unsigned long number)
{
    const auto text = util::toStr(number);
    return text.size() == 1 ? "0" + text : text;
}

std::string CScheduleTime::HoursToUserFriendlyStr(unsigned long hours)
{
    return util::str_format(hours == 1 ? "%1 hour" : "%1 hours", util::toStr(hours));
}

std::string CScheduleTime::MinutesToUserFriendlyStr(unsigned long minutes)
{
    return util::str_format(minutes == 1 ? "%1 minute" : "%1 minutes", util::toStr(minutes));
}

} // namespace zelplatform::model::structs
