#include "diff_renderer.h"

#include <cstddef>
#include <utility>

#include <zelplatform/util/util.h>

#include "json_renderer.h"
#include "terminal_text.h"
#include "words.h"

namespace describe
{
namespace
{

constexpr std::size_t DetailIndent = 2;
constexpr std::size_t HangingIndent = 4;

std::string placeOf(const Origin& origin)
{
    switch (origin.kind)
    {
    case EOrigin::None: return {};
    case EOrigin::Default: return "default";
    case EOrigin::Document: return "line " + util::toStr(origin.line);
    case EOrigin::Older: break;
    }
    return "line " + util::toStr(origin.line) + ", older form: " + printable(origin.name);
}

std::string placesOf(const Difference& difference, bool tellsSecond)
{
    const auto first = placeOf(difference.first.origin);
    const auto second = tellsSecond ? placeOf(difference.second.origin) : std::string();
    const auto both = first.empty() || second.empty() ? first + second : first + " -> " + second;
    return both.empty() ? both : " (" + both + ')';
}

std::string shownValue(const Node& node, const TextStyle& style)
{
    return printable(shortened(node.value, style.longestWords));
}

// Words may be rounder than values: "40.0 GB" are many numbers of bytes.
std::string tellChange(const Node& first, const Node& second, const TextStyle& style)
{
    const bool isHidden = (first.secret || second.secret) && !style.showsSecrets;
    if (!isHidden && first.words == second.words)
        return shownValue(first, style) + " -> " + shownValue(second, style);
    return shownWords(first, style) + " -> " + shownWords(second, style);
}

std::string tell(const Difference& difference, const DiffWords& words, const TextStyle& style)
{
    switch (difference.kind)
    {
    case EDifference::OnlyInFirst: return words.onlyInFirst + ": " + shownWords(difference.first, style);
    case EDifference::OnlyInSecond: return words.onlyInSecond + ": " + shownWords(difference.second, style);
    case EDifference::Changed: break;
    }
    return tellChange(difference.first, difference.second, style);
}

std::string renderOne(const Difference& difference, const DiffWords& words, const TextStyle& style, std::size_t indent)
{
    const auto label = indent == 0 ? joinLabels(difference.labels) : printable(difference.labels.back());
    const auto places = difference.details.empty() ? placesOf(difference, words.tellsSecondPlace) : std::string();
    auto text = renderLine(label + ": " + tell(difference, words, style) + places, style, indent);
    for (const auto& detail : difference.details)
        text += renderOne(detail, words, style, indent + DetailIndent);
    return text;
}

std::string renderNotCarried(const std::vector<std::string>& labels, const DocumentSide& side, const TextStyle& style)
{
    if (labels.empty())
        return {};
    return renderLine("Not carried by " + printable(side.name) + " (" + nameOf(side.kind) + "): " + listOf(labels),
                      style);
}

std::string tellUncomparable(const DocumentSide& first, const DocumentSide& second)
{
    return "Nothing can be compared: " + printable(first.name) + " is " + nameOf(first.kind) + ", " +
           printable(second.name) + " is " + nameOf(second.kind);
}

const char* nameOf(EDifference kind)
{
    switch (kind)
    {
    case EDifference::OnlyInFirst: return "onlyInFirst";
    case EDifference::OnlyInSecond: return "onlyInSecond";
    case EDifference::Changed: break;
    }
    return "changed";
}

} // namespace

std::string joinLabels(const std::vector<std::string>& labels)
{
    std::string text;
    for (const auto& label : labels)
        text += (text.empty() ? "" : " / ") + printable(label);
    return text;
}

std::string renderLine(const std::string& text, const TextStyle& style, std::size_t indent)
{
    return std::string(indent, ' ') + broken(text, indent + HangingIndent, style) + '\n';
}

std::string renderDifferences(const std::vector<Difference>& differences, const DiffWords& words,
                              const TextStyle& style)
{
    std::string text;
    for (const auto& difference : differences)
        text += renderOne(difference, words, style, 0);
    return text;
}

std::string renderDiff(const DocumentDiff& diff, const DocumentSide& first, const DocumentSide& second,
                       const TextStyle& style)
{
    if (!diff.areComparable)
        return renderLine(tellUncomparable(first, second), style);
    const DiffWords words{"only in " + printable(first.name), "only in " + printable(second.name)};
    auto text = renderDifferences(diff.diff.differences, words, style);
    if (!diff.sharedPart.empty())
        text += renderLine("Only the " + diff.sharedPart + " was compared: both documents hold it", style);
    return text + renderNotCarried(diff.diff.notCarriedByFirst, first, style) +
           renderNotCarried(diff.diff.notCarriedBySecond, second, style);
}

nlohmann::ordered_json toJson(const std::vector<Difference>& differences, const TextStyle& style)
{
    auto json = nlohmann::ordered_json::array();
    for (const auto& difference : differences)
    {
        nlohmann::ordered_json one{{"path", util::str_join(difference.names, "/")},
                                   {"label", joinLabels(difference.labels)},
                                   {"change", nameOf(difference.kind)}};
        if (difference.kind != EDifference::OnlyInSecond)
            one["first"] = toJson(difference.first, style);
        if (difference.kind != EDifference::OnlyInFirst)
            one["second"] = toJson(difference.second, style);
        if (!difference.details.empty())
            one["fields"] = toJson(difference.details, style);
        json.push_back(std::move(one));
    }
    return json;
}

nlohmann::ordered_json toJson(const DocumentDiff& diff, const TextStyle& style)
{
    nlohmann::ordered_json json{{"same", diff.isSame()}, {"comparable", diff.areComparable}};
    if (!diff.sharedPart.empty())
        json["sharedPart"] = diff.sharedPart;
    json["differences"] = toJson(diff.diff.differences, style);
    json["notCarriedByFirst"] = diff.diff.notCarriedByFirst;
    json["notCarriedBySecond"] = diff.diff.notCarriedBySecond;
    return json;
}

} // namespace describe
