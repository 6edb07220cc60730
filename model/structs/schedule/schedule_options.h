#pragma once

#include <memory>
#include <string>

#include <zelmodel/export.h>
#include <zelmodel/structs/schedule/backup_window.h>
#include <zelmodel/structs/schedule/full_backup_options.h>
#include <zelmodel/structs/schedule/start_job_schedule_options.h>
#include <zelplatform/io/io.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

/// The whole schedule of a backup job: when it starts, when it makes active and synthetic fulls, and in which hours it
/// may run. The window is in no stored form of the schedule, on purpose: it travels in a document of its own. One
/// thread may replace the window while others read or copy the object; the other fields are plain.
class ZELMODEL_API CScheduleOptions
{
public:
    CScheduleOptions();
    CScheduleOptions(const CScheduleOptions& other);
    CScheduleOptions(CScheduleOptions&& other) noexcept;
    CScheduleOptions& operator=(const CScheduleOptions& other);
    CScheduleOptions& operator=(CScheduleOptions&& other) noexcept;
    virtual ~CScheduleOptions();

    /// The start options become every day at 00:30 and enabled, the active full its default. The synthetic full stays.
    void SetDefault();

    /// Resets the start options and the active full. The synthetic full stays.
    void ResetBoth();

    const CStartJobScheduleOptions& GetJobStartOptions() const noexcept { return m_jobStart; }
    CStartJobScheduleOptions& GetJobStartOptions() noexcept { return m_jobStart; }
    void SetJobStartOptions(const CStartJobScheduleOptions& options) { m_jobStart = options; }

    const CFullBackupOptions& GetActiveFullOptions() const noexcept { return m_activeFull; }
    CFullBackupOptions& GetActiveFullOptions() noexcept { return m_activeFull; }
    void SetActiveFullOptions(const CFullBackupOptions& options) { m_activeFull = options; }

    const CFullBackupOptions& GetSyntheticFullOptions() const noexcept { return m_syntheticFull; }
    CFullBackupOptions& GetSyntheticFullOptions() noexcept { return m_syntheticFull; }
    void SetSyntheticFullOptions(const CFullBackupOptions& options) { m_syntheticFull = options; }

    /// The window, or an empty pointer; read and replaced atomically.
    std::shared_ptr<BackupWindow> getBackupWindow() const;
    void setBackupWindow(const std::shared_ptr<BackupWindow>& window);

    /// True when the job start or the active full is enabled; the synthetic full is not asked.
    bool IsAtLeastOneEnabled() const noexcept;

    /// Compares the start options and the active full's calendar and flag; leaves out the synthetic full and the
    /// window.
    friend ZELMODEL_API bool operator==(const CScheduleOptions& a, const CScheduleOptions& b);
    friend bool operator!=(const CScheduleOptions& a, const CScheduleOptions& b) { return !(a == b); }

    /// Adds "Schedule", "ActiveFullOptions" and "SyntheticFullOptions" to the parent.
    void ToXml(xmlpp::CXmlNode& parent) const;

    /// Reads what ToXml writes; what is missing keeps its default.
    static CScheduleOptions FromXml(const xmlpp::CXmlNode& parent);

    /// FromXml into this object, whose window stays. Nothing changes when the read fails.
    void ReadXml(const xmlpp::CXmlNode& parent);

    /// A document with the root "ScheduleOptions".
    std::string ToXmlString() const;
    static CScheduleOptions FromXmlString(const std::string& text);

    /// One byte (start options enabled), the schedule type and the text's length in four bytes each, the XML text.
    void Serialize(io::binary_stream_tt& stream) const;

    /// Reads what Serialize writes; the text is what counts, the fields before it are passed over.
    static CScheduleOptions Unserialize(io::binary_stream_tt& stream);

private:
    CStartJobScheduleOptions m_jobStart;
    CFullBackupOptions m_activeFull;
    CFullBackupOptions m_syntheticFull;
    std::shared_ptr<BackupWindow> m_backupWindow;
};

} // namespace zelplatform::model::structs
