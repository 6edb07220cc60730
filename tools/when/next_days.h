#pragma once

#include <string>
#include <vector>

#include "describe/document_kind.h"
#include "describe/node.h"
#include "evaluation.h"

namespace when
{

/// The schedule in one sentence, with the zone of its times: the offset from UTC is that of the date.
std::string tellSchedule(const Evaluation& evaluation, const zelplatform::model::CDate& date);

/// "active full", "active full and synthetic full", or nothing.
std::string tellFulls(const Fulls& fulls);

/// Days on which a job starts as a list "next" with one child for each: date, week day, start, full backup, window,
/// clock. The value of a start is every time of the day, its words may sum them up.
describe::Node describeDays(const Evaluation& evaluation, const zelplatform::model::CDate& from,
                            const std::vector<StartDay>& days);

/// Why there is no day, as a sentence. The kind is that of the document which gave the schedule; the words tell where
/// days were looked for: "no day comes within 41 years".
std::string tellWhyNothing(const Evaluation& evaluation, describe::EDocumentKind kind, const std::string& noDay);

} // namespace when
