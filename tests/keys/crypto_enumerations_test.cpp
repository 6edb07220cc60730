#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/keys.h>
#include <zelplatform/util/util.h>

namespace
{

using namespace zelplatform::model;
using zelmodel_test::failureText;

ECryptoKeyType::type keyType(int value)
{
    return static_cast<ECryptoKeyType::type>(value);
}

crypto::EKeySetUsageRole role(int value)
{
    return static_cast<crypto::EKeySetUsageRole>(value);
}

constexpr int None = -1;

const struct
{
    int value;
    const char* name;
    int toRole;
} keyTypes[] = {
    {0, "Password", 5},
    {1, "Session", 1},
    {2, "Unknown (2)", None},
    {3, "Unknown (3)", None},
    {4, "Storage", 2},
    {5, "Meta", 3},
    {6, "Enterprise", 4},
    {7, "DB", 3},
    {8, "Archive", 6},
    {9, "History", 7},
    {10, "PublicPolicy", 8},
    {11, "PrivatePolicy", 8},
    {12, "SymmetricRndAgent", 9},
    {13, "Unknown (13)", None},
    {14, "Unknown (14)", None},
    {15, "KmsMasterPublic", 12},
    {16, "Unknown (16)", None},
    {-1, "Unknown (-1)", None},
    {2147483647, "Unknown (2147483647)", None},
};

TEST(CryptoAlg, BothNumberings)
{
    EXPECT_EQ(0, static_cast<int>(ECryptoAlg::ToLocalType(static_cast<ECryptoAlg::type>(1))));
    EXPECT_EQ(1, static_cast<int>(ECryptoAlg::ToLocalType(static_cast<ECryptoAlg::type>(2))));
    EXPECT_EQ(1, static_cast<int>(ECryptoAlg::FromLocalType(static_cast<crypto::ECryptAlgs>(0))));
    EXPECT_EQ(2, static_cast<int>(ECryptoAlg::FromLocalType(static_cast<crypto::ECryptAlgs>(1))));
}

TEST(CryptoAlg, OtherNumbersAreRefused)
{
    for (const int value : {-1, 0, 3, 2147483647})
    {
        EXPECT_EQ("Unknown qor crypto alg: " + std::to_string(value),
                  failureText([&] { ECryptoAlg::ToLocalType(static_cast<ECryptoAlg::type>(value)); }));
    }
    for (const int value : {-1, 2, 3, 2147483647})
    {
        EXPECT_EQ("Unknown local crypto alg: " + std::to_string(value),
                  failureText([&] { ECryptoAlg::FromLocalType(static_cast<crypto::ECryptAlgs>(value)); }));
    }
}

TEST(CryptoAlg, TextIsTheNumber)
{
    EXPECT_EQ("2", util::toStr(static_cast<ECryptoAlg::type>(2)));
    EXPECT_EQ("12", util::toStr(keyType(12)));
}

TEST(CryptoKeyType, NameForTheLog)
{
    for (const auto& each : keyTypes)
        EXPECT_EQ(each.name, ECryptoKeyType::ToLogString(keyType(each.value)));
}

TEST(CryptoKeyType, RoleOfEveryType)
{
    for (const auto& each : keyTypes)
    {
        if (each.toRole != None)
            EXPECT_EQ(each.toRole, static_cast<int>(ECryptoKeyType::ToCryptoKeyRole(keyType(each.value))));
        else
            EXPECT_EQ("Unable to convert ECryptoKeyType " + std::to_string(each.value) + " to EKeySetUsageRole",
                      failureText([&] { ECryptoKeyType::ToCryptoKeyRole(keyType(each.value)); }));
    }
}

TEST(CryptoKeyType, TypeOfEveryRole)
{
    const struct
    {
        int role;
        int type;
    } cases[] = {
        {-1, None}, {0, None}, {1, 1},  {2, 4},     {3, 5},     {4, 6},   {5, 0},     {6, 8},
        {7, 9},     {8, 11},   {9, 12}, {10, None}, {11, None}, {12, 15}, {13, None}, {2147483647, None},
    };
    for (const auto& each : cases)
    {
        if (each.type != None)
            EXPECT_EQ(each.type, static_cast<int>(ECryptoKeyType::FromCryptoKeyRole(role(each.role))));
        else
            EXPECT_EQ("Unable to convert EKeySetUsageRole " + std::to_string(each.role) + " to ECryptoKeyType",
                      failureText([&] { ECryptoKeyType::FromCryptoKeyRole(role(each.role)); }));
    }
}

// On purpose: two pairs share a role and come back as one of the two.
TEST(CryptoKeyType, SharedRolesComeBackAsTheOther)
{
    const auto there = [](int value) { return ECryptoKeyType::ToCryptoKeyRole(keyType(value)); };
    EXPECT_EQ(ECryptoKeyType::Meta, ECryptoKeyType::FromCryptoKeyRole(there(ECryptoKeyType::DB)));
    EXPECT_EQ(ECryptoKeyType::PrivatePolicy, ECryptoKeyType::FromCryptoKeyRole(there(ECryptoKeyType::PublicPolicy)));
    for (const int value : {0, 1, 4, 5, 6, 8, 9, 11, 12, 15})
        EXPECT_EQ(value, static_cast<int>(ECryptoKeyType::FromCryptoKeyRole(there(value))));
}

} // namespace
