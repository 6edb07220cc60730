#include <array>
#include <cstdint>

#include <zelplatform/crypto/crypto.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/io/io.h>

#include "layouts.h"
#include "tellers.h"

namespace dump
{
namespace
{

constexpr std::size_t LeastKeySetSize = 1 + 1 + 4 + 4 + 8 + 4 + 4 + 4;
constexpr std::size_t VersionOffset = 0;
constexpr std::size_t NanosecondsOffset = 1 + 1 + 4 + 4 + 8;

/// What the library says to a key set in which nothing is set but the version and these bytes.
std::string refusalOfKeySet(std::size_t offset, std::string_view content)
try
{
    std::array<char, LeastKeySetSize> form{1};
    content.copy(form.data() + offset, content.size());
    BytesDevice device({form.data(), form.size()});
    io::binary_stream_tt stream(device);
    crypto::CKeySet::Unserial(stream);
    return {};
}
catch (const exc::CRuntimeExc& refusal)
{
    return refusal.what();
}

std::string refusalOfVersion(std::string_view content)
{
    return refusalOfKeySet(VersionOffset, content);
}

std::string refusalOfNanoseconds(std::string_view content)
{
    return refusalOfKeySet(NanosecondsOffset, content);
}

/// More would not fit into the input, or is refused as soon as it is read.
template <class TCount, TCount most>
std::string refusalOfCount(std::string_view content)
{
    return numberOf<TCount>(content) > most ? "too many" : "";
}

constexpr Row BundleId = guidRow("id", "Identifier");
constexpr Row EntryCount{"count", "Number of key sets", tellNumber<std::uint64_t>, EShown::Always,
                         refusalOfCount<std::uint64_t, MostBytes>};
constexpr Row KeySets{"keySets", "Key sets"};
constexpr Row KeySet{"keySet", "Key set"};
constexpr Row EntryId = guidRow("entryId", "Identifier");

constexpr Row FormVersion{"version", "Version of the form", tellNumber<std::uint8_t>, EShown::Always, refusalOfVersion};
constexpr Row SetId{"id", "Key set id", tellKeySetId, EShown::WhenSure, nullptr, crypto::CKeySetId::MaxSize};
constexpr Row Algorithm{"alg", "Algorithm", tellAlgorithm};
constexpr Row Role{"role", "Role", tellRole};
constexpr Row CreationTime{"creationTime", "Created", tellSeconds};
constexpr Row Nanoseconds{"nanoseconds", "Nanoseconds", tellNumber<std::uint32_t>, EShown::WhenSure,
                          refusalOfNanoseconds};
constexpr Row Hint{"hint", "Password hint", tellText, EShown::Secret};
constexpr Row KeyCount{"keyCount", "Number of keys", tellNumber<std::uint32_t>, EShown::Always,
                       refusalOfCount<std::uint32_t, crypto::CKeySet::MaxKeys>};
constexpr Row Keys{"keys", "Keys"};
constexpr Row Key{"key", "Key", tellHexadecimal, EShown::Secret, nullptr, crypto::CKey::MaxSize};

constexpr Row Derivation{"buffer", "Derivation", tellHexadecimal, EShown::Secret};

} // namespace

void walkKeySet(Walk& walk)
{
    walk.number<std::uint8_t>(FormVersion);
    walk.counted<std::uint8_t>(SetId);
    walk.number<std::int32_t>(Algorithm);
    walk.number<std::int32_t>(Role);
    walk.number<std::int64_t>(CreationTime);
    walk.number<std::uint32_t>(Nanoseconds);
    walk.counted<std::uint32_t>(Hint);
    const auto count = walk.number<std::uint32_t>(KeyCount);
    walk.list(Keys, count, [&walk] { walk.counted<std::uint32_t>(Key); });
}

void walkKeyBundle(Walk& walk)
{
    walk.counted<std::uint32_t>(BundleId);
    const auto count = walk.number<std::uint64_t>(EntryCount);
    walk.list(KeySets, count, [&walk] {
        walk.group(KeySet, [&walk] {
            walk.counted<std::uint32_t>(EntryId);
            walkKeySet(walk);
        });
    });
}

void walkPasswordDerivedKey(Walk& walk)
{
    walkKeySet(walk);
    walk.counted<std::uint8_t>(Derivation);
}

} // namespace dump
