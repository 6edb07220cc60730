#include <zelplatform/crypto/key_set.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/numbers.h>
#include <zelplatform/util/text.h>

namespace crypto
{
namespace
{

constexpr std::uint8_t FormVersion = 1;
constexpr unsigned MaxNanoseconds = 999'999'999;

void checkKeyCount(std::size_t count)
{
    if (count > CKeySet::MaxKeys)
        throw exc::CRuntimeExc("Key set of [%1] keys has more than [%2].", util::toStr(count),
                               util::toStr(CKeySet::MaxKeys));
}

CKeySetId readId(io::binary_stream_tt& stream)
{
    std::uint8_t size = 0;
    stream >> size;
    CKeySetId::CheckSize(size);
    std::array<char, CKeySetId::MaxSize> bytes{};
    if (size != 0)
        stream.read(bytes.data(), size);
    return CKeySetId({bytes.data(), size});
}

lin::lin_filetime_t readTime(io::binary_stream_tt& stream)
{
    lin::lin_filetime_t time;
    stream >> time.seconds >> time.nanoseconds;
    return time;
}

std::shared_ptr<CKey> readKey(io::binary_stream_tt& stream)
{
    std::uint32_t size = 0;
    stream >> size;
    CKey::CheckSize(size);
    return std::make_shared<CKey>(stream.read_secure(size));
}

std::vector<std::shared_ptr<CKey>> readKeys(io::binary_stream_tt& stream)
{
    std::uint32_t count = 0;
    stream >> count;
    checkKeyCount(count);
    std::vector<std::shared_ptr<CKey>> keys;
    keys.reserve(count);
    while (keys.size() < count)
        keys.push_back(readKey(stream));
    return keys;
}

} // namespace

CKeySet::CKeySet(CKeySetId id, ECryptAlgs alg, EKeySetUsageRole role, CUniString hint, lin::lin_filetime_t creationTime,
                 std::vector<std::shared_ptr<CKey>> keys)
    : m_id(id), m_alg(alg), m_role(role), m_hint(std::move(hint)), m_creationTime(creationTime), m_keys(std::move(keys))
{
    checkKeyCount(m_keys.size());
    if (std::find(m_keys.begin(), m_keys.end(), nullptr) != m_keys.end())
        throw exc::CRuntimeExc("There is no key behind a pointer of the key set.");
    if (m_creationTime.nanoseconds > MaxNanoseconds)
        throw exc::CRuntimeExc("Nanoseconds [%1] are more than a second.", util::toStr(m_creationTime.nanoseconds));
}

std::string CKeySet::ToLogString() const
{
    return util::str_format("id: %1, algorithm: %2, role: %3, keys: %4", m_id.ToLogString(), util::toStr(m_alg),
                            util::toStr(m_role), util::toStr(m_keys.size()));
}

void CKeySet::Serial(io::binary_stream_tt& stream) const
{
    const auto hint = CUtf8String::FromWide(m_hint);
    const auto id = m_id.bytes();
    stream << FormVersion << static_cast<std::uint8_t>(id.size());
    if (!id.empty())
        stream.write(id.data(), id.size());
    stream << static_cast<std::uint32_t>(m_alg) << static_cast<std::uint32_t>(m_role) << m_creationTime.seconds
           << m_creationTime.nanoseconds << hint.str() << static_cast<std::uint32_t>(m_keys.size());
    for (const auto& key : m_keys)
    {
        stream << static_cast<std::uint32_t>(key->size());
        if (key->size() != 0)
            stream.write(key->data(), key->size());
    }
}

std::shared_ptr<CKeySet> CKeySet::Unserial(io::binary_stream_tt& stream)
{
    std::uint8_t version = 0;
    stream >> version;
    if (version != FormVersion)
        throw exc::CRuntimeExc("Key set form version [%1] is not known.", util::toStr(version));
    const auto id = readId(stream);
    std::uint32_t alg = 0;
    std::uint32_t role = 0;
    stream >> alg >> role;
    const auto creationTime = readTime(stream);
    auto hint = CUniString::FromUtf8(stream.read_text());
    return std::make_shared<CKeySet>(id, static_cast<ECryptAlgs>(alg), static_cast<EKeySetUsageRole>(role),
                                     std::move(hint), creationTime, readKeys(stream));
}

} // namespace crypto
