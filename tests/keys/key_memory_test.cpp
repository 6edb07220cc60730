#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/keys.h>

#include "allocation_watch.h"

namespace
{

using namespace zelplatform::model::structs;
using zelmodel_test::SecretByte;
using zelmodel_test::secretsGivenBack;
using zelmodel_test::watchAllocations;

constexpr std::size_t SecretSize = 200;

/// A key set whose keys, a short one among them, were never anywhere but in secure memory.
std::shared_ptr<crypto::CKeySet> secretKeySet()
{
    std::vector<std::shared_ptr<crypto::CKey>> keys;
    for (const std::size_t size : {SecretSize, zelmodel_test::SecretRun, SecretSize})
        keys.push_back(std::make_shared<crypto::CKey>(crypto::sec_buffer_t(size, SecretByte)));
    return std::make_shared<crypto::CKeySet>(crypto::CKeySetId("id"), crypto::Local0, crypto::Storage, CUniString(),
                                             lin::lin_filetime_t{1709728496, 0}, keys);
}

TEST(KeyMemory, TheWatchSeesASecretInOrdinaryMemory)
{
    watchAllocations();
    {
        const std::string plain(SecretSize, SecretByte);
        EXPECT_EQ(SecretSize, plain.size());
    }
    EXPECT_EQ(1U, secretsGivenBack());
}

TEST(KeyMemory, BundleIsErasedWhereverItWas)
{
    watchAllocations();
    {
        SExplicitBackupKeys keys;
        keys.keySets[keys.id] = secretKeySet();
        const std::string text = keys.ToBase64();
        const auto read = SExplicitBackupKeys::FromBase64(text);
        EXPECT_EQ(3U, read.keySets.at(keys.id)->GetKeys().size());
    }
    EXPECT_EQ(0U, secretsGivenBack());
}

TEST(KeyMemory, DerivedKeyIsErasedWhereverItWas)
{
    watchAllocations();
    {
        const SPasswordDerivedKey key = {secretKeySet(),
                                         std::make_shared<crypto::sec_buffer_t>(SecretSize, SecretByte)};
        const auto read = SPasswordDerivedKey::FromBase64(key.ToBase64());
        EXPECT_TRUE(*read.buffer == *key.buffer);
    }
    EXPECT_EQ(0U, secretsGivenBack());
}

TEST(KeyMemory, RefusedBundleIsErasedToo)
{
    watchAllocations();
    {
        SExplicitBackupKeys keys;
        keys.keySets[keys.id] = secretKeySet();
        std::string text = keys.ToBase64();
        text.resize(text.size() - 80);
        EXPECT_ANY_THROW(SExplicitBackupKeys::FromBase64(text));
    }
    EXPECT_EQ(0U, secretsGivenBack());
}

TEST(KeyMemory, ConvertedKeyIsErasedWhereverItWas)
{
    watchAllocations();
    {
        const auto record = SCryptoKey::FromKeySet(secretKeySet());
        EXPECT_EQ(3U, record.ToKeySet()->GetKeys().size());
    }
    EXPECT_EQ(0U, secretsGivenBack());
}

} // namespace
