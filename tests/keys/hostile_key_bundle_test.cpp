#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <platform/memory_device.h>
#include <support/expect_failure.h>
#include <support/processor_time.h>
#include <support/slowness.h>
#include <zelmodel/keys.h>

#include "allocation_watch.h"
#include "sample_keys.h"

namespace
{

using namespace zelplatform::model::structs;
using zelmodel_test::failureText;
using zelmodel_test::keySetBytes;
using zelmodel_test::KeySetParts;
using zelmodel_test::TestDevice;
using zelmodel_test::text;
using zelmodel_test::u32;
using zelmodel_test::u64;
using zelmodel_test::u8;

const std::string bundleId = "6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab";
const std::string otherId = "11111111-2222-3333-4444-555555555555";
const std::string shortRead = "Failed to retrieve value from the binary stream: received less bytes (";

constexpr unsigned long LyingCounts[] = {1UL << 31, (1UL << 32) - 1, 1UL << 32, 1UL << 63, ~0UL};
constexpr unsigned long LyingLengths[] = {1UL << 31, (1UL << 32) - 1};

/// Everything of a key set before a length that lies.
std::string keySetUntilHint()
{
    return u8(1) + u8(2) + "id" + u32(1) + u32(2) + u64(0) + u32(0);
}

struct Refusal
{
    std::string message;
    std::size_t largest = 0;
    std::size_t inAll = 0;
    double seconds = 0;
};

/// Reads into a filled bundle, which must stay as it was.
Refusal refusal(const std::string& bytes, bool isSizeKnown)
{
    SExplicitBackupKeys keys;
    keys.id = guid::guid_t::FromAStr(otherId);
    const auto keySet = KeySetParts().make();
    keys.keySets[keys.id] = keySet;
    TestDevice device(bytes, isSizeKnown);
    io::binary_stream_tt stream(device);

    Refusal result;
    const zelmodel_test::ProcessorTime time;
    zelmodel_test::watchAllocations();
    result.message = failureText([&] { keys.Unserialize(stream); });
    result.largest = zelmodel_test::largestAllocation();
    result.inAll = zelmodel_test::allocatedInAll();
    result.seconds = time.seconds();

    EXPECT_EQ(guid::guid_t::FromAStr(otherId), keys.id);
    EXPECT_EQ(1U, keys.keySets.size());
    EXPECT_EQ(keySet, keys.keySets.begin()->second);
    return result;
}

void expectCheap(const Refusal& result)
{
    EXPECT_LE(result.largest, 256U * 1024);
    EXPECT_LE(result.inAll, 1024U * 1024);
    EXPECT_LT(result.seconds, 15.0 * zelmodel_test::slowness());
}

TEST(HostileKeyBundle, EveryTruncationFailsAndChangesNothing)
{
    const std::string form = text(bundleId) + u64(2) + text(bundleId) + keySetBytes() + text(otherId) + keySetBytes();
    for (const bool isSizeKnown : {true, false})
    {
        for (std::size_t length = 0; length < form.size(); ++length)
        {
            const auto result = refusal(form.substr(0, length), isSizeKnown);
            EXPECT_EQ(0U, result.message.find(shortRead)) << length << " " << result.message;
        }
    }
}

TEST(HostileKeyBundle, CountsThatLie)
{
    for (const unsigned long count : LyingCounts)
    {
        for (const bool isSizeKnown : {true, false})
        {
            for (const std::string& entries : {std::string(), text(bundleId) + keySetBytes()})
            {
                SCOPED_TRACE(count);
                const auto result = refusal(text(bundleId) + u64(count) + entries, isSizeKnown);
                EXPECT_NE("", result.message);
                expectCheap(result);
            }
        }
    }
}

TEST(HostileKeyBundle, OneEntryLessThanAnnounced)
{
    for (const bool isSizeKnown : {true, false})
        EXPECT_NE("", refusal(text(bundleId) + u64(2) + text(bundleId) + keySetBytes(), isSizeKnown).message);
}

TEST(HostileKeyBundle, LengthsThatLie)
{
    for (const unsigned long length : LyingLengths)
    {
        const std::string cases[] = {
            u32(length) + bundleId,
            text(bundleId) + u64(1) + u32(length) + bundleId,
            text(bundleId) + u64(1) + text(bundleId) + keySetUntilHint() + u32(length) + "hint",
            text(bundleId) + u64(1) + text(bundleId) + keySetUntilHint() + text("") + u32(length),
            text(bundleId) + u64(1) + text(bundleId) + keySetUntilHint() + text("") + u32(length) + text("key"),
            text(bundleId) + u64(1) + text(bundleId) + keySetUntilHint() + text("") + u32(1) + u32(length) + "key",
        };
        for (const std::string& bytes : cases)
        {
            for (const bool isSizeKnown : {true, false})
            {
                const auto result = refusal(bytes, isSizeKnown);
                EXPECT_NE("", result.message);
                expectCheap(result);
            }
        }
    }
}

TEST(HostileKeyBundle, ShortGuidTellsBothCounts)
{
    for (const bool isSizeKnown : {true, false})
    {
        EXPECT_EQ(shortRead + "36) than expected (4294967295).",
                  refusal(u32(4294967295UL) + bundleId, isSizeKnown).message);
    }
}

TEST(HostileKeyBundle, PartsOfAKeySetBeyondItsLimits)
{
    const std::string before = text(bundleId) + u64(1) + text(bundleId);
    const std::string cases[] = {
        before + u8(0) + keySetBytes().substr(1),
        before + u8(2) + keySetBytes().substr(1),
        before + u8(255) + keySetBytes().substr(1),
        before + u8(1) + u8(65) + std::string(65, 'i') + keySetBytes().substr(5),
        before + keySetUntilHint() + text("") + u32(4097) + std::string(4097 * 4, '\0'),
        before + keySetUntilHint() + text("") + u32(1) + u32(65537) + std::string(65537, 'k'),
        before + keySetUntilHint() + text("\xC0\x80") + u32(0),
        before + keySetUntilHint() + text("\xFF") + u32(0),
        before + u8(1) + u8(0) + u32(1) + u32(2) + u64(0) + u32(1000000000) + text("") + u32(0),
    };
    for (const std::string& bytes : cases)
    {
        for (const bool isSizeKnown : {true, false})
        {
            const auto result = refusal(bytes, isSizeKnown);
            EXPECT_NE("", result.message);
            EXPECT_NE(0U, result.message.find(shortRead)) << result.message;
            expectCheap(result);
        }
    }
}

TEST(HostileKeyBundle, PartsOfAKeySetAtTheirLimits)
{
    KeySetParts parts;
    parts.id = std::string(64, 'i');
    parts.alg = -7;
    parts.role = 99;
    parts.seconds = -9223372036854775807L - 1;
    parts.nanoseconds = 999999999;
    parts.keys.assign(4095, "k");
    parts.keys.emplace_back(65536, 'k');
    SExplicitBackupKeys keys;
    keys.keySets[keys.id] = parts.make();
    const auto read = SExplicitBackupKeys::FromBase64(keys.ToBase64());
    EXPECT_TRUE(zelmodel_test::same(*read.keySets.at(keys.id), *parts.make()));
}

// Where a length is wrong, a key may stand in the place of an identifier: on purpose none is quoted.
TEST(HostileKeyBundle, IdentifiersThatAreNoneAreNotQuoted)
{
    for (const std::string& bad :
         {std::string("x"), std::string("{6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab"),
          std::string("6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab}"), std::string("6b1f2c3d-0a1b-4c2d-8e3f-0123456789a"),
          std::string("gb1f2c3d-0a1b-4c2d-8e3f-0123456789ab"), std::string("6b1f2c3d 0a1b 4c2d 8e3f 0123456789ab")})
    {
        const std::string inner =
            "Unable to convert string [(hidden, " + std::to_string(bad.size()) + " bytes)] to GUID.";
        EXPECT_EQ(inner, refusal(text(bad) + u64(0), true).message);
        EXPECT_EQ(inner, refusal(text(bundleId) + u64(1) + text(bad) + keySetBytes(), true).message);
        EXPECT_EQ(inner,
                  refusal(text(bundleId) + u64(2) + text(bundleId) + keySetBytes() + text(bad) + keySetBytes(), true)
                      .message);
    }
    for (const std::string& bad : {bundleId + std::string(1, '\0'), std::string(39, 'a'), std::string(100000, 'a')})
    {
        EXPECT_EQ("Unable to convert string [(hidden, " + std::to_string(bad.size()) + " bytes)] to GUID.",
                  refusal(text(bad) + u64(0), true).message);
    }
}

TEST(HostileKeyBundle, ManyEntriesOfOneIdentifierAreOne)
{
    std::string bytes = text(bundleId) + u64(5000);
    for (int i = 0; i < 5000; ++i)
        bytes += text(otherId) + keySetBytes();
    TestDevice device(bytes);
    io::binary_stream_tt stream(device);
    SExplicitBackupKeys keys;
    keys.Unserialize(stream);
    EXPECT_EQ(1U, keys.keySets.size());
}

} // namespace
