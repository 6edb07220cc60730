#include <keys/sample_keys.h>

#include "assigning.h"
#include "samples.h"

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model;
using namespace zelplatform::model::structs;

std::shared_ptr<crypto::CKeySet> keySet(const std::string& first)
{
    KeySetParts parts;
    parts.hint = std::wstring(40, L'h');
    parts.keys = {first, longText("key")};
    return parts.make();
}

SExplicitBackupKeys bundle()
{
    SExplicitBackupKeys keys;
    keys.keySets[guid::guid_t()] = keySet("one");
    keys.keySets[guid::guid_t({7})] = keySet("two");
    return keys;
}

SExplicitBackupKeys otherBundle()
{
    SExplicitBackupKeys keys;
    keys.id = guid::guid_t({9});
    for (std::uint8_t i = 0; i < 5; ++i)
        keys.keySets[guid::guid_t({i})] = keySet("other");
    return keys;
}

SPasswordDerivedKey derived()
{
    return {keySet("one"), std::make_shared<crypto::sec_buffer_t>(40, 's')};
}

SPasswordDerivedKey otherDerived()
{
    return {keySet("other"), std::make_shared<crypto::sec_buffer_t>(50, 't')};
}

template <class TRecord>
Operations recordOperationsOf(const std::string& name, const Make<TRecord>& make, const Make<TRecord>& other)
{
    const Tell<TRecord> tell = [](const TRecord& record) { return serialized(record); };
    const auto unserialize = [bytes = serialized(other())](TRecord& record) {
        TestDevice device(bytes, true);
        io::binary_stream_tt stream(device);
        record.Unserialize(stream);
    };
    return changing<TRecord>(name, make, tell, {{"Unserialize", unserialize}}) +
           asking<TRecord>(
               name, make,
               {{"Serialize", tell},
                {"ToBase64", [](const TRecord& record) { return record.ToBase64(); }},
                {"equality", [make](const TRecord& record) { return std::string(record == make() ? "=" : "!"); }}}) +
           changing<TRecord>(name, make, tell,
                             {{"assignedCopy",
                               [other](TRecord& target) {
                                   const auto source = other();
                                   target = source;
                               }}},
                             EGuarantee::Valid) +
           changing<TRecord>(name, make, tell, {{"assignedWhole", [other](TRecord& target) { target = other(); }}}) +
           asking<TRecord>(name, make, {{"copy", [tell](const TRecord& record) { return tell(TRecord(record)); }}});
}

// The record's own identifier is a fresh one each time.
std::string tellKey(const SCryptoKey& converted)
{
    return converted.keySetId.ToLogString() + ECryptoKeyType::ToLogString(converted.type) +
           CUtf8String::FromWide(converted.hint).str();
}

SCryptoKey converted()
{
    return SCryptoKey::FromKeySet(keySet("one"));
}

Operations conversionOperations()
{
    const auto set = keySet("one");
    return asking("SCryptoKey",
                  {{"FromKeySet", [set](const Nothing&) { return tellKey(SCryptoKey::FromKeySet(set)); }}}) +
           asking<SCryptoKey>("SCryptoKey", converted,
                              {{"ToKeySet", [](const SCryptoKey& key) { return key.ToKeySet()->ToLogString(); }},
                               {"copy", [](const SCryptoKey& key) { return tellKey(SCryptoKey(key)); }}}) +
           asking("CKeySet", {{"ToLogString", [set](const Nothing&) { return set->ToLogString(); }},
                              {"constructed", [](const Nothing&) { return keySet("two")->ToLogString(); }}});
}

Operations keyOperationsOfPlatform()
{
    using crypto::CKey;
    const Tell<CKey> tell = [](const CKey& made) { return std::string(made.data(), made.size()); };
    const auto make = [](const std::string& bytes) { return [bytes] { return CKey(secure(bytes)); }; };
    return assigning<CKey>("CKey.short", make("short"), make(longText("long")), tell) +
           assigning<CKey>("CKey.long", make(longText("long")), make("short"), tell);
}

} // namespace

Operations keyOperations()
{
    return recordOperationsOf<SExplicitBackupKeys>("SExplicitBackupKeys", bundle, otherBundle) +
           recordOperationsOf<SPasswordDerivedKey>("SPasswordDerivedKey", derived, otherDerived) +
           conversionOperations() + keyOperationsOfPlatform();
}

} // namespace zelmodel_test
