#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include <pybind11/pybind11.h>

#include <zelmodel/sessions/session_log_writer.h>
#include <zelplatform/datetime/date_time.h>

#include "bindings.h"
#include "errors.h"
#include "log_lines.h"
#include "values.h"

namespace python
{
namespace
{

namespace py = pybind11;
using namespace py::literals;
using zelplatform::model::CDateTimeEx;
using zelplatform::model::ISessionLogWriter;

/// A log by its name. Each reading of it opens the file anew.
struct Log
{
    std::string name;
};

/// A reading of a log.
template <class TLine>
class Reading
{
public:
    explicit Reading(const Log& log)
        : m_name(log.name),
          m_lines(onFile(log.name, [](const std::string& name) { return std::make_unique<LogLines<TLine>>(name); }))
    {
    }

    TLine next()
    {
        if (auto ready = m_lines->takeReady())
            return std::move(*ready);
        for (;;)
        {
            bool isAtEnd = false;
            auto line = onFile(m_name, [&](const std::string&) {
                auto taken = m_lines->take();
                isAtEnd = !taken && m_lines->isAtEnd();
                return taken;
            });
            if (line)
                return std::move(*line);
            if (isAtEnd)
                throw py::stop_iteration();
            if (PyErr_CheckSignals() != 0)
                throw py::error_already_set();
        }
    }

    logs::LineCounts counts() const
    {
        const py::gil_scoped_release released;
        return m_lines->counts();
    }

private:
    std::string m_name;
    std::unique_ptr<LogLines<TLine>> m_lines;
};

// Not by getUtcTime, for which all instants before 1970 are the same.
Moment timeOf(const LogRecord& line)
{
    return {datetime::CDateTime((line.record.time - CDateTimeEx()).getTotalSeconds(), true)};
}

py::object sessionOf(const LogRecord& line)
{
    return py::module_::import("uuid").attr("UUID")(line.record.session.ToAStr());
}

py::dict countsOf(const logs::LineCounts& counts)
{
    return py::dict("lines"_a = counts.lines, "records"_a = counts.records, "skipped"_a = counts.skipped,
                    "empty"_a = counts.empty);
}

template <class TLine>
void bindReading(py::module_& module, const char* name, const char* doc)
{
    py::class_<Reading<TLine>>(module, name, doc)
        .def(
            "__iter__", [](py::object reading) { return reading; }, "The reading itself.")
        .def("__next__", &Reading<TLine>::next, "The next line of the kind.")
        .def_property_readonly(
            "counts", [](const Reading<TLine>& reading) { return countsOf(reading.counts()); },
            "How many lines were read so far: \"lines\", and of these \"records\", \"skipped\" and \"empty\".");
}

} // namespace

void bindLogs(py::module_& module)
{
    py::class_<LogRecord>(module, "LogRecord", "A record of a session log.")
        .def_readonly("line", &LogRecord::line, "The number of its line, counted from 1.")
        .def_property_readonly("time", &timeOf, "When it was written, in UTC.")
        .def_property_readonly("session", &sessionOf, "The session that wrote it.")
        .def_property_readonly(
            "severity",
            [](const LogRecord& line) { return Text{ISessionLogWriter::SeverityToString(line.record.severity)}; },
            "\"processing\", \"info\", \"warn\" or \"error\".")
        .def_property_readonly(
            "message", [](const LogRecord& line) { return Text{line.record.message}; }, "What it says.");
    py::class_<SkippedLine>(module, "SkippedLine", "A line of a session log that is no record.")
        .def_readonly("line", &SkippedLine::line, "Its number, counted from 1.")
        .def_property_readonly(
            "reason", [](const SkippedLine& line) { return Text{line.reason}; },
            "Why it is skipped, in the library's words. They may quote the line.");
    bindReading<LogRecord>(module, "LogRecords", "A reading of the records of a log.");
    bindReading<SkippedLine>(module, "SkippedLines", "A reading of the skipped lines of a log.");
    py::class_<Log>(module, "Log",
                    "A session log, plain or compressed by gzip. Each iteration reads the file from its beginning, in\n"
                    "constant memory and without the interpreter lock, and gives its records.")
        .def(py::init([](const Path& path) { return Log{path.name}; }), "path"_a, "Opens nothing yet.")
        .def(
            "__iter__", [](const Log& log) { return std::make_unique<Reading<LogRecord>>(log); },
            "The records, from the beginning of the file.")
        .def(
            "skipped", [](const Log& log) { return std::make_unique<Reading<SkippedLine>>(log); },
            "The lines that are no records, from the beginning of the file.");
}

} // namespace python
