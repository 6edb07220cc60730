#pragma once

#include <exception>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <pybind11/pybind11.h>

#include "describe/document.h"
#include "describe/refusal.h"
#include "files/input_file.h"

namespace python
{

/// What becomes a zelmodel.Error: the sentences of a refusal, outermost first, and the line of the document that it is
/// about, 0 when none is known.
class Refusal : public std::exception
{
public:
    explicit Refusal(std::vector<std::string> sentences, int line = 0);

    const char* what() const noexcept override { return m_message.c_str(); }
    const std::vector<std::string>& sentences() const noexcept { return m_sentences; }
    int line() const noexcept { return m_line; }

private:
    std::vector<std::string> m_sentences;
    std::string m_message; ///< the sentences with a blank between them
    int m_line;
};

/// Adds the class Error to the module. From then on whatever C++ throws is one, the pointer of an unknown window kind
/// included; memory that runs out is a MemoryError.
void bindError(pybind11::module_& module);

/// Does the work without the interpreter lock; it must not touch an object of Python's. What it throws becomes a
/// Refusal with the line that the second function tells then; memory that runs out stays what it is.
template <class TWork, class TLine>
auto unlocked(const TWork& work, const TLine& line)
{
    const pybind11::gil_scoped_release released;
    std::optional<decltype(work())> result;
    bool hadMemory = true;
    auto sentences = describe::refusalOf([&] {
        try
        {
            result.emplace(work());
        }
        catch (const std::bad_alloc&)
        {
            hadMemory = false;
        }
    });
    if (!hadMemory)
        throw std::bad_alloc();
    if (!sentences.empty())
        throw Refusal(std::move(sentences), line());
    return std::move(*result);
}

/// The same for what is about no line of a document.
template <class TWork>
auto unlocked(const TWork& work)
{
    return unlocked(work, [] { return 0; });
}

/// The same on the document that the text holds. A document is for one thread at a time, also when it is only read: so
/// each piece of work has one of its own. A refusal tells the line that was read last.
template <class TWork>
auto onDocument(const std::string& text, const TWork& work)
{
    std::optional<describe::Document> document;
    return unlocked([&] { return work(document.emplace(text)); },
                    [&] { return document ? document->lastReadLine() : 0; });
}

/// Reads or writes a file without the interpreter lock. A failure names the file.
template <class TWork>
auto onFile(const std::string& name, const TWork& work)
try
{
    const pybind11::gil_scoped_release released;
    return work(name);
}
catch (const files::InputError& error)
{
    throw Refusal({name + ": " + error.what()});
}

} // namespace python
