#include <zelplatform/crypto/key_set_id.h>

#include <string>

#include <gtest/gtest.h>

#include "support/expect_failure.h"

namespace
{

using crypto::CKeySetId;

TEST(KeySetIdTest, KeepsItsBytesAndWritesThemAsDigits)
{
    struct Case
    {
        std::string bytes;
        std::string text;
    };
    const Case cases[] = {
        {"", ""},
        {"A", "41"},
        {std::string("\0\1\x7F", 3), "00017F"},
        {"\x80\x9A\xBC\xDE\xFF", "809ABCDEFF"},
        {std::string(64, '\xF0'), "F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0"
                                  "F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0"},
    };
    for (const auto& [bytes, text] : cases)
    {
        const CKeySetId id(bytes);
        EXPECT_EQ(id.bytes(), bytes);
        EXPECT_EQ(id.ToLogString(), text);
    }
    EXPECT_EQ(CKeySetId(), CKeySetId(""));
}

TEST(KeySetIdTest, IsOrderedByItsBytes)
{
    const CKeySetId ascending[] = {
        CKeySetId(),
        CKeySetId(std::string(1, '\0')),
        CKeySetId(std::string(2, '\0')),
        CKeySetId("a"),
        CKeySetId("ab"),
        CKeySetId("b"),
        CKeySetId("\xFF"),
    };
    for (const auto& a : ascending)
    {
        for (const auto& b : ascending)
        {
            EXPECT_EQ(a == b, &a == &b);
            EXPECT_EQ(a != b, &a != &b);
            EXPECT_EQ(a < b, &a < &b);
        }
    }
}

TEST(KeySetIdTest, RefusesMoreThanSixtyFourBytes)
{
    struct Case
    {
        std::size_t size;
        std::string message;
    };
    const Case cases[] = {
        {65, "Key set id of [65] bytes is longer than [64]."},
        {1000, "Key set id of [1000] bytes is longer than [64]."},
    };
    for (const auto& [size, message] : cases)
        EXPECT_EQ(zelmodel_test::failureText([&, n = size] { CKeySetId(std::string(n, 'x')); }), message);
}

} // namespace
