#include "errors.h"

#include <memory>
#include <new>

#include <zelplatform/exc/exc.h>

#include "describe/sentences.h"

namespace python
{
namespace
{

namespace py = pybind11;

// Lives as long as the interpreter.
PyObject* errorClass = nullptr;

constexpr const char* ErrorDoc =
    "What the library refuses, and what cannot be read or written.\n\n"
    "chain is a list of the sentences, from the outermost to the cause; line is the line of the document that the\n"
    "refusal is about, or None when none is known.";

std::string joined(const std::vector<std::string>& sentences)
{
    std::string text;
    for (const auto& sentence : sentences)
        text += (text.empty() ? "" : " ") + sentence;
    return text;
}

// A message may quote what a document holds: any bytes.
py::str readable(const std::string& text)
{
    return py::reinterpret_steal<py::str>(
        PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "replace"));
}

void raise(const Refusal& refusal)
{
    const py::object error = py::handle(errorClass)(readable(refusal.what()));
    py::list chain;
    for (const auto& sentence : refusal.sentences())
        chain.append(readable(sentence));
    error.attr("chain") = chain;
    if (refusal.line() > 0)
        error.attr("line") = refusal.line();
    PyErr_SetObject(errorClass, error.ptr());
}

void translate(std::exception_ptr thrown)
try
{
    std::rethrow_exception(std::move(thrown));
}
catch (const py::builtin_exception&)
{
    // Errors of types and the end of an iteration are Python's own.
    throw;
}
catch (const std::bad_alloc&)
{
    throw;
}
catch (const Refusal& refusal)
{
    raise(refusal);
}
catch (const exc::CRuntimeExc& refusal)
{
    raise(Refusal(describe::sentencesOf(refusal.trace())));
}
catch (const exc::CRuntimeExc* pointer)
{
    // An unknown window kind is thrown as a pointer, which is ours from here on.
    const std::unique_ptr<const exc::CRuntimeExc> refusal(pointer);
    raise(Refusal(describe::sentencesOf(refusal->trace())));
}
catch (const std::exception& refusal)
{
    raise(Refusal({refusal.what()}));
}

} // namespace

Refusal::Refusal(std::vector<std::string> sentences, int line)
    : m_sentences(std::move(sentences)), m_message(joined(m_sentences)), m_line(line)
{
}

void bindError(py::module_& module)
{
    py::dict members;
    // For an error that somebody makes by hand.
    members["chain"] = py::list();
    members["line"] = py::none();
    errorClass = PyErr_NewExceptionWithDoc("zelmodel.Error", ErrorDoc, PyExc_ValueError, members.ptr());
    if (errorClass == nullptr)
        throw py::error_already_set();
    module.add_object("Error", errorClass);
    py::register_exception_translator(&translate);
}

} // namespace python
