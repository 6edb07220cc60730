#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace zelmodel_test
{

/// A call with --json or --json-lines, and the schema of what it answers.
struct Sample
{
    const char* schema;
    std::vector<std::string> call;
    int exitCode = 0;
    const char* input = "";
};

/// Every kind of answer of every command at least once.
const std::vector<Sample>& samples();

/// What the call answers; of --json-lines each line. The exit status is checked.
std::vector<nlohmann::json> answersOf(const Sample& sample);

} // namespace zelmodel_test
