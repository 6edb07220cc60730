#include <zelmodel/structs/schedule/schedule_options.h>

#include <atomic>
#include <utility>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_document.h>
#include <zelplatform/xmlpp/xml_undo.h>

#include "detail/schedule_names.h"

namespace zelplatform::model::structs
{
namespace
{

namespace names = detail::schedule_names;

} // namespace

CScheduleOptions::CScheduleOptions() : m_activeFull(ActiveFull), m_syntheticFull(SyntheticFull) {}

CScheduleOptions::CScheduleOptions(const CScheduleOptions& other)
    : m_jobStart(other.m_jobStart),
      m_activeFull(other.m_activeFull),
      m_syntheticFull(other.m_syntheticFull),
      m_backupWindow(other.getBackupWindow())
{
}

CScheduleOptions::CScheduleOptions(CScheduleOptions&& other) noexcept
    : m_jobStart(std::move(other.m_jobStart)),
      m_activeFull(std::move(other.m_activeFull)),
      m_syntheticFull(std::move(other.m_syntheticFull)),
      m_backupWindow(std::atomic_exchange(&other.m_backupWindow, std::shared_ptr<BackupWindow>()))
{
}

CScheduleOptions& CScheduleOptions::operator=(const CScheduleOptions& other)
{
    return *this = CScheduleOptions(other);
}

CScheduleOptions& CScheduleOptions::operator=(CScheduleOptions&& other) noexcept
{
    if (this == &other)
        return *this;
    m_jobStart = std::move(other.m_jobStart);
    m_activeFull = std::move(other.m_activeFull);
    m_syntheticFull = std::move(other.m_syntheticFull);
    std::atomic_store(&m_backupWindow, std::atomic_exchange(&other.m_backupWindow, std::shared_ptr<BackupWindow>()));
    return *this;
}

CScheduleOptions::~CScheduleOptions() = default;

void CScheduleOptions::SetDefault()
try
{
    auto jobStart = m_jobStart;
    jobStart.SetDefaultWeekly();
    m_activeFull.Reset();
    m_jobStart = std::move(jobStart);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleOptions: Failed to set default weekly.", cause);
}

// The synthetic full is left out of both resets, kept on purpose.
void CScheduleOptions::ResetBoth()
try
{
    auto jobStart = m_jobStart;
    jobStart.Reset();
    m_activeFull.Reset();
    m_jobStart = std::move(jobStart);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleOptions: Failed to reset.", cause);
}

std::shared_ptr<BackupWindow> CScheduleOptions::getBackupWindow() const
{
    return std::atomic_load(&m_backupWindow);
}

void CScheduleOptions::setBackupWindow(const std::shared_ptr<BackupWindow>& window)
{
    std::atomic_store(&m_backupWindow, window);
}

bool CScheduleOptions::IsAtLeastOneEnabled() const noexcept
{
    return m_jobStart.IsEnabled() || m_activeFull.IsEnabled();
}

bool operator==(const CScheduleOptions& a, const CScheduleOptions& b)
{
    return a.m_jobStart == b.m_jobStart && a.m_activeFull.GetCalendar() == b.m_activeFull.GetCalendar() &&
           a.m_activeFull.IsEnabled() == b.m_activeFull.IsEnabled();
}

void CScheduleOptions::ToXml(xmlpp::CXmlNode& parent) const
try
{
    const xmlpp::CXmlUndo undo(parent);
    m_jobStart.ToXml(parent);
    m_activeFull.ToXml(parent);
    m_syntheticFull.ToXml(parent);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleOptions: Failed to serialize to Xml.", cause);
}

CScheduleOptions CScheduleOptions::FromXml(const xmlpp::CXmlNode& parent)
{
    CScheduleOptions options;
    options.ReadXml(parent);
    return options;
}

void CScheduleOptions::ReadXml(const xmlpp::CXmlNode& parent)
try
{
    auto jobStart = CStartJobScheduleOptions::FromXml(parent);
    auto activeFull = CFullBackupOptions::FromXml(parent, ActiveFull);
    m_syntheticFull = CFullBackupOptions::FromXml(parent, SyntheticFull);
    m_activeFull = std::move(activeFull);
    m_jobStart = std::move(jobStart);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleOptions: Failed to deserialize from Xml.", cause);
}

std::string CScheduleOptions::ToXmlString() const
try
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode(names::ScheduleOptions);
    ToXml(root);
    return document.Serialize();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleOptions: Failed to ToXmlString.", cause);
}

CScheduleOptions CScheduleOptions::FromXmlString(const std::string& text)
try
{
    return FromXml(xmlpp::CXmlDocument::Unserialize(text).GetRootNode(names::ScheduleOptions));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleOptions: Failed to convert FromXmlString: %1", text, cause);
}

void CScheduleOptions::Serialize(io::binary_stream_tt& stream) const
try
{
    const xmlpp::CXmlDocument document;
    auto top = document.ToNode();
    ToXml(top);
    stream << m_jobStart.IsEnabled() << static_cast<std::int32_t>(m_jobStart.GetScheduleType()) << document.Serialize();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleOptions: Failed to serialize.", cause);
}

// The flag and the type before the text repeat what the text says; they are passed over.
CScheduleOptions CScheduleOptions::Unserialize(io::binary_stream_tt& stream)
try
{
    std::uint8_t isEnabled = 0;
    std::int32_t scheduleType = 0;
    std::string text;
    stream >> isEnabled >> scheduleType >> text;
    return FromXml(xmlpp::CXmlDocument::Unserialize(text).ToNode());
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("ScheduleOptions: Failed to deserialize.", cause);
}

} // namespace zelplatform::model::structs
