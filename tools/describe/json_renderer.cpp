#include "json_renderer.h"

#include <cstdint>
#include <optional>
#include <string>

#include <zelplatform/util/util.h>

namespace describe
{
namespace
{

using nlohmann::ordered_json;

// Programs that keep numbers as doubles hold integers up to here.
constexpr std::int64_t LastExactInteger = 1LL << 53;

ordered_json numberOf(const std::string& text)
try
{
    const auto number = util::fromStr<std::int64_t>(text);
    if (number > LastExactInteger || number < -LastExactInteger)
        return text;
    return number;
}
catch (const std::exception&)
{
    return text;
}

ordered_json valueOf(const Node& node)
{
    switch (node.valueType)
    {
    case EValueType::Text: break;
    case EValueType::Number: return numberOf(node.value);
    case EValueType::Flag: return node.value == "true";
    }
    return node.value;
}

void addOrigin(const Origin& origin, ordered_json& json)
{
    if (origin.kind == EOrigin::None)
        return;
    if (origin.kind == EOrigin::Default)
    {
        json["default"] = true;
        return;
    }
    json["line"] = origin.line;
    json["readFrom"] = origin.name;
    if (origin.kind == EOrigin::Older)
        json["olderForm"] = true;
}

} // namespace

ordered_json toJson(const Node& node, const TextStyle& style)
{
    auto json = ordered_json::object();
    if (node.secret && !style.showsSecrets)
        json["words"] = hiddenWords(node);
    else
    {
        if (!node.value.empty() || node.children.empty())
            json["value"] = valueOf(node);
        json["words"] = node.words;
    }
    if (node.secret)
        json["secret"] = true;
    addOrigin(node.origin, json);
    if (node.isNotCarried)
        json["notCarried"] = true;
    if (node.isList)
        json["items"] = ordered_json::array();
    for (const auto& child : node.children)
    {
        if (node.isList)
            json["items"].push_back(toJson(child, style));
        else
            json["fields"][child.name] = toJson(child, style);
    }
    return json;
}

} // namespace describe
