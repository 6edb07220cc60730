#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/keys.h>
#include <zelplatform/exc/exc.h>

#include "sample_keys.h"

namespace
{

using namespace zelplatform::model;
using structs::SCryptoKey;
using zelmodel_test::failureText;
using zelmodel_test::KeySetParts;

const std::string fromRefused = "Failed to convert CKeySetPtr to SCryptoKey. Keyset: ";

SCryptoKey sampleKey()
{
    SCryptoKey record;
    record.id = guid::guid_t::FromAStr("6B1F2C3D-0A1B-4C2D-8E3F-0123456789AB");
    record.keySetId = crypto::CKeySetId(std::string_view("\x0A\x00\xFF", 3));
    record.alg = static_cast<ECryptoAlg::type>(1);
    record.type = ECryptoKeyType::DB;
    return record;
}

std::vector<std::string> traceOf(const std::function<void()>& action)
{
    try
    {
        action();
    }
    catch (const exc::CRuntimeExc& failure)
    {
        return failure.trace();
    }
    ADD_FAILURE() << "nothing was thrown";
    return {};
}

TEST(CryptoKeyRefusal, UnknownNumbersOfAKeySet)
{
    for (const int alg : {-1, 2, 7})
    {
        KeySetParts parts;
        parts.alg = alg;
        parts.role = 10;
        const auto keySet = parts.make();
        EXPECT_EQ(fromRefused + keySet->ToLogString() + " Unknown local crypto alg: " + std::to_string(alg),
                  failureText([&] { SCryptoKey::FromKeySet(keySet); }));
    }
    for (const int role : {-1, 0, 10, 11, 13})
    {
        KeySetParts parts;
        parts.role = role;
        const auto keySet = parts.make();
        EXPECT_EQ(fromRefused + keySet->ToLogString() + " Unable to convert EKeySetUsageRole " + std::to_string(role) +
                      " to ECryptoKeyType",
                  failureText([&] { SCryptoKey::FromKeySet(keySet); }));
    }
}

TEST(CryptoKeyRefusal, CreationTimeThatNoCalendarHas)
{
    for (const long seconds : {253402300800L, 9223372036854775807L, -9223372036854775807L})
    {
        KeySetParts parts;
        parts.seconds = seconds;
        const auto keySet = parts.make();
        const std::string sentence = fromRefused + keySet->ToLogString() + " ";
        const std::string failure = failureText([&] { SCryptoKey::FromKeySet(keySet); });
        EXPECT_EQ(0U, failure.find(sentence)) << failure;
        EXPECT_LT(sentence.size(), failure.size());
    }
}

TEST(CryptoKeyRefusal, NoKeySetAtAll)
{
    const std::string failure = failureText([] { SCryptoKey::FromKeySet(nullptr); });
    EXPECT_EQ(0U, failure.find(fromRefused)) << failure;
    EXPECT_LT(fromRefused.size() + 1, failure.size());
}

// The sentence ends in a blank and the identifier of the key set follows it.
TEST(CryptoKeyRefusal, UnknownNumbersOfARecord)
{
    auto record = sampleKey();
    record.alg = static_cast<ECryptoAlg::type>(3);
    EXPECT_EQ("Failed to convert SCryptoKey to CKeySetPtr. ID: 6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab, type: DB, "
              "keyset ID: 0A00FF Unknown qor crypto alg: 3",
              failureText([&] { record.ToKeySet(); }));

    record = sampleKey();
    record.type = static_cast<ECryptoKeyType::type>(3);
    EXPECT_EQ("Failed to convert SCryptoKey to CKeySetPtr. ID: 6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab, "
              "type: Unknown (3), keyset ID: 0A00FF Unable to convert ECryptoKeyType 3 to EKeySetUsageRole",
              failureText([&] { record.ToKeySet(); }));
    record.id = {};
    record.keySetId = {};
    EXPECT_EQ("Failed to convert SCryptoKey to CKeySetPtr. ID: 00000000-0000-0000-0000-000000000000, "
              "type: Unknown (3), keyset ID:  Unable to convert ECryptoKeyType 3 to EKeySetUsageRole",
              failureText([&] { record.ToKeySet(); }));
}

TEST(CryptoKeyRefusal, AlgorithmOfARecordIsConvertedBeforeItsType)
{
    auto record = sampleKey();
    record.alg = static_cast<ECryptoAlg::type>(0);
    record.type = static_cast<ECryptoKeyType::type>(3);
    EXPECT_EQ("Failed to convert SCryptoKey to CKeySetPtr. ID: 6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab, "
              "type: Unknown (3), keyset ID: 0A00FF Unknown qor crypto alg: 0",
              failureText([&] { record.ToKeySet(); }));
}

TEST(CryptoKeyRefusal, KeysThatNoKeySetTakes)
{
    const std::string sentence = "Failed to convert SCryptoKey to CKeySetPtr. "
                                 "ID: 6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab, type: DB, keyset ID: 0A00FF ";
    auto record = sampleKey();
    record.keys = {zelmodel_test::key("a"), nullptr};
    const std::string null = failureText([&] { record.ToKeySet(); });
    EXPECT_EQ(0U, null.find(sentence)) << null;
    EXPECT_LT(sentence.size(), null.size());

    record.keys.assign(crypto::CKeySet::MaxKeys + 1, zelmodel_test::key("a"));
    const std::string many = failureText([&] { record.ToKeySet(); });
    EXPECT_EQ(0U, many.find(sentence)) << many;
    EXPECT_LT(sentence.size(), many.size());
}

// On purpose: these two keep no trace of their own of what went wrong below.
TEST(CryptoKeyRefusal, CauseIsOneEntryOfTheTrace)
{
    KeySetParts parts;
    parts.alg = 2;
    const auto keySet = parts.make();
    EXPECT_EQ((std::vector<std::string>{fromRefused + keySet->ToLogString(), "Unknown local crypto alg: 2"}),
              traceOf([&] { SCryptoKey::FromKeySet(keySet); }));

    auto record = sampleKey();
    record.alg = static_cast<ECryptoAlg::type>(3);
    EXPECT_EQ((std::vector<std::string>{"Failed to convert SCryptoKey to CKeySetPtr. "
                                        "ID: 6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab, type: DB, keyset ID: 0A00FF",
                                        "Unknown qor crypto alg: 3"}),
              traceOf([&] { record.ToKeySet(); }));
}

} // namespace
