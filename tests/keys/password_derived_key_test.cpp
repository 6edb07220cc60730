#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <platform/memory_device.h>
#include <support/expect_failure.h>
#include <zelmodel/keys.h>

#include "sample_keys.h"

namespace
{

using namespace zelplatform::model::structs;
using zelmodel_test::failureText;
using zelmodel_test::keySetBytes;
using zelmodel_test::KeySetParts;
using zelmodel_test::secure;
using zelmodel_test::serialized;
using zelmodel_test::TestDevice;
using zelmodel_test::u8;

SPasswordDerivedKey derivedKey(const std::string& bytes)
{
    return {KeySetParts().make(), std::make_shared<crypto::sec_buffer_t>(secure(bytes))};
}

SPasswordDerivedKey unserialized(const std::string& bytes, bool isSizeKnown = true)
{
    return zelmodel_test::unserialized<SPasswordDerivedKey>(bytes, isSizeKnown);
}

TEST(PasswordDerivedKey, DefaultHoldsNothing)
{
    const SPasswordDerivedKey key;
    EXPECT_FALSE(key.keySet);
    EXPECT_FALSE(key.buffer);
}

TEST(PasswordDerivedKey, BytesByHand)
{
    EXPECT_EQ(keySetBytes() + "\x05salt!", serialized(derivedKey("salt!")));
    EXPECT_EQ(keySetBytes() + std::string("\x03"
                                          "a\0b",
                                          4),
              serialized(derivedKey(std::string("a\0b", 3))));
}

TEST(PasswordDerivedKey, ReadsBackEveryLengthUpTo255)
{
    for (std::size_t size = 0; size <= 255; ++size)
    {
        std::string bytes;
        for (std::size_t i = 0; i < size; ++i)
            bytes += static_cast<char>(static_cast<unsigned char>(255 - i));
        const std::string form = serialized(derivedKey(bytes));
        ASSERT_EQ(keySetBytes() + u8(size) + bytes, form);
        for (const bool isSizeKnown : {true, false})
        {
            const auto read = unserialized(form, isSizeKnown);
            ASSERT_TRUE(read.keySet && read.buffer);
            EXPECT_TRUE(zelmodel_test::same(*read.keySet, *KeySetParts().make()));
            EXPECT_TRUE(*read.buffer == secure(bytes)) << size;
        }
    }
}

TEST(PasswordDerivedKey, LongerBufferIsRefusedBeforeAnythingIsWritten)
{
    for (const std::size_t size : {256U, 257U, 512U, 100000U})
    {
        TestDevice device;
        io::binary_stream_tt stream(device);
        const auto key = derivedKey(std::string(size, 'x'));
        EXPECT_EQ("Unable to cast value from [unsigned long] to [unsigned char].",
                  failureText([&] { key.Serialize(stream); }));
        EXPECT_EQ("", device.bytes);
        EXPECT_EQ("Unable to cast value from [unsigned long] to [unsigned char].",
                  failureText([&] { (void)key.ToBase64(); }));
    }
}

TEST(PasswordDerivedKey, EmptyPointerIsRefusedBeforeAnythingIsWritten)
{
    for (const auto& key : {SPasswordDerivedKey{}, SPasswordDerivedKey{KeySetParts().make(), nullptr},
                            SPasswordDerivedKey{nullptr, std::make_shared<crypto::sec_buffer_t>()}})
    {
        TestDevice device;
        io::binary_stream_tt stream(device);
        EXPECT_NE("", failureText([&] { key.Serialize(stream); }));
        EXPECT_EQ("", device.bytes);
        EXPECT_NE("", failureText([&] { (void)key.ToBase64(); }));
    }
}

TEST(PasswordDerivedKey, EveryTruncationFailsAndChangesNothing)
{
    const std::string form = serialized(derivedKey("salt!"));
    for (const bool isSizeKnown : {true, false})
    {
        for (std::size_t length = 0; length < form.size(); ++length)
        {
            auto key = derivedKey("before");
            const auto before = key;
            TestDevice device(form.substr(0, length), isSizeKnown);
            io::binary_stream_tt stream(device);
            const std::string failure = failureText([&] { key.Unserialize(stream); });
            EXPECT_EQ(0U, failure.find("Failed to retrieve value from the binary stream: received less bytes ("))
                << length << failure;
            EXPECT_EQ(before.keySet, key.keySet);
            EXPECT_EQ(before.buffer, key.buffer);
            EXPECT_TRUE(*key.buffer == secure("before"));
        }
    }
}

TEST(PasswordDerivedKey, ShortReadsTellBothCounts)
{
    const std::string empty = failureText([] { unserialized(""); });
    EXPECT_EQ(0U,
              empty.find("Failed to retrieve value from the binary stream: received less bytes (0) than expected ("))
        << empty;
    EXPECT_EQ("Failed to retrieve value from the binary stream: received less bytes (0) than expected (1).",
              failureText([] { unserialized(keySetBytes()); }));
    EXPECT_EQ("Failed to retrieve value from the binary stream: received less bytes (4) than expected (5).",
              failureText([] { unserialized(keySetBytes() + "\x05salt"); }));
    EXPECT_EQ("Failed to retrieve value from the binary stream: received less bytes (4) than expected (255).",
              failureText([] { unserialized(keySetBytes() + "\xFFsalt"); }));
}

TEST(PasswordDerivedKey, ReadingReplacesTheBuffersOfNobodyElse)
{
    auto key = derivedKey("before");
    const auto shared = key.buffer;
    TestDevice device(keySetBytes() + "\x05salt!");
    io::binary_stream_tt stream(device);
    key.Unserialize(stream);
    EXPECT_TRUE(*key.buffer == secure("salt!"));
    EXPECT_TRUE(*shared == secure("before"));
}

} // namespace
