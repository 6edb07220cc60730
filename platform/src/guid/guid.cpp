#include <zelplatform/guid/guid.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <exception>

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid.hpp>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/numbers.h>

namespace guid
{
namespace
{

constexpr std::size_t TextSize = 36;
constexpr std::size_t BracedTextSize = TextSize + 2;

constexpr int digitValue(char c) noexcept
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

constexpr unsigned NoDigit = 0x100;

// The value of each character as a hexadecimal digit, shifted into its place; NoDigit for all others.
constexpr std::array<std::uint16_t, 256> makeDigits(unsigned shift) noexcept
{
    std::array<std::uint16_t, 256> digits{};
    for (std::size_t i = 0; i < digits.size(); ++i)
    {
        const int value = digitValue(static_cast<char>(i));
        digits[i] = static_cast<std::uint16_t>(value < 0 ? NoDigit : static_cast<unsigned>(value) << shift);
    }
    return digits;
}

constexpr std::array<std::uint16_t, 256> HighDigits = makeDigits(4);
constexpr std::array<std::uint16_t, 256> LowDigits = makeDigits(0);

// Where the digit pairs of the sixteen bytes stand, and the hyphens between them.
constexpr std::array<std::size_t, 16> Pairs{0, 2, 4, 6, 9, 11, 14, 16, 19, 21, 24, 26, 28, 30, 32, 34};
constexpr std::array<std::size_t, 4> Hyphens{8, 13, 18, 23};

// By table: logs and transforms are full of identifiers, and the library's generator takes several times as long.
bool parse(std::string_view text, std::array<std::uint8_t, 16>& bytes) noexcept
{
    if (text.size() == BracedTextSize && text.front() == '{' && text.back() == '}')
        text = text.substr(1, TextSize);
    if (text.size() != TextSize)
        return false;
    unsigned wrong = 0;
    for (const auto at : Hyphens)
        wrong |= text[at] == '-' ? 0U : NoDigit;
    for (std::size_t i = 0; i < Pairs.size(); ++i)
    {
        const unsigned high = HighDigits[static_cast<unsigned char>(text[Pairs[i]])];
        const unsigned low = LowDigits[static_cast<unsigned char>(text[Pairs[i] + 1])];
        wrong |= high | low;
        bytes[i] = static_cast<std::uint8_t>(high | low);
    }
    return (wrong & NoDigit) == 0;
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
    guid_t id;
    if (text.empty())
        return id;
    if (!parse(text, id.m_bytes))
        throw exc::CRuntimeExc("Unable to convert string [%1] to GUID.", std::string(text));
    return id;
}

std::string guid_t::ToAStr() const
{
    constexpr const char* digits = "0123456789abcdef";
    std::string text(TextSize, '-');
    for (std::size_t i = 0; i < Pairs.size(); ++i)
    {
        text[Pairs[i]] = digits[m_bytes[i] >> 4U];
        text[Pairs[i] + 1] = digits[m_bytes[i] & 0xFU];
    }
    return text;
}

} // namespace guid

std::string util::toStr(const guid::guid_t& id)
{
    return id.ToAStr();
}
