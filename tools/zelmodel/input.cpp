#include "input.h"

const describe::Document& parseDocument(const std::string& name, const std::string& text, Reading& reading)
{
    reading = Reading{name, std::nullopt};
    return reading.document.emplace(text);
}

const describe::Document& openDocument(const std::string& name, Reading& reading)
{
    reading = Reading{name, std::nullopt};
    return parseDocument(name, readInput(name), reading);
}
