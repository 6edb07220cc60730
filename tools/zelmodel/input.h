#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include <zelplatform/crypto/sec_buffer.h>

#include "describe/document.h"
#include "files/input_file.h"

using files::InputError;
using files::shownName;
using files::StandardInput;

/// What is being read. It outlives the reading, so that a refusal can say in which file and on which line.
struct Reading
{
    std::string name;
    std::optional<describe::Document> document;

    /// The line of the refusal; 0 when none is known.
    int line() const { return document ? document->lastReadLine() : 0; }
};

/// The whole input; throws InputError when it cannot be read, and refuses (exc::CRuntimeExc) one that is longer than
/// any document may be, before it is read whole.
std::string readInput(const std::string& name);

/// The same of an input that may hold keys, into secure memory; at most so many bytes.
crypto::sec_buffer_t readSecret(const std::string& name, std::size_t mostBytes);

/// Parses a text that was read from the input; the reading tells of it until the next one.
const describe::Document& parseDocument(const std::string& name, const std::string& text, Reading& reading);

/// Reads and parses the input; the reading tells of it until the next one.
const describe::Document& openDocument(const std::string& name, Reading& reading);
