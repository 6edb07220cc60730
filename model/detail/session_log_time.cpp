#include "detail/session_log_time.h"

#include <array>
#include <cstdint>
#include <utility>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model::detail
{
namespace
{

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

/// Takes a text apart; of several faults the first is kept.
class FieldTexts
{
public:
    FieldTexts(std::string_view rest, std::string& failure) noexcept : m_rest(rest), m_failure(failure) {}

    std::string_view upTo(char separator, const char* message)
    {
        const auto at = m_rest.find(separator);
        if (at == std::string_view::npos)
            keep(message);
        const auto part = m_rest.substr(0, at);
        m_rest.remove_prefix(at == std::string_view::npos ? m_rest.size() : at + 1);
        return part;
    }

    template <class T>
    void number(std::string_view text, T& value)
    {
        if (m_failure.empty() && !util::tryFromStr(text, value))
            keep(util::fromStrFailure<T>(text));
    }

    std::string_view rest() const noexcept { return m_rest; }

private:
    void keep(std::string failure)
    {
        if (m_failure.empty())
            m_failure = std::move(failure);
    }

    std::string_view m_rest;
    std::string& m_failure;
};

Fields readFields(std::string_view text, std::string& failure)
{
    FieldTexts texts(text, failure);
    const auto year = texts.upTo('-', "Wrong string format (year).");
    const auto month = texts.upTo('-', "Wrong string format (month).");
    const auto day = texts.upTo(' ', "Wrong string format (day).");
    const auto hours = texts.upTo(':', "Wrong string format (hours).");
    const auto minutes = texts.upTo(':', "Wrong string format (minutes).");
    const auto seconds = texts.rest().substr(0, texts.rest().find(' '));
    Fields fields;
    texts.number(year, fields.year);
    texts.number(month, fields.month);
    texts.number(day, fields.day);
    texts.number(hours, fields.hours);
    texts.number(minutes, fields.minutes);
    texts.number(seconds, fields.seconds);
    return fields;
}

Fields readWrittenFields(std::string_view text) noexcept
{
    const auto pair = [text](std::size_t at) {
        return static_cast<std::uint8_t>((text[at] - '0') * 10 + (text[at + 1] - '0'));
    };
    return {static_cast<std::uint16_t>(pair(0) * 100 + pair(2)), pair(5), pair(8), pair(11), pair(14), pair(17)};
}

bool makeTime(const Fields& fields, CDateTimeEx& made, std::string& failure)
{
    failure = datetime::CDateTime::faultOf(fields.year, fields.month, fields.day, fields.hours, fields.minutes,
                                           fields.seconds);
    if (!failure.empty())
        return false;
    datetime::CDateTime time(true);
    time.setDate(fields.year, fields.month, fields.day);
    time.setTime(fields.hours, fields.minutes, fields.seconds);
    made = CDateTimeEx::fromUtcTime(time);
    return true;
}

/// Eight characters of the written form: what stands there, and by how much a character may differ from that.
struct FormWord
{
    std::uint64_t text = 0;
    std::uint64_t headroom = 0; ///< added to a larger difference, it carries into the top bit of the byte
};

constexpr char WrittenForm[WrittenLogTimeSize + 1] = "0000-00-00 00:00:00 UTC ";

// coverage: cannot be reached from here: the compiler runs it, and leaves its result
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
// coverage: to here

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

bool tryReadWrittenLogTime(std::string_view line, CDateTimeEx& time, std::string& failure)
{
    return makeTime(readWrittenFields(line), time, failure);
}

bool tryReadLogTime(std::string_view text, CDateTimeEx& time, std::string& failure)
{
    failure.clear();
    const auto fields = readFields(text, failure);
    return failure.empty() && makeTime(fields, time, failure);
}

CDateTimeEx readLogTime(std::string_view text)
{
    CDateTimeEx time;
    std::string failure;
    if (!tryReadLogTime(text, time, failure))
        exc::RegenExc(LogTimeContext, exc::CRuntimeExc(failure));
    return time;
}

} // namespace zelplatform::model::detail
