#pragma once

#include <memory>
#include <optional>
#include <string>

#include <zelmodel/datetime/date.h>
#include <zelmodel/datetime/time_manager.h>
#include <zelmodel/export.h>
#include <zelmodel/structs/schedule/day_of_month.h>
#include <zelmodel/structs/schedule/month_mask.h>
#include <zelmodel/structs/schedule/schedule_time.h>
#include <zelmodel/structs/schedule/schedule_type.h>
#include <zelmodel/structs/schedule/week_day_number.h>
#include <zelmodel/structs/schedule/week_mask.h>
#include <zelplatform/datetime/date_time.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

/// On which days, and at what time or with what period, something runs: weekly, monthly on a day or on a week day,
/// periodically or continuously. Every setter puts the fields that its kind does not use into a fixed state, so that
/// two calendars that mean the same compare equal. A calendar read from a document is taken as it stands: it may hold
/// what the setters would refuse.
class ZELMODEL_API CScheduleCalendar
{
public:
    /// Monthly, on the first Monday of every month, without time.
    CScheduleCalendar();

    CScheduleCalendar(const CScheduleCalendar&) = default;
    CScheduleCalendar(CScheduleCalendar&&) noexcept = default;
    CScheduleCalendar& operator=(CScheduleCalendar&&) noexcept = default;
    ~CScheduleCalendar() = default;

    /// All or nothing.
    CScheduleCalendar& operator=(const CScheduleCalendar& other) { return *this = CScheduleCalendar(other); }

    /// Builds a calendar of the type through its setter. A monthly one takes the day of month when it is set, else the
    /// one week day of the mask. Throws "Failed to create schedule calendar via god constructor ...".
    CScheduleCalendar(EScheduleType::type type, const std::optional<CScheduleTime>& time, const CWeekMask& weekMask,
                      const CMonthMask& monthMask, EWeekDayNumber::type weekDayNumber, const CDayOfMonth& dayOfMonth);

    /// On the days of the mask. Each setter checks the time first, hours 0..23 and minutes 0..59, and changes nothing
    /// when it fails; the failures begin with "ScheduleCalendar: Failed to set".
    void SetWeekly(const std::optional<CScheduleTime>& time, const CWeekMask& weekMask);

    /// On the first to last such week day of the months. Refuses EWeekDayNumber::Every: that is a weekly schedule.
    void SetMonthly(const std::optional<CScheduleTime>& time, EWeekDayNumber::type weekDayNumber,
                    datetime::EDayOfWeek::type dayOfWeek, const CMonthMask& monthMask);

    /// The day must be set and a month chosen.
    void SetMonthlyOnDay(const std::optional<CScheduleTime>& time, const CDayOfMonth& dayOfMonth,
                         const CMonthMask& monthMask);

    /// The time is the length of the period, at most 24 hours and 59 minutes; 0:00 is stored as 24:00.
    void SetPeriodically(const CScheduleTime& period);

    /// One run after the other, without days and time.
    void SetContinuously();

    /// Every Saturday.
    void SetDefaultWeekly(const std::optional<CScheduleTime>& time);

    /// The first Monday of every month.
    void SetDefaultMonthly(const std::optional<CScheduleTime>& time);

    /// For a monthly calendar only. Any number but Every makes the day of month not set; Every keeps it, on purpose.
    void SetWeekDayNumber(EWeekDayNumber::type weekDayNumber);

    /// Checks the time by the calendar's kind and stores it, or removes it when none is given.
    void SetTime(const std::optional<CScheduleTime>& time);

    /// Removes the time.
    void ResetTime() noexcept;

    /// Makes this calendar cover the other one too where that is possible without changing the kind of its days; true
    /// when it does now. Times are left alone; of two monthly calendars the week days are not compared. Throws
    /// "ScheduleCalendar: Failed to xor. ...".
    bool ExpandTo(const CScheduleCalendar& other);

    /// The kind, and whether it is the one that is named; of a document it may be any number.
    EScheduleType::type GetScheduleType() const noexcept { return m_type; }
    bool IsScheduleWeekly() const noexcept { return m_type == EScheduleType::Weekly; }
    bool IsScheduleMonthly() const noexcept { return m_type == EScheduleType::Monthly; }
    bool IsSchedulePeriodically() const noexcept { return m_type == EScheduleType::Periodically; }
    bool IsScheduleContinuously() const noexcept { return m_type == EScheduleType::Continuously; }

