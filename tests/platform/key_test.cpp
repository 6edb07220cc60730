#include <zelplatform/crypto/key.h>

#include <string>

#include <gtest/gtest.h>

#include "memory_device.h"
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

// 32 bytes are the most that a key keeps without a block of its own.
TEST(KeyTest, HoldsAndReadsShortAndLongKeysAlike)
{
    for (const std::size_t size : {0U, 1U, 31U, 32U, 33U, 256U, 65536U})
    {
        const std::string bytes(size, 's');
        const auto built = key(bytes);
        for (const bool isSizeKnown : {true, false})
        {
            zelmodel_test::TestDevice device(bytes + "rest", isSizeKnown);
            io::binary_stream_tt stream(device);
            const crypto::CKey read(stream, size);
            EXPECT_EQ(std::string(read.data(), read.size()), bytes);
            EXPECT_EQ(read, built);
            EXPECT_EQ(device.position, size);
        }
        auto copy = key(size == 32 ? std::string(33, 'o') : std::string(32, 'o'));
        copy = built;
        EXPECT_EQ(copy, built);
        EXPECT_EQ(crypto::CKey(copy), built);
    }
}

TEST(KeyTest, TellsOfADeviceThatGivesLess)
{
    for (const std::size_t size : {32U, 33U})
    {
        for (const bool isSizeKnown : {true, false})
        {
            zelmodel_test::TestDevice device("secret", isSizeKnown);
            io::binary_stream_tt stream(device);
            EXPECT_EQ(zelmodel_test::failureText([&, s = size] { crypto::CKey(stream, s); }),
                      "Failed to retrieve value from the binary stream: received less bytes (6) than expected (" +
                          std::to_string(size) + ").");
            EXPECT_EQ(device.calls.size(), isSizeKnown ? 0U : 1U);
        }
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

    zelmodel_test::TestDevice device(std::string(65537, 's'));
    io::binary_stream_tt stream(device);
    EXPECT_EQ(zelmodel_test::failureText([&] { crypto::CKey(stream, 65537); }),
              "Key of [65537] bytes is longer than [65536].");
    EXPECT_TRUE(device.calls.empty());
}

} // namespace
