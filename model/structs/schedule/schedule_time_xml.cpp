#include <zelmodel/structs/schedule/schedule_time.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_undo.h>

#include "detail/schedule_names.h"

namespace zelplatform::model::structs
{
namespace
{

namespace names = detail::schedule_names;

constexpr unsigned long PeriodicalType = 1;
constexpr unsigned long LowByte = 0xFF;

} // namespace

void CScheduleTime::ToXml(xmlpp::CXmlNode& parent) const
try
{
    const xmlpp::CXmlUndo undo(parent);
    auto node = parent.AddNode(names::Time);
    node.SetUint64Attribute(names::Hours, m_hours);
    node.SetUint64Attribute(names::Minutes, m_minutes);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleTime: Failed to serialize to Xml.", cause);
}

// Hours="300" reads as 44: the format keeps eight bits of each number, on purpose.
std::optional<CScheduleTime> CScheduleTime::FromXmlSafe(const xmlpp::CXmlNode& node, bool& isPeriodical)
try
{
    const auto child = node.FindChildNode(names::Time);
    const auto& element = child ? *child : node;
    isPeriodical = false;
    if (const auto type = element.FindAttribute(names::Type))
        isPeriodical = util::fromStr<unsigned long>(*type) == PeriodicalType;
    if (!element.HasAttribute(names::Hours) && !element.HasAttribute(names::Minutes))
        return std::nullopt;
    const auto hours = element.GetUint64Attribute(names::Hours);
    const auto minutes = element.GetUint64Attribute(names::Minutes);
    return CScheduleTime(hours & LowByte, minutes & LowByte);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleTime: Failed to deserialize from Xml (safe)", cause);
}

CScheduleTime CScheduleTime::FromXml(const xmlpp::CXmlNode& node)
try
{
    bool isPeriodical = false;
    return FromXmlSafe(node, isPeriodical).value();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleTime: Failed to deserialize from Xml.", cause);
}

} // namespace zelplatform::model::structs
