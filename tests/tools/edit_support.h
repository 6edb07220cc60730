#pragma once

#include <string>
#include <vector>

#include "edit/fields.h"

namespace zelmodel_test
{

/// A new document of the kind with these values.
inline edit::WrittenDocument made(describe::EDocumentKind kind, const std::vector<edit::Assignment>& assignments)
{
    auto record = edit::newRecord(kind);
    for (const auto& assignment : assignments)
        edit::setField(record, assignment);
    return edit::writeRecord(record);
}

} // namespace zelmodel_test
