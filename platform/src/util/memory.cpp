#include <zelplatform/util/memory.h>

#include <openssl/crypto.h>

namespace util
{

void SecureErase(void* data, std::size_t size) noexcept
{
    OPENSSL_cleanse(data, size);
}

bool SecureEqual(const void* a, const void* b, std::size_t size) noexcept
{
    return CRYPTO_memcmp(a, b, size) == 0;
}

} // namespace util
