#include <memory>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/repositories.h>

#include "secret_samples.h"
#include "stack_watch.h"

namespace
{

using namespace zelplatform::model::structs;
using namespace zelmodel_test;

/// One thing that is done with keys; all that it made is released when it returns.
struct Operation
{
    const char* name;
    void (*run)();
};

void PrintTo(const Operation& operation, std::ostream* out)
{
    *out << operation.name;
}

void makeKeySets()
{
    const auto keySet = secretKeySet();
    const crypto::CKeySet copy(*keySet);
    crypto::CKeySet assigned(*secretKeySet());
    assigned = copy;
    EXPECT_TRUE(same(copy, assigned));
    EXPECT_NE("", copy.ToLogString());
}

void refuseKeySets()
{
    EXPECT_NE("", failureText([] { crypto::CKey(secretBytes(crypto::CKey::MaxSize + 1)); }));
    auto keys = secretKeySet()->GetKeys();
    keys.push_back(nullptr);
    EXPECT_NE("", failureText([&] {
                  crypto::CKeySet(crypto::CKeySetId(), crypto::Local0, crypto::Storage, CUniString(), {}, keys);
              }));
}

void streamKeySets()
{
    io::mem_stream_tt memory;
    io::binary_stream_tt stream(memory);
    for (int i = 0; i < 20; ++i)
        secretKeySet()->Serial(stream);
    for (int i = 0; i < 20; ++i)
        EXPECT_TRUE(same(*secretKeySet(), *crypto::CKeySet::Unserial(stream)));
}

void streamBuffers()
{
    io::mem_stream_tt memory;
    io::binary_stream_tt stream(memory);
    stream << secretBytes(100000);
    crypto::sec_buffer_t read;
    stream >> read;
    EXPECT_EQ(100000U, read.size());
    memory.write(secretBytes().data(), SecretSize);
    EXPECT_NE("", failureText([&] { stream.read_secure(SecretSize + 1); }));
    EXPECT_NE("", failureText([&] { stream >> read; }));
}

void encodeBuffers()
{
    ErasedText text(util::toBase64(secretBytes().data(), SecretSize));
    EXPECT_EQ(SecretSize, util::fromBase64(text.str()).size());
    text.str()[100] = '\n';
    EXPECT_NE("", failureText([&] { util::fromBase64(text.str()); }));
    text.str()[100] = '!';
    EXPECT_NE("", failureText([&] { util::fromBase64(text.str()); }));
}

void streamBundles()
{
    EXPECT_TRUE(fromSecretForm<SExplicitBackupKeys>(secretForm(secretBundle())) == secretBundle());
}

void encodeBundles()
{
    const auto keys = secretBundle();
    ErasedText text(keys.ToBase64());
    EXPECT_TRUE(SExplicitBackupKeys::FromBase64(text.str()) == keys);
    ErasedText lines(std::string(text.str().size() + 2, '\n'));
    lines.str().replace(0, 400, text.str(), 0, 400);
    lines.str().replace(402, std::string::npos, text.str(), 400);
    EXPECT_TRUE(SExplicitBackupKeys::FromBase64(lines.str()) == keys);
}

void refuseBundles()
{
    ErasedText text(secretBundle().ToBase64());
    while (text.str().size() > 4)
    {
        text.str().resize(text.str().size() - 4);
        EXPECT_NE("", failureText([&] { SExplicitBackupKeys::FromBase64(text.str()); }));
    }
    auto keys = secretBundle();
    keys.keySets[guid::guid_t()] = nullptr;
    EXPECT_NE("", failureText([&] { (void)keys.ToBase64(); }));
}

void compareBundles()
{
    auto keys = secretBundle();
    auto other = keys;
    EXPECT_TRUE(keys == other);
    other.keySets.begin()->second = secretKeySet();
    EXPECT_TRUE(keys == other);
    keys = std::move(other);
    keys.keySets.clear();
}

void streamDerivedKeys()
{
    EXPECT_TRUE(fromSecretForm<SPasswordDerivedKey>(secretForm(secretDerivedKey())) == secretDerivedKey());
}

void encodeDerivedKeys()
{
    const auto key = secretDerivedKey();
    ErasedText text(key.ToBase64());
    EXPECT_TRUE(SPasswordDerivedKey::FromBase64(text.str()) == key);
}

void refuseDerivedKeys()
{
    auto key = secretDerivedKey();
    ErasedText text(key.ToBase64());
    while (text.str().size() > 4)
    {
        text.str().resize(text.str().size() - 4);
        EXPECT_NE("", failureText([&] { SPasswordDerivedKey::FromBase64(text.str()); }));
    }
    key.buffer->resize(256, SecretByte);
    EXPECT_NE("", failureText([&] { (void)key.ToBase64(); }));
}

void convertKeys()
{
    const auto record = SCryptoKey::FromKeySet(secretKeySet());
    auto copy = record;
    EXPECT_TRUE(record == copy);
    EXPECT_TRUE(same(*secretKeySet(), *copy.ToKeySet()));
    copy.alg = static_cast<zelplatform::model::ECryptoAlg::type>(9);
    EXPECT_NE("", failureText([&] { copy.ToKeySet(); }));
}

void keepContainers()
{
    SExternalRepoCloudContainer container;
    container.encryption.emplace();
    container.encryption->keySet = secretKeySet();
    container.encryption->key = std::make_shared<crypto::CKey>(secretBytes());
    container.encryption->keySets = secretBundle().keySets;
    const auto copy = container;
    EXPECT_TRUE(container == copy);
    const auto text = copy.Serialize();
    container = SExternalRepoCloudContainer::Unserialize(text);
    EXPECT_FALSE(container.encryption);
    EXPECT_FALSE(container == copy);
}

constexpr Operation Operations[] = {
    {"MakeKeySets", makeKeySets},
    {"RefuseKeySets", refuseKeySets},
    {"StreamKeySets", streamKeySets},
    {"StreamBuffers", streamBuffers},
    {"EncodeBuffers", encodeBuffers},
    {"StreamBundles", streamBundles},
    {"EncodeBundles", encodeBundles},
    {"RefuseBundles", refuseBundles},
    {"CompareBundles", compareBundles},
    {"StreamDerivedKeys", streamDerivedKeys},
    {"EncodeDerivedKeys", encodeDerivedKeys},
    {"RefuseDerivedKeys", refuseDerivedKeys},
    {"ConvertKeys", convertKeys},
    {"KeepContainers", keepContainers},
};

class KeyOperation : public testing::TestWithParam<Operation>
{
};

TEST_P(KeyOperation, GivesNoSecretBack)
{
    watchSecrets();
    GetParam().run();
    EXPECT_EQ(0U, secretsGivenBack());
}

TEST_P(KeyOperation, LeavesNoSecretOnTheStack)
{
    watchSecrets();
    EXPECT_FALSE(leavesSecretOnStack(GetParam().run));
}

INSTANTIATE_TEST_SUITE_P(Keys, KeyOperation, testing::ValuesIn(Operations),
                         [](const auto& tested) { return std::string(tested.param.name); });

} // namespace
