#pragma once

#include <string>

#include <pybind11/pybind11.h>

namespace python
{

/// A document that a caller hands over: the name of a file, or the text itself.
struct Source
{
    bool isFile;
    std::string content;
};

/// A str whose first character behind white space is "<" is a text, any other one and an os.PathLike the name of a
/// file; bytes are a text. What is of another type is told without what it holds: it may be a document with secrets.
Source sourceOf(const pybind11::object& object);

/// The text: a str or bytes, whatever it begins with.
std::string textOf(const pybind11::object& object);

/// The text of the source, read from the file when it is one.
std::string textOf(Source source);

} // namespace python
