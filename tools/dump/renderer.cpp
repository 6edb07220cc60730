#include "renderer.h"

#include <algorithm>
#include <vector>

#include <zelplatform/util/util.h>

#include "describe/json_renderer.h"
#include "describe/words.h"

namespace dump
{
namespace
{

using describe::Node;
using nlohmann::ordered_json;

constexpr const char* OffsetLabel = "Offset";
constexpr const char* LengthLabel = "Length";
constexpr std::size_t Indent = 2;

std::string rightAligned(std::size_t number, std::size_t width)
{
    const auto text = util::toStr(number);
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

Node cell(const char* name, const char* label, const std::string& words)
{
    return describe::makeField(name, label, "", words);
}

/// A row of the table; what was hidden is hidden by now.
Node rowOf(const Field& field, std::size_t depth, std::size_t digits)
{
    const auto numberWidth = [digits](const char* label) { return std::max(digits, std::string(label).size()); };
    Node row;
    row.children.push_back(cell("offset", OffsetLabel, rightAligned(field.offset, numberWidth(OffsetLabel))));
    row.children.push_back(cell("length", LengthLabel, rightAligned(field.length, numberWidth(LengthLabel))));
    row.children.push_back(cell("field", "Field", std::string(depth * Indent, ' ') + field.node.label));
    row.children.push_back(cell("value", "Value", field.node.words));
    return row;
}

/// A list has no row of its own, its items have.
void addRows(const std::vector<Field>& fields, std::size_t depth, std::size_t digits, std::vector<Node>& rows)
{
    for (const auto& field : fields)
    {
        if (!field.node.isList)
            rows.push_back(rowOf(field, depth, digits));
        addRows(field.fields, field.node.isList ? depth : depth + 1, digits, rows);
    }
}

void collectDocuments(const std::vector<Field>& fields, std::vector<Node>& documents)
{
    for (const auto& field : fields)
    {
        if (field.document)
            documents.push_back(*field.document);
        collectDocuments(field.fields, documents);
    }
}

std::string titleOf(const Dump& dump)
{
    auto title = describe::countOf(dump.size, "byte") + (dump.isBase64 ? ", from base64 text" : "");
    for (const auto* other : dump.others)
        title += std::string(", may also be ") + other->name;
    return title;
}

ordered_json toJson(const Field& field, const describe::TextStyle& style)
{
    ordered_json json{{"offset", field.offset}, {"length", field.length}};
    if (!field.fields.empty() && !field.node.words.empty())
        json["words"] = field.node.words;
    if (!field.fields.empty() || field.node.isList)
    {
        auto& members = json[field.node.isList ? "items" : "fields"];
        members = field.node.isList ? ordered_json::array() : ordered_json::object();
        for (const auto& child : field.fields)
        {
            if (field.node.isList)
                members.push_back(toJson(child, style));
            else
                members[child.node.name] = toJson(child, style);
        }
        return json;
    }
    json.update(describe::toJson(field.node, style));
    if (field.node.value.empty() && (field.node.secret || field.missing != 0))
        json.erase("value");
    if (field.missing != 0)
        json["missing"] = field.missing;
    if (field.document)
        json["document"] = describe::toJson(*field.document, style);
    return json;
}

} // namespace

std::string renderText(const Dump& dump, const describe::TextStyle& style)
{
    auto table = describe::makeField("dump", dump.form->title, "", titleOf(dump));
    addRows(dump.fields, 0, util::toStr(dump.size).size(), table.children);
    auto shown = style;
    if (style.showsSecrets)
        shown.longestWords = 2 * MostBytes;
    auto text = describe::renderTable(table, shown);
    std::vector<Node> documents;
    collectDocuments(dump.fields, documents);
    for (const auto& document : documents)
        text += '\n' + describe::renderText(document, style);
    return text;
}

ordered_json toJson(const Dump& dump, const describe::TextStyle& style)
{
    // Whatever is in the tree may be shown: what is hidden did not get there.
    auto shown = style;
    shown.showsSecrets = true;
    ordered_json json{{"form", dump.form->name}, {"base64", dump.isBase64}, {"bytes", dump.size}};
    if (!dump.others.empty())
        json["others"] = ordered_json::array();
    for (const auto* other : dump.others)
        json["others"].push_back(other->name);
    if (dump.refusal)
    {
        json["offset"] = dump.refusal->offset;
        json["field"] = dump.refusal->field;
        json["refused"] = dump.refusal->sentences;
    }
    json["fields"] = ordered_json::object();
    for (const auto& field : dump.fields)
        json["fields"][field.node.name] = toJson(field, shown);
    return json;
}

} // namespace dump
