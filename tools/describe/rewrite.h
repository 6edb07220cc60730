#pragma once

#include <string>

#include "document_kind.h"
#include "node.h"

namespace describe
{

/// Reads the document with the library's reader of its kind and writes it with the library's writer: the current form.
/// Job options come out in the agent's form; a GFS policy keeps its names, as each variant has readers of its own. The
/// tree is the document's. Throws exc::CRuntimeExc for a kind that the library does not write.
std::string rewrite(const std::string& text, EDocumentKind kind, const Node& tree);

} // namespace describe
