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
constexpr std::string_view WhiteSpace = " \t\r\n\v\f";

std::string_view takeUpTo(std::string_view& rest, char separator, const char* message)
{
    const auto at = rest.find(separator);
    if (at == std::string_view::npos)
        throw exc::CRuntimeExc(message);
    const auto part = rest.substr(0, at);
    rest.remove_prefix(at + 1);
    return part;
}

CDateTimeEx timeFromText(std::string_view text)
try
{
    auto rest = text;
    const auto year = takeUpTo(rest, '-', "Wrong string format (year).");
    const auto month = takeUpTo(rest, '-', "Wrong string format (month).");
    const auto day = takeUpTo(rest, ' ', "Wrong string format (day).");
    const auto hours = takeUpTo(rest, ':', "Wrong string format (hours).");
    const auto minutes = takeUpTo(rest, ':', "Wrong string format (minutes).");
    const auto seconds = rest.substr(0, rest.find(' '));
    datetime::CDateTime time(true);
    const auto yearNumber = util::fromStr<std::uint16_t>(year);
    const auto monthNumber = util::fromStr<std::uint8_t>(month);
    const auto dayNumber = util::fromStr<std::uint8_t>(day);
    const auto hoursNumber = util::fromStr<std::uint8_t>(hours);
    const auto minutesNumber = util::fromStr<std::uint8_t>(minutes);
    const auto secondsNumber = util::fromStr<std::uint8_t>(seconds);
    time.setDate(yearNumber, monthNumber, dayNumber);
    time.setTime(hoursNumber, minutesNumber, secondsNumber);
    return CDateTimeEx::fromUtcTime(time);
}
catch (std::exception& cause)
{
    exc::RegenExc("Unable to convert time string to DateTime.", cause);
}

std::string_view trimmed(std::string_view text) noexcept
{
    const auto first = text.find_first_not_of(WhiteSpace);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(WhiteSpace) - first + 1);
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
        severity = ISessionLogWriter::SeverityFromString(std::string(trimmed(parts->severity)));
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
