#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <zelmodel/export.h>
#include <zelmodel/structs/schedule/schedule_calendar.h>
#include <zelplatform/datetime/date_time.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

/// Which full backup is meant: read afresh from the source, or built from restore points that exist.
enum EFullBackupType : std::int32_t
{
    ActiveFull = 0,
    SyntheticFull = 1,
    Constructing = 2 ///< while an object is being built
};

/// Whether, and on which days, a job makes a full backup in place of an incremental one. The calendar is weekly or
/// monthly and has no time. Every schedule setter turns the options on once it has succeeded. All failures begin with
/// "ActiveFullOptions:", those of a synthetic full too, on purpose.
class ZELMODEL_API CFullBackupOptions
{
public:
    /// The version that ToXml writes.
    static constexpr unsigned long s_version = 1;

    /// Disabled, on the first day of every month.
    explicit CFullBackupOptions(EFullBackupType type);

    /// These, unchecked.
    CFullBackupOptions(CScheduleCalendar calendar, bool enabled, EFullBackupType type);

    /// On the days of the mask.
    void SetWeekly(const CWeekMask& weekMask);

    /// On the first to last such week day of the months; refuses EWeekDayNumber::Every.
    void SetMonthly(EWeekDayNumber::type weekDayNumber, datetime::EDayOfWeek::type dayOfWeek,
                    const CMonthMask& monthMask);

    /// On the day of the months; the day must be set and a month chosen.
    void SetMonthlyOnDay(const CDayOfMonth& dayOfMonth, const CMonthMask& monthMask);

    /// Every Saturday.
    void SetDefaultWeekly();

    /// The first day of every month.
    void SetDefaultMonthly();

    /// SetDefaultMonthly, then disabled.
    void Reset();

    /// Stores the day, 1..31 or the last one, then the week-day number Every. For a calendar that is not monthly the
    /// second step fails and the day stays changed, on purpose.
    void SetDayOfMonth(unsigned long day);
    void SetDayOfMonthLast();

    /// As CScheduleCalendar::SetWeekDayNumber, for a monthly calendar only. The reset stores Every.
    void SetWeekDayNumber(EWeekDayNumber::type weekDayNumber);
    void ResetWeekDayNumber();

    /// Whether full backups are made at all; the calendar stays.
    void SetEnabled(bool enabled) noexcept { m_isEnabled = enabled; }
    void Enable() noexcept { m_isEnabled = true; }
    void Disable() noexcept { m_isEnabled = false; }
    bool IsEnabled() const noexcept { return m_isEnabled; }
    bool IsDisabled() const noexcept { return !m_isEnabled; }

    /// What was given to the constructor.
    EFullBackupType GetType() const noexcept { return m_type; }

    /// The calendar itself; what is changed in it is not checked.
    const CScheduleCalendar& GetCalendar() const noexcept { return m_calendar; }
    CScheduleCalendar& GetCalendar() noexcept { return m_calendar; }

    /// As of the calendar.
    const CWeekMask& GetWeekMask() const noexcept { return m_calendar.GetWeekMask(); }
    const CMonthMask& GetMonthMask() const noexcept { return m_calendar.GetMonthMask(); }
    CMonthMask& GetMonthMask() noexcept { return m_calendar.GetMonthMask(); }
    const CDayOfMonth& GetDayOfMonth() const noexcept { return m_calendar.GetDayOfMonth(); }
    EWeekDayNumber::type GetWeekDayNumber() const noexcept { return m_calendar.GetWeekDayNumber(); }
    EScheduleType::type GetScheduleType() const noexcept { return m_calendar.GetScheduleType(); }
    bool IsScheduleWeekly() const noexcept { return m_calendar.IsScheduleWeekly(); }
    bool IsScheduleMonthly() const noexcept { return m_calendar.IsScheduleMonthly(); }

    /// False when disabled, else the calendar's answer for the date.
    bool IsScheduledAt(const datetime::CDateTime& date) const;

    /// False when disabled (the time manager is not asked then), else the calendar's answer for today.
    bool IsTodayScheduled(const std::shared_ptr<ITimeManager>& timeManager) const;

    /// Compares calendar, flag and type.
    friend bool operator==(const CFullBackupOptions& a, const CFullBackupOptions& b)
    {
        return a.m_calendar == b.m_calendar && a.m_isEnabled == b.m_isEnabled && a.m_type == b.m_type;
    }
    friend bool operator!=(const CFullBackupOptions& a, const CFullBackupOptions& b) { return !(a == b); }

    /// As CScheduleCalendar::ToLogStr, whether enabled or not.
    std::string ToLogStr(bool shortNames) const;

    /// "SyntheticFullOptions" for a synthetic full, "ActiveFullOptions" for any other value.
    static std::string GetRootNodeName(EFullBackupType type);

    /// Adds the child that GetRootNodeName names. Throws "ActiveFullOptions: Failed to serialize to Xml. ...".
    void ToXml(xmlpp::CXmlNode& parent) const;

    /// Reads the child of the type; a parent without it gives the default. Versions above 1 are refused. Throws
    /// "ActiveFullOptions: Failed to deserialize from Xml. ...".
    static CFullBackupOptions FromXml(const xmlpp::CXmlNode& parent, EFullBackupType type);

private:
    CScheduleCalendar m_calendar;
    bool m_isEnabled;
    EFullBackupType m_type;
};

} // namespace zelplatform::model::structs
