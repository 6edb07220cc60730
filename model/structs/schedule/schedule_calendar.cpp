#include <zelmodel/structs/schedule/schedule_calendar.h>

#include <utility>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model::structs
{
namespace
{

using datetime::EDayOfWeek;
using datetime::EMonth;

CWeekMask onlyDay(EDayOfWeek::type day)
{
    CWeekMask mask(false);
    mask.SetDay(day, true);
    return mask;
}

EDayOfWeek::type theOneWeekDay(const CWeekMask& mask)
{
    const auto days = mask.ToWeekDays();
    if (days.size() != 1)
        throw exc::CRuntimeExc("Wrong number of week days [%1] for monthly schedule", util::toStr(days.size()));
    return days.front();
}

// A time as it is stored, which is refused when it is out of range.
std::optional<CScheduleTime> checkedTime(std::optional<CScheduleTime> time, bool periodical)
{
    if (time)
    {
        time->FixQorTimeFormat(periodical);
        time->Validate(periodical);
    }
    return time;
}

bool isTiedToDays(const CScheduleCalendar& calendar) noexcept
{
    return calendar.IsScheduleWeekly() || calendar.IsScheduleMonthly();
}

bool isEveryDayOfWeek(const CScheduleCalendar& calendar)
{
    return calendar.IsScheduleWeekly() && calendar.GetWeekMask().IsAllDaysOn();
}

} // namespace

CScheduleCalendar::CScheduleCalendar()
    : m_weekDayNumber(EWeekDayNumber::First),
      m_weekMask(onlyDay(EDayOfWeek::Monday)),
      m_monthMask(true),
      m_type(EScheduleType::Monthly)
{
}

CScheduleCalendar::CScheduleCalendar(EScheduleType::type type, const std::optional<CScheduleTime>& time,
                                     const CWeekMask& weekMask, const CMonthMask& monthMask,
                                     EWeekDayNumber::type weekDayNumber, const CDayOfMonth& dayOfMonth)
try : m_weekDayNumber(weekDayNumber), m_weekMask(false), m_monthMask(false), m_type(type)
{
    switch (type)
    {
    case EScheduleType::Weekly: SetWeekly(time, weekMask); break;
    case EScheduleType::Monthly:
        if (dayOfMonth.IsSet())
            SetMonthlyOnDay(time, dayOfMonth, monthMask);
        else
            SetMonthly(time, weekDayNumber, theOneWeekDay(weekMask), monthMask);
        break;
    case EScheduleType::Periodically:
        if (!time)
            throw exc::CRuntimeExc("Time for periodical schedule is not set");
        SetPeriodically(*time);
        break;
    case EScheduleType::Continuously: SetContinuously(); break;
    default: throw exc::CRuntimeExc("Unexpected type of schedule: [%1]", util::toStr(type));
    }
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to create schedule calendar via god constructor", cause);
}

void CScheduleCalendar::SetWeekly(const std::optional<CScheduleTime>& time, const CWeekMask& weekMask)
try
{
    const auto checked = checkedTime(time, false);
    Store(EScheduleType::Weekly, checked, EWeekDayNumber::Every, CDayOfMonth(), weekMask, CMonthMask(true));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleCalendar: Failed to set weekly schedule.", cause);
}

void CScheduleCalendar::SetMonthly(const std::optional<CScheduleTime>& time, EWeekDayNumber::type weekDayNumber,
                                   EDayOfWeek::type dayOfWeek, const CMonthMask& monthMask)
try
{
    if (weekDayNumber == EWeekDayNumber::Every)
        throw exc::CRuntimeExc(
            "Schedule on every day of week is forbidden in monthly schedule - it is weekly schedule.");
    const auto checked = checkedTime(time, false);
    Store(EScheduleType::Monthly, checked, weekDayNumber, CDayOfMonth(), onlyDay(dayOfWeek), monthMask);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleCalendar: Failed to set monthly schedule.", cause);
}

void CScheduleCalendar::SetMonthlyOnDay(const std::optional<CScheduleTime>& time, const CDayOfMonth& dayOfMonth,
                                        const CMonthMask& monthMask)
try
{
    if (!dayOfMonth.IsSet())
        throw exc::CRuntimeExc("Day of month is not set.");
    if (monthMask.IsAllMonthsOff())
        throw exc::CRuntimeExc("No one month is chosen.");
    const auto checked = checkedTime(time, false);
    Store(EScheduleType::Monthly, checked, EWeekDayNumber::Every, dayOfMonth, CWeekMask(true), monthMask);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleCalendar: Failed to set monthly schedule on day [%1].", util::toStr(dayOfMonth.Get()),
                       cause);
}

