#include <zelmodel/structs/crypto/backup_keys.h>

#include <algorithm>
#include <cstdint>
#include <utility>

#include <zelmodel/binary_values.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/base64_form.h"
#include "detail/key_content.h"

namespace zelplatform::model::structs
{
namespace
{

constexpr const char* NoKeySet = "There is no key set.";

} // namespace

void SExplicitBackupKeys::Serialize(io::binary_stream_tt& stream) const
{
    const bool isComplete =
        std::all_of(keySets.begin(), keySets.end(), [](const auto& entry) { return entry.second != nullptr; });
    if (!isComplete)
        throw exc::CRuntimeExc(NoKeySet);
    stream << id << static_cast<std::uint64_t>(keySets.size());
    for (const auto& [keySetId, keySet] : keySets)
    {
        stream << keySetId;
        keySet->Serial(stream);
    }
}

// The count is not trusted: entries are taken one by one until the stream ends.
void SExplicitBackupKeys::Unserialize(io::binary_stream_tt& stream)
{
    SExplicitBackupKeys read;
    std::uint64_t count = 0;
    stream >> read.id >> count;
    for (std::uint64_t i = 0; i < count; ++i)
    {
        guid::guid_t keySetId;
        stream >> keySetId;
        read.keySets.insert_or_assign(read.keySets.end(), keySetId, crypto::CKeySet::Unserial(stream));
    }
    *this = std::move(read);
}

std::string SExplicitBackupKeys::ToBase64() const
{
    return detail::toBase64Form(*this);
}

SExplicitBackupKeys SExplicitBackupKeys::FromBase64(const std::string& text)
{
    return detail::fromBase64Form<SExplicitBackupKeys>(text);
}

bool operator==(const SExplicitBackupKeys& a, const SExplicitBackupKeys& b)
{
    return a.id == b.id && detail::areSameKeySets(a.keySets, b.keySets);
}

void SPasswordDerivedKey::Serialize(io::binary_stream_tt& stream) const
{
    if (!keySet)
        throw exc::CRuntimeExc(NoKeySet);
    if (!buffer)
        throw exc::CRuntimeExc("There is no buffer.");
    const auto size = util::safe_cast<std::uint8_t>(buffer->size());
    keySet->Serial(stream);
    stream << size;
    stream.write(buffer->data(), size);
}

void SPasswordDerivedKey::Unserialize(io::binary_stream_tt& stream)
{
    SPasswordDerivedKey read;
    read.keySet = crypto::CKeySet::Unserial(stream);
    std::uint8_t size = 0;
    stream >> size;
    read.buffer = std::make_shared<crypto::sec_buffer_t>(stream.read_secure(size));
    *this = std::move(read);
}

std::string SPasswordDerivedKey::ToBase64() const
{
    return detail::toBase64Form(*this);
}

SPasswordDerivedKey SPasswordDerivedKey::FromBase64(const std::string& text)
{
    return detail::fromBase64Form<SPasswordDerivedKey>(text);
}

bool operator==(const SPasswordDerivedKey& a, const SPasswordDerivedKey& b)
{
    return detail::isSameKeySet(a.keySet, b.keySet) && detail::isSameBuffer(a.buffer, b.buffer);
}

} // namespace zelplatform::model::structs
