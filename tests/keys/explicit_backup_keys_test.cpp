#include <map>
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
using zelmodel_test::serialized;
using zelmodel_test::TestDevice;
using zelmodel_test::text;
using zelmodel_test::u64;

const std::string bundleId = "6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab";
const std::string firstId = "11111111-2222-3333-4444-555555555555";
const std::string secondId = "aaaaaaaa-2222-3333-4444-555555555555";
const std::string zeroId = "00000000-0000-0000-0000-000000000000";

guid::guid_t id(const std::string& value)
{
    return guid::guid_t::FromAStr(value);
}

SExplicitBackupKeys unserialized(const std::string& bytes, bool isSizeKnown = true)
{
    return zelmodel_test::unserialized<SExplicitBackupKeys>(bytes, isSizeKnown);
}

KeySetParts otherParts()
{
    KeySetParts parts;
    parts.id = "other";
    parts.hint = L"";
    parts.keys = {"key-two"};
    return parts;
}

TEST(ExplicitBackupKeys, DefaultIsEmpty)
{
    const SExplicitBackupKeys keys;
    EXPECT_TRUE(keys.id.IsEmpty());
    EXPECT_TRUE(keys.keySets.empty());
}

TEST(ExplicitBackupKeys, EmptyMapIsTheIdentifierAndACountOfZero)
{
    SExplicitBackupKeys keys;
    EXPECT_EQ(text(zeroId) + u64(0), serialized(keys));
    keys.id = id(bundleId);
    EXPECT_EQ(text(bundleId) + u64(0), serialized(keys));
    EXPECT_EQ(4U + 36U + 8U, serialized(keys).size());
}

TEST(ExplicitBackupKeys, BytesByHand)
{
    SExplicitBackupKeys keys;
    keys.id = id(bundleId);
    keys.keySets[id(firstId)] = KeySetParts().make();
    EXPECT_EQ(std::string("\x24\0\0\0", 4) + bundleId + std::string("\1\0\0\0\0\0\0\0", 8) +
                  std::string("\x24\0\0\0", 4) + firstId + keySetBytes(),
              serialized(keys));
}

TEST(ExplicitBackupKeys, EntriesStandInTheOrderOfTheirIdentifiers)
{
    SExplicitBackupKeys keys;
    keys.keySets[id(secondId)] = KeySetParts().make();
    keys.keySets[id(zeroId)] = KeySetParts().make();
    keys.keySets[id(firstId)] = KeySetParts().make();
    EXPECT_EQ(text(zeroId) + u64(3) + text(zeroId) + keySetBytes() + text(firstId) + keySetBytes() + text(secondId) +
                  keySetBytes(),
              serialized(keys));
}

TEST(ExplicitBackupKeys, ReadsBackWhatItWrites)
{
    SExplicitBackupKeys keys;
    keys.id = id(bundleId);
    keys.keySets[id(firstId)] = KeySetParts().make();
    keys.keySets[id(secondId)] = otherParts().make();
    for (const bool isSizeKnown : {true, false})
    {
        const auto read = unserialized(serialized(keys), isSizeKnown);
        EXPECT_EQ(id(bundleId), read.id);
        ASSERT_EQ(2U, read.keySets.size());
        EXPECT_TRUE(zelmodel_test::same(*read.keySets.at(id(firstId)), *KeySetParts().make()));
        EXPECT_TRUE(zelmodel_test::same(*read.keySets.at(id(secondId)), *otherParts().make()));
        EXPECT_EQ(serialized(keys), serialized(read));
    }
}

TEST(ExplicitBackupKeys, ReadsEntriesInAnyOrder)
{
    const auto read =
        unserialized(text(bundleId) + u64(2) + text(secondId) + keySetBytes() + text(firstId) + keySetBytes());
    ASSERT_EQ(2U, read.keySets.size());
    EXPECT_EQ(id(firstId), read.keySets.begin()->first);
}

TEST(ExplicitBackupKeys, LastOfARepeatedIdentifierCounts)
{
    SExplicitBackupKeys other;
    other.keySets[id(firstId)] = otherParts().make();
    const std::string otherEntry = serialized(other).substr(48);
    const auto read = unserialized(text(bundleId) + u64(3) + text(firstId) + keySetBytes() + text(secondId) +
                                   keySetBytes() + otherEntry);
    ASSERT_EQ(2U, read.keySets.size());
    EXPECT_TRUE(zelmodel_test::same(*read.keySets.at(id(firstId)), *otherParts().make()));
}

TEST(ExplicitBackupKeys, IdentifiersAreReadInEverySpelling)
{
    EXPECT_EQ(id(bundleId), unserialized(text("{6B1F2C3D-0A1B-4C2D-8E3F-0123456789AB}") + u64(0)).id);
    EXPECT_TRUE(unserialized(text("") + u64(0)).id.IsEmpty());
    const auto read = unserialized(text("") + u64(1) + text("") + keySetBytes());
    ASSERT_EQ(1U, read.keySets.size());
    EXPECT_TRUE(read.keySets.begin()->first.IsEmpty());
}

TEST(ExplicitBackupKeys, ReadingReplacesWhatWasThere)
{
    SExplicitBackupKeys keys;
    keys.id = id(bundleId);
    keys.keySets[id(secondId)] = KeySetParts().make();
    TestDevice device(text(firstId) + u64(1) + text(firstId) + keySetBytes());
    io::binary_stream_tt stream(device);
    keys.Unserialize(stream);
    EXPECT_EQ(id(firstId), keys.id);
    ASSERT_EQ(1U, keys.keySets.size());
    EXPECT_EQ(id(firstId), keys.keySets.begin()->first);
}

TEST(ExplicitBackupKeys, ReadsItsOwnBytesAndNoMore)
{
    TestDevice device(text(firstId) + u64(0) + text(secondId) + u64(0) + "rest");
    io::binary_stream_tt stream(device);
    SExplicitBackupKeys keys;
    keys.Unserialize(stream);
    EXPECT_EQ(id(firstId), keys.id);
    EXPECT_EQ(48U, device.position);
    keys.Unserialize(stream);
    EXPECT_EQ(id(secondId), keys.id);
}

TEST(ExplicitBackupKeys, EmptyPointerIsRefusedBeforeAnythingIsWritten)
{
    SExplicitBackupKeys keys;
    keys.keySets[id(firstId)] = KeySetParts().make();
    keys.keySets[id(secondId)] = nullptr;
    TestDevice device;
    io::binary_stream_tt stream(device);
    EXPECT_NE("", failureText([&] { keys.Serialize(stream); }));
    EXPECT_EQ("", device.bytes);
    EXPECT_NE("", failureText([&] { (void)keys.ToBase64(); }));
}

TEST(ExplicitBackupKeys, DeviceThatTakesLessIsAFailure)
{
    SExplicitBackupKeys keys;
    keys.keySets[id(firstId)] = KeySetParts().make();
    for (const long count : {0L, 2L, -1L})
    {
        TestDevice device;
        device.answerWith(count);
        io::binary_stream_tt stream(device);
        EXPECT_EQ("Failed to write value to the binary stream: written less bytes (" + std::to_string(count) +
                      ") than expected (4).",
                  failureText([&] { keys.Serialize(stream); }));
    }
}

} // namespace
