#include <functional>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <platform/memory_device.h>
#include <zelmodel/keys.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/logging/logging.h>

#include "sample_keys.h"

namespace
{

using namespace zelplatform::model;
using namespace zelplatform::model::structs;
using zelmodel_test::key;
using zelmodel_test::KeySetParts;
using zelmodel_test::secure;
using zelmodel_test::TestDevice;

/// The secrets, and the spellings in which one could leak: as it is, in base64 and in hexadecimal.
const std::string canaries[] = {"canary-key-bytes", "canary-hint",  "canary-buffer",
                                "Y2FuYXJ5LW",       "63616e617279", "63616E617279"};

class KeySecrets : public testing::Test
{
protected:
    KeySecrets() { logging::set_sink(m_sink); }
    ~KeySecrets() override { logging::set_sink(nullptr); }

    void TearDown() override
    {
        EXPECT_TRUE(m_sink->entries().empty());
        for (const auto& entry : m_sink->entries())
            m_told += entry.text;
        for (const auto& canary : canaries)
            EXPECT_EQ(std::string::npos, m_told.find(canary)) << m_told;
    }

    void fail(const std::function<void()>& action)
    {
        try
        {
            action();
            ADD_FAILURE() << "nothing was thrown";
        }
        catch (const exc::CRuntimeExc& failure)
        {
            m_told += failure.what();
            for (const auto& sentence : failure.trace())
                m_told += sentence;
        }
    }

    std::shared_ptr<logging::memory_sink> m_sink = std::make_shared<logging::memory_sink>();
    std::string m_told;
};

KeySetParts secretParts()
{
    KeySetParts parts;
    parts.hint = L"canary-hint";
    parts.keys = {"canary-key-bytes", "canary-key-bytes"};
    return parts;
}

SPasswordDerivedKey secretDerived()
{
    return {secretParts().make(), std::make_shared<crypto::sec_buffer_t>(secure("canary-buffer"))};
}

SExplicitBackupKeys secretBundle()
{
    SExplicitBackupKeys keys;
    keys.keySets[keys.id] = secretParts().make();
    return keys;
}

TEST_F(KeySecrets, NoneInTheLogTextOfAKeySet)
{
    m_told += secretParts().make()->ToLogString();
    EXPECT_NE("", m_told);
}

TEST_F(KeySecrets, NoneInARefusalToConvert)
{
    auto parts = secretParts();
    parts.alg = 9;
    fail([&] { SCryptoKey::FromKeySet(parts.make()); });
    parts = secretParts();
    parts.role = 11;
    fail([&] { SCryptoKey::FromKeySet(parts.make()); });
    parts = secretParts();
    parts.seconds = 9223372036854775807L;
    fail([&] { SCryptoKey::FromKeySet(parts.make()); });

    auto record = SCryptoKey::FromKeySet(secretParts().make());
    record.alg = static_cast<ECryptoAlg::type>(0);
    fail([&] { record.ToKeySet(); });
    record = SCryptoKey::FromKeySet(secretParts().make());
    record.type = static_cast<ECryptoKeyType::type>(13);
    fail([&] { record.ToKeySet(); });
    record = SCryptoKey::FromKeySet(secretParts().make());
    record.keys.push_back(nullptr);
    fail([&] { record.ToKeySet(); });
}

TEST_F(KeySecrets, NoneInARefusalToWrite)
{
    auto bundle = secretBundle();
    auto derived = secretDerived();
    for (const long count : {0L, 3L, -1L})
    {
        TestDevice device;
        device.answerWith(count);
        io::binary_stream_tt stream(device);
        fail([&] { bundle.Serialize(stream); });
        fail([&] { derived.Serialize(stream); });
    }
    bundle.keySets[guid::guid_t::CreateNew()] = nullptr;
    fail([&] { (void)bundle.ToBase64(); });
    derived.buffer->resize(256);
    fail([&] { (void)derived.ToBase64(); });

    auto parts = secretParts();
    parts.hint = std::wstring(L"canary-hint") + static_cast<wchar_t>(0xD800);
    derived = {parts.make(), std::make_shared<crypto::sec_buffer_t>(secure("canary-buffer"))};
    fail([&] { (void)derived.ToBase64(); });
}

TEST_F(KeySecrets, NoneInARefusalToRead)
{
    const std::string bundle = secretBundle().ToBase64();
    const std::string derived = secretDerived().ToBase64();
    for (std::size_t length = 0; length < bundle.size(); ++length)
        fail([&] { SExplicitBackupKeys::FromBase64(bundle.substr(0, length)); });
    for (std::size_t length = 0; length < derived.size(); ++length)
        fail([&] { SPasswordDerivedKey::FromBase64(derived.substr(0, length)); });
    fail([&] { SExplicitBackupKeys::FromBase64(bundle + "!"); });
    fail([&] { SExplicitBackupKeys::FromBase64("canary-key-bytes"); });
    fail([&] { SPasswordDerivedKey::FromBase64(std::string(derived.rbegin(), derived.rend())); });
    fail([&] { SPasswordDerivedKey::FromBase64(bundle); });
    fail([&] { SExplicitBackupKeys::FromBase64(derived); });
}

TEST_F(KeySecrets, ReadingAndWritingLogNothing)
{
    EXPECT_EQ(secretBundle().ToBase64(), SExplicitBackupKeys::FromBase64(secretBundle().ToBase64()).ToBase64());
    EXPECT_EQ(secretDerived().ToBase64(), SPasswordDerivedKey::FromBase64(secretDerived().ToBase64()).ToBase64());
    EXPECT_FALSE(SCryptoKey::FromKeySet(secretParts().make()).id.IsEmpty());
}

} // namespace
