#include <zelmodel/structs/schedule/start_job_schedule_options.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_document.h>
#include <zelplatform/xmlpp/xml_undo.h>

#include "detail/optional_attribute.h"
#include "detail/schedule_names.h"

namespace zelplatform::model::structs
{
namespace
{

namespace names = detail::schedule_names;

constexpr const char* ClassName = "CStartJobScheduleOptions";
constexpr unsigned long LastOldVersion = 2;

/// The schedule types of the layouts before version 3; they are not those of the calendar.
enum OldType : int
{
    OldDaily = 0,
    OldMonthly = 1,
    OldPeriodically = 2
};

// The older layouts keep the flag on the parent; the schedule setters have switched the options on before.
void readOldFlag(const xmlpp::CXmlNode& parent, CStartJobScheduleOptions& options)
{
    bool isEnabled = false;
    detail::readIfPresent(parent, names::Schedule, isEnabled);
    options.SetEnabled(isEnabled);
}

std::uint8_t hoursOf(const CScheduleTime& time) noexcept
{
    return static_cast<std::uint8_t>(time.GetHours());
}

std::uint8_t minutesOf(const CScheduleTime& time) noexcept
{
    return static_cast<std::uint8_t>(time.GetMinutes());
}

CStartJobScheduleOptions readOldDaily(const xmlpp::CXmlNode& parent)
try
{
    CStartJobScheduleOptions options;
    const auto node = parent.GetFirstChildNode(names::Schedule);
    const auto time = CScheduleTime::FromXml(node);
    options.SetWeekly(hoursOf(time), minutesOf(time), CWeekMask::FromXml(node));
    readOldFlag(parent, options);
    return options;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to deserialize old-formated daily options from Xml.", ClassName, cause);
}

CStartJobScheduleOptions readOldMonthly(const xmlpp::CXmlNode& parent)
try
{
    CStartJobScheduleOptions options;
    const auto node = parent.GetFirstChildNode(names::Schedule);
    const auto time = CScheduleTime::FromXml(node);
    const auto day = CDayOfMonth::FromXml(node);
    options.SetMonthlyOnDay(hoursOf(time), minutesOf(time), day, CMonthMask::FromXml(node));
    readOldFlag(parent, options);
    return options;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to deserialize old-formated monthly options from Xml.", ClassName, cause);
}

CStartJobScheduleOptions readOldPeriodically(const xmlpp::CXmlNode& parent)
try
{
    CStartJobScheduleOptions options;
    const auto time = CScheduleTime::FromXml(parent.GetFirstChildNode(names::Schedule));
    options.SetPeriodically(hoursOf(time), minutesOf(time));
    readOldFlag(parent, options);
    return options;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to deserialize old-formated periodically options from Xml.", ClassName, cause);
}

// Version 2 always has a type; before it a missing one means daily.
CStartJobScheduleOptions readOld(const xmlpp::CXmlNode& parent, const xmlpp::CXmlNode& node, unsigned long version)
{
    const bool hasType = version == LastOldVersion || node.HasAttribute(names::Type);
    const int type = hasType ? util::fromStr<int>(node.GetAttribute(names::Type)) : static_cast<int>(OldDaily);
    switch (type)
    {
    case OldDaily: return readOldDaily(parent);
    case OldMonthly: return readOldMonthly(parent);
    case OldPeriodically: return readOldPeriodically(parent);
    default: throw exc::CRuntimeExc("Schedule type [%1] is not supported.", util::toStr(type));
    }
}

} // namespace

void CStartJobScheduleOptions::ToXml(xmlpp::CXmlNode& parent) const
try
{
    const xmlpp::CXmlUndo undo(parent);
    auto node = parent.AddNode(names::Schedule);
    node.SetUint64Attribute(names::Version, s_version);
    node.SetBoolAttribute(names::IsEnabled, m_isEnabled);
    m_calendar.ToXml(node);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to serialize to Xml.", ClassName, cause);
}

// Version 0 reads as the current layout, kept on purpose.
CStartJobScheduleOptions CStartJobScheduleOptions::FromXml(const xmlpp::CXmlNode& parent)
try
{
    const auto node = parent.FindChildNode(names::Schedule);
    if (!node)
        return CStartJobScheduleOptions();
    unsigned long version = 1;
    detail::readIfPresent(*node, names::Version, version);
    if (version > s_version)
        throw exc::CRuntimeExc("Unknown version: [%1].", util::toStr(version));
    if (version != 0 && version <= LastOldVersion)
        return readOld(parent, *node, version);
    const bool isEnabled = node->GetBoolAttribute(names::IsEnabled);
    return CStartJobScheduleOptions(isEnabled, CScheduleCalendar::FromXml(*node));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to deserialize from Xml.", ClassName, cause);
}

void CStartJobScheduleOptions::Serialize(io::binary_stream_tt& stream) const
{
    const xmlpp::CXmlDocument document;
    auto top = document.ToNode();
    ToXml(top);
    stream << document.Serialize();
}

CStartJobScheduleOptions CStartJobScheduleOptions::Unserialize(io::binary_stream_tt& stream)
{
    std::string text;
    stream >> text;
    return FromXml(xmlpp::CXmlDocument::Unserialize(text).ToNode());
}

} // namespace zelplatform::model::structs
