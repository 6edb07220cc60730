#include <zelmodel/structs/schedule/schedule_calendar.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_undo.h>

#include "detail/schedule_names.h"

namespace zelplatform::model::structs
{
namespace
{

namespace names = detail::schedule_names;

EScheduleType::type readType(const xmlpp::CXmlNode& node, EScheduleType::type oldType)
{
    const auto type = node.FindAttribute(names::Type);
    return type ? static_cast<EScheduleType::type>(util::fromStr<int>(*type)) : oldType;
}

} // namespace

void CScheduleCalendar::ToXml(xmlpp::CXmlNode& node) const
try
{
    static constexpr const char* attributes[] = {names::WeekDayNumber, names::DayOfMonth, names::Type};
    const xmlpp::CXmlUndo undo(node, attributes);
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

// The members stand in the order in which they are read.
CScheduleCalendar::CScheduleCalendar(const xmlpp::CXmlNode& node, bool& isOldPeriodical)
    : m_weekDayNumber(EWeekDayNumber::FromStr(std::string(node.GetAttribute(names::WeekDayNumber)))),
      m_dayOfMonth(CDayOfMonth::FromXml(node)),
      m_weekMask(CWeekMask::FromXml(node)),
      m_monthMask(CMonthMask::FromXml(node)),
      m_time(CScheduleTime::FromXmlSafe(node, isOldPeriodical)),
      m_type(readType(node, DetermineOldScheduleType(isOldPeriodical)))
{
}

// Nothing is checked and no setter is used: a document may hold a calendar that the setters would refuse.
CScheduleCalendar CScheduleCalendar::FromXml(const xmlpp::CXmlNode& node)
try
{
    bool isOldPeriodical = false;
    return CScheduleCalendar(node, isOldPeriodical);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleCalendar: Failed to deserialize from Xml.", cause);
}

} // namespace zelplatform::model::structs
