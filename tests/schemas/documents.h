#pragma once

#include <string>
#include <vector>

#include "schema_kinds.h"

namespace zelmodel_test
{

struct NamedText
{
    std::string name;
    std::string text;
};

/// The golden documents and the examples of the kind, older and refused ones included, in the order of their names:
/// "golden/GfsPolicy/long.xml", "examples/refused/gfs-count-too-large.xml".
std::vector<NamedText> documentsOf(const SchemaKind& kind);

/// What the writers of the library make of the samples of every reader, as far as it is a document of the kind.
std::vector<NamedText> writtenDocumentsOf(const SchemaKind& kind);

/// Whether the text is a document of the kind, readable or not.
bool isOfKind(const SchemaKind& kind, const std::string& text);

/// Whether the reader of its kind takes the text.
bool isRead(const std::string& text);

/// The documents that the writer of its kind makes of the text; none when the text is refused, or the kind is only
/// read.
std::vector<std::string> rewritten(const SchemaKind& kind, const std::string& text);

/// The element that the kind is about: settings without the document around them, any other text as it stands.
std::string withoutOwner(const SchemaKind& kind, const std::string& text);

} // namespace zelmodel_test
