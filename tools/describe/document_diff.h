#pragma once

#include <string>

#include "document_kind.h"
#include "node.h"
#include "tree_diff.h"

namespace describe
{

/// A document that was read, as a side of a comparison.
struct DocumentSide
{
    std::string name; ///< what people call it: the file
    EDocumentKind kind;
    Node tree;
};

/// What two documents have in common, compared.
struct DocumentDiff
{
    /// False for kinds that share no fields; then nothing was compared.
    bool areComparable = false;

    /// The part that both hold, "schedule"; empty when they were compared as wholes.
    std::string sharedPart;

    TreeDiff diff;

    bool isSame() const noexcept { return areComparable && diff.isSame(); }
};

/// Compares two documents: two of the same record whatever their forms and layouts, or the part of one that is the
/// other (the schedule or the GFS policy of a job, the settings within direct immutability settings).
DocumentDiff compareDocuments(const DocumentSide& first, const DocumentSide& second);

} // namespace describe
