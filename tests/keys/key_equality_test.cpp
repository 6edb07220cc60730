#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/keys.h>

#include "sample_keys.h"

namespace
{

using namespace zelplatform::model;
using structs::SCryptoKey;
using structs::SExplicitBackupKeys;
using structs::SPasswordDerivedKey;
using zelmodel_test::key;
using zelmodel_test::KeySetParts;
using zelmodel_test::secure;

const guid::guid_t firstId = guid::guid_t::FromAStr("11111111-2222-3333-4444-555555555555");
const guid::guid_t secondId = guid::guid_t::FromAStr("aaaaaaaa-2222-3333-4444-555555555555");

template <class T>
void expectEqual(const T& a, const T& b, bool isEqual)
{
    EXPECT_EQ(isEqual, a == b);
    EXPECT_EQ(isEqual, b == a);
    EXPECT_EQ(!isEqual, a != b);
    EXPECT_EQ(!isEqual, b != a);
}

/// Two records made apart are equal, and each change makes one that is not.
template <class T>
void expectEachDiffers(T (*make)(), const std::vector<std::function<void(T&)>>& changes)
{
    expectEqual(make(), make(), true);
    for (std::size_t i = 0; i < changes.size(); ++i)
    {
        SCOPED_TRACE(i);
        T changed = make();
        changes[i](changed);
        expectEqual(changed, make(), false);
        expectEqual(changed, changed, true);
    }
}

/// The changes that make another key set, one for each part of it.
std::vector<std::shared_ptr<crypto::CKeySet>> otherKeySets()
{
    const std::vector<std::function<void(KeySetParts&)>> changes{
        [](KeySetParts& parts) { parts.id = std::string("\x0A\x00\xFE", 3); },
        [](KeySetParts& parts) { parts.alg = 0; },
        [](KeySetParts& parts) { parts.role = 3; },
        [](KeySetParts& parts) { parts.hint = L"H\u00FC"; },
        [](KeySetParts& parts) { ++parts.seconds; },
        [](KeySetParts& parts) { ++parts.nanoseconds; },
        [](KeySetParts& parts) { parts.keys[0] = "key-onf"; },
        [](KeySetParts& parts) { parts.keys[0] = "Key-one"; },
        [](KeySetParts& parts) { parts.keys[0] = "key-on"; },
        [](KeySetParts& parts) { parts.keys.pop_back(); },
        [](KeySetParts& parts) { parts.keys.emplace_back(); },
        [](KeySetParts& parts) { std::swap(parts.keys[0], parts.keys[1]); },
    };
    std::vector<std::shared_ptr<crypto::CKeySet>> keySets;
    for (const auto& change : changes)
    {
        KeySetParts parts;
        change(parts);
        keySets.push_back(parts.make());
    }
    keySets.push_back(nullptr);
    return keySets;
}

SCryptoKey cryptoKey()
{
    SCryptoKey record;
    record.id = firstId;
    record.keySetId = crypto::CKeySetId("set");
    record.alg = ECryptoAlg::Qor2;
    record.type = ECryptoKeyType::Storage;
    record.hint = CUniString(L"hint");
    record.creationTime = CDateTimeEx(1709728496, 7200);
    record.keys = {key("key-one"), nullptr, key("")};
    return record;
}

SExplicitBackupKeys explicitKeys()
{
    return {firstId, {{firstId, KeySetParts().make()}, {secondId, nullptr}}};
}

SPasswordDerivedKey derivedKey()
{
    return {KeySetParts().make(), std::make_shared<crypto::sec_buffer_t>(secure("salt!"))};
}

TEST(KeyEquality, OfACryptoKeyComparesEveryField)
{
    expectEqual(SCryptoKey(), SCryptoKey(), true);
    expectEachDiffers<SCryptoKey>(cryptoKey,
                                  {
                                      [](SCryptoKey& record) { record.id = secondId; },
                                      [](SCryptoKey& record) { record.keySetId = crypto::CKeySetId("Set"); },
                                      [](SCryptoKey& record) { record.alg = ECryptoAlg::Qor1; },
                                      [](SCryptoKey& record) { record.type = ECryptoKeyType::Session; },
                                      [](SCryptoKey& record) { record.hint = CUniString(L"Hint"); },
                                      [](SCryptoKey& record) { record.creationTime = CDateTimeEx(1709728497, 7200); },
                                      [](SCryptoKey& record) { record.creationTime = CDateTimeEx(1709728495, 7200); },
                                      [](SCryptoKey& record) { record.keys[0] = key("key-two"); },
                                      [](SCryptoKey& record) { record.keys[0] = nullptr; },
                                      [](SCryptoKey& record) { record.keys[1] = key(""); },
                                      [](SCryptoKey& record) { record.keys.pop_back(); },
                                      [](SCryptoKey& record) { record.keys.push_back(nullptr); },
                                  });
}

// The offset is that of the machine which read the key, not the key's.
TEST(KeyEquality, OfACryptoKeyLeavesTheOffsetOut)
{
    SCryptoKey elsewhere = cryptoKey();
    elsewhere.creationTime = CDateTimeEx(1709728496, -18000);
    expectEqual(elsewhere, cryptoKey(), true);
}

TEST(KeyEquality, OfExplicitKeysComparesWhatTheKeySetsHold)
{
    expectEqual(SExplicitBackupKeys(), SExplicitBackupKeys(), true);
    expectEachDiffers<SExplicitBackupKeys>(
        explicitKeys, {
                          [](SExplicitBackupKeys& keys) { keys.id = secondId; },
                          [](SExplicitBackupKeys& keys) { keys.keySets[secondId] = KeySetParts().make(); },
                          [](SExplicitBackupKeys& keys) { keys.keySets.erase(secondId); },
                          [](SExplicitBackupKeys& keys) { keys.keySets[guid::guid_t()] = nullptr; },
                          [](SExplicitBackupKeys& keys) { std::swap(keys.keySets[firstId], keys.keySets[secondId]); },
                      });
    for (const auto& other : otherKeySets())
        expectEqual(SExplicitBackupKeys{firstId, {{firstId, other}, {secondId, nullptr}}}, explicitKeys(), false);
}

TEST(KeyEquality, OfADerivedKeyComparesWhatTheKeySetAndTheBufferHold)
{
    using crypto::sec_buffer_t;
    expectEqual(SPasswordDerivedKey(), SPasswordDerivedKey(), true);
    std::vector<std::function<void(SPasswordDerivedKey&)>> changes{
        [](SPasswordDerivedKey& derived) { derived.buffer = nullptr; },
        [](SPasswordDerivedKey& derived) { derived.buffer->clear(); },
        [](SPasswordDerivedKey& derived) { derived.buffer->front() = 'S'; },
        [](SPasswordDerivedKey& derived) { derived.buffer->back() = '?'; },
        [](SPasswordDerivedKey& derived) { derived.buffer->push_back('\0'); },
    };
    for (const auto& other : otherKeySets())
        changes.emplace_back([other](SPasswordDerivedKey& derived) { derived.keySet = other; });
    expectEachDiffers<SPasswordDerivedKey>(derivedKey, changes);
    const auto empty = [] { return std::make_shared<sec_buffer_t>(); };
    expectEqual(SPasswordDerivedKey{nullptr, empty()}, SPasswordDerivedKey{nullptr, empty()}, true);
    expectEqual(SPasswordDerivedKey{nullptr, empty()}, SPasswordDerivedKey{nullptr, nullptr}, false);
}

} // namespace
