#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/repositories.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::ECredentialType;
using zelplatform::model::structs::EObjectStorageType;

ECredentialType::type credential(int value)
{
    return static_cast<ECredentialType::type>(value);
}

EObjectStorageType::type storage(int value)
{
    return static_cast<EObjectStorageType::type>(value);
}

TEST(ObjectStorageType, EveryKindWithItsProperties)
{
    const struct
    {
        int value;
        const char* text;
        bool isS3;
        bool hasFips;
    } cases[] = {
        {0, "Unknown", false, false}, {1, "AzureBlobStorage", false, false},
        {2, "AmazonS3", true, true},  {3, "AmazonS3Compatible", true, false},
        {4, "Google", true, false},
    };
    for (const auto& each : cases)
    {
        EXPECT_EQ(each.text, EObjectStorageType::ToStr(storage(each.value)));
        EXPECT_EQ(each.text, EObjectStorageType::ToUserFriendlyStr(storage(each.value)));
        EXPECT_EQ(each.isS3, EObjectStorageType::IsS3Family(storage(each.value))) << each.value;
        EXPECT_EQ(each.hasFips, EObjectStorageType::CanUseFipsEndpoints(storage(each.value))) << each.value;
    }
    for (const int value : {-1, 5, 2147483647})
    {
        EXPECT_FALSE(EObjectStorageType::IsS3Family(storage(value)));
        EXPECT_FALSE(EObjectStorageType::CanUseFipsEndpoints(storage(value)));
    }
}

// On purpose: the word is written and not read.
TEST(ObjectStorageType, UnknownIsWrittenAndNotRead)
{
    EXPECT_EQ("Unknown", EObjectStorageType::ToStr(EObjectStorageType::Unknown));
    EXPECT_EQ("Failed to convert string to object storage type. Unknown string: [Unknown].",
              failureText([] { EObjectStorageType::FromStr("Unknown"); }));
}

TEST(ObjectStorageType, UserFriendlyTextFailsLikeTheStoredOne)
{
    EXPECT_EQ("Failed to convert object storage type to string. Unknown enum type: 5.",
              failureText([] { EObjectStorageType::ToUserFriendlyStr(storage(5)); }));
}

TEST(ObjectStorageType, CredentialTypesBothWays)
{
    const struct
    {
        int storage;
        int credential;
    } cases[] = {{1, 5}, {2, 2}, {3, 4}, {4, 3}};
    for (const auto& each : cases)
    {
        EXPECT_EQ(each.credential, static_cast<int>(EObjectStorageType::ToCredentialType(storage(each.storage))));
        EXPECT_EQ(each.storage, static_cast<int>(EObjectStorageType::FromCredentialType(credential(each.credential))));
        EObjectStorageType::type out = EObjectStorageType::Unknown;
        EXPECT_TRUE(EObjectStorageType::TryConvertFromCredentialType(credential(each.credential), out));
        EXPECT_EQ(each.storage, static_cast<int>(out));
    }
}

TEST(ObjectStorageType, NoCredentialTypeForTheRest)
{
    for (const int value : {0, 5, 6, -1})
    {
        EXPECT_EQ("Unable to convert object storage type [" + std::to_string(value) + "] to credential type.",
                  failureText([&] { EObjectStorageType::ToCredentialType(storage(value)); }));
    }
}

// A credential type without a text is told by its number.
TEST(ObjectStorageType, NoStorageForOtherCredentialTypes)
{
    const struct
    {
        int value;
        const char* text;
    } cases[] = {{0, "Unknown"}, {1, "AAP"}, {6, "6"}, {9, "9"}, {-1, "-1"}};
    for (const auto& each : cases)
    {
        EXPECT_EQ("Unable to convert object storage type from credential type [" + std::string(each.text) + "].",
                  failureText([&] { EObjectStorageType::FromCredentialType(credential(each.value)); }));
        for (const int before : {0, 3, 77})
        {
            EObjectStorageType::type out = storage(before);
            EXPECT_FALSE(EObjectStorageType::TryConvertFromCredentialType(credential(each.value), out));
            EXPECT_EQ(before, static_cast<int>(out));
        }
    }
}

} // namespace
