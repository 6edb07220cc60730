#pragma once

#include <string>

#include <zelmodel/datetime/date_time_ex.h>
#include <zelmodel/export.h>
#include <zelmodel/sessions/session_log_writer.h>
#include <zelplatform/guid/guid.h>

namespace zelplatform::model
{

/// Reads session logs line by line: "2024-03-07 13:05:09 UTC <id> <severity> <message>", separated by single blanks.
class ZELMODEL_API CSessionLogLineParser
{
public:
    /// Reads "year-month-day hours:minutes:seconds"; what follows the seconds after a blank is passed over. Throws
    /// "Unable to convert time string to DateTime. ..." without a trace.
    static CDateTimeEx LogTimeStrToTime(const std::string& text);

    /// True when the line is a record; the outputs are set then. A line that is no record gives false and is noted in
    /// the log, an empty one silently; its outputs may have been set in part. Never throws for a bad line.
    static bool Parse(const std::string& line, CDateTimeEx& time, guid::guid_t& id,
                      ISessionLogWriter::ESeverity& severity, std::string& message);
};

} // namespace zelplatform::model
