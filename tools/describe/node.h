#pragma once

#include <string>
#include <utility>
#include <vector>

namespace describe
{

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

    /// The line of the document that gave the value; 0 when the document does not hold it and the value is a default.
    int line = 0;

    /// A value that no renderer shows unless it is told to.
    bool secret = false;

    /// A field that the words of the node above tell already: text for people leaves it out.
    bool isDetail = false;

    std::vector<Node> children;
};

/// A field that people are shown.
inline Node makeField(std::string name, std::string label, std::string value, std::string words, int line)
{
    return Node{std::move(name), std::move(label), std::move(value), std::move(words), line, false, false, {}};
}

/// A field that the words of the node above tell already.
inline Node makeDetail(std::string name, std::string label, std::string value, std::string words, int line)
{
    return Node{std::move(name), std::move(label), std::move(value), std::move(words), line, false, true, {}};
}

/// A field that no renderer shows unless it is told to. An empty one hides nothing and is an ordinary field.
inline Node makeSecret(std::string name, std::string label, std::string value, int line)
{
    const bool isSecret = !value.empty();
    std::string words = isSecret ? value : "none";
    return Node{std::move(name), std::move(label), std::move(value), std::move(words), line, isSecret, false, {}};
}

} // namespace describe
