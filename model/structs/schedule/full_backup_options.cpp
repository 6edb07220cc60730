#include <zelmodel/structs/schedule/full_backup_options.h>

#include <utility>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_undo.h>

#include "detail/optional_attribute.h"
#include "detail/schedule_names.h"

namespace zelplatform::model::structs
{
namespace
{

namespace names = detail::schedule_names;

const CScheduleCalendar& defaultCalendar()
{
    static const CScheduleCalendar firstOfEveryMonth(EScheduleType::Monthly, std::nullopt, CWeekMask(true),
                                                     CMonthMask(true), EWeekDayNumber::Every, CDayOfMonth(1));
    return firstOfEveryMonth;
}

const char* elementName(EFullBackupType type) noexcept
{
    return type == SyntheticFull ? names::SyntheticFullOptions : names::ActiveFullOptions;
}

} // namespace

CFullBackupOptions::CFullBackupOptions(EFullBackupType type)
    : m_calendar(defaultCalendar()), m_isEnabled(false), m_type(type)
{
}

CFullBackupOptions::CFullBackupOptions(CScheduleCalendar calendar, bool enabled, EFullBackupType type)
    : m_calendar(std::move(calendar)), m_isEnabled(enabled), m_type(type)
{
}

void CFullBackupOptions::SetWeekly(const CWeekMask& weekMask)
try
{
    m_calendar.SetWeekly(std::nullopt, weekMask);
    Enable();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ActiveFullOptions: Failed set weekly schedule.", cause);
}

void CFullBackupOptions::SetMonthly(EWeekDayNumber::type weekDayNumber, datetime::EDayOfWeek::type dayOfWeek,
                                    const CMonthMask& monthMask)
try
{
    m_calendar.SetMonthly(std::nullopt, weekDayNumber, dayOfWeek, monthMask);
    Enable();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ActiveFullOptions: Failed set monthly schedule.", cause);
}

void CFullBackupOptions::SetMonthlyOnDay(const CDayOfMonth& dayOfMonth, const CMonthMask& monthMask)
try
{
    m_calendar.SetMonthlyOnDay(std::nullopt, dayOfMonth, monthMask);
    Enable();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ActiveFullOptions: Failed set monthly schedule on day [%1].", util::toStr(dayOfMonth.Get()),
                       cause);
}

void CFullBackupOptions::SetDefaultWeekly()
try
{
    CWeekMask saturday(false);
    saturday.SetDay(datetime::EDayOfWeek::Saturday, true);
    SetWeekly(saturday);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ActiveFullOptions: Failed set default weekly.", cause);
}

void CFullBackupOptions::SetDefaultMonthly()
try
{
    m_calendar = defaultCalendar();
    Enable();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ActiveFullOptions: Failed set default monthly.", cause);
}

void CFullBackupOptions::Reset()
try
{
    SetDefaultMonthly();
    Disable();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ActiveFullOptions: Failed to reset.", cause);
}

void CFullBackupOptions::SetDayOfMonth(unsigned long day)
try
{
    m_calendar.GetDayOfMonth() = day;
    m_calendar.SetWeekDayNumber(EWeekDayNumber::Every);
    Enable();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ActiveFullOptions: Failed set day [%1] of month.", util::toStr(day), cause);
}

void CFullBackupOptions::SetDayOfMonthLast()
try
{
    m_calendar.GetDayOfMonth().SetLast();
    m_calendar.SetWeekDayNumber(EWeekDayNumber::Every);
    Enable();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ActiveFullOptions: Failed set last day of month.", cause);
}

void CFullBackupOptions::SetWeekDayNumber(EWeekDayNumber::type weekDayNumber)
{
    m_calendar.SetWeekDayNumber(weekDayNumber);
    Enable();
}

void CFullBackupOptions::ResetWeekDayNumber()
{
    SetWeekDayNumber(EWeekDayNumber::Every);
}

bool CFullBackupOptions::IsScheduledAt(const datetime::CDateTime& date) const
try
{
    return m_isEnabled && m_calendar.IsScheduledAtDate(date);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ActiveFullOptions: Failed to check that date [%1] is on.", CDate(date).toString(), cause);
}

bool CFullBackupOptions::IsTodayScheduled(const std::shared_ptr<ITimeManager>& timeManager) const
try
{
    return m_isEnabled && m_calendar.IsTodayScheduled(timeManager);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ActiveFullOptions: Failed to check that today is on.", cause);
}

std::string CFullBackupOptions::ToLogStr(bool shortNames) const
{
    return m_calendar.ToLogStr(shortNames);
}

std::string CFullBackupOptions::GetRootNodeName(EFullBackupType type)
{
    return elementName(type);
}

void CFullBackupOptions::ToXml(xmlpp::CXmlNode& parent) const
try
{
    const xmlpp::CXmlUndo undo(parent);
    auto node = parent.AddNode(elementName(m_type));
    node.SetUint64Attribute(names::Version, s_version);
    node.SetBoolAttribute(names::IsEnabled, m_isEnabled);
    m_calendar.ToXml(node);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ActiveFullOptions: Failed to serialize to Xml.", cause);
}

CFullBackupOptions CFullBackupOptions::FromXml(const xmlpp::CXmlNode& parent, EFullBackupType type)
try
{
    const auto node = parent.FindChildNode(elementName(type));
    if (!node)
        return CFullBackupOptions(type);
    unsigned long version = s_version;
    detail::readIfPresent(*node, names::Version, version);
    if (version > s_version)
        throw exc::CRuntimeExc("Unknown version: [%1].", util::toStr(version));
    const bool isEnabled = node->GetBoolAttribute(names::IsEnabled);
    return CFullBackupOptions(CScheduleCalendar::FromXml(*node), isEnabled, type);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ActiveFullOptions: Failed to deserialize from Xml.", cause);
}

} // namespace zelplatform::model::structs