    /// Periodically or continuously.
    bool IsScheduleRecurrent() const noexcept { return IsSchedulePeriodically() || IsScheduleContinuously(); }

    /// True unless the calendar is recurrent: a full backup can be tied to days only.
    bool IsActiveFullSupported() const noexcept { return !IsScheduleRecurrent(); }

    /// The time of day or period; throws std::bad_optional_access when there is none.
    const CScheduleTime& GetTime() const { return m_time.value(); }

    /// The time of day or period, or nothing.
    const std::optional<CScheduleTime>& TryGetTime() const noexcept { return m_time; }
    bool IsTimeSet() const noexcept { return m_time.has_value(); }

    /// The fields as they are stored; what is changed in them is not checked.
    const CWeekMask& GetWeekMask() const noexcept { return m_weekMask; }
    CWeekMask& GetWeekMask() noexcept { return m_weekMask; }
    const CMonthMask& GetMonthMask() const noexcept { return m_monthMask; }
    CMonthMask& GetMonthMask() noexcept { return m_monthMask; }
    const CDayOfMonth& GetDayOfMonth() const noexcept { return m_dayOfMonth; }
    CDayOfMonth& GetDayOfMonth() noexcept { return m_dayOfMonth; }
    EWeekDayNumber::type GetWeekDayNumber() const noexcept { return m_weekDayNumber; }

    /// The type of a calendar from a document without one.
    EScheduleType::type DetermineOldScheduleType(bool periodical) const noexcept;

    /// True when the calendar covers the date; the time of day plays no part, and a recurrent calendar covers every
    /// date. Throws "ScheduleCalendar: Failed to check that date [%1] is on. ..." for a calendar that cannot be
    /// evaluated.
    bool IsScheduledAtDate(const datetime::CDateTime& date) const;

    /// IsScheduledAtDate of the manager's local time.
    bool IsTodayScheduled(const std::shared_ptr<ITimeManager>& timeManager) const;

    /// The latest scheduled day on or before the date, looked for in the eight days or the year before it. Without one
    /// the result is the day just before that range: treat a result earlier than a year before the date as none. Throws
    /// for a recurrent calendar and for one without days or months.
    CDate GetPrevScheduleDateFromDate(const CDate& date) const;

    /// The first scheduled day after the date, or nothing when none comes within 41 years. Agrees with
    /// IsScheduledAtDate on every day and throws as it does; nothing is scheduled beyond the year 9999.
    std::optional<CDate> GetNextScheduleDateFromDate(const CDate& date) const;

    friend ZELMODEL_API bool operator==(const CScheduleCalendar& a, const CScheduleCalendar& b);
    friend bool operator!=(const CScheduleCalendar& a, const CScheduleCalendar& b) { return !(a == b); }

    /// The calendar in one line of words: "First Monday of every month at 22 hours". The time of day reads as a
    /// duration, on purpose.
    std::string ToLogStr(bool shortNames) const;

    /// Writes attributes and children into the owner's element. Throws
    /// "ScheduleCalendar: Failed to serialize to Xml. ...".
    void ToXml(xmlpp::CXmlNode& node) const;

    /// Reads what ToXml writes and the older form without "Type", without any check of what the fields mean together.
    /// Throws "ScheduleCalendar: Failed to deserialize from Xml. ...".
    static CScheduleCalendar FromXml(const xmlpp::CXmlNode& node);

private:
    CScheduleCalendar(const xmlpp::CXmlNode& node, bool& isOldPeriodical);

    void Store(EScheduleType::type type, const std::optional<CScheduleTime>& time, EWeekDayNumber::type weekDayNumber,
               const CDayOfMonth& dayOfMonth, CWeekMask weekMask, CMonthMask monthMask) noexcept;
    std::string DaysToLogStr(bool shortNames) const;
    std::string MonthsToLogStr(bool shortNames) const;

    EWeekDayNumber::type m_weekDayNumber;
    CDayOfMonth m_dayOfMonth;
    CWeekMask m_weekMask;
    CMonthMask m_monthMask;
    std::optional<CScheduleTime> m_time;
    EScheduleType::type m_type;
};

} // namespace zelplatform::model::structs
