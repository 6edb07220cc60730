#include "text_checks.h"

#include <algorithm>
#include <cstring>

#include <boost/algorithm/string/predicate.hpp>

#include <zelplatform/xmlpp/xml_document.h>

namespace xmlpp::detail
{
namespace
{

constexpr TextFault NoFault{};

// An element with too many attributes does not fit into a text shorter than this.
constexpr std::size_t ShortTextSize = 16 * 1024;

constexpr unsigned long LastCharacter = 0x10FFFF;

bool isXmlCharacter(unsigned long code) noexcept
{
    const bool isControl = code < 0x20 && code != '\t' && code != '\n' && code != '\r';
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    return !isControl && !isSurrogate && code <= LastCharacter;
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

TextFault findBadReference(std::string_view text) noexcept
{
    for (auto at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 1))
    {
        if (text.substr(at, 2) == "&#" && !isSoundReference(text.substr(at + 2)))
            return {"malformed reference or reference to a character that XML does not have", at};
    }
    return NoFault;
}

TextFault findForeignEncoding(std::string_view text)
{
    const auto start = text.substr(0, 64).find("<?xml");
    if (start == std::string_view::npos)
        return NoFault;
    const auto declaration = text.substr(start, text.find("?>", start) - start);
    const auto name = declaration.find("encoding");
    if (name == std::string_view::npos)
        return NoFault;
    const auto open = declaration.find_first_of("\"'", name);
    if (open == std::string_view::npos)
        return NoFault;
    const auto value = declaration.substr(open + 1, declaration.find(declaration[open], open + 1) - open - 1);
    if (boost::iequals(value, "UTF-8") || boost::iequals(value, "US-ASCII"))
        return NoFault;
    return {"encoding other than UTF-8 and US-ASCII", start + open};
}

std::size_t endOf(std::string_view text, std::string_view closing, std::size_t from) noexcept
{
    const auto at = text.find(closing, from);
    return at == std::string_view::npos ? text.size() : at + closing.size();
}

// Steps over one tag and counts its quoted values.
std::size_t skipTag(std::string_view text, std::size_t at, unsigned& values) noexcept
{
    values = 0;
    while (at < text.size() && text[at] != '>')
    {
        if (text[at] == '"' || text[at] == '\'')
        {
            ++values;
            at = endOf(text, text.substr(at, 1), at + 1);
            continue;
        }
        ++at;
    }
    return at;
}

// The parser looks for a duplicate of each attribute along the whole list, so a long list costs quadratic time.
TextFault findCrowdedElement(std::string_view text) noexcept
{
    for (auto at = text.find('<'); at != std::string_view::npos; at = text.find('<', at))
    {
        const auto rest = text.substr(at, 9);
        if (rest.substr(0, 2) == "<?")
            at = endOf(text, "?>", at);
        else if (rest.substr(0, 4) == "<!--")
            at = endOf(text, "-->", at);
        else if (rest == "<![CDATA[")
            at = endOf(text, "]]>", at);
        else if (rest.substr(0, 2) == "<!")
            at = endOf(text, ">", at);
        else
        {
            unsigned values = 0;
            const auto end = skipTag(text, at + 1, values);
            if (values > CXmlDocument::MaxAttributes)
                return {"too many attributes", at};
            at = end;
        }
    }
    return NoFault;
}

} // namespace

TextFault findTextFault(std::string_view text)
{
    if (text.size() > CXmlDocument::MaxTextSize)
        return {"text too large", 0};
    if (const auto nul = text.find('\0'); nul != std::string_view::npos)
        return {"NUL byte", nul};
    if (const auto fault = findBadReference(text); fault.reason != nullptr)
        return fault;
    if (const auto fault = findForeignEncoding(text); fault.reason != nullptr)
        return fault;
    return text.size() > ShortTextSize ? findCrowdedElement(text) : NoFault;
}

bool isCarriedByXml(std::string_view value) noexcept
{
    return std::all_of(value.begin(), value.end(), [](char c) {
        return static_cast<unsigned char>(c) >= 0x20 || c == '\t' || c == '\n' || c == '\r';
    });
}

} // namespace xmlpp::detail
