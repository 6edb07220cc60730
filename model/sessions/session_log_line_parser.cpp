#include <zelmodel/sessions/session_log_line_parser.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include <zelmodel/zelmodel_log.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model
{
namespace
{

constexpr std::size_t LeadingTokens = 5;
constexpr std::string_view TimeZone = "UTC";

std::string_view takeUpTo(std::string_view& rest, char separator, const char* message)
{
    const auto at = rest.find(separator);
    if (at == std::string_view::npos)
        throw exc::CRuntimeExc(message);
    const auto part = rest.substr(0, at);
    rest.remove_prefix(at + 1);
    return part;
}

/// The numbers of a time.
struct Fields
{
    std::uint16_t year = 0;
    std::uint8_t month = 0;
    std::uint8_t day = 0;
    std::uint8_t hours = 0;
    std::uint8_t minutes = 0;
    std::uint8_t seconds = 0;
};

Fields readFields(std::string_view rest)
{
    const auto year = takeUpTo(rest, '-', "Wrong string format (year).");
    const auto month = takeUpTo(rest, '-', "Wrong string format (month).");
    const auto day = takeUpTo(rest, ' ', "Wrong string format (day).");
    const auto hours = takeUpTo(rest, ':', "Wrong string format (hours).");
    const auto minutes = takeUpTo(rest, ':', "Wrong string format (minutes).");
    const auto seconds = rest.substr(0, rest.find(' '));
    return {util::fromStr<std::uint16_t>(year),   util::fromStr<std::uint8_t>(month),
            util::fromStr<std::uint8_t>(day),     util::fromStr<std::uint8_t>(hours),
            util::fromStr<std::uint8_t>(minutes), util::fromStr<std::uint8_t>(seconds)};
}

// The form in which times are written, every digit in its place: nearly all lines have it, and it needs no search.
std::optional<Fields> readWrittenFields(std::string_view text) noexcept
{
    constexpr std::string_view form = "0000-00-00 00:00:00";
    if (text.size() < form.size() || (text.size() > form.size() && text[form.size()] != ' '))
        return std::nullopt;
    bool isInForm = true;
    for (std::size_t i = 0; i < form.size(); ++i)
        isInForm &= form[i] == '0' ? static_cast<unsigned>(text[i] - '0') <= 9U : text[i] == form[i];
    if (!isInForm)
        return std::nullopt;
    const auto pair = [text](std::size_t at) {
        return static_cast<std::uint8_t>((text[at] - '0') * 10 + (text[at + 1] - '0'));
    };
    return Fields{static_cast<std::uint16_t>(pair(0) * 100 + pair(2)), pair(5), pair(8), pair(11), pair(14), pair(17)};
}

CDateTimeEx timeFromText(std::string_view text)
try
{
    const auto written = readWrittenFields(text);
    const auto fields = written ? *written : readFields(text);
    datetime::CDateTime time(true);
    time.setDate(fields.year, fields.month, fields.day);
    time.setTime(fields.hours, fields.minutes, fields.seconds);
    return CDateTimeEx::fromUtcTime(time);
}
catch (std::exception& cause)
{
    exc::RegenExc("Unable to convert time string to DateTime.", cause);
}

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

/// The parts of a line that has the shape of a record.
struct Parts
{
    std::string_view time; ///< the first three tokens with the blanks between them
    std::string_view id;
    std::string_view severity;
    std::string_view message;
};

// Every single blank separates, so that two in a row have an empty token between them. Offsets are kept: the message is
// the line's own text after the fifth token.
std::optional<Parts> partsOf(std::string_view line) noexcept
{
    std::array<std::size_t, LeadingTokens> ends{};
    std::size_t begin = 0;
    for (std::size_t token = 0; token < LeadingTokens; ++token)
    {
        if (begin > line.size())
            return std::nullopt;
        const auto end = line.find(' ', begin);
        ends[token] = end == std::string_view::npos ? line.size() : end;
        begin = ends[token] + 1;
    }
    if (line.substr(ends[1] + 1, ends[2] - ends[1] - 1) != TimeZone)
        return std::nullopt;
    return Parts{line.substr(0, ends[2]), line.substr(ends[2] + 1, ends[3] - ends[2] - 1),
                 line.substr(ends[3] + 1, ends[4] - ends[3] - 1), line.substr(ends[4])};
}

void noteSkipped(const std::string& line)
{
    zelmodel_log.info(util::str_format("Line [%1] is skipped.", line));
}

} // namespace

CDateTimeEx CSessionLogLineParser::LogTimeStrToTime(const std::string& text)
{
    return timeFromText(text);
}

bool CSessionLogLineParser::Parse(const std::string& line, CDateTimeEx& time, guid::guid_t& id,
                                  ISessionLogWriter::ESeverity& severity, std::string& message)
{
    if (line.empty())
        return false;
    const auto parts = partsOf(line);
    if (!parts)
    {
        noteSkipped(line);
        return false;
    }
    try
    {
        time = timeFromText(parts->time);
        id = guid::guid_t::FromAStr(parts->id);
        severity = ISessionLogWriter::SeverityFromString(trimmed(parts->severity));
        message = trimmed(parts->message);
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
