#pragma once

#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

namespace zelmodel_test
{

/// Whether the JSON is an answer of the schema, which is the one that the command prints.
bool isAnswer(const std::string& schema, const nlohmann::json& answer);

/// Why the JSON is no answer of the schema, a fault a line; empty when it is one.
std::string faultsOf(const std::string& schema, const nlohmann::json& answer);

/// Fails the test when the call asked for JSON and the output is not what the schemas say.
void expectAnswersOfSchema(const std::vector<std::string>& call, const std::string& output);

} // namespace zelmodel_test
