#include "document_output.h"

#include <iostream>

#include <unistd.h>

#include "describe/terminal_text.h"

void printDocument(const std::string& text)
{
    std::cout << (::isatty(STDOUT_FILENO) != 0 ? describe::printable(text) : text) << '\n';
    // What is told of it on the other output comes after it.
    std::cout.flush();
}
