#pragma once

#include <memory>
#include <string>
#include <vector>

#include <zelmodel/structs/schedule/backup_window.h>

#include "finding.h"

namespace check
{

/// Everything that is wrong with the text of a document, or looks like it, sorted by line. Faults for which the library
/// refuses the document are repaired in memory, one after the other, so that all of them are found. The window, which
/// may be none, is the one that the job is to run in.
std::vector<Finding> checkText(const std::string& text,
                               const zelplatform::model::structs::BackupWindow* window = nullptr);

/// The findings of a text that is refused before it is read.
std::vector<Finding> refuseText(const std::string& sentence);

/// The window of a text, or an empty pointer when the library refuses it; a document of another kind is refused.
std::shared_ptr<const zelplatform::model::structs::BackupWindow> readWindow(const std::string& text);

} // namespace check
