#include "log_reader.h"

#include <utility>

#include <zelplatform/util/util.h>

namespace logs
{

using zelplatform::model::CSessionLogLineParser;

bool LogReader::next()
{
    if (!m_lines.next())
        return false;
    read();
    return true;
}

bool LogReader::finish()
{
    if (!m_lines.finish())
        return false;
    read();
    return true;
}

void LogReader::read()
{
    ++m_counts.lines;
    if (m_lines.isTooLong())
        skip("The line is longer than " + util::toStr(LineReader::LongestLine) + " bytes.");
    else if (CSessionLogLineParser::Parse(text(), m_record.time, m_record.session, m_record.severity, m_record.message))
    {
        m_kind = ELine::Record;
        ++m_counts.records;
    }
    else if (text().empty())
    {
        m_kind = ELine::Empty;
        ++m_counts.empty;
    }
    else
        skip(m_notes.takeReason());
}

void LogReader::skip(std::string reason)
{
    m_kind = ELine::Skipped;
    m_reason = std::move(reason);
    ++m_counts.skipped;
}

} // namespace logs
