#include <zelplatform/util/base64.h>

#include <algorithm>
#include <iterator>

#include <openssl/evp.h>

#include <zelplatform/exc/exc.h>

namespace util
{
namespace
{

// OpenSSL counts in int: long data goes through it in pieces of whole groups.
constexpr std::size_t PieceSize = std::size_t{3} << 20;

constexpr std::size_t GroupBytes = 3;
constexpr std::size_t GroupDigits = 4;

bool isDigit(char c) noexcept
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '+' || c == '/';
}

bool isBlank(char c) noexcept
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

[[noreturn]] void fail()
{
    throw exc::CRuntimeExc("Unable to decode base64 text.");
}

} // namespace

std::string toBase64(const void* data, std::size_t size)
{
    const auto* const bytes = static_cast<const unsigned char*>(data);
    std::string text((size + GroupBytes - 1) / GroupBytes * GroupDigits, '\0');
    auto* out = reinterpret_cast<unsigned char*>(text.data());
    for (std::size_t done = 0; done < size; done += PieceSize)
        out += EVP_EncodeBlock(out, bytes + done, static_cast<int>(std::min(size - done, PieceSize)));
    return text;
}

crypto::sec_buffer_t fromBase64(std::string_view text)
{
    crypto::sec_buffer_t digits;
    digits.reserve(text.size());
    std::remove_copy_if(text.begin(), text.end(), std::back_inserter(digits), isBlank);

    const auto digitsEnd = std::find_if_not(digits.begin(), digits.end(), isDigit);
    const auto padding = static_cast<std::size_t>(digits.end() - digitsEnd);
    const bool isPadded = std::all_of(digitsEnd, digits.end(), [](char c) { return c == '='; });
    if (digits.size() % GroupDigits != 0 || padding >= GroupBytes || !isPadded)
        fail();

    crypto::sec_buffer_t bytes(digits.size() / GroupDigits * GroupBytes);
    const auto* in = reinterpret_cast<const unsigned char*>(digits.data());
    auto* out = reinterpret_cast<unsigned char*>(bytes.data());
    for (std::size_t left = digits.size(); left != 0;)
    {
        const std::size_t size = std::min(left, PieceSize / GroupBytes * GroupDigits);
        const int decoded = EVP_DecodeBlock(out, in, static_cast<int>(size));
        if (decoded < 0)
            fail();
        out += decoded;
        in += size;
        left -= size;
    }

    // Padding decodes to zero bytes; bits that the last digit has to spare show in them.
    const auto bytesEnd = bytes.end() - static_cast<std::ptrdiff_t>(padding);
    if (std::any_of(bytesEnd, bytes.end(), [](char c) { return c != 0; }))
        fail();
    bytes.erase(bytesEnd, bytes.end());
    return bytes;
}

} // namespace util
