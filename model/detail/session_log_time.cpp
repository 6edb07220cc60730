#include "detail/session_log_time.h"

#include <array>
#include <cstdint>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model::detail
{
namespace
{

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

Fields readWrittenFields(std::string_view text) noexcept
{
    const auto pair = [text](std::size_t at) {
        return static_cast<std::uint8_t>((text[at] - '0') * 10 + (text[at + 1] - '0'));
    };
    return {static_cast<std::uint16_t>(pair(0) * 100 + pair(2)), pair(5), pair(8), pair(11), pair(14), pair(17)};
}

CDateTimeEx makeTime(const Fields& fields)
{
    datetime::CDateTime time(true);
    time.setDate(fields.year, fields.month, fields.day);
    time.setTime(fields.hours, fields.minutes, fields.seconds);
    return CDateTimeEx::fromUtcTime(time);
}

/// Eight characters of the written form: what stands there, and by how much a character may differ from that.
struct FormWord
{
    std::uint64_t text = 0;
    std::uint64_t headroom = 0; ///< added to a larger difference, it carries into the top bit of the byte
};

constexpr char WrittenForm[WrittenLogTimeSize + 1] = "0000-00-00 00:00:00 UTC ";

constexpr std::array<FormWord, 3> makeFormWords() noexcept
{
    std::array<FormWord, 3> words{};
    for (std::size_t i = 0; i < WrittenLogTimeSize; ++i)
    {
        // The ten digits differ from "0" by 0 to 9.
        const std::uint64_t headroom = WrittenForm[i] == '0' ? 0x7F - 9 : 0x7F;
        words[i / 8].headroom |= headroom << i % 8 * 8;
        words[i / 8].text |= static_cast<std::uint64_t>(WrittenForm[i]) << i % 8 * 8;
    }
    return words;
}

constexpr auto FormWords = makeFormWords();

// Not 0 when one of the eight characters is not what may stand there.
template <std::size_t Word>
std::uint64_t misfits(std::string_view line) noexcept
{
    const auto difference = util::eightBytesAt(line.data() + Word * 8) ^ FormWords[Word].text;
    const auto carried = (difference & util::eachByte(0x7F)) + FormWords[Word].headroom;
    return (carried | difference) & util::eachByte(0x80);
}

} // namespace

bool startsWithWrittenLogTime(std::string_view line) noexcept
{
    return line.size() >= WrittenLogTimeSize && (misfits<0>(line) | misfits<1>(line) | misfits<2>(line)) == 0;
}

CDateTimeEx readWrittenLogTime(std::string_view line)
try
{
    return makeTime(readWrittenFields(line));
}
catch (std::exception& cause)
{
    exc::RegenExc("Unable to convert time string to DateTime.", cause);
}

CDateTimeEx readLogTime(std::string_view text)
try
{
    return makeTime(readFields(text));
}
catch (std::exception& cause)
{
    exc::RegenExc("Unable to convert time string to DateTime.", cause);
}

} // namespace zelplatform::model::detail
