#include <zelmodel/structs/schedule/schedule_calendar.h>

#include <utility>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/schedule_names.h"

namespace zelplatform::model::structs
{
namespace
{

namespace names = detail::schedule_names;

} // namespace

/// The fields in the order in which they are read.
struct CScheduleCalendar::AsRead
{
    EWeekDayNumber::type weekDayNumber;
    CDayOfMonth dayOfMonth;
    CWeekMask weekMask;
    CMonthMask monthMask;
    bool isOldPeriodical = false;
    std::optional<CScheduleTime> time = std::nullopt;
};

CScheduleCalendar::CScheduleCalendar(AsRead&& fields)
    : m_type(EScheduleType::Weekly),
      m_time(fields.time),
      m_weekMask(std::move(fields.weekMask)),
      m_monthMask(std::move(fields.monthMask)),
      m_weekDayNumber(fields.weekDayNumber),
      m_dayOfMonth(fields.dayOfMonth)
{
}

void CScheduleCalendar::ToXml(xmlpp::CXmlNode& node) const
try
{
    node.SetAttribute(names::WeekDayNumber, EWeekDayNumber::ToStr(m_weekDayNumber));
    m_dayOfMonth.ToXml(node);
    m_weekMask.ToXml(node);
    m_monthMask.ToXml(node);
    if (m_time)
        m_time->ToXml(node);
    node.SetInt64Attribute(names::Type, m_type);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleCalendar: Failed to serialize to Xml.", cause);
}

// Nothing is checked and no setter is used: a document may hold a calendar that the setters would refuse.
CScheduleCalendar CScheduleCalendar::FromXml(const xmlpp::CXmlNode& node)
try
{
    AsRead fields{EWeekDayNumber::FromStr(std::string(node.GetAttribute(names::WeekDayNumber))),
                  CDayOfMonth::FromXml(node), CWeekMask::FromXml(node), CMonthMask::FromXml(node)};
    fields.time = CScheduleTime::FromXmlSafe(node, fields.isOldPeriodical);
    const bool isOldPeriodical = fields.isOldPeriodical;
    CScheduleCalendar calendar(std::move(fields));
    const auto type = node.FindAttribute(names::Type);
    calendar.m_type = type ? static_cast<EScheduleType::type>(util::fromStr<int>(*type))
                           : calendar.DetermineOldScheduleType(isOldPeriodical);
    return calendar;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleCalendar: Failed to deserialize from Xml.", cause);
}

} // namespace zelplatform::model::structs
