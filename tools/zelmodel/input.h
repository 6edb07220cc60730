#pragma once

#include <optional>
#include <string>

#include "describe/document.h"
#include "files/input_file.h"
#include "files/whole_file.h"

using files::InputError;
using files::readInput;
using files::readSecret;
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

/// Parses a text that was read from the input; the reading tells of it until the next one.
const describe::Document& parseDocument(const std::string& name, const std::string& text, Reading& reading);

/// Reads and parses the input; the reading tells of it until the next one.
const describe::Document& openDocument(const std::string& name, Reading& reading);
