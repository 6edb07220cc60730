#include <string>

#include <gtest/gtest.h>

#include <zelmodel/keys.h>
#include <zelplatform/datetime/datetime.h>

#include "sample_keys.h"

namespace
{

using namespace zelplatform::model;
using structs::SCryptoKey;
using zelmodel_test::key;
using zelmodel_test::KeySetParts;

class CryptoKey : public testing::Test
{
protected:
    CryptoKey()
    {
        datetime::set_clock_for_tests([] { return 1800000000L; }, [] { return 7200L; });
    }
    ~CryptoKey() override { datetime::set_clock_for_tests({}, {}); }
};

SCryptoKey fullKey()
{
    SCryptoKey record;
    record.id = guid::guid_t::FromAStr("6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab");
    record.keySetId = crypto::CKeySetId("set");
    record.alg = static_cast<ECryptoAlg::type>(2);
    record.type = ECryptoKeyType::Storage;
    record.hint = CUniString(L"h\u00FC");
    record.creationTime = CDateTimeEx(1709728496, 7200);
    record.keys = {key("key-one"), key("")};
    return record;
}

TEST_F(CryptoKey, TakesEveryPartOfTheKeySet)
{
    const auto keySet = KeySetParts().make();
    const auto record = SCryptoKey::FromKeySet(keySet);
    EXPECT_FALSE(record.id.IsEmpty());
    EXPECT_TRUE(record.keySetId == crypto::CKeySetId(std::string_view("\x0A\x00\xFF", 3)));
    EXPECT_EQ(2, static_cast<int>(record.alg));
    EXPECT_EQ(ECryptoKeyType::Storage, record.type);
    EXPECT_TRUE(record.hint == CUniString(L"h\u00FC"));
    EXPECT_TRUE(record.creationTime.isSet());
    EXPECT_EQ("03/06/2024 12:34:56", record.creationTime.getUtcTime().toStdString("%m/%d/%Y %H:%M:%S"));
    EXPECT_TRUE(record.creationTime.getUtcTime().isUtcTime());
    EXPECT_EQ("03/06/2024 14:34:56", record.creationTime.getLocalTime().toStdString("%m/%d/%Y %H:%M:%S"));
    EXPECT_TRUE(record.keys == keySet->GetKeys());
}

// On purpose: the record has an identifier of its own, made at each conversion.
TEST_F(CryptoKey, IdentifierIsNewAtEachConversion)
{
    const auto keySet = KeySetParts().make();
    EXPECT_NE(SCryptoKey::FromKeySet(keySet).id, SCryptoKey::FromKeySet(keySet).id);
}

TEST_F(CryptoKey, GivesEveryPartBack)
{
    const auto record = fullKey();
    const auto keySet = record.ToKeySet();
    ASSERT_TRUE(keySet);
    EXPECT_TRUE(keySet->GetId() == crypto::CKeySetId("set"));
    EXPECT_EQ(1, static_cast<int>(keySet->GetAlg()));
    EXPECT_EQ(2, static_cast<int>(keySet->GetUsageRole()));
    EXPECT_TRUE(keySet->GetHint() == record.hint);
    EXPECT_EQ(1709728496, keySet->GetCreationTime().seconds);
    EXPECT_EQ(0U, keySet->GetCreationTime().nanoseconds);
    EXPECT_TRUE(keySet->GetKeys() == record.keys);
    EXPECT_NE(keySet, record.ToKeySet());
}

TEST_F(CryptoKey, ThereAndBackLosesFractionsOfASecondAlone)
{
    const auto keySet = KeySetParts().make();
    const auto back = SCryptoKey::FromKeySet(keySet).ToKeySet();
    KeySetParts whole;
    whole.nanoseconds = 0;
    EXPECT_TRUE(zelmodel_test::same(*back, *whole.make()));
    EXPECT_FALSE(zelmodel_test::same(*back, *keySet));
}

// On purpose: zero seconds mean "not set" for the record's time, and there is no time before 1970.
TEST_F(CryptoKey, CreationTimeUpToTheEpochIsNotSet)
{
    for (const long seconds : {0L, -1L, -86400L, -17987443200L})
    {
        KeySetParts parts;
        parts.seconds = seconds;
        const auto record = SCryptoKey::FromKeySet(parts.make());
        EXPECT_FALSE(record.creationTime.isSet()) << seconds;
        EXPECT_EQ(0, record.ToKeySet()->GetCreationTime().seconds) << seconds;
    }
}

TEST_F(CryptoKey, CreationTimeOfTheFirstAndTheLastSecond)
{
    for (const long seconds : {1L, 253402300799L})
    {
        KeySetParts parts;
        parts.seconds = seconds;
        EXPECT_EQ(seconds, SCryptoKey::FromKeySet(parts.make()).ToKeySet()->GetCreationTime().seconds);
    }
}

TEST_F(CryptoKey, CreationTimeGoesBackInUtcWhateverTheOffset)
{
    auto record = fullKey();
    record.creationTime = CDateTimeEx(1709728496, -18000);
    EXPECT_EQ(1709728496, record.ToKeySet()->GetCreationTime().seconds);
    record.creationTime = CDateTimeEx();
    EXPECT_EQ(0, record.ToKeySet()->GetCreationTime().seconds);
}

// On purpose: the two pairs of types share a role.
TEST_F(CryptoKey, SharedRolesComeBackAsTheOther)
{
    auto record = fullKey();
    record.type = ECryptoKeyType::DB;
    EXPECT_EQ(ECryptoKeyType::Meta, SCryptoKey::FromKeySet(record.ToKeySet()).type);
    record.type = ECryptoKeyType::PublicPolicy;
    EXPECT_EQ(ECryptoKeyType::PrivatePolicy, SCryptoKey::FromKeySet(record.ToKeySet()).type);
}

TEST_F(CryptoKey, EmptyPartsAreParts)
{
    KeySetParts parts;
    parts.id = "";
    parts.hint = L"";
    parts.keys = {};
    const auto record = SCryptoKey::FromKeySet(parts.make());
    EXPECT_TRUE(record.keys.empty());
    EXPECT_TRUE(record.keySetId == crypto::CKeySetId());
    EXPECT_TRUE(record.ToKeySet()->GetKeys().empty());
}

} // namespace
