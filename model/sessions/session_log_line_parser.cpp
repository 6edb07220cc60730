#include <zelmodel/sessions/session_log_line_parser.h>

#include <algorithm>
#include <string_view>

#include <zelmodel/zelmodel_log.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/session_log_time.h"

namespace zelplatform::model
{
namespace
{

constexpr std::string_view TimeZone = "UTC";

bool isWhiteSpace(char c) noexcept
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

std::string_view trimmed(std::string_view text) noexcept
{
    while (!text.empty() && isWhiteSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isWhiteSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

/// A line token by token. Every single blank separates, so that two in a row have an empty token between them.
class Tokens
{
public:
    Tokens(std::string_view line, std::size_t begin) noexcept : m_line(line), m_begin(begin) {}

    /// False behind the last token, which the line's end ends.
    bool next(std::string_view& token) noexcept
    {
        if (m_begin > m_line.size())
            return false;
        const auto end = std::min(m_line.find(' ', m_begin), m_line.size());
        token = m_line.substr(m_begin, end - m_begin);
        m_begin = end + 1;
        return true;
    }

    /// Where the last token ended.
    std::size_t end() const noexcept { return m_begin - 1; }

private:
    std::string_view m_line;
    std::size_t m_begin;
};

/// The parts of a line that has the shape of a record.
struct Parts
{
    bool hasWrittenTime = false;
    std::string_view time; ///< the first three tokens with the blanks between them
    std::string_view id;
    std::string_view severity;
    std::string_view message;
};

// False for a line that has too few tokens or another time zone.
bool takeParts(std::string_view line, Parts& parts) noexcept
{
    parts.hasWrittenTime = detail::startsWithWrittenLogTime(line);
    Tokens tokens(line, parts.hasWrittenTime ? detail::WrittenLogTimeSize : 0);
    std::string_view zone;
    // coverage: cannot be reached: a line has a first token, if an empty one
    if (!parts.hasWrittenTime && !(tokens.next(zone) && tokens.next(zone) && tokens.next(zone) && zone == TimeZone))
        return false;
    parts.time = line.substr(0, tokens.end());
    if (!tokens.next(parts.id) || !tokens.next(parts.severity))
        return false;
    parts.message = line.substr(tokens.end());
    return true;
}

void noteSkipped(const std::string& line)
{
    zelmodel_log.info(util::str_format("Line [%1] is skipped.", line));
}

} // namespace

CDateTimeEx CSessionLogLineParser::LogTimeStrToTime(const std::string& text)
{
    return detail::readLogTime(text);
}

bool CSessionLogLineParser::Parse(const std::string& line, CDateTimeEx& time, guid::guid_t& id,
                                  ISessionLogWriter::ESeverity& severity, std::string& message)
{
    if (line.empty())
        return false;
    Parts parts;
    if (!takeParts(line, parts))
    {
        noteSkipped(line);
        return false;
    }
    try
    {
        std::string failure;
        const bool isTime = parts.hasWrittenTime ? detail::tryReadWrittenLogTime(line, time, failure)
                                                 : detail::tryReadLogTime(parts.time, time, failure);
        if (!isTime)
        {
            zelmodel_log.err(exc::CRuntimeExc(std::string(detail::LogTimeContext) + " " + failure));
            noteSkipped(line);
            return false;
        }
        id = guid::guid_t::FromAStr(parts.id);
        severity = ISessionLogWriter::SeverityFromString(trimmed(parts.severity));
        message = trimmed(parts.message);
        return true;
    }
    catch (std::exception& cause)
    {
        zelmodel_log.err(cause);
        noteSkipped(line);
        return false;
    }
}

} // namespace zelplatform::model
