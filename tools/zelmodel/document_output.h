#pragma once

#include <string>

/// Prints a document that was written, with a line break at its end, on standard output. A terminal keeps what it
/// showed and acts on control characters: they are escaped there, and only there.
void printDocument(const std::string& text);
