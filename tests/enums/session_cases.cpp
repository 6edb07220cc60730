#include "sweep_case.h"

#include <zelmodel/sessions/session_log_writer.h>

namespace sweep
{

using namespace zelplatform::model;

std::vector<Case> sessionCases()
{
    return {
        {"ESeverity",
         writer(&ISessionLogWriter::SeverityToString),
         [](const std::string& text) { return static_cast<int>(ISessionLogWriter::SeverityFromString(text)); },
         Letters::Exact,
         {{0, "processing"}, {1, "info"}, {2, "warn"}, {3, "error"}},
         {},
         "Invalid severity value.",
         "Invalid severity value string [%1]."},
    };
}

} // namespace sweep
