#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include <zelplatform/util/util.h>

#include "allocation_watch.h"
#include "dump/renderer.h"
#include "sample_keys.h"

namespace
{

using namespace zelmodel_test;

constexpr std::size_t SecretSize = 200;

/// A bundle whose keys were never anywhere but in secure memory.
crypto::sec_buffer_t secretBundle()
{
    const std::string id = text("e2a57c90-14fb-4b8d-9d36-05c8f1e6a742");
    const auto start = id + u64(1) + id + u8(1) + u8(2) + "id" + u32(0) + u32(2) + u64(0) + u32(0) + text("hint") +
                       u32(2) + u32(SecretSize);
    crypto::sec_buffer_t bytes(start.begin(), start.end());
    bytes.insert(bytes.end(), SecretSize, SecretByte);
    const auto length = u32(SecretSize);
    bytes.insert(bytes.end(), length.begin(), length.end());
    bytes.insert(bytes.end(), SecretSize, SecretByte);
    return bytes;
}

void tell(std::string_view bytes, const dump::Form* form)
{
    const auto told = dump::tell(bytes, form, false);
    dump::renderText(told, describe::TextStyle());
    dump::toJson(told, describe::TextStyle());
}

TEST(DumpMemory, HoldsNoKeyOutsideOfSecureMemory)
{
    const auto bytes = secretBundle();
    const auto base64 = util::toBase64(bytes.data(), bytes.size());
    watchAllocations();
    tell({bytes.data(), bytes.size()}, nullptr);
    tell(base64, nullptr);
    for (std::size_t size = 0; size < bytes.size(); ++size)
    {
        tell({bytes.data(), size}, nullptr);
        tell({bytes.data(), size}, dump::findForm("key-bundle"));
    }
    EXPECT_EQ(secretsGivenBack(), 0U);
}

/// The lengths of identifiers and of the hint: a wrong one makes the library's reader itself take keys for a text.
bool isLengthOfAText(std::size_t at)
{
    constexpr std::size_t bundleId = 0;
    constexpr std::size_t entryId = 48;
    constexpr std::size_t hint = 112;
    const auto isIn = [at](std::size_t length) { return at >= length && at < length + 4; };
    return isIn(bundleId) || isIn(entryId) || isIn(hint);
}

TEST(DumpMemory, HoldsNoKeyOfADamagedFormEither)
{
    const auto whole = secretBundle();
    watchAllocations();
    for (std::size_t at = 0; at < whole.size() - 2 * SecretSize; ++at)
    {
        for (const char mask : {'\x01', '\x02', '\x04', '\x08', '\x10', '\x20', '\x40', '\x80'})
        {
            if (isLengthOfAText(at))
                continue;
            auto bytes = whole;
            bytes[at] = static_cast<char>(bytes[at] ^ mask);
            tell({bytes.data(), bytes.size()}, nullptr);
        }
    }
    EXPECT_EQ(secretsGivenBack(), 0U);
}

} // namespace
