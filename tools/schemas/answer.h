#pragma once

#include <string>
#include <vector>

namespace schemas
{

/// What the command answers as JSON, sorted: a command's name for what it answers, "error" for what each of them
/// answers when it fails, "log-lines" for a line of `log --json-lines`.
std::vector<std::string> answers();

/// The JSON Schema (draft-07) of the answer as one text that needs no other file. An answer that is none throws
/// std::out_of_range.
std::string answerSchemaOf(const std::string& answer);

} // namespace schemas
