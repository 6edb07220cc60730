#pragma once

#include <string>
#include <vector>

#include "new_options.h"

/// The options of `new`, by the part of the document that they set. Most are rows of a field and its text.
namespace edit
{

std::vector<NewOption> jobOptionRows();
std::vector<NewOption> scheduleOptionRows();
std::vector<NewOption> windowOptionRows();
std::vector<NewOption> gfsOptionRows();

/// An option that gives its text to a field, and turns others to fixed values.
NewOption rowOf(std::string name, std::string typeName, std::string help, std::string path,
                std::vector<Assignment> fixed = {});

/// A flag that sets fields to fixed values.
NewOption flagOf(std::string name, std::string help, std::vector<Assignment> fixed);

/// The option with words that it takes.
NewOption withWords(NewOption option, std::vector<std::string> words);

/// The options with their fields in a part of the document.
std::vector<NewOption> inPart(const std::string& part, std::vector<NewOption> options);

} // namespace edit
