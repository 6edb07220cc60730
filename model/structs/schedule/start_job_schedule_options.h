#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <zelmodel/export.h>
#include <zelmodel/structs/schedule/schedule_calendar.h>
#include <zelplatform/datetime/date_time.h>
#include <zelplatform/io/io.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

/// Whether a job starts by itself, and when. Every schedule setter turns the options on once it has succeeded.
class ZELMODEL_API CStartJobScheduleOptions
{
public:
    /// The version that ToXml writes.
    static constexpr unsigned long s_version = 3;

    /// Disabled, every day at 00:30.
    CStartJobScheduleOptions();

    /// The flag and, when given, the calendar; without one the calendar is its own default, the first Monday of every
    /// month.
    CStartJobScheduleOptions(bool enabled, std::optional<CScheduleCalendar> calendar);

    /// At a time of day, hours 0..23 and minutes 0..59, on days as CScheduleCalendar takes them. The failures begin
    /// with "CStartJobScheduleOptions: Failed set".
    void SetWeekly(std::uint8_t hours, std::uint8_t minutes, const CWeekMask& weekMask);
    void SetMonthly(std::uint8_t hours, std::uint8_t minutes, EWeekDayNumber::type weekDayNumber,
                    datetime::EDayOfWeek::type dayOfWeek, const CMonthMask& monthMask);
    void SetMonthlyOnDay(std::uint8_t hours, std::uint8_t minutes, const CDayOfMonth& dayOfMonth,
                         const CMonthMask& monthMask);

    /// The length of the period, at most 24 hours and 59 minutes; 0:00 is stored as 24:00.
    void SetPeriodically(std::uint8_t hours, std::uint8_t minutes);

    /// One run after the other.
    void SetContinuously();

    /// Every day at 00:30.
    void SetDefaultWeekly();

    /// Stores the day, 1..31 or the last one, then the week-day number Every. For a calendar that is not monthly the
    /// second step fails and the day stays changed, on purpose.
    void SetDayOfMonth(unsigned long day);
    void SetDayOfMonthLast();

    /// As CScheduleCalendar::SetWeekDayNumber, for a monthly calendar only. The reset stores Every.
    void SetWeekDayNumber(EWeekDayNumber::type weekDayNumber);
    void ResetWeekDayNumber();

    /// SetDefaultWeekly, then disabled.
    void Reset();

    /// Whether the job starts by itself; the calendar stays.
    void SetEnabled(bool enabled) noexcept { m_isEnabled = enabled; }
    void Enable() noexcept { m_isEnabled = true; }
    void Disable() noexcept { m_isEnabled = false; }
    bool IsEnabled() const noexcept { return m_isEnabled; }
    bool IsDisabled() const noexcept { return !m_isEnabled; }

    /// The calendar itself; what is changed in it is not checked.
    const CScheduleCalendar& GetCalendar() const noexcept { return m_calendar; }
    CScheduleCalendar& GetCalendar() noexcept { return m_calendar; }

    /// The time of day or period; throws std::bad_optional_access when there is none.
    const CScheduleTime& GetTime() const { return m_calendar.GetTime(); }

    /// As of the calendar.
    const CWeekMask& GetWeekMask() const noexcept { return m_calendar.GetWeekMask(); }
    const CMonthMask& GetMonthMask() const noexcept { return m_calendar.GetMonthMask(); }
    const CDayOfMonth& GetDayOfMonth() const noexcept { return m_calendar.GetDayOfMonth(); }
    EWeekDayNumber::type GetWeekDayNumber() const noexcept { return m_calendar.GetWeekDayNumber(); }
    EScheduleType::type GetScheduleType() const noexcept { return m_calendar.GetScheduleType(); }
    bool IsScheduleWeekly() const noexcept { return m_calendar.IsScheduleWeekly(); }
    bool IsScheduleMonthly() const noexcept { return m_calendar.IsScheduleMonthly(); }
    bool IsSchedulePeriodically() const noexcept { return m_calendar.IsSchedulePeriodically(); }

    /// True for monthly, periodical and continuous calendars; a weekly one is no server schedule, on purpose.
    bool IsServerSchedule() const noexcept;

    /// False when disabled, else the calendar's answer for the date.
    bool IsScheduledAt(const datetime::CDateTime& date) const;

    friend bool operator==(const CStartJobScheduleOptions& a, const CStartJobScheduleOptions& b)
    {
        return a.m_isEnabled == b.m_isEnabled && a.m_calendar == b.m_calendar;
    }
    friend bool operator!=(const CStartJobScheduleOptions& a, const CStartJobScheduleOptions& b) { return !(a == b); }

    /// As CScheduleCalendar::ToLogStr, whether enabled or not.
    std::string ToLogStr(bool shortNames) const;

    /// Adds the child "Schedule". Throws "CStartJobScheduleOptions: Failed to serialize to Xml. ...".
    void ToXml(xmlpp::CXmlNode& parent) const;

    /// Reads the child "Schedule" in the current layout (versions 0 and 3) or an older one (no version, 1 and 2); a
    /// parent without the child gives the default. Throws
    /// "CStartJobScheduleOptions: Failed to deserialize from Xml. ...".
    static CStartJobScheduleOptions FromXml(const xmlpp::CXmlNode& parent);

    /// Writes a 4-byte length and the XML text with "Schedule" at its top.
    void Serialize(io::binary_stream_tt& stream) const;

    /// Reads what Serialize writes.
    static CStartJobScheduleOptions Unserialize(io::binary_stream_tt& stream);

private:
    CScheduleCalendar m_calendar; ///< first: when copying it fails, the flag is not assigned either
    bool m_isEnabled;
};

} // namespace zelplatform::model::structs
