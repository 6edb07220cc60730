#pragma once

#include <string>

#include <zelplatform/datetime/date_time.h>

#include "decision.h"
#include "describe/node.h"
#include "evaluation.h"

namespace when
{

/// The trees of the documents that an evaluation was made from: they know what each field says, and where.
struct DocumentTrees
{
    const describe::Node& document;  ///< job options or a schedule
    const describe::Node& window;    ///< of the window, if there is one
    const std::string& nameOfWindow; ///< the window's file, for people
};

/// The decision as a tree "why": a flag for each condition, with what the document says, what the moment brings and the
/// line; the first condition that says no is pointed at. Below it whether the start would be a full backup.
describe::Node describeDecision(const Evaluation& evaluation, const datetime::CDateTime& moment,
                                const Decision& decision, const DocumentTrees& trees);

} // namespace when
