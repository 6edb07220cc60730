#pragma once

#include <string>
#include <vector>

#include <zelmodel/structs/schedule/backup_window.h>

#include "day_plan.h"
#include "describe/text_renderer.h"

namespace when
{

/// The window as a picture: a row for each day from Monday on, a column or more for each hour as the width allows. The
/// hours in which the job starts on one of the days are marked.
std::string renderWindow(const zelplatform::model::structs::BackupWindow& window,
                         const std::vector<PlannedMonth>& months, const describe::TextStyle& style);

} // namespace when
