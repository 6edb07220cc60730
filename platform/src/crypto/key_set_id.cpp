#include <zelplatform/crypto/key_set_id.h>

#include <algorithm>

#include <crypto/hex.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/numbers.h>

namespace crypto
{

CKeySetId::CKeySetId(std::string_view bytes) : m_size(bytes.size())
{
    CheckSize(bytes.size());
    std::copy(bytes.begin(), bytes.end(), m_bytes.data());
}

void CKeySetId::CheckSize(std::size_t size)
{
    if (size > MaxSize)
        throw exc::CRuntimeExc("Key set id of [%1] bytes is longer than [%2].", util::toStr(size),
                               util::toStr(MaxSize));
}

std::string CKeySetId::ToLogString() const
{
    return hexText(m_bytes.data(), m_size);
}

} // namespace crypto
