#include "answer_schemas.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <stdexcept>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_results.hpp>
#include <valijson/validator.hpp>

#include "run_command.h"

namespace zelmodel_test
{
namespace
{

using nlohmann::json;
using valijson::Schema;
using valijson::adapters::NlohmannJsonAdapter;

// Programs start slowly where they are emulated: each schema is asked for once.
const Schema& schemaOf(const std::string& name)
{
    static std::map<std::string, Schema> schemas;
    const auto known = schemas.find(name);
    if (known != schemas.end())
        return known->second;
    const auto printed = runCommand({"schema", "--answer", name});
    if (printed.exitCode != 0)
        throw std::runtime_error(printed.messages);
    const auto document = json::parse(printed.output);
    valijson::SchemaParser(valijson::SchemaParser::kDraft7)
        .populateSchema(NlohmannJsonAdapter(document), schemas[name]);
    return schemas[name];
}

bool has(const std::vector<std::string>& call, const std::string& word)
{
    return std::find(call.begin(), call.end(), word) != call.end();
}

// These are answered in words whatever else is asked for.
bool isAnsweredAtOnce(const std::vector<std::string>& call)
{
    return has(call, "--help") || has(call, "-h") || has(call, "--version") || has(call, "help");
}

// A wrong call that asks for both kinds of JSON answers as any other.
std::string nameOfSchema(const std::vector<std::string>& call, const json& answer)
{
    if (!has(call, "--json"))
        return "log-lines";
    return answer.at("kind") == "error" ? "error" : call.front();
}

void expectAnswer(const std::vector<std::string>& call, const std::string& text)
{
    const auto answer = json::parse(text, nullptr, false);
    if (answer.is_discarded())
    {
        ADD_FAILURE() << testing::PrintToString(call) << " answers no JSON:\n" << text;
        return;
    }
    const auto schema = nameOfSchema(call, answer);
    // Looking for each fault takes longer.
    if (!isAnswer(schema, answer))
        ADD_FAILURE() << testing::PrintToString(call) << " answers what is none of the schema " << schema << ":\n"
                      << faultsOf(schema, answer);
}

} // namespace

bool isAnswer(const std::string& schema, const json& answer)
{
    valijson::Validator validator;
    return validator.validate(schemaOf(schema), NlohmannJsonAdapter(answer), nullptr);
}

std::string faultsOf(const std::string& schema, const json& answer)
{
    valijson::ValidationResults results;
    valijson::Validator validator;
    if (validator.validate(schemaOf(schema), NlohmannJsonAdapter(answer), &results))
        return {};
    std::string faults;
    for (valijson::ValidationResults::Error error; results.popError(error);)
    {
        for (const auto& step : error.context)
            faults += step;
        faults += ": " + error.description + '\n';
    }
    return faults;
}

void expectAnswersOfSchema(const std::vector<std::string>& call, const std::string& output)
{
    if (isAnsweredAtOnce(call))
        return;
    if (has(call, "--json"))
        expectAnswer(call, output);
    else if (has(call, "--json-lines"))
    {
        std::istringstream lines(output);
        for (std::string line; std::getline(lines, line);)
            expectAnswer(call, line);
    }
}

} // namespace zelmodel_test
