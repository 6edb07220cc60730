#include "conversion.h"

#include "diff_renderer.h"
#include "terminal_text.h"
#include "words.h"

namespace describe
{
namespace
{

using nlohmann::ordered_json;

const char* nameOf(EMarkup kind)
{
    switch (kind)
    {
    case EMarkup::Attribute: return "attribute";
    case EMarkup::Element: return "element";
    case EMarkup::Text: break;
    }
    return "text";
}

std::string tellPart(const MarkupPart& part)
{
    auto text = std::string(nameOf(part.kind));
    if (!part.name.empty())
        text += ' ' + printable(part.name);
    if (!part.owner.empty())
        text += " of " + printable(part.owner);
    return text + " (line " + std::to_string(part.line) + ')';
}

std::string tellRenamed(const RenamedField& field)
{
    const auto before = printable(field.origin.name) + " (line " + std::to_string(field.origin.line) + ')';
    if (field.origin.name == field.writtenName)
        return "written in the current form of " + before;
    return "written as " + field.writtenName + " instead of " + before;
}

std::string renderParts(const char* what, const std::vector<MarkupPart>& parts, const TextStyle& style)
{
    std::string text;
    for (const auto& part : parts)
        text += renderLine(what + tellPart(part), style);
    return text;
}

std::string renderCount(std::size_t count, const std::string& thing, const TextStyle& style)
{
    return count == 0 ? std::string() : renderLine("Not written: " + countOf(count, thing), style);
}

ordered_json toJson(const std::vector<MarkupPart>& parts)
{
    auto json = ordered_json::array();
    for (const auto& part : parts)
        json.push_back({{"part", nameOf(part.kind)}, {"name", part.name}, {"owner", part.owner}, {"line", part.line}});
    return json;
}

ordered_json toJson(const std::vector<RenamedField>& fields)
{
    auto json = ordered_json::array();
    for (const auto& field : fields)
        json.push_back({{"label", joinLabels(field.labels)},
                        {"line", field.origin.line},
                        {"readFrom", field.origin.name},
                        {"olderForm", field.origin.kind == EOrigin::Older},
                        {"writtenAs", field.writtenName}});
    return json;
}

} // namespace

std::string renderConversion(const Conversion& conversion, const TextStyle& style)
{
    auto text = renderDifferences(conversion.differences, {"not written", "written, though not read", false}, style);
    const auto& markup = conversion.markup;
    if (markup.enclosing.line != 0)
        text += renderLine("Not written: what stands around it, " + tellPart(markup.enclosing), style);
    text += renderParts("Not written: ", markup.lost, style);
    text += renderCount(markup.comments, "comment", style);
    text += renderCount(markup.instructions, "instruction", style);
    for (const auto& field : conversion.renamedFields)
        text += renderLine(joinLabels(field.labels) + ": " + tellRenamed(field), style);
    text += renderParts("Written with another text: ", markup.respelled, style);
    if (conversion.writtenDefaults > 0)
        text += renderLine("Written out: " + countOf(conversion.writtenDefaults, "default"), style);
    return text;
}

ordered_json toJson(const Conversion& conversion, const TextStyle& style)
{
    const auto& markup = conversion.markup;
    ordered_json json{{"differences", toJson(conversion.differences, style)},
                      {"renamed", toJson(conversion.renamedFields)},
                      {"lost", toJson(markup.lost)},
                      {"respelled", toJson(markup.respelled)},
                      {"comments", markup.comments},
                      {"instructions", markup.instructions},
                      {"writtenDefaults", conversion.writtenDefaults}};
    if (markup.enclosing.line != 0)
        json["enclosing"] = toJson(std::vector<MarkupPart>{markup.enclosing}).front();
    return json;
}

} // namespace describe
