#include <string>

#include <gtest/gtest.h>

#include "describe/json_renderer.h"

namespace
{

using describe::EOrigin;
using describe::makeField;
using describe::makeSecret;
using describe::Node;
using describe::Origin;
using describe::TextStyle;
using describe::toJson;
using describe::Value;

std::string jsonOf(const Node& node, const TextStyle& style = {})
{
    return toJson(node, style).dump();
}

struct ValueCase
{
    Value value;
    const char* json;
};

TEST(ToJson, ValuesHaveTheirTypes)
{
    const ValueCase cases[] = {
        {"14", R"("14")"},
        {std::string("true"), R"("true")"},
        {"", R"("")"},
        {14, "14"},
        {-3L, "-3"},
        {true, "true"},
        {false, "false"},
        {9007199254740992L, "9007199254740992"},
        {9007199254740993L, R"("9007199254740993")"},
        {-9007199254740992L, "-9007199254740992"},
        {-9007199254740993L, R"("-9007199254740993")"},
        {18446744073709551615UL, R"("18446744073709551615")"},
        {static_cast<unsigned char>(200), "200"},
    };
    for (const auto& test : cases)
        EXPECT_EQ(jsonOf(makeField("n", "Name", test.value, "words")),
                  std::string(R"({"value":)") + test.json + R"(,"words":"words"})");
}

TEST(ToJson, TellsWhereAValueCameFrom)
{
    const std::string start = R"({"value":1,"words":"one")";
    const auto with = [](const Origin& origin) { return jsonOf(makeField("n", "Name", 1, "one", origin)); };
    EXPECT_EQ(with({}), start + "}");
    EXPECT_EQ(with({EOrigin::Default, 0, "Count"}), start + R"(,"default":true})");
    EXPECT_EQ(with({EOrigin::Document, 7, "Count"}), start + R"(,"line":7,"readFrom":"Count"})");
    EXPECT_EQ(with({EOrigin::Older, 7, "OldCount"}), start + R"(,"line":7,"readFrom":"OldCount","olderForm":true})");
}

TEST(ToJson, FieldsByNameAndItemsInOrder)
{
    auto group = makeField("group", "Group", "", "of two");
    group.children.push_back(makeField("b", "B", "x", "x"));
    group.children.push_back(makeField("a", "A", "y", "y"));
    EXPECT_EQ(jsonOf(group),
              R"({"words":"of two","fields":{"b":{"value":"x","words":"x"},"a":{"value":"y","words":"y"}}})");
    auto list = makeField("list", "List", "", "");
    list.isList = true;
    EXPECT_EQ(jsonOf(list), R"({"value":"","words":"","items":[]})");
    list.children.push_back(makeField("item", "1", "x", "x"));
    EXPECT_EQ(jsonOf(list), R"({"words":"","items":[{"value":"x","words":"x"}]})");
}

TEST(ToJson, HidesSecretsUnlessTold)
{
    const auto node = makeSecret("key", "Key", "canary", {EOrigin::Document, 2, "Key"});
    EXPECT_EQ(jsonOf(node), R"x({"words":"(hidden, 6 characters)","secret":true,"line":2,"readFrom":"Key"})x");
    TextStyle style;
    style.showsSecrets = true;
    EXPECT_EQ(jsonOf(node, style), R"({"value":"canary","words":"canary","secret":true,"line":2,"readFrom":"Key"})");
}

} // namespace
