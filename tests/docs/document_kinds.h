#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zelmodel_test
{

/// A kind of document whose examples the pages show, named as after their opening fences: "xml JobOptions".
struct DocumentKind
{
    const char* info;

    /// Whether what is read is written back as it was.
    bool isWrittenBack;

    /// Reads the text with the reader of the kind and writes what was read; the older schedules as words.
    std::function<std::string(const std::string& text)> rewrite;
};

/// The kind of a block; nullptr when the block is no example.
const DocumentKind* findKind(const std::string& info);

const std::vector<DocumentKind>& allKinds();

/// The text without the white space between its elements.
std::string compact(const std::string& text);

/// Why the reader of the kind refuses the text, whether it throws an object or a pointer; empty when it does not.
std::string refusalOf(const DocumentKind& kind, const std::string& text);

} // namespace zelmodel_test
