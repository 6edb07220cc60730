#include <zelplatform/crypto/key_set.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

#include <boost/endian/conversion.hpp>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/cast.h>
#include <zelplatform/util/numbers.h>
#include <zelplatform/util/text.h>

namespace crypto
{
namespace
{

constexpr std::uint8_t FormVersion = 1;
constexpr unsigned MaxNanoseconds = 999'999'999;

// Version and length of the identifier; algorithm, role, seconds and nanoseconds.
constexpr std::size_t StartSize = 1 + 1;
constexpr std::size_t NumbersSize = 4 + 4 + 8 + 4;
constexpr std::size_t LengthSize = 4;
constexpr std::size_t LongestCharacter = 4;
constexpr std::size_t MaxNumbersSize = StartSize + NumbersSize + LengthSize;

void checkKeyCount(std::size_t count)
{
    if (count > CKeySet::MaxKeys)
        throw exc::CRuntimeExc("Key set of [%1] keys has more than [%2].", util::toStr(count),
                               util::toStr(CKeySet::MaxKeys));
}

void writeBytes(io::binary_stream_tt& stream, std::string_view bytes)
{
    if (!bytes.empty())
        stream.write(bytes.data(), bytes.size());
}

// Numbers and the identifier pass through here, so that the device is not called for each of them. Bytes of keys only
// when a damaged form has them there.
class FormPart
{
public:
    template <class T>
    void add(T number)
    {
        const T bytes = boost::endian::native_to_little(number);
        add({reinterpret_cast<const char*>(&bytes), sizeof(bytes)});
    }

    void add(std::string_view bytes)
    {
        std::copy(bytes.begin(), bytes.end(), m_bytes.data() + m_position);
        m_position += bytes.size();
    }

    void writeTo(io::binary_stream_tt& stream)
    {
        writeBytes(stream, {m_bytes.data(), m_position});
        m_position = 0;
    }

    void readFrom(io::binary_stream_tt& stream, std::size_t size)
    {
        stream.read(m_bytes.data(), size);
        m_position = 0;
    }

    std::string_view bytes(std::size_t size)
    {
        const char* const start = m_bytes.data() + m_position;
        m_position += size;
        return {start, size};
    }

    template <class T>
    T number()
    {
        T value{};
        std::memcpy(&value, bytes(sizeof(T)).data(), sizeof(T));
        return boost::endian::little_to_native(value);
    }

private:
    sec_array_t<CKeySetId::MaxSize + MaxNumbersSize> m_bytes;
    std::size_t m_position = 0;
};

sec_text_t readHint(io::binary_stream_tt& stream)
{
    sec_buffer_t bytes;
    stream >> bytes;
    return sec_text_t(CUniString::FromUtf8Bytes({bytes.data(), bytes.size()}));
}

std::shared_ptr<CKey> readKey(io::binary_stream_tt& stream)
{
    std::uint32_t size = 0;
    stream >> size;
    return std::make_shared<CKey>(stream, size);
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

CKeySet::CKeySet(const CKeySetId& id, ECryptAlgs alg, EKeySetUsageRole role, CUniString hint,
                 lin::lin_filetime_t creationTime, std::vector<std::shared_ptr<CKey>> keys)
    : m_id(id), m_alg(alg), m_role(role), m_hint(std::move(hint)), m_creationTime(creationTime), m_keys(std::move(keys))
{
    checkKeyCount(m_keys.size());
    if (std::find(m_keys.begin(), m_keys.end(), nullptr) != m_keys.end())
        throw exc::CRuntimeExc("Key set holds an empty key pointer.");
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
    const auto hint = CUtf8String::FromWide(m_hint.get());
    FormPart part;
    part.add(FormVersion);
    part.add(static_cast<std::uint8_t>(m_id.bytes().size()));
    part.add(m_id.bytes());
    part.add(static_cast<std::uint32_t>(m_alg));
    part.add(static_cast<std::uint32_t>(m_role));
    part.add(static_cast<std::uint64_t>(m_creationTime.seconds));
    part.add(m_creationTime.nanoseconds);
    part.add(util::safe_cast<std::uint32_t>(hint.str().size()));
    part.writeTo(stream);
    writeBytes(stream, hint.str());
    part.add(static_cast<std::uint32_t>(m_keys.size()));
    for (const auto& key : m_keys)
    {
        part.add(static_cast<std::uint32_t>(key->size()));
        part.writeTo(stream);
        writeBytes(stream, {key->data(), key->size()});
    }
    part.writeTo(stream);
}

std::size_t CKeySet::MaxSerialSize() const noexcept
{
    std::size_t size = StartSize + m_id.bytes().size() + NumbersSize;
    size += LengthSize + m_hint.get().str().size() * LongestCharacter;
    size += LengthSize;
    for (const auto& key : m_keys)
        size += LengthSize + key->size();
    return size;
}

std::shared_ptr<CKeySet> CKeySet::Unserial(io::binary_stream_tt& stream)
{
    FormPart part;
    part.readFrom(stream, StartSize);
    const auto version = part.number<std::uint8_t>();
    if (version != FormVersion)
        throw exc::CRuntimeExc("Key set form version [%1] is not known.", util::toStr(version));
    const auto idSize = part.number<std::uint8_t>();
    CKeySetId::CheckSize(idSize);

    part.readFrom(stream, idSize + NumbersSize);
    const CKeySetId id(part.bytes(idSize));
    const auto alg = static_cast<ECryptAlgs>(part.number<std::uint32_t>());
    const auto role = static_cast<EKeySetUsageRole>(part.number<std::uint32_t>());
    const auto seconds = static_cast<long>(part.number<std::uint64_t>());
    const lin::lin_filetime_t creationTime{seconds, part.number<std::uint32_t>()};

    auto hint = readHint(stream);
    auto keys = readKeys(stream);
    return std::make_shared<CKeySet>(id, alg, role, hint.release(), creationTime, std::move(keys));
}

} // namespace crypto
