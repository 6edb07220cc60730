#include "filter.h"

#include <algorithm>

namespace logs
{

using zelplatform::model::CDateTimeEx;

bool Filter::takes(const Record& record, const std::string& line) const
{
    if (record.severity < leastSeverity)
        return false;
    if (!sessions.empty() && std::find(sessions.begin(), sessions.end(), record.session) == sessions.end())
        return false;
    if (since && record.time < CDateTimeEx(*since, 0))
        return false;
    if (until && record.time > CDateTimeEx(*until, 0))
        return false;
    return text.empty() || line.find(text) != std::string::npos;
}

} // namespace logs
