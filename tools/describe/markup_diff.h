#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace describe
{

enum class EMarkup
{
    Attribute,
    Element,
    Text, ///< the text of an element
};

/// A part of a document as it was written.
struct MarkupPart
{
    EMarkup kind = EMarkup::Attribute;
    std::string name;  ///< of the attribute or the element; empty for a text
    std::string owner; ///< the element that holds it; empty at the top
    int line = 0;
};

/// What a document holds and the one that was written from it does not.
struct MarkupDiff
{
    std::vector<MarkupPart> lost;
    std::vector<MarkupPart> respelled; ///< there too, with another text
    std::size_t comments = 0;
    std::size_t instructions = 0; ///< processing instructions and document types

    /// The element around the one that was written, empty when there is none.
    MarkupPart enclosing;
};

/// Whether a field was read from the attribute or element of this name on this line, or from the element's text.
using IsRead = std::function<bool(EMarkup kind, const std::string& name, int line)>;

/// Compares the markup of two documents that were read before. An element or attribute stands for the one of the same
/// way and name, of several elements for the one of the same number; what the reader took from elsewhere is no loss.
/// No value is told, so that no secret is.
MarkupDiff compareMarkup(const std::string& before, const std::string& after, const IsRead& isRead);

} // namespace describe
