#pragma once

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace describe
{

/// What a field's value is for programs.
enum class EValueType
{
    Text,
    Number,
    Flag,
};

/// What a record holds in a field, as text.
struct Value
{
    Value(std::string value) : text(std::move(value)) {}
    Value(const char* value) : text(value) {}

    template <class T, std::enable_if_t<std::is_same_v<T, bool>, int> = 0>
    Value(T flag) : text(flag ? "true" : "false"), type(EValueType::Flag)
    {
    }

    template <class T, std::enable_if_t<std::is_integral_v<T> && !std::is_same_v<T, bool>, long> = 0>
    Value(T number) : text(std::to_string(number)), type(EValueType::Number)
    {
    }

    std::string text;
    EValueType type = EValueType::Text;
};

/// How a value came into the record.
enum class EOrigin
{
    None,     ///< nobody asks: a heading, or what was worked out from other fields
    Default,  ///< the document does not hold it
    Document, ///< the document holds it under its current name
    Older,    ///< the document holds it under a name of an older layout
};

/// Where a value came from.
struct Origin
{
    EOrigin kind = EOrigin::None;
    int line = 0;       ///< the line of the document that gave the value; 0 when none did
    std::string name;   ///< the attribute or element that was looked for, or found under an older name
    std::string text{}; ///< what stands in the attribute; empty for an element

    bool isThere() const noexcept { return line != 0; }
};

/// A field of a document, told in words. The tree of them is what every renderer works on: text, pictures and other
/// programs show the same fields under the same names.
struct Node
{
    /// The field's name in the record: the key for programs.
    std::string name;

    /// The field's name for people.
    std::string label;

    /// What the record holds, as text; may be empty for a group of fields.
    std::string value;

    /// What that means, for people. Values of the document stand in it as they are, control characters included.
    std::string words;

    /// Where the value came from.
    Origin origin;

    EValueType valueType = EValueType::Text;

    /// A value that no renderer shows unless it is told to.
    bool secret = false;

    /// A field that the words of the node above tell already: text for people leaves it out.
    bool isDetail = false;

    /// The children are the items of a list, which share one name.
    bool isList = false;

    /// The form of the document cannot carry the field: it has its default, and no document of the form says more.
    bool isNotCarried = false;

    /// Two that read alike mean the same, whatever their values: the same hours are listed as open or as closed ones.
    bool isComparedByWords = false;

    std::vector<Node> children;
};

/// A field that people are shown.
inline Node makeField(std::string name, std::string label, Value value, std::string words, Origin origin = {})
{
    Node node;
    node.name = std::move(name);
    node.label = std::move(label);
    node.value = std::move(value.text);
    node.valueType = value.type;
    node.words = std::move(words);
    node.origin = std::move(origin);
    return node;
}

/// A field that the words of the node above tell already.
inline Node makeDetail(std::string name, std::string label, Value value, std::string words, Origin origin = {})
{
    auto node = makeField(std::move(name), std::move(label), std::move(value), std::move(words), std::move(origin));
    node.isDetail = true;
    return node;
}

/// A field that no renderer shows unless it is told to. An empty one hides nothing and is an ordinary field.
inline Node makeSecret(std::string name, std::string label, const std::string& value, Origin origin = {})
{
    const bool isSecret = !value.empty();
    auto node = makeField(std::move(name), std::move(label), value, isSecret ? value : "none", std::move(origin));
    node.secret = isSecret;
    return node;
}

} // namespace describe
