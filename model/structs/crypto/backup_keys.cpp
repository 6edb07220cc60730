#include <zelmodel/structs/crypto/backup_keys.h>

#include <cstdint>
#include <utility>
#include <vector>

#include <zelmodel/binary_values.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/base64_form.h"
#include "detail/key_content.h"
#include "detail/secret_guid.h"

namespace zelplatform::model::structs
{
namespace
{

constexpr const char* NoKeySet = "There is no key set.";

constexpr std::size_t GuidSize = sizeof(std::uint32_t) + guid::guid_t::TextSize;

using KeySets = std::map<guid::guid_t, std::shared_ptr<crypto::CKeySet>>;
using Entries = std::vector<const KeySets::value_type*>;

// The map is walked once: its entries lie apart in memory, and each step waits for the one before.
Entries completeEntries(const KeySets& keySets)
{
    Entries entries;
    entries.reserve(keySets.size());
    for (const auto& entry : keySets)
    {
        if (!entry.second)
            throw exc::CRuntimeExc(NoKeySet);
        entries.push_back(&entry);
    }
    return entries;
}

std::size_t maxFormSize(const Entries& entries)
{
    std::size_t size = GuidSize + sizeof(std::uint64_t);
    for (const auto* entry : entries)
        size += GuidSize + entry->second->MaxSerialSize();
    return size;
}

void writeForm(io::binary_stream_tt& stream, const guid::guid_t& id, const Entries& entries)
{
    stream << id << static_cast<std::uint64_t>(entries.size());
    for (const auto* entry : entries)
    {
        stream << entry->first;
        entry->second->Serial(stream);
    }
}

} // namespace

void SExplicitBackupKeys::Serialize(io::binary_stream_tt& stream) const
{
    writeForm(stream, id, completeEntries(keySets));
}

// The count is not trusted: entries are taken one by one until the stream ends.
void SExplicitBackupKeys::Unserialize(io::binary_stream_tt& stream)
{
    SExplicitBackupKeys read;
    std::uint64_t count = 0;
    read.id = detail::readGuidAmongSecrets(stream);
    stream >> count;
    for (std::uint64_t i = 0; i < count; ++i)
    {
        const auto keySetId = detail::readGuidAmongSecrets(stream);
        read.keySets.insert_or_assign(read.keySets.end(), keySetId, crypto::CKeySet::Unserial(stream));
    }
    *this = std::move(read);
}

std::string SExplicitBackupKeys::ToBase64() const
{
    const auto entries = completeEntries(keySets);
    return detail::toBase64Form(maxFormSize(entries),
                                [&](io::binary_stream_tt& stream) { writeForm(stream, id, entries); });
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
    return detail::toBase64Form(0, [this](io::binary_stream_tt& stream) { Serialize(stream); });
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
