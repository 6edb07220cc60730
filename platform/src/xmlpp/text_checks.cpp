#include "text_checks.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include <boost/algorithm/string/predicate.hpp>

#include <zelplatform/util/byte_words.h>
#include <zelplatform/xmlpp/xml_document.h>

namespace xmlpp::detail
{
namespace
{

constexpr TextFault NoFault{};

// Neither an element with too many attributes nor too many elements cost much in a text shorter than this.
constexpr std::size_t ShortTextSize = 16 * 1024;

// How many comparisons of names the parser may spend on duplicate attributes: enough for one element with the most of
// them, and for elements of 80 in texts of any size.
constexpr std::size_t ComparisonsOfAnyText = 1UL << 20;
constexpr std::size_t ComparisonsPerByte = 8;

constexpr unsigned long LastCharacter = 0x10FFFF;

bool isControl(unsigned long code) noexcept
{
    return code < 0x20 && code != '\t' && code != '\n' && code != '\r';
}

bool isXmlCharacter(unsigned long code) noexcept
{
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    return !isControl(code) && !isSurrogate && code <= LastCharacter;
}

std::size_t findControlByte(std::string_view bytes) noexcept
{
    const auto found =
        std::find_if(bytes.begin(), bytes.end(), [](char c) { return isControl(static_cast<unsigned char>(c)); });
    return static_cast<std::size_t>(found - bytes.begin());
}

// Eight bytes at a time; only a word with a byte below the blank is looked at byte by byte.
std::size_t findControl(std::string_view text) noexcept
{
    constexpr std::size_t wordSize = sizeof(std::uint64_t);
    std::size_t at = 0;
    for (; at + wordSize <= text.size(); at += wordSize)
    {
        const auto word = util::eightBytesAt(text.data() + at);
        const bool mayHaveControl = ((word - util::eachByte(0x20)) & ~word & util::eachByte(0x80)) != 0;
        const auto inWord = mayHaveControl ? findControlByte(text.substr(at, wordSize)) : wordSize;
        if (inWord < wordSize)
            return at + inWord;
    }
    return at + findControlByte(text.substr(at));
}

int digitValue(char c, bool isHex) noexcept
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (isHex && c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (isHex && c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

// The text starts right after "&#". The parser reads references from their end backwards and takes several malformed
// ones as NUL, so nothing but digits up to the semicolon is let through.
bool isSoundReference(std::string_view text) noexcept
{
    const bool isHex = !text.empty() && text.front() == 'x';
    if (isHex)
        text.remove_prefix(1);
    unsigned long code = 0;
    std::size_t digits = 0;
    for (; digits < text.size(); ++digits)
    {
        const int digit = digitValue(text[digits], isHex);
        if (digit < 0)
            break;
        code = std::min(code * (isHex ? 16UL : 10UL) + static_cast<unsigned long>(digit), LastCharacter + 1);
    }
    return digits > 0 && digits < text.size() && text[digits] == ';' && isXmlCharacter(code);
}

std::size_t endOf(std::string_view text, std::string_view closing, std::size_t from) noexcept
{
    const auto at = text.find(closing, from);
    return at == std::string_view::npos ? text.size() : at + closing.size();
}

std::size_t endOf(std::string_view text, char closing, std::size_t from) noexcept
{
    const auto at = text.find(closing, from);
    return at == std::string_view::npos ? text.size() : at + 1;
}

// What a tag is looked through for: its end and the quotes of its values.
constexpr std::array<bool, 256> makeTagMarks() noexcept
{
    std::array<bool, 256> marks{};
    for (const char mark : {'>', '"', '\''})
        marks[static_cast<unsigned char>(mark)] = true;
    return marks;
}

constexpr std::array<bool, 256> TagMarks = makeTagMarks();

// The end of a tag, past its quoted values, which may hold anything; counts them.
inline std::size_t endOfTag(std::string_view text, std::size_t at, unsigned& values) noexcept
{
    while (at < text.size())
    {
        const char c = text[at++];
        if (!TagMarks[static_cast<unsigned char>(c)])
            continue;
        if (c == '>')
            return at;
        ++values;
        at = endOf(text, c, at);
    }
    return at;
}

/// A stretch of a text as the parser divides it.
struct Stretch
{
    std::size_t begin;
    std::size_t end;
    bool hasReferences; ///< text or a tag; comments, CDATA, declarations and DOCTYPE take "&" to the letter
    unsigned values;    ///< quoted values of a tag
};

// The stretch of markup that is no tag.
Stretch remarkAt(std::string_view text, std::size_t at) noexcept
{
    const auto rest = text.substr(at, 9);
    if (rest.substr(0, 2) == "<?")
        return {at, endOf(text, "?>", at), false, 0};
    if (rest.substr(0, 4) == "<!--")
        return {at, endOf(text, "-->", at + 4), false, 0};
    return {at, endOf(text, rest == "<![CDATA[" ? "]]>" : ">", at), false, 0};
}

bool isTagAt(std::string_view text, std::size_t at) noexcept
{
    const char next = at + 1 < text.size() ? text[at + 1] : '\0';
    return text[at] == '<' && next != '?' && next != '!';
}

// The stretch that starts at the offset. Up to the first fault of the markup it is the one that the parser sees.
Stretch stretchAt(std::string_view text, std::size_t at) noexcept
{
    Stretch stretch{at, 0, true, 0};
    if (isTagAt(text, at))
        stretch.end = endOfTag(text, at + 1, stretch.values);
    else if (text[at] == '<')
        stretch = remarkAt(text, at);
    else
        stretch.end = std::min(text.find('<', at), text.size());
    return stretch;
}

// Looks no further than the end of the stretch: what stands behind it is looked at in its turn.
TextFault findBadReferenceIn(std::string_view text, std::size_t begin, std::size_t end) noexcept
{
    text = text.substr(0, end);
    for (auto at = text.find('&', begin); at != std::string_view::npos; at = text.find('&', at + 1))
    {
        if (text.substr(at, 2) == "&#" && !isSoundReference(text.substr(at + 2)))
            return {"malformed reference or reference to a character that XML does not have", at};
    }
    return NoFault;
}

// Looks at the whole text first, which is quick and nearly always enough; only a find sends it through the markup.
TextFault findBadReference(std::string_view text) noexcept
{
    if (findBadReferenceIn(text, 0, text.size()).reason == nullptr)
        return NoFault;
    for (std::size_t at = 0; at < text.size();)
    {
        const auto stretch = stretchAt(text, at);
        const auto fault = stretch.hasReferences ? findBadReferenceIn(text, stretch.begin, stretch.end) : NoFault;
        if (fault.reason != nullptr)
            return fault;
        at = stretch.end;
    }
    return NoFault;
}

// The parser looks for a duplicate of each attribute along the whole list, so a long list costs quadratic time. Each
// element becomes an object of some 100 bytes, which readers walk past again and again.
TextFault findCrowd(std::string_view text) noexcept
{
    const std::size_t mostComparisons = ComparisonsOfAnyText + ComparisonsPerByte * text.size();
    std::size_t elements = 0;
    std::size_t comparisons = 0;
    for (std::size_t at = 0; at < text.size();)
    {
        unsigned values = 0;
        const auto end = isTagAt(text, at) ? endOfTag(text, at + 1, values) : stretchAt(text, at).end;
        comparisons += std::size_t{values} * values / 2;
        if (values > CXmlDocument::MaxAttributes || comparisons > mostComparisons)
            return {"too many attributes", at};
        elements += text[at] == '<' && text.substr(at, 2) != "</" ? 1U : 0U;
        if (elements > CXmlDocument::MaxElements)
            return {"too many elements", at};
        at = end;
    }
    return NoFault;
}

// The value of "encoding" in a declaration, or nothing.
std::optional<std::string_view> declaredEncoding(std::string_view declaration) noexcept
{
    std::size_t at = 0;
    for (auto open = declaration.find_first_of("\"'"); open != std::string_view::npos;
         open = declaration.find_first_of("\"'", at))
    {
        const auto close = std::min(declaration.find(declaration[open], open + 1), declaration.size());
        if (declaration.substr(at, open - at).find("encoding") != std::string_view::npos)
            return declaration.substr(open + 1, close - open - 1);
        at = std::min(close + 1, declaration.size());
    }
    return std::nullopt;
}

TextFault findForeignEncoding(std::string_view text)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    std::size_t start = text.substr(0, byteOrderMark.size()) == byteOrderMark ? byteOrderMark.size() : 0;
    start = std::min(text.find_first_not_of(" \t\r\n", start), text.size());
    if (text.substr(start, 5) != "<?xml")
        return NoFault;
    const auto encoding = declaredEncoding(text.substr(start, text.find("?>", start) - start));
    if (!encoding || boost::iequals(*encoding, "UTF-8") || boost::iequals(*encoding, "US-ASCII"))
        return NoFault;
    return {"encoding other than UTF-8 and US-ASCII", start};
}

} // namespace

TextFault findTextFault(std::string_view text)
{
    if (text.size() > CXmlDocument::MaxTextSize)
        return {"text too large", 0};
    if (const auto control = findControl(text); control < text.size())
        return {text[control] == '\0' ? "NUL byte" : "control character that XML does not have", control};
    if (const auto fault = findBadReference(text); fault.reason != nullptr)
        return fault;
    if (const auto fault = findForeignEncoding(text); fault.reason != nullptr)
        return fault;
    return text.size() > ShortTextSize ? findCrowd(text) : NoFault;
}

std::size_t countEndTags(std::string_view text) noexcept
{
    std::size_t count = 0;
    for (auto at = text.find("</"); at != std::string_view::npos; at = text.find("</", at + 2))
        ++count;
    return count;
}

std::size_t findStrayEndTag(std::string_view text) noexcept
{
    std::size_t depth = 0;
    for (std::size_t at = 0; at < text.size();)
    {
        const auto stretch = stretchAt(text, at);
        const auto tag = text.substr(stretch.begin, stretch.end - stretch.begin);
        const bool isTag = tag.front() == '<' && stretch.hasReferences;
        const bool isEnd = isTag && tag.substr(0, 2) == "</";
        const bool isEmpty = isTag && tag.size() > 2 && tag.substr(tag.size() - 2) == "/>";
        if (isEnd && depth == 0)
            return stretch.begin;
        if (isEnd)
            --depth;
        else if (isTag && !isEmpty)
            ++depth;
        at = stretch.end;
    }
    return text.size();
}

bool isCarriedByXml(std::string_view value) noexcept
{
    return findControl(value) == value.size();
}

} // namespace xmlpp::detail
