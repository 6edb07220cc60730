#pragma once

#include <string>
#include <vector>

#include <zelplatform/datetime/date_time.h>

#include "describe/node.h"
#include "evaluation.h"

namespace when
{

/// The field of the one question that the document of the window answers.
constexpr const char* WindowField = "backupWindow";

/// One question that a decision asks. The field is the name of what it asks about in the tree of the document.
struct Condition
{
    const char* field;
    const char* label;
    bool holds;
    std::string asked; ///< what the moment brings: "Friday"; empty when it brings nothing
};

/// Whether the options cover the date, question by question in the order in which people read them, each answered by
/// the library for itself. All hold exactly when the library says that the date is scheduled; a contradiction throws.
std::vector<Condition> conditionsOfDay(const zelplatform::model::structs::CStartJobScheduleOptions& options,
                                       const zelplatform::model::CDate& date);
std::vector<Condition> conditionsOfDay(const zelplatform::model::structs::CFullBackupOptions& options,
                                       const zelplatform::model::CDate& date);

/// Whether the job starts at a moment.
struct Decision
{
    bool isStart = false; ///< every condition holds
    std::vector<Condition> conditions;
    Fulls fulls; ///< what the start would be; nothing when it is none
};

/// The first condition that says no; the null pointer when none does.
const Condition* firstNo(const std::vector<Condition>& conditions) noexcept;

Decision decide(const Evaluation& evaluation, const datetime::CDateTime& moment);

} // namespace when
