#pragma once

#include <string>

#include <zelmodel/structs/schedule/backup_window.h>

#include "report.h"

namespace check
{

/// Reads the file and checks its text, see checkText. What cannot be read is told in the result, and so is an input
/// that is too long for any document: it is refused before it is read whole.
CheckedFile checkFile(const std::string& name, const zelplatform::model::structs::BackupWindow* window);

} // namespace check
