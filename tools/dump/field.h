#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "describe/node.h"
#include "walk.h"

namespace dump
{

/// A field of a binary form in words, and where its bytes stand.
struct Field
{
    describe::Node node; ///< without children; a hidden value is not in it
    std::size_t offset = 0;
    std::size_t length = 0;
    std::uint64_t missing = 0; ///< bytes that the value takes and the form has not
    std::vector<Field> fields;
    std::optional<describe::Node> document; ///< what the XML in it says
};

/// Which values a tree shows.
struct Visibility
{
    bool showsSecrets = false;
    bool isRead = false; ///< the library read the form, so that the documents in it can be told

    /// Of a form that was read without a fault, or that holds no keys and was named by the user.
    bool isSure = false;

    /// In a damaged form with keys: that many first items of a list were confirmed by what follows them.
    std::size_t sureItems = 0;
};

/// Whether the value is shown.
bool isShown(const Span& span, std::string_view bytes, const Visibility& visibility);

/// The spans in words. What is hidden does not get into the tree, so that its bytes get nowhere but where they are.
std::vector<Field> tellSpans(const std::vector<Span>& spans, std::string_view bytes, const Visibility& visibility);

/// "(hidden, 32 bytes)".
std::string hiddenBytes(std::size_t count);

} // namespace dump
