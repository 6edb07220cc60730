#include <crypto/hex.h>

#include <string_view>

namespace crypto
{

std::string hexText(const void* data, std::size_t size)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    const auto* const bytes = static_cast<const unsigned char*>(data);
    std::string text;
    text.reserve(2 * size);
    for (std::size_t i = 0; i < size; ++i)
    {
        text += Digits[bytes[i] >> 4U];
        text += Digits[bytes[i] & 0xFU];
    }
    return text;
}

} // namespace crypto
