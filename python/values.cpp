#include "values.h"

#include <zelplatform/exc/exc.h>

#include <datetime.h>

#include "files/input_file.h"

namespace python
{
namespace
{

namespace py = pybind11;
using datetime::CDateTime;

void needDateTime()
{
    if (PyDateTimeAPI == nullptr)
    {
        PyDateTime_IMPORT;
    }
    if (PyDateTimeAPI == nullptr)
        throw py::error_already_set();
}

py::handle given(PyObject* object)
{
    if (object == nullptr)
        throw py::error_already_set();
    return object;
}

} // namespace

bool load(py::handle object, Text& text)
{
    if (!PyUnicode_Check(object.ptr()))
        return false;
    const auto bytes =
        py::reinterpret_steal<py::bytes>(PyUnicode_AsEncodedString(object.ptr(), "utf-8", "surrogateescape"));
    if (!bytes)
    {
        PyErr_Clear();
        throw exc::CRuntimeExc("The text holds a code point that UTF-8 cannot carry.");
    }
    text.bytes = bytes;
    return true;
}

bool load(py::handle object, Date& date)
{
    needDateTime();
    const auto* const ptr = object.ptr();
    if (!PyDate_Check(ptr))
        return false;
    CDateTime midnight(false);
    midnight.setDate(PyDateTime_GET_YEAR(ptr), PyDateTime_GET_MONTH(ptr), PyDateTime_GET_DAY(ptr));
    date.value = zelplatform::model::CDate(midnight);
    return true;
}

bool load(py::handle object, Moment& moment)
{
    needDateTime();
    const auto* const ptr = object.ptr();
    if (!PyDateTime_Check(ptr))
        return false;
    if (PyDateTime_DATE_GET_TZINFO(ptr) != Py_None)
        throw exc::CRuntimeExc(
            "The moment has a time zone; the times of schedules and windows are local ones without.");
    moment.value = CDateTime(false);
    moment.value.setDate(PyDateTime_GET_YEAR(ptr), PyDateTime_GET_MONTH(ptr), PyDateTime_GET_DAY(ptr));
    moment.value.setTime(PyDateTime_DATE_GET_HOUR(ptr), PyDateTime_DATE_GET_MINUTE(ptr),
                         PyDateTime_DATE_GET_SECOND(ptr));
    return true;
}

bool load(py::handle object, Path& path)
{
    const auto name = py::reinterpret_steal<py::object>(PyOS_FSPath(object.ptr()));
    if (!name || !PyUnicode_Check(name.ptr()))
    {
        PyErr_Clear();
        return false;
    }
    const auto bytes = py::reinterpret_steal<py::bytes>(PyUnicode_EncodeFSDefault(name.ptr()));
    if (!bytes)
        throw py::error_already_set();
    path.name = bytes;
    if (path.name.find('\0') != std::string::npos)
        throw exc::CRuntimeExc("The name of a file holds a NUL byte.");
    // Where the command reads standard input, a program in Python has objects of its own for it.
    if (path.name == files::StandardInput)
        path.name.insert(0, "./");
    return true;
}

py::handle cast(const Text& text)
{
    return given(
        PyUnicode_DecodeUTF8(text.bytes.data(), static_cast<Py_ssize_t>(text.bytes.size()), "surrogateescape"));
}

py::handle cast(const Date& date)
{
    needDateTime();
    int year = 0;
    int month = 0;
    int day = 0;
    CDateTime(date.value).getDate(year, month, day);
    return given(PyDate_FromDate(year, month, day));
}

py::handle cast(const Moment& moment)
{
    needDateTime();
    int year = 0;
    int month = 0;
    int day = 0;
    const auto& value = moment.value;
    value.getDate(year, month, day);
    auto* const zone = value.isUtcTime() ? PyDateTime_TimeZone_UTC : Py_None;
    return given(PyDateTimeAPI->DateTime_FromDateAndTime(year, month, day, value.hour(), value.minute(), value.second(),
                                                         0, zone, PyDateTimeAPI->DateTimeType));
}

std::string dumped(const nlohmann::ordered_json& json)
{
    return json.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

py::object loaded(const std::string& json)
{
    return py::module_::import("json").attr("loads")(py::bytes(json));
}

} // namespace python
