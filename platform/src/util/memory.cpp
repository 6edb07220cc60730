#include <zelplatform/util/memory.h>

#include <openssl/crypto.h>

namespace util
{

void SecureErase(void* data, std::size_t size) noexcept
{
    OPENSSL_cleanse(data, size);
}

} // namespace util
