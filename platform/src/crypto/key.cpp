#include <zelplatform/crypto/key.h>

#include <utility>

#include <openssl/crypto.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/numbers.h>

namespace crypto
{

CKey::CKey(sec_buffer_t bytes) : m_bytes(std::move(bytes))
{
    CheckSize(m_bytes.size());
}

void CKey::CheckSize(std::size_t size)
{
    if (size > MaxSize)
        throw exc::CRuntimeExc("Key of [%1] bytes is longer than [%2].", util::toStr(size), util::toStr(MaxSize));
}

bool operator==(const CKey& a, const CKey& b) noexcept
{
    return a.size() == b.size() && CRYPTO_memcmp(a.data(), b.data(), a.size()) == 0;
}

} // namespace crypto
