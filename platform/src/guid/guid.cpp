#include <zelplatform/guid/guid.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <exception>

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid.hpp>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/byte_words.h>
#include <zelplatform/util/numbers.h>

namespace guid
{
namespace
{

using util::eachByte;
using util::fourBytesAt;

constexpr std::size_t TextSize = guid_t::TextSize;
constexpr std::size_t BracedTextSize = TextSize + 2;

constexpr std::array<std::array<char, 2>, 256> makeDigitPairs() noexcept
{
    constexpr const char* digits = "0123456789abcdef";
    std::array<std::array<char, 2>, 256> pairs{};
    for (std::size_t i = 0; i < pairs.size(); ++i)
        pairs[i] = {digits[i >> 4U], digits[i & 0xFU]};
    return pairs;
}

// The lower-case digits of each byte.
constexpr std::array<std::array<char, 2>, 256> DigitPairs = makeDigitPairs();

// Where the digit pairs of the sixteen bytes stand, and the hyphens between them.
constexpr std::array<std::size_t, 16> Pairs{0, 2, 4, 6, 9, 11, 14, 16, 19, 21, 24, 26, 28, 30, 32, 34};
constexpr std::array<std::size_t, 4> Hyphens{8, 13, 18, 23};

// The four bytes of twice four hexadecimal digits, the first in the lowest byte; wrong becomes other than 0 when one is
// no digit.
std::uint64_t fourBytes(std::uint64_t left, std::uint64_t right, std::uint64_t& wrong) noexcept
{
    const auto text = left | right << 32U;
    const auto letters = text >> 6U & eachByte(1);
    const auto digits = (text & eachByte(0x0F)) + letters * 9;
    const auto aboveNine = (digits + eachByte(0x80 - 10)) >> 7U & eachByte(1);
    // What is no digit reads otherwise when the value is written as a digit in lower case again.
    const auto again = digits + eachByte('0') + aboveNine * ('a' - '0' - 10);
    wrong |= (again ^ (text | letters << 5U)) | (digits & eachByte(0xF0));
    auto bytes = (digits << 4U | digits >> 8U) & 0x00FF00FF00FF00FFU;
    bytes = (bytes | bytes >> 8U) & 0x0000FFFF0000FFFFU;
    return (bytes | bytes >> 16U) & 0xFFFFFFFFU;
}

void store(std::uint64_t eightBytes, std::uint8_t* bytes) noexcept
{
    for (unsigned i = 0; i < 8; ++i)
        bytes[i] = static_cast<std::uint8_t>(eightBytes >> i * 8U);
}

// Eight digits at a time: logs and transforms are full of identifiers, and the library's reader takes several times as
// long.
bool parse(std::string_view text, std::array<std::uint8_t, 16>& bytes) noexcept
{
    if (text.size() == BracedTextSize && text.front() == '{' && text.back() == '}')
        text = text.substr(1, TextSize);
    if (text.size() != TextSize)
        return false;
    const char* at = text.data();
    std::uint64_t wrong = 0;
    for (const auto hyphen : Hyphens)
        wrong |= static_cast<std::uint64_t>(at[hyphen] != '-');
    const auto first = fourBytes(fourBytesAt(at), fourBytesAt(at + 4), wrong);
    const auto second = fourBytes(fourBytesAt(at + 9), fourBytesAt(at + 14), wrong);
    const auto third = fourBytes(fourBytesAt(at + 19), fourBytesAt(at + 24), wrong);
    const auto fourth = fourBytes(fourBytesAt(at + 28), fourBytesAt(at + 32), wrong);
    store(first | second << 32U, bytes.data());
    store(third | fourth << 32U, bytes.data() + 8);
    return wrong == 0;
}

} // namespace

guid_t guid_t::CreateNew()
try
{
    const auto random = boost::uuids::random_generator()();
    guid_t id;
    std::copy(random.begin(), random.end(), id.m_bytes.begin());
    return id;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to create GUID.", cause);
}

guid_t guid_t::FromAStr(std::string_view text)
{
    const auto id = TryFromAStr(text);
    if (!id)
        throw exc::CRuntimeExc("Unable to convert string [%1] to GUID.", std::string(text));
    return *id;
}

std::optional<guid_t> guid_t::TryFromAStr(std::string_view text) noexcept
{
    guid_t id;
    if (!text.empty() && !parse(text, id.m_bytes))
        return std::nullopt;
    return id;
}

std::string guid_t::ToAStr() const
{
    const auto text = ToChars();
    return {text.data(), text.size()};
}

std::array<char, guid_t::TextSize> guid_t::ToChars() const noexcept
{
    std::array<char, TextSize> text;
    for (const auto at : Hyphens)
        text[at] = '-';
    for (std::size_t i = 0; i < Pairs.size(); ++i)
        std::memcpy(&text[Pairs[i]], DigitPairs[m_bytes[i]].data(), 2);
    return text;
}

} // namespace guid

std::string util::toStr(const guid::guid_t& id)
{
    return id.ToAStr();
}
