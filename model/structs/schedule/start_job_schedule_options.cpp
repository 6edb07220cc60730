#include <zelmodel/structs/schedule/start_job_schedule_options.h>

#include <utility>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model::structs
{
namespace
{

constexpr const char* ClassName = "CStartJobScheduleOptions";

const CScheduleCalendar& defaultCalendar()
{
    static const CScheduleCalendar everyDayAfterMidnight(EScheduleType::Weekly, CScheduleTime(0, 30), CWeekMask(true),
                                                         CMonthMask(true), EWeekDayNumber::Every, CDayOfMonth());
    return everyDayAfterMidnight;
}

} // namespace

CStartJobScheduleOptions::CStartJobScheduleOptions() : m_calendar(defaultCalendar()), m_isEnabled(false) {}

CStartJobScheduleOptions::CStartJobScheduleOptions(bool enabled, std::optional<CScheduleCalendar> calendar)
    : m_calendar(calendar ? *std::move(calendar) : CScheduleCalendar()), m_isEnabled(enabled)
{
}

void CStartJobScheduleOptions::SetWeekly(std::uint8_t hours, std::uint8_t minutes, const CWeekMask& weekMask)
try
{
    m_calendar.SetWeekly(CScheduleTime(hours, minutes), weekMask);
    Enable();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed set weekly schedule.", ClassName, cause);
}

void CStartJobScheduleOptions::SetMonthly(std::uint8_t hours, std::uint8_t minutes, EWeekDayNumber::type weekDayNumber,
                                          datetime::EDayOfWeek::type dayOfWeek, const CMonthMask& monthMask)
try
{
    m_calendar.SetMonthly(CScheduleTime(hours, minutes), weekDayNumber, dayOfWeek, monthMask);
    Enable();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed set monthly schedule.", ClassName, cause);
}

void CStartJobScheduleOptions::SetMonthlyOnDay(std::uint8_t hours, std::uint8_t minutes, const CDayOfMonth& dayOfMonth,
                                               const CMonthMask& monthMask)
try
{
    m_calendar.SetMonthlyOnDay(CScheduleTime(hours, minutes), dayOfMonth, monthMask);
    Enable();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed set monthly schedule on day [%2].", ClassName, util::toStr(dayOfMonth.Get()), cause);
}

void CStartJobScheduleOptions::SetPeriodically(std::uint8_t hours, std::uint8_t minutes)
try
{
    m_calendar.SetPeriodically(CScheduleTime(hours, minutes));
    Enable();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed set periodically at [%2:%3].", ClassName, util::toStr(hours), util::toStr(minutes),
                       cause);
}

void CStartJobScheduleOptions::SetContinuously()
try
{
    m_calendar.SetContinuously();
    Enable();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed set continuously.", ClassName, cause);
}

void CStartJobScheduleOptions::SetDefaultWeekly()
try
{
    m_calendar = defaultCalendar();
    Enable();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to set default weekly.", ClassName, cause);
}

void CStartJobScheduleOptions::SetDayOfMonth(unsigned long day)
try
{
    m_calendar.GetDayOfMonth() = day;
    m_calendar.SetWeekDayNumber(EWeekDayNumber::Every);
    Enable();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed set day [%2] of month.", ClassName, util::toStr(day), cause);
}

void CStartJobScheduleOptions::SetDayOfMonthLast()
try
{
    m_calendar.GetDayOfMonth().SetLast();
    m_calendar.SetWeekDayNumber(EWeekDayNumber::Every);
    Enable();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed set last day of month.", ClassName, cause);
}

void CStartJobScheduleOptions::SetWeekDayNumber(EWeekDayNumber::type weekDayNumber)
{
    m_calendar.SetWeekDayNumber(weekDayNumber);
    Enable();
}

void CStartJobScheduleOptions::ResetWeekDayNumber()
{
    SetWeekDayNumber(EWeekDayNumber::Every);
}

void CStartJobScheduleOptions::Reset()
{
    SetDefaultWeekly();
    Disable();
}

bool CStartJobScheduleOptions::IsServerSchedule() const noexcept
{
    return IsScheduleMonthly() || m_calendar.IsScheduleRecurrent();
}

bool CStartJobScheduleOptions::IsScheduledAt(const datetime::CDateTime& date) const
{
    return m_isEnabled && m_calendar.IsScheduledAtDate(date);
}

std::string CStartJobScheduleOptions::ToLogStr(bool shortNames) const
try
{
    return m_calendar.ToLogStr(shortNames);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to convert to log string.", ClassName, cause);
}

} // namespace zelplatform::model::structs