void CScheduleCalendar::SetPeriodically(const CScheduleTime& period)
try
{
    const auto checked = checkedTime(period, true);
    Store(EScheduleType::Periodically, checked, EWeekDayNumber::Every, CDayOfMonth(), CWeekMask(true),
          CMonthMask(true));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleCalendar: Failed to set periodical schedule.", cause);
}

void CScheduleCalendar::SetContinuously()
try
{
    Store(EScheduleType::Continuously, std::nullopt, EWeekDayNumber::Every, CDayOfMonth(), CWeekMask(true),
          CMonthMask(true));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleCalendar: Failed to set continuous schedule.", cause);
}

void CScheduleCalendar::SetDefaultWeekly(const std::optional<CScheduleTime>& time)
try
{
    SetWeekly(time, onlyDay(EDayOfWeek::Saturday));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleCalendar: Failed to set default weekly.", cause);
}

void CScheduleCalendar::SetDefaultMonthly(const std::optional<CScheduleTime>& time)
try
{
    SetMonthly(time, EWeekDayNumber::First, EDayOfWeek::Monday, CMonthMask(true));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleCalendar: Failed to set default monthly.", cause);
}

void CScheduleCalendar::SetWeekDayNumber(EWeekDayNumber::type weekDayNumber)
try
{
    if (!IsScheduleMonthly())
        throw exc::CRuntimeExc("Week day number may be changed only for month schedule");
    m_weekDayNumber = weekDayNumber;
    if (weekDayNumber != EWeekDayNumber::Every)
        m_dayOfMonth.Reset();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to set week day number", cause);
}

void CScheduleCalendar::SetTime(const std::optional<CScheduleTime>& time)
try
{
    m_time = checkedTime(time, IsSchedulePeriodically());
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to set time", cause);
}

void CScheduleCalendar::ResetTime() noexcept
{
    m_time.reset();
}

void CScheduleCalendar::Store(EScheduleType::type type, const std::optional<CScheduleTime>& time,
                              EWeekDayNumber::type weekDayNumber, const CDayOfMonth& dayOfMonth, CWeekMask weekMask,
                              CMonthMask monthMask) noexcept
{
    m_type = type;
    m_time = time;
    m_weekDayNumber = weekDayNumber;
    m_dayOfMonth = dayOfMonth;
    m_weekMask = std::move(weekMask);
    m_monthMask = std::move(monthMask);
}

bool CScheduleCalendar::ExpandTo(const CScheduleCalendar& other)
try
{
    if (isTiedToDays(*this) && isTiedToDays(other) && (isEveryDayOfWeek(other) || isEveryDayOfWeek(*this)))
    {
        SetWeekly(m_time, CWeekMask(true));
        return true;
    }
    if (m_type != other.m_type)
        return false;
    if (IsScheduleWeekly())
    {
        for (const auto day : other.m_weekMask.ToWeekDays())
            m_weekMask.SetDay(day, true);
        return true;
    }
    // The first Friday is absorbed by the first Monday and forgotten: the week days are not compared, on purpose.
    if (!IsScheduleMonthly() || m_dayOfMonth.Get() != other.m_dayOfMonth.Get() ||
        m_weekDayNumber != other.m_weekDayNumber)
        return false;
    const auto& otherMonths = other.m_monthMask.GetMask();
    for (std::size_t i = 0; i < otherMonths.size(); ++i)
    {
        if (otherMonths[i])
            m_monthMask.SetMonth(static_cast<EMonth::type>(i), true);
    }
    return true;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleCalendar: Failed to xor.", cause);
}

EScheduleType::type CScheduleCalendar::DetermineOldScheduleType(bool periodical) const noexcept
{
    if (periodical)
        return EScheduleType::Periodically;
    if (m_dayOfMonth.IsSet() || m_weekDayNumber != EWeekDayNumber::Every)
        return EScheduleType::Monthly;
    return EScheduleType::Weekly;
}

bool operator==(const CScheduleCalendar& a, const CScheduleCalendar& b)
{
    return a.m_type == b.m_type && a.m_time == b.m_time && a.m_weekMask == b.m_weekMask &&
           a.m_monthMask == b.m_monthMask && a.m_weekDayNumber == b.m_weekDayNumber &&
           a.m_dayOfMonth.Get() == b.m_dayOfMonth.Get();
}

} // namespace zelplatform::model::structs
