#include "source.h"

#include <utility>

#include "errors.h"
#include "files/whole_file.h"
#include "values.h"

namespace python
{
namespace
{

namespace py = pybind11;

[[noreturn]] void refuseType(const char* wanted, const py::object& object)
{
    throw py::type_error(std::string("a document is ") + wanted + ", not " + Py_TYPE(object.ptr())->tp_name);
}

// The mark of UTF-8 may stand before everything.
bool isText(const std::string& bytes)
{
    constexpr const char* Mark = "\xef\xbb\xbf";
    const std::size_t begin = bytes.compare(0, 3, Mark) == 0 ? 3 : 0;
    const auto first = bytes.find_first_not_of(" \t\r\n", begin);
    return first != std::string::npos && bytes[first] == '<';
}

} // namespace

Source sourceOf(const py::object& object)
{
    if (py::isinstance<py::bytes>(object))
        return {false, py::reinterpret_borrow<py::bytes>(object)};
    Text text;
    if (load(object, text) && isText(text.bytes))
        return {false, std::move(text.bytes)};
    Path path;
    if (load(object, path))
        return {true, std::move(path.name)};
    refuseType("a str, bytes or an os.PathLike", object);
}

std::string textOf(const py::object& object)
{
    if (py::isinstance<py::bytes>(object))
        return py::reinterpret_borrow<py::bytes>(object);
    Text text;
    if (!load(object, text))
        refuseType("a str or bytes", object);
    return std::move(text.bytes);
}

std::string textOf(Source source)
{
    if (!source.isFile)
        return std::move(source.content);
    return onFile(source.content, &files::readInput);
}

} // namespace python
