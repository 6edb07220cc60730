#include "tellers.h"

#include <algorithm>
#include <cctype>
#include <cstdint>

#include <zelmodel/enums/crypto_alg.h>
#include <zelmodel/enums/crypto_key_type.h>
#include <zelplatform/crypto/crypto.h>
#include <zelplatform/datetime/date_time.h>
#include <zelplatform/util/util.h>

#include "describe/words.h"

namespace dump
{
namespace
{

using describe::Node;
using zelplatform::model::ECryptoAlg;
using zelplatform::model::ECryptoKeyType;

constexpr std::size_t GuidSize = LongestGuid - 2;

std::string hexadecimal(std::string_view bytes)
{
    constexpr const char* digits = "0123456789abcdef";
    std::string text;
    text.reserve(2 * bytes.size());
    for (const char byte : bytes)
    {
        text += digits[static_cast<unsigned char>(byte) >> 4U];
        text += digits[static_cast<unsigned char>(byte) & 0xFU];
    }
    return text;
}

bool isPrintable(char c) noexcept
{
    return c >= ' ' && c <= '~';
}

/// Numbers that the library has no name for are carried unchecked.
template <class TName>
std::string nameOr(const std::string& otherwise, const TName& name)
try
{
    return name();
}
catch (const std::exception&)
{
    return otherwise;
}

} // namespace

bool canBeGuid(std::string_view content)
{
    const auto isPart = [](unsigned char c) { return std::isxdigit(c) != 0 || c == '-' || c == '{' || c == '}'; };
    const bool isSize = content.empty() || content.size() == GuidSize || content.size() == LongestGuid;
    return isSize && std::all_of(content.begin(), content.end(), isPart);
}

void tellFlag(std::string_view content, Node& node)
{
    const describe::Value value(content.front() != 0);
    node.value = value.text;
    node.valueType = value.type;
    node.words = content.front() != 0 ? "yes" : "no";
}

void tellText(std::string_view content, Node& node)
{
    node.value = content;
    node.words = describe::textOr(node.value, "none");
}

void tellHexadecimal(std::string_view content, Node& node)
{
    node.value = hexadecimal(content);
    node.words = describe::textOr(node.value, "none");
}

void tellKeySetId(std::string_view content, Node& node)
{
    node.value = util::toupper(hexadecimal(content));
    node.words = describe::textOr(node.value, "none");
    if (!content.empty() && std::all_of(content.begin(), content.end(), isPrintable))
        node.words += " \"" + std::string(content) + '"';
}

void tellXml(std::string_view content, Node& node)
{
    node.value = content;
    node.words = describe::countOf(content.size(), "byte") + " of XML";
}

void tellAlgorithm(std::string_view content, Node& node)
{
    tellNumber<std::int32_t>(content, node);
    const auto alg = static_cast<crypto::ECryptAlgs>(numberOf<std::int32_t>(content));
    node.words += nameOr(", unknown", [alg] {
        return ", the managing server's " + util::toStr(static_cast<int>(ECryptoAlg::FromLocalType(alg)));
    });
}

void tellRole(std::string_view content, Node& node)
{
    tellNumber<std::int32_t>(content, node);
    const auto role = static_cast<crypto::EKeySetUsageRole>(numberOf<std::int32_t>(content));
    node.words += nameOr(
        ", unknown", [role] { return ", " + ECryptoKeyType::ToLogString(ECryptoKeyType::FromCryptoKeyRole(role)); });
}

void tellSeconds(std::string_view content, Node& node)
{
    tellNumber<std::int64_t>(content, node);
    const auto seconds = numberOf<std::int64_t>(content);
    node.words = nameOr(node.value + " seconds since 1970",
                        [seconds] { return describe::momentUtc(datetime::CDateTime(seconds, true)); });
}

} // namespace dump
