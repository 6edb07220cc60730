#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "describe/node.h"

namespace dump
{

/// When the value of a field is shown.
enum class EShown
{
    Always,   ///< counts and versions: what the form itself needs
    Known,    ///< an identifier, where it is one; what is none may be a piece of a key in a damaged form
    WhenSure, ///< where the form was read without a fault; in a damaged one it may be a piece of a key
    Secret,   ///< when the user asks for secrets
};

/// Input that is longer is refused, so that the tree of its fields fits into memory.
constexpr std::size_t MostBytes = 1024UL * 1024;

/// What a field of a binary form is: the table beside the library's reader gives its bytes a name and words. Most hold
/// one value; a row without words is a group of fields or a list.
struct Row
{
    const char* name;  ///< the record's field: the key for programs
    const char* label; ///< for people

    /// Sets value and words of the node from the field's content, a length in front left out.
    void (*tell)(std::string_view content, describe::Node& node) = nullptr;

    EShown shown = EShown::WhenSure;

    /// Why the library refuses the content, in its own sentence; empty when it does not. Only where the refusal may
    /// come later than the reading, or where it helps to recognise the form.
    std::string (*refusal)(std::string_view content) = nullptr;

    /// Bytes that the content has at most.
    std::size_t most = MostBytes;

    /// The XML document that the content holds, in words.
    describe::Node (*document)(const std::string& content) = nullptr;
};

} // namespace dump
