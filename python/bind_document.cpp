#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <magic_enum.hpp>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "bindings.h"
#include "document.h"
#include "errors.h"
#include "source.h"
#include "values.h"

namespace python
{
namespace
{

namespace py = pybind11;
using namespace py::literals;
using describe::EDocumentKind;
using when::DaysAsked;
using zelplatform::model::structs::BackupWindow;

using WindowPointer = std::shared_ptr<BackupWindow>;

// A copy: what is asked runs without the interpreter lock, while others may change the window.
Window copyOf(const WindowPointer& window)
{
    return window ? Window(*window) : std::nullopt;
}

Document readSource(const py::object& source)
{
    return Document(textOf(sourceOf(source)));
}

Document parseText(const py::object& text)
{
    return Document(textOf(text));
}

py::object checkSource(const py::object& object, const WindowPointer& window)
{
    const auto source = sourceOf(object);
    const auto copy = copyOf(window);
    return loaded(source.isFile ? checkFile(source.content, copy) : checkText(source.content, copy));
}

DaysAsked daysAsked(const Date& from, std::optional<long> count)
{
    if (count && (*count < 1 || *count > long{DaysAsked::MostDays}))
        throw exc::CRuntimeExc("The count is %1 instead of 1 to %2.", util::toStr(*count),
                               util::toStr(DaysAsked::MostDays));
    return {from.value, std::nullopt, count ? std::optional<unsigned>(static_cast<unsigned>(*count)) : std::nullopt,
            false};
}

py::object nextDays(const Document& document, const Date& from, std::optional<long> count,
                    const std::optional<Date>& until, const WindowPointer& window)
{
    auto asked = daysAsked(from, count);
    if (until)
        asked.until = until->value;
    return loaded(document.next(asked, copyOf(window)));
}

py::object previousDays(const Document& document, const Date& before, std::optional<long> count,
                        const WindowPointer& window)
{
    auto asked = daysAsked(before, count);
    asked.isPrevious = true;
    return loaded(document.next(asked, copyOf(window)));
}

Document changed(const Document& document, const py::dict& fields)
{
    Fields texts;
    for (const auto& [key, value] : fields)
    {
        Text path;
        Text text;
        if (!load(key, path) || !load(value, text))
            throw py::type_error("the paths of fields and their texts are str");
        texts.emplace_back(std::move(path.bytes), std::move(text.bytes));
    }
    return document.changed(texts);
}

Text tell(const Document& document)
{
    return {"<zelmodel.Document: " + describe::nameOf(document.kind()) + '>'};
}

void bindKind(py::module_& module)
{
    py::enum_<EDocumentKind> kinds(module, "Kind", "What a document is about.");
    for (const auto& [kind, name] : magic_enum::enum_entries<EDocumentKind>())
        kinds.value(std::string(name).c_str(), kind, describe::nameOf(kind).c_str());
    kinds.def_property_readonly(
        "words", [](EDocumentKind kind) { return Text{describe::nameOf(kind)}; }, "The kind in words.");
}

void bindClass(py::module_& module)
{
    py::class_<Document>(module, "Document",
                         "A document of a kind that is known. It never changes, and may be asked by several threads.\n"
                         "What the library refuses of it is an Error of the method that asks.")
        .def_property_readonly("kind", &Document::kind, "What the document is about.")
        .def("__repr__", &tell)
        .def(
            "describe", [](const Document& document, bool reveals) { return Text{document.describe(reveals)}; },
            py::kw_only(), "reveal"_a = false,
            "The text that zelmodel show prints. Secrets are hidden unless they are to be revealed.")
        .def(
            "tree", [](const Document& document, bool reveals) { return loaded(document.tree(reveals)); },
            py::kw_only(), "reveal"_a = false,
            "The fields that zelmodel show --json prints, under the name of the record. Secrets are hidden unless "
            "they\n"
            "are to be revealed.")
        .def(
            "check",
            [](const Document& document, const WindowPointer& window) {
                return loaded(document.check(copyOf(window)));
            },
            "window"_a = nullptr,
            "The findings of zelmodel check --json. The window is the one that the job is to run in.")
        .def(
            "next_days", &nextDays, "start"_a, "count"_a = std::nullopt, py::kw_only(), "until"_a = std::nullopt,
            "window"_a = nullptr,
            "What zelmodel next --json answers: the days from the start on under \"next\", or why there is none under\n"
            "\"notScheduled\". There are 10 days unless a count, at most 1000, or the last day is given.")
        .def("previous_days", &previousDays, "before"_a, "count"_a = std::nullopt, py::kw_only(), "window"_a = nullptr,
             "The same for the days before the date, the latest first.")
        .def("changed", &changed, "fields"_a,
             "The document with fields set as zelmodel set does it: {\"maxDays\": \"14\"}. It is written in the "
             "current\n"
             "form.")
        .def(
            "to_xml", [](const Document& document, bool reveals) { return Text{document.toXml(reveals)}; },
            py::kw_only(), "reveal"_a = false,
            "The document in the current form, as zelmodel convert writes it. One that holds secrets is refused "
            "unless\n"
            "they are to be revealed.")
        .def(
            "write",
            [](const Document& document, const Path& path, bool replaces) { document.write(path.name, replaces); },
            "path"_a, py::kw_only(), "replace"_a = false,
            "Writes the same into a new file, secrets included. To replace a file keeps the old one beside it as\n"
            "FILE.orig.")
        .def("job_options", &Document::jobOptions, "The job options of such a document.")
        .def("schedule", &Document::schedule, "The schedule of job options or of a schedule.")
        .def("window", &Document::window, "The window of such a document.")
        .def("gfs_policy", &Document::gfsPolicy, "The policy of such a document.");
}

} // namespace

void bindDocument(py::module_& module)
{
    bindKind(module);
    bindClass(module);
    module.def(
        "read", &readSource, "source"_a,
        "Reads a document: a file, or a text. A str that begins with \"<\" is a text, as are bytes; any other str\n"
        "and an os.PathLike is the name of a file.");
    module.def("parse", &parseText, "text"_a, "Reads a document from a text, a str or bytes; it never opens a file.");
    module.def("check", &checkSource, "source"_a, "window"_a = nullptr,
               "Everything that is wrong with a document, or looks like it: the findings of zelmodel check --json. A\n"
               "document that the library refuses, or that is none, has findings too.");
}

} // namespace python
