#pragma once

#include <string>

#include <zelmodel/structs/schedule/backup_window.h>
#include <zelplatform/datetime/date_time.h>

#include "evaluation.h"

namespace when
{

/// What the window says to a start: "closed", "open until 06:00 on Tuesday 2026-03-03", "open, never closes". The date
/// is left out when the window closes on the day of the start.
std::string tellWindowAt(const zelplatform::model::structs::BackupWindow& window, const datetime::CDateTime& start);

/// What the window says to the starts of a day, neighbours with the same answer joined; of a continuous job when it is
/// open. Empty without a window.
std::string tellWindow(const Evaluation& evaluation, const StartDay& day);

} // namespace when
