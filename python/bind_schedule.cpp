#include <memory>
#include <optional>

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <zelmodel/structs/schedule/schedule_options.h>

#include "bindings.h"
#include "values.h"
#include "when/evaluation.h"

namespace python
{
namespace
{

namespace py = pybind11;
using namespace py::literals;
using zelplatform::model::CDate;
using zelplatform::model::structs::CFullBackupOptions;
using zelplatform::model::structs::CScheduleCalendar;
using zelplatform::model::structs::CScheduleOptions;

constexpr auto Inside = py::return_value_policy::reference_internal;

std::optional<Text> timeOf(const CScheduleCalendar& calendar)
{
    return calendar.IsTimeSet() ? std::optional<Text>(Text{calendar.GetTime().ToTimeStr()}) : std::nullopt;
}

std::optional<Date> nextDayOf(const CScheduleCalendar& calendar, const Date& date)
{
    const auto next = calendar.GetNextScheduleDateFromDate(date.value);
    return next ? std::optional<Date>(Date{*next}) : std::nullopt;
}

when::Evaluation evaluationOf(const CScheduleOptions& schedule, const Date& date)
{
    return {schedule, nullptr, date.value};
}

// The search begins with the day itself, if the job starts then.
std::optional<Date> nextDay(const CScheduleOptions& schedule, const Date& date)
{
    for (const auto& day : evaluationOf(schedule, date).daysFrom(date.value, 2))
    {
        if (day.date != date.value)
            return Date{day.date};
    }
    return std::nullopt;
}

std::optional<Date> previousDay(const CScheduleOptions& schedule, const Date& date)
{
    const auto days = evaluationOf(schedule, date).daysBefore(date.value, 1);
    return days.empty() ? std::nullopt : std::optional<Date>(Date{days.front().date});
}

bool isScheduled(const CScheduleOptions& schedule, const Date& date)
{
    return evaluationOf(schedule, date).startsOn(date.value).has_value();
}

void bindCalendar(py::module_& module)
{
    py::class_<CScheduleCalendar>(module, "Calendar",
                                  "On which days something runs, and at what time or with what period.")
        .def_property_readonly("is_weekly", &CScheduleCalendar::IsScheduleWeekly, "Tied to days of the week.")
        .def_property_readonly("is_monthly", &CScheduleCalendar::IsScheduleMonthly, "Tied to days of the month.")
        .def_property_readonly("is_periodical", &CScheduleCalendar::IsSchedulePeriodically,
                               "The time is a period; every date is scheduled.")
        .def_property_readonly("is_continuous", &CScheduleCalendar::IsScheduleContinuously, "Runs all the time.")
        .def_property_readonly("time", &timeOf, "The time of day or the period as \"HH:MM\", or None.")
        .def_property_readonly(
            "words", [](const CScheduleCalendar& calendar) { return Text{calendar.ToLogStr(false)}; },
            "The calendar in one line of words.")
        .def(
            "is_scheduled",
            [](const CScheduleCalendar& calendar, const Date& date) { return calendar.IsScheduledAtDate(date.value); },
            "date"_a, "Whether the calendar covers the date.")
        .def("next_scheduled_day", &nextDayOf, "date"_a,
             "The first scheduled day after the date, or None when none comes within 41 years.");
}

void bindFull(py::module_& module)
{
    py::class_<CFullBackupOptions>(module, "FullBackup", "On which days a job makes a full backup.")
        .def_property_readonly("enabled", &CFullBackupOptions::IsEnabled, "Whether full backups are made at all.")
        .def_property_readonly(
            "calendar", [](const CFullBackupOptions& full) -> const CScheduleCalendar& { return full.GetCalendar(); },
            Inside, "The days; it has no time.")
        .def(
            "is_scheduled",
            [](const CFullBackupOptions& full, const Date& date) { return full.IsScheduledAt(date.value); }, "date"_a,
            "Whether a full backup is due on the date; False when disabled.");
}

} // namespace

void bindSchedule(py::module_& module)
{
    bindCalendar(module);
    bindFull(module);
    py::class_<CScheduleOptions>(module, "Schedule",
                                 "When a job starts, and when it makes full backups. Days are those that the command\n"
                                 "zelmodel next tells.")
        .def_property_readonly(
            "enabled", [](const CScheduleOptions& schedule) { return schedule.GetJobStartOptions().IsEnabled(); },
            "Whether the job starts by itself.")
        .def_property_readonly(
            "calendar",
            [](const CScheduleOptions& schedule) -> const CScheduleCalendar& {
                return schedule.GetJobStartOptions().GetCalendar();
            },
            Inside, "When the job starts, if it is enabled.")
        .def_property_readonly(
            "active_full",
            [](const CScheduleOptions& schedule) -> const CFullBackupOptions& {
                return schedule.GetActiveFullOptions();
            },
            Inside, "Fulls that are read afresh from the source.")
        .def_property_readonly(
            "synthetic_full",
            [](const CScheduleOptions& schedule) -> const CFullBackupOptions& {
                return schedule.GetSyntheticFullOptions();
            },
            Inside, "Fulls that are built from restore points.")
        .def_property(
            "window", &CScheduleOptions::getBackupWindow, &CScheduleOptions::setBackupWindow,
            "The hours in which the job may run, or None. It is in no document of the schedule, and plays no\n"
            "part in its days.")
        .def("is_scheduled", &isScheduled, "date"_a, "Whether the job starts on the date; False when disabled.")
        .def("next_scheduled_day", &nextDay, "date"_a,
             "The first day after the date on which the job starts, or None: it is disabled, or none comes within 41\n"
             "years.")
        .def("previous_scheduled_day", &previousDay, "date"_a,
             "The last day before the date on which the job starts, or None: it is disabled, or 41 years hold none.")
        .def(
            "to_xml", [](const CScheduleOptions& schedule) { return Text{schedule.ToXmlString()}; },
            "The document as the library writes it.");
}

} // namespace python
