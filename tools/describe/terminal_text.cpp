#include "terminal_text.h"

#include <cstdint>
#include <cstdio>

#include <zelplatform/util/byte_words.h>
#include <zelplatform/util/util.h>

namespace describe
{
namespace
{

struct Character
{
    std::uint32_t code;
    std::size_t length; ///< 0: the byte begins no UTF-8 character
};

constexpr std::uint32_t FirstSurrogate = 0xD800;
constexpr std::uint32_t LastSurrogate = 0xDFFF;
constexpr std::uint32_t LastCode = 0x10FFFF;

bool isContinuation(char c) noexcept
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

Character decode(std::string_view text) noexcept
{
    constexpr std::uint32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
    const std::uint32_t lead = static_cast<unsigned char>(text[0]);
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length)
        return {lead, 0};
    std::uint32_t code = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i)
    {
        if (!isContinuation(text[i]))
            return {lead, 0};
        code = code << 6U | (static_cast<unsigned char>(text[i]) & 0x3FU);
    }
    const bool isSurrogate = code >= FirstSurrogate && code <= LastSurrogate;
    if (code < least[length] || code > LastCode || isSurrogate)
        return {lead, 0};
    return {code, length};
}

bool actsOnTerminals(std::uint32_t code) noexcept
{
    const bool isControl = code < 0x20 || (code >= 0x7F && code < 0xA0);
    const bool turnsDirection = code == 0x061C || code == 0x200E || code == 0x200F ||
                                (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
    return isControl || turnsDirection || code == 0x2028 || code == 0x2029;
}

std::string hexadecimal(const char* format, std::uint32_t code)
{
    char text[16];
    std::snprintf(text, sizeof text, format, code);
    return text;
}

std::string escaped(std::uint32_t code)
{
    switch (code)
    {
    case '\n': return "\\n";
    case '\r': return "\\r";
    case '\t': return "\\t";
    default: return code < 0x100 ? hexadecimal("\\x%02x", code) : hexadecimal("\\u%04x", code);
    }
}

constexpr std::uint64_t TopBits = util::eachByte(0x80);

// Not 0 when one of the eight bytes is no printable ASCII character. A borrow or carry reaches the byte above only from
// one that counts itself.
std::uint64_t unprintables(std::uint64_t bytes) noexcept
{
    return ((bytes - util::eachByte(0x20)) | (bytes + util::eachByte(0x01)) | bytes) & TopBits;
}

bool isPrintableAscii(std::string_view text) noexcept
{
    constexpr std::size_t step = 8;
    std::uint64_t found = 0;
    if (text.size() < step)
    {
        for (const char c : text)
            found |= unprintables(util::eachByte(static_cast<unsigned char>(c)));
        return found == 0;
    }
    for (std::size_t at = 0; at + step <= text.size(); at += step)
        found |= unprintables(util::eightBytesAt(text.data() + at));
    // The last eight once more, together with those that were left over.
    found |= unprintables(util::eightBytesAt(text.data() + text.size() - step));
    return found == 0;
}

} // namespace

std::string printable(std::string_view text)
{
    std::string shown;
    appendPrintable(shown, text);
    return shown;
}

void appendPrintable(std::string& shown, std::string_view text)
{
    if (isPrintableAscii(text))
    {
        shown += text;
        return;
    }
    while (!text.empty())
    {
        const auto character = decode(text);
        const auto length = character.length == 0 ? 1 : character.length;
        if (character.length == 0 || actsOnTerminals(character.code))
            shown += escaped(character.code);
        else
            shown += text.substr(0, length);
        text.remove_prefix(length);
    }
}

std::string shortened(std::string_view text, std::size_t limit)
{
    if (text.size() <= limit)
        return std::string(text);
    std::size_t head = limit / 4 * 3;
    std::size_t tail = text.size() - limit / 4;
    while (head > 0 && isContinuation(text[head]))
        --head;
    while (tail < text.size() && isContinuation(text[tail]))
        ++tail;
    return std::string(text.substr(0, head)) + " ... (" + util::toStr(tail - head) + " bytes left out) ... " +
           std::string(text.substr(tail));
}

} // namespace describe
