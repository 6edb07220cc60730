#include "report.h"

#include <zelplatform/util/util.h>

#include "describe/terminal_text.h"

namespace check
{
namespace
{

constexpr std::size_t LongestSentence = 400;

std::string shown(const std::string& text)
{
    return describe::printable(describe::shortened(text, LongestSentence));
}

} // namespace

std::string toText(const CheckedFile& file)
{
    std::string text;
    for (const auto& finding : file.findings)
    {
        const auto line = finding.line > 0 ? ':' + util::toStr(finding.line) : std::string();
        text += describe::printable(file.name) + line + ": " + nameOf(finding.rule->severity) + ": " +
                shown(finding.text) + " [" + finding.rule->id + "]\n";
        for (const auto& sentence : finding.sentences)
            text += "    " + shown(sentence) + '\n';
    }
    return text;
}

nlohmann::ordered_json toJson(const CheckedFile& file)
{
    nlohmann::ordered_json json{{"file", file.name}};
    if (!file.failure.empty())
    {
        json["failed"] = file.failure;
        return json;
    }
    json["findings"] = nlohmann::ordered_json::array();
    for (const auto& finding : file.findings)
    {
        nlohmann::ordered_json item;
        if (finding.line > 0)
            item["line"] = finding.line;
        item["class"] = nameOf(finding.rule->severity);
        item["id"] = finding.rule->id;
        item["text"] = finding.text;
        if (!finding.sentences.empty())
            item["refused"] = finding.sentences;
        json["findings"].push_back(item);
    }
    return json;
}

} // namespace check
