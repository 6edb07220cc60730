#include "report.h"

#include <algorithm>
#include <cstddef>

namespace check
{
namespace
{

using nlohmann::ordered_json;

constexpr const char* Schema = "https://json.schemastore.org/sarif-2.1.0.json";

const char* levelOf(ESeverity severity)
{
    switch (severity)
    {
    case ESeverity::Refused: return "error";
    case ESeverity::Warning: return "warning";
    case ESeverity::Note: break;
    }
    return "note";
}

// A file name as a relative or absolute reference: whatever an address gives a meaning of its own is escaped.
std::string addressOf(const std::string& name)
{
    constexpr const char* digits = "0123456789ABCDEF";
    constexpr const char* plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    std::string address;
    for (const char c : name)
    {
        const auto byte = static_cast<unsigned char>(c);
        if (std::string(plain).find(c) != std::string::npos)
            address += c;
        else
            address += std::string("%") + digits[byte >> 4U] + digits[byte & 0xFU];
    }
    return address;
}

ordered_json describeRules()
{
    auto rules = ordered_json::array();
    for (const auto& rule : allRules())
    {
        rules.push_back({{"id", rule.id},
                         {"shortDescription", {{"text", rule.title}}},
                         {"fullDescription", {{"text", rule.cause}}},
                         {"help", {{"text", rule.cure}}},
                         {"defaultConfiguration", {{"level", levelOf(rule.severity)}}}});
    }
    return rules;
}

ordered_json describeResult(const CheckedFile& file, const Finding& finding)
{
    ordered_json place{{"artifactLocation", {{"uri", addressOf(file.name)}}}};
    if (finding.line > 0)
        place["region"] = {{"startLine", finding.line}};
    ordered_json result{{"ruleId", finding.rule->id}};
    result["ruleIndex"] = finding.rule - allRules().data();
    result["level"] = levelOf(finding.rule->severity);
    result["message"] = {{"text", finding.text}};
    result["locations"] = ordered_json::array({ordered_json{{"physicalLocation", place}}});
    return result;
}

} // namespace

ordered_json toSarif(const std::vector<CheckedFile>& files, const std::string& version)
{
    auto results = ordered_json::array();
    for (const auto& file : files)
    {
        for (const auto& finding : file.findings)
            results.push_back(describeResult(file, finding));
    }
    const bool isComplete =
        std::all_of(files.begin(), files.end(), [](const CheckedFile& file) { return file.failure.empty(); });
    ordered_json driver{{"name", "zelmodel"}, {"version", version}, {"rules", describeRules()}};
    ordered_json run;
    run["tool"] = {{"driver", driver}};
    run["invocations"] = ordered_json::array({ordered_json{{"executionSuccessful", isComplete}}});
    run["results"] = results;
    return {{"$schema", Schema}, {"version", "2.1.0"}, {"runs", ordered_json::array({run})}};
}

} // namespace check
