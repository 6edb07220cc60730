#include <memory>
#include <optional>
#include <string>

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <zelmodel/structs/schedule/backup_window.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "bindings.h"
#include "values.h"

namespace python
{
namespace
{

namespace py = pybind11;
using namespace py::literals;
using zelplatform::model::structs::BackupWindow;
using zelplatform::model::structs::DayHourMatrix;
using zelplatform::model::structs::EScheduleWindowKind;

constexpr int DaysOfWeek = 7;

// Days are counted as datetime.date does it, from Monday; the library counts from Sunday. What is no day stays none.
int dayOf(int weekday)
{
    return weekday < 0 || weekday >= DaysOfWeek ? -1 : (weekday + 1) % DaysOfWeek;
}

BackupWindow makeWindow(bool isOpen)
{
    return {DayHourMatrix(isOpen ? EScheduleWindowKind::Enabled : EScheduleWindowKind::Disabled), 0};
}

bool isOpenAt(const BackupWindow& window, int weekday, int hour)
{
    return window.getMatrix()(dayOf(weekday), hour) != 0;
}

bool isOpen(const BackupWindow& window, const Moment& moment)
{
    return window.isWindowOpen(moment.value);
}

void set(BackupWindow& window, int weekday, int hour, bool isOpen)
{
    auto matrix = window.getMatrix();
    matrix(dayOf(weekday), hour) = isOpen ? 1 : 0;
    window = BackupWindow(matrix, window.getHourlyOffsetMinutes());
}

std::optional<Moment> closingTime(const BackupWindow& window, const Moment& moment)
{
    const auto closing = window.getWindowClosingTime(moment.value);
    return closing ? std::optional<Moment>(Moment{*closing}) : std::nullopt;
}

Text toXml(const BackupWindow& window)
{
    const xmlpp::CXmlDocument document;
    auto top = document.ToNode();
    window.toXml(top);
    return {document.Serialize()};
}

} // namespace

void bindWindow(py::module_& module)
{
    py::class_<BackupWindow, std::shared_ptr<BackupWindow>>(
        module, "Window",
        "The hours of the week in which a job may run. Weekdays are counted as datetime.date.weekday() does it, from\n"
        "Monday, which is 0; hours from 0 to 23. Others are an Error.")
        .def(py::init(&makeWindow), py::kw_only(), "is_open"_a = false, "A week that is open or closed throughout.")
        .def("is_open", &isOpen, "moment"_a,
             "Whether the hour of the moment is open. The moment is a local one, without a time zone.")
        .def("is_open_at", &isOpenAt, "weekday"_a, "hour"_a, "Whether the hour of the weekday is open.")
        .def("set", &set, "weekday"_a, "hour"_a, "is_open"_a, "Opens or closes the hour of the weekday.")
        .def("closing_time", &closingTime, "moment"_a,
             "The start of the first closed hour after the moment, the moment itself when it is closed, and None when\n"
             "the window never closes.")
        .def_property_readonly("hourly_offset_minutes", &BackupWindow::getHourlyOffsetMinutes,
                               "Stored and written, and without a part in the answers.")
        .def("to_xml", &toXml, "The document as the library writes it.");
}

} // namespace python
