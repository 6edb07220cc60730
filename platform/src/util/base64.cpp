#include <zelplatform/util/base64.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include <openssl/evp.h>

#include <zelplatform/exc/exc.h>

namespace util
{
namespace
{

// OpenSSL counts in int: long data goes through it in pieces of whole groups.
constexpr std::size_t GroupBytes = 3;
constexpr std::size_t GroupDigits = 4;
constexpr std::size_t PieceBytes = GroupBytes << 20;
constexpr std::size_t PieceDigits = GroupDigits << 20;

bool isBlank(char c) noexcept
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

crypto::sec_buffer_t withoutBlanks(std::string_view text)
{
    crypto::sec_buffer_t digits;
    digits.reserve(text.size());
    std::remove_copy_if(text.begin(), text.end(), std::back_inserter(digits), isBlank);
    return digits;
}

// The decoder passes over blanks and dashes at the ends of what it is given: then the count tells.
bool decodePiece(std::string_view digits, char* out)
{
    const auto* const in = reinterpret_cast<const unsigned char*>(digits.data());
    const int count = EVP_DecodeBlock(reinterpret_cast<unsigned char*>(out), in, static_cast<int>(digits.size()));
    return count >= 0 && static_cast<std::size_t>(count) == digits.size() / GroupDigits * GroupBytes;
}

// The decoder takes padding anywhere for a digit of zero bits; bits that the last digit has to spare show in the bytes
// that padding decodes to.
std::optional<crypto::sec_buffer_t> decoded(std::string_view text)
{
    const std::size_t paddingStart = std::min(text.find('='), text.size());
    const std::size_t padding = text.size() - paddingStart;
    const bool isPadded = text.find_first_not_of('=', paddingStart) == std::string_view::npos;
    if (text.size() % GroupDigits != 0 || padding >= GroupBytes || !isPadded)
        return std::nullopt;

    crypto::sec_buffer_t bytes(text.size() / GroupDigits * GroupBytes);
    char* out = bytes.data();
    for (; !text.empty(); text.remove_prefix(std::min(text.size(), PieceDigits)), out += PieceBytes)
    {
        if (!decodePiece(text.substr(0, PieceDigits), out))
            return std::nullopt;
    }
    const auto bytesEnd = bytes.end() - static_cast<std::ptrdiff_t>(padding);
    if (std::any_of(bytesEnd, bytes.end(), [](char c) { return c != 0; }))
        return std::nullopt;
    bytes.erase(bytesEnd, bytes.end());
    return bytes;
}

} // namespace

std::string toBase64(const void* data, std::size_t size)
{
    const auto* const bytes = static_cast<const unsigned char*>(data);
    std::string text((size + GroupBytes - 1) / GroupBytes * GroupDigits, '\0');
    auto* out = reinterpret_cast<unsigned char*>(text.data());
    for (std::size_t done = 0; done < size; done += PieceBytes)
        out += EVP_EncodeBlock(out, bytes + done, static_cast<int>(std::min(size - done, PieceBytes)));
    return text;
}

// Most texts have no blanks: they are decoded where they stand.
crypto::sec_buffer_t fromBase64(std::string_view text)
{
    auto bytes = decoded(text);
    if (!bytes)
    {
        const auto digits = withoutBlanks(text);
        bytes = decoded({digits.data(), digits.size()});
    }
    if (!bytes)
        throw exc::CRuntimeExc("Unable to decode base64 text.");
    return std::move(*bytes);
}

} // namespace util
