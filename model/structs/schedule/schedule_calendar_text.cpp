#include <zelmodel/structs/schedule/schedule_calendar.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model::structs
{

std::string CScheduleCalendar::ToLogStr(bool shortNames) const
{
    switch (m_type)
    {
    case EScheduleType::Continuously: return "Continuously";
    case EScheduleType::Periodically: return util::str_format("Every %1 (periodical)", GetTime().ToUserFriendlyStr());
    case EScheduleType::Weekly:
    case EScheduleType::Monthly: break;
    default: throw exc::CRuntimeExc("Unsupported schedule type [%1]", util::toStr(m_type));
    }
    // The time of day is told as a duration, "at 22 hours 30 minutes", kept on purpose.
    const auto time = m_time ? util::str_format(" at %1", m_time->ToUserFriendlyStr()) : std::string();
    return util::str_format("%1 %2%3%4", EWeekDayNumber::ToStr(m_weekDayNumber), DaysToLogStr(shortNames),
                            MonthsToLogStr(shortNames), time);
}

std::string CScheduleCalendar::DaysToLogStr(bool shortNames) const
{
    if (m_dayOfMonth.IsSetLast())
        return "last day";
    if (m_dayOfMonth.IsSet())
        return util::str_format("%1 day", util::toStr(m_dayOfMonth.Get()));
    if (m_weekMask.IsAllDaysOn())
        return m_weekDayNumber == EWeekDayNumber::Every ? "day" : "all week days";
    return m_weekMask.ToLogStr(shortNames);
}

std::string CScheduleCalendar::MonthsToLogStr(bool shortNames) const
{
    if (!IsScheduleMonthly() || m_monthMask.IsAllMonthsOff())
        return {};
    if (m_monthMask.IsAllMonthsOn())
        return " of every month";
    return util::str_format(" of months %1", m_monthMask.ToLogStr(shortNames));
}

} // namespace zelplatform::model::structs
