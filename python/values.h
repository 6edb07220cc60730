#pragma once

#include <string>

#include <nlohmann/json.hpp>
#include <pybind11/pybind11.h>

#include <zelmodel/datetime/date.h>
#include <zelplatform/datetime/date_time.h>

namespace python
{

/// A str on the other side. Bytes that are no UTF-8, which documents may hold, pass as "surrogateescape" has it, in
/// both directions.
struct Text
{
    std::string bytes;
};

/// A datetime.date, with the local calendar.
struct Date
{
    zelplatform::model::CDate value{datetime::CDateTime(false)};
};

/// A datetime.datetime: a local one has no zone, one of UTC has that. Only local ones are taken. Parts of a second are
/// dropped.
struct Moment
{
    datetime::CDateTime value{false};
};

/// The name of a file, a str or an os.PathLike; bytes are documents and no names.
struct Path
{
    std::string name;
};

/// Each gives false for an object of another type, and throws for one that has no meaning here: a text with code points
/// that UTF-8 cannot carry, a date beyond the calendar, a moment with a zone, a name with a NUL byte.
bool load(pybind11::handle object, Text& text);
bool load(pybind11::handle object, Date& date);
bool load(pybind11::handle object, Moment& moment);
bool load(pybind11::handle object, Path& path);

/// New references.
pybind11::handle cast(const Text& text);
pybind11::handle cast(const Date& date);
pybind11::handle cast(const Moment& moment);

/// The JSON as a text, without line breaks. Bytes that are no UTF-8 are replaced, as the command does it.
std::string dumped(const nlohmann::ordered_json& json);

/// What the standard reader of JSON makes of the text: dicts in their order, lists and plain values.
pybind11::object loaded(const std::string& json);

} // namespace python

namespace pybind11::detail
{

template <>
struct type_caster<python::Text>
{
    PYBIND11_TYPE_CASTER(python::Text, const_name("str"));
    bool load(handle object, bool) { return python::load(object, value); }
    static handle cast(const python::Text& text, return_value_policy, handle) { return python::cast(text); }
};

template <>
struct type_caster<python::Date>
{
    PYBIND11_TYPE_CASTER(python::Date, const_name("datetime.date"));
    bool load(handle object, bool) { return python::load(object, value); }
    static handle cast(const python::Date& date, return_value_policy, handle) { return python::cast(date); }
};

template <>
struct type_caster<python::Moment>
{
    PYBIND11_TYPE_CASTER(python::Moment, const_name("datetime.datetime"));
    bool load(handle object, bool) { return python::load(object, value); }
    static handle cast(const python::Moment& moment, return_value_policy, handle) { return python::cast(moment); }
};

template <>
struct type_caster<python::Path>
{
    PYBIND11_TYPE_CASTER(python::Path, const_name("Union[str, os.PathLike[str]]"));
    bool load(handle object, bool) { return python::load(object, value); }
};

} // namespace pybind11::detail
