#pragma once

#include <memory>
#include <optional>
#include <string>

#include <zelmodel/export.h>
#include <zelmodel/structs/schedule/day_hour_matrix.h>
#include <zelmodel/structs/schedule/hour_in_week.h>
#include <zelmodel/structs/schedule/schedule_parser.h>
#include <zelplatform/datetime/date_time.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

/// The hours of the week in which a job may run, document "ScheduleWindow". The hourly offset is stored and written but
/// plays no part in the answers, on purpose.
///
/// A window kind other than Enabled and Disabled, which a document can hold ("Kind"), is thrown as a pointer to a new
/// exc::CRuntimeExc: it passes every handler of std::exception&, and whoever catches it deletes it.
class ZELMODEL_API BackupWindow
{
public:
    /// The names of the element, its attributes and its children.
    static constexpr const char* BackupWindowTag = "ScheduleWindow";
    static constexpr const char* MinutesTag = "Minutes";
    static constexpr const char* KindTag = "Kind";
    static constexpr const char* DaysTag = "Days";
    static constexpr const char* IntervalsTag = "Intervals";

    /// The hours, and an offset in minutes that is only carried.
    BackupWindow(const DayHourMatrix& matrix, int hourlyOffsetMinutes);
    BackupWindow(const BackupWindow&) = default;
    BackupWindow(BackupWindow&&) noexcept = default;
    BackupWindow& operator=(const BackupWindow&) = default;
    BackupWindow& operator=(BackupWindow&&) noexcept = default;
    virtual ~BackupWindow();

    /// What the constructor was given.
    const DayHourMatrix& getMatrix() const noexcept { return m_matrix; }
    int getHourlyOffsetMinutes() const noexcept { return m_hourlyOffsetMinutes; }

    /// True when the hour of the moment is open.
    bool isWindowOpen(const datetime::CDateTime& moment) const;

    /// The start of the first closed hour after an open moment, the moment itself when it is closed, and nothing when
    /// the window never closes. Keeps the moment's UTC flag.
    std::optional<datetime::CDateTime> getWindowClosingTime(const datetime::CDateTime& moment) const;

    /// The text that lists the hours of the day which differ from the kind's default; empty when none does.
    std::string getIntervals(int day) const;

    /// Sets "Kind" on the node and adds "Days" with one element for each day that lists hours.
    void injectMatrix(xmlpp::CXmlNode& node) const;

    /// Adds the child "ScheduleWindow". Throws "Backup Window: Failed to serialize to Xml. ...".
    void toXml(xmlpp::CXmlNode& parent) const;

    /// Reads the matrix of a "ScheduleWindow" element. A missing "Days" lists nothing; later elements of a day add to
    /// earlier ones.
    static DayHourMatrix getMatrix(const xmlpp::CXmlNode& node);

    /// Reads the child "ScheduleWindow" of the parent. Throws exc::CRuntimeExc for what is missing, for a day that is
    /// none and for intervals that cannot be read.
    static std::shared_ptr<BackupWindow> fromXml(const xmlpp::CXmlNode& parent);

private:
    DayHourMatrix m_matrix;
    int m_hourlyOffsetMinutes;
};

} // namespace zelplatform::model::structs
