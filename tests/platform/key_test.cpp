#include <zelplatform/crypto/key.h>

#include <string>

#include <gtest/gtest.h>

#include "support/expect_failure.h"

namespace
{

crypto::CKey key(const std::string& bytes)
{
    return crypto::CKey({bytes.begin(), bytes.end()});
}

TEST(KeyTest, HoldsItsBytes)
{
    for (const std::string& bytes : {std::string(), std::string("secret"), std::string("a\0b", 3)})
    {
        const auto held = key(bytes);
        EXPECT_EQ(held.size(), bytes.size());
        EXPECT_EQ(std::string(held.data(), held.size()), bytes);
    }
}

TEST(KeyTest, IsEqualWhenAllBytesAre)
{
    struct Case
    {
        std::string a;
        std::string b;
        bool isEqual;
    };
    const Case cases[] = {
        {"", "", true},
        {"secret", "secret", true},
        {"secret", "Secret", false},
        {"secret", "secreT", false},
        {"secret", "secre", false},
        {"", "s", false},
        {std::string("a\0b", 3), std::string("a\0b", 3), true},
        {std::string("a\0b", 3), std::string("a\0c", 3), false},
    };
    for (const auto& [a, b, isEqual] : cases)
    {
        EXPECT_EQ(key(a) == key(b), isEqual);
        EXPECT_EQ(key(b) == key(a), isEqual);
        EXPECT_EQ(key(a) != key(b), !isEqual);
    }
}

TEST(KeyTest, RefusesMoreThan65536Bytes)
{
    EXPECT_EQ(crypto::CKey(crypto::sec_buffer_t(65536)).size(), 65536U);
    EXPECT_EQ(zelmodel_test::failureText([] { crypto::CKey(crypto::sec_buffer_t(65537)); }),
              "Key of [65537] bytes is longer than [65536].");
}

} // namespace
