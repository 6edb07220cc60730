#include <zelplatform/crypto/key.h>

#include <algorithm>
#include <utility>

#include <openssl/crypto.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/numbers.h>

namespace crypto
{

CKey::CKey(sec_buffer_t bytes) : CKey()
{
    CheckSize(bytes.size());
    if (bytes.size() > MaxShortSize)
    {
        m_long = std::move(bytes);
        return;
    }
    m_shortSize = static_cast<unsigned>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), m_short.data());
}

CKey::CKey(io::binary_stream_tt& stream, std::size_t size) : CKey()
{
    CheckSize(size);
    if (size > MaxShortSize)
    {
        m_long = stream.read_secure(size);
        return;
    }
    m_shortSize = static_cast<unsigned>(size);
    if (size != 0)
        stream.read_checked(m_short.data(), size);
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
