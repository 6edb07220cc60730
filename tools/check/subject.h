#pragma once

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <zelmodel/structs/schedule/backup_window.h>
#include <zelmodel/structs/schedule/schedule_options.h>

#include "attempt.h"
#include "describe/node.h"

namespace check
{

/// What rules look at: a document that its reader accepts, perhaps after repairs.
struct Subject
{
    const describe::Document& document;
    const Attempt& reading; ///< an accepted one
    std::vector<describe::IgnoredPart> ignored;
    const zelplatform::model::structs::BackupWindow* window;

    /// Line and name of what was repaired: its value is not the document's any more.
    const std::set<std::pair<int, std::string>>& repaired;

    const describe::Node& tree() const { return *reading.tree; }

    /// True when the field's value stands in the document as it was read.
    bool isWritten(const describe::Node& field) const
    {
        const auto& origin = field.origin;
        return origin.isThere() && repaired.count({origin.line, origin.name}) == 0;
    }
};

} // namespace check
