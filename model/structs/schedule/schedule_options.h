#pragma once

#include <memory>
#include <string>

#include <zelmodel/export.h>
#include <zelmodel/structs/schedule/backup_window.h>
#include <zelmodel/structs/schedule/full_backup_options.h>
#include <zelmodel/structs/schedule/start_job_schedule_options.h>
#include <zelplatform/io/io.h>
#include <zelplatform/xmlpp/xml_node.h>

/// The records that jobs and repositories are made of.
namespace zelplatform::model::structs
{

/// The whole schedule of a backup job: when it starts, when it makes active and synthetic fulls, and in which hours it
/// may run. The window is in no stored form of the schedule, on purpose: it travels in a document of its own. One
/// thread may replace the window while others read or copy the object; the other fields are plain.
class ZELMODEL_API CScheduleOptions
{
public:
    /// The default of each part, and no window.
    CScheduleOptions();

    /// The window is taken atomically. What was moved from has none.
    CScheduleOptions(const CScheduleOptions& other);
    CScheduleOptions(CScheduleOptions&& other) noexcept;
    CScheduleOptions& operator=(const CScheduleOptions& other);
    CScheduleOptions& operator=(CScheduleOptions&& other) noexcept;
    virtual ~CScheduleOptions();

    /// The start options become every day at 00:30 and enabled, the active full its default. The synthetic full stays.
    void SetDefault();

    /// Resets the start options and the active full. The synthetic full stays.
    void ResetBoth();

    /// When the job starts.
    const CStartJobScheduleOptions& GetJobStartOptions() const noexcept { return m_jobStart; }
    CStartJobScheduleOptions& GetJobStartOptions() noexcept { return m_jobStart; }
    void SetJobStartOptions(const CStartJobScheduleOptions& options) { m_jobStart = options; }

    /// When full backups are read afresh from the source.
    const CFullBackupOptions& GetActiveFullOptions() const noexcept { return m_activeFull; }
    CFullBackupOptions& GetActiveFullOptions() noexcept { return m_activeFull; }
    void SetActiveFullOptions(const CFullBackupOptions& options) { m_activeFull = options; }

    /// When full backups are built from restore points.
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

    /// A document with the root "ScheduleOptions". Throws "ScheduleOptions: Failed to ToXmlString. ..." and
    /// "ScheduleOptions: Failed to convert FromXmlString: %1 ..." with the whole text.
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
