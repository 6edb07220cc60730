#include <cstdint>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include <zelplatform/util/util.h>

#include "dump/renderer.h"
#include "secret_samples.h"
#include "secret_watch.h"

namespace
{

using namespace zelmodel_test;

/// A bundle whose keys were never anywhere but in secure memory.
crypto::sec_buffer_t secretBundleForm()
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
    const auto bytes = secretBundleForm();
    ErasedText base64(util::toBase64(bytes.data(), bytes.size()));
    watchSecrets();
    tell({bytes.data(), bytes.size()}, nullptr);
    tell(base64.str(), nullptr);
    for (std::size_t size = 0; size < bytes.size(); ++size)
    {
        tell({bytes.data(), size}, nullptr);
        tell({bytes.data(), size}, dump::findForm("key-bundle"));
    }
    EXPECT_EQ(secretsGivenBack(), 0U);
}

TEST(DumpMemory, HoldsNoKeyOfADamagedFormEither)
{
    const auto whole = secretBundleForm();
    watchSecrets();
    // With another length in front the bytes are as much those of a form that begins with a text, which is no secret.
    for (std::size_t at = sizeof(std::uint32_t); at < whole.size() - 2 * SecretSize; ++at)
    {
        for (const char mask : {'\x01', '\x02', '\x04', '\x08', '\x10', '\x20', '\x40', '\x80'})
        {
            auto bytes = whole;
            bytes[at] = static_cast<char>(bytes[at] ^ mask);
            tell({bytes.data(), bytes.size()}, nullptr);
        }
    }
    EXPECT_EQ(secretsGivenBack(), 0U);
}

} // namespace
