#include <zelmodel/schedules.h>

#include "reader.h"
#include "samples.h"
#include "xml_forms.h"

namespace readers
{
namespace
{

using namespace zelplatform::model::structs;

// A part that writes itself into a parent and is read from one of the same kind.
template <class TPart>
std::string rewriteInto(const char* element, const TPart& part)
{
    return writtenInto(element, [&](xmlpp::CXmlNode& root) { part.ToXml(root); });
}

template <class TPart>
std::string rewritePart(const std::string& text)
{
    return rewriteInto("Schedule", TPart::FromXml(rootOf(text)));
}

std::string rewriteTimeSafely(const std::string& text)
{
    bool isPeriodical = false;
    const auto time = CScheduleTime::FromXmlSafe(rootOf(text), isPeriodical);
    return std::string(isPeriodical ? "period " : "time ") + (time ? time->ToTimeStr() : "none");
}

std::string rewriteStart(const CStartJobScheduleOptions& start)
{
    return writtenAtTop([&](xmlpp::CXmlNode& top) { start.ToXml(top); });
}

template <EFullBackupType Type>
std::string rewriteFull(const std::string& text)
{
    const auto full = CFullBackupOptions::FromXml(topOf(text), Type);
    return writtenAtTop([&](xmlpp::CXmlNode& top) { full.ToXml(top); });
}

std::string rewriteOptions(const std::string& text)
{
    return rewriteInto("ScheduleOptions", CScheduleOptions::FromXml(rootOf(text)));
}

std::string rereadOptions(const std::string& text)
{
    CScheduleOptions options;
    options.ReadXml(rootOf(text));
    return rewriteInto("ScheduleOptions", options);
}

std::string rewriteWindow(const std::string& text)
{
    const auto window = BackupWindow::fromXml(topOf(text));
    return writtenAtTop([&](xmlpp::CXmlNode& top) { window->toXml(top); });
}

std::string rewriteMatrix(const std::string& text)
{
    const BackupWindow window(BackupWindow::getMatrix(rootOf(text)), 0);
    return writtenInto("Window", [&](xmlpp::CXmlNode& root) { window.injectMatrix(root); });
}

Texts calendars()
{
    return goldenFiles({"Schedule/calendar_default", "Schedule/calendar_weekly", "Schedule/calendar_continuous",
                        "Schedule/calendar_monthly_last_day", "Schedule/calendar_monthly_last_friday",
                        "Schedule/calendar_periodical_whole_day", "Schedule/calendar_refused_by_setters",
                        "legacy/calendar_time_on_element", "legacy/calendar_monthly_on_day",
                        "legacy/calendar_monthly_by_number", "legacy/calendar_periodical_by_time_type"});
}

Texts starts()
{
    return goldenFiles({"Schedule/default", "Schedule/weekly", "Schedule/monthly_last_day", "Schedule/monthly_week_day",
                        "Schedule/periodically", "Schedule/continuously"});
}

Texts olderStarts()
{
    return goldenFiles({"legacy/start_job_daily", "legacy/start_job_daily_without_type",
                        "legacy/start_job_daily_without_version", "legacy/start_job_monthly",
                        "legacy/start_job_monthly_last_day", "legacy/start_job_periodically",
                        "legacy/start_job_whole_day_period"});
}

} // namespace

Readers scheduleReaders()
{
    const auto parts = goldenFiles({"Schedule/calendar_weekly", "Schedule/calendar_monthly_last_day"});
    const auto options = goldenFolder("ScheduleOptions");
    return {
        {"CScheduleTime.FromXml", rewritePart<CScheduleTime>,
         goldenFiles({"Schedule/calendar_weekly", "legacy/calendar_time_on_element"})},
        {"CScheduleTime.FromXmlSafe", rewriteTimeSafely,
         parts + goldenFiles({"legacy/calendar_periodical_by_time_type"}), EWritten::Words},
        {"CWeekMask.FromXml", rewritePart<CWeekMask>, parts},
        {"CMonthMask.FromXml", rewritePart<CMonthMask>, parts},
        {"CDayOfMonth.FromXml", rewritePart<CDayOfMonth>, parts},
        {"CScheduleCalendar.FromXml", rewritePart<CScheduleCalendar>, calendars()},
        {"CStartJobScheduleOptions.FromXml",
         [](const std::string& text) { return rewriteStart(CStartJobScheduleOptions::FromXml(topOf(text))); },
         starts()},
        // The older forms stand in job options; what is written is the current form, which stands anywhere.
        {"CStartJobScheduleOptions.FromXml.older",
         [](const std::string& text) { return rewriteStart(CStartJobScheduleOptions::FromXml(rootOf(text))); },
         olderStarts(), EWritten::Words},
        {"CFullBackupOptions.FromXml.active", rewriteFull<EFullBackupType::ActiveFull>,
         goldenFolder("ActiveFullOptions")},
        {"CFullBackupOptions.FromXml.synthetic", rewriteFull<EFullBackupType::SyntheticFull>,
         goldenFolder("SyntheticFullOptions")},
        {"CScheduleOptions.FromXml", rewriteOptions, options},
        {"CScheduleOptions.ReadXml", rereadOptions, options},
        {"CScheduleOptions.FromXmlString",
         [](const std::string& text) { return CScheduleOptions::FromXmlString(text).ToXmlString(); }, options},
        {"BackupWindow.fromXml", rewriteWindow, goldenFolder("ScheduleWindow")},
        {"BackupWindow.getMatrix", rewriteMatrix, goldenFolder("ScheduleWindow")},
    };
}

} // namespace readers
