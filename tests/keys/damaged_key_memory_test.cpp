#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelplatform/exc/exc.h>

#include "secret_samples.h"
#include "stack_watch.h"

namespace
{

using namespace zelplatform::model::structs;
using namespace zelmodel_test;

/// Reads a form with every other value in each of its bytes but those of keys, so that each count and length is too
/// great and too small and takes keys for something else. Some of what comes out reads as a record nevertheless.
template <class TRecord>
void readEveryDamage(const TRecord& whole)
{
    const auto form = secretForm(whole);
    for (std::size_t at = 0; at < form.size(); ++at)
    {
        if (form[at] == SecretByte)
            continue;
        for (int value = 0; value <= 255; ++value)
        {
            auto damaged = form;
            damaged[at] = static_cast<char>(value);
            try
            {
                fromSecretForm<TRecord>(std::move(damaged));
            }
            catch (const exc::CRuntimeExc&)
            {
            }
        }
    }
}

TEST(DamagedKeyMemory, BundleGivesNoSecretBack)
{
    watchSecrets();
    readEveryDamage(secretBundle());
    EXPECT_EQ(0U, secretsGivenBack());
}

TEST(DamagedKeyMemory, DerivedKeyGivesNoSecretBack)
{
    watchSecrets();
    readEveryDamage(secretDerivedKey());
    EXPECT_EQ(0U, secretsGivenBack());
}

/// Forms that put a key of so many bytes in the place of a text, each read last on a stack of its own.
template <class F>
void expectNothingOnTheStack(std::size_t size, F&& formAround)
{
    const auto form = formAround(secretBytes(size));
    EXPECT_FALSE(leavesSecretOnStack([&] {
        EXPECT_NE("", failureText([&] { fromSecretForm<SExplicitBackupKeys>(form); }));
    })) << size;
}

crypto::sec_buffer_t around(const std::string& before, const crypto::sec_buffer_t& key, const std::string& after)
{
    crypto::sec_buffer_t form(before.begin(), before.end());
    form.insert(form.end(), key.begin(), key.end());
    form.insert(form.end(), after.begin(), after.end());
    return form;
}

TEST(DamagedKeyMemory, AKeyInThePlaceOfATextLeavesNothingOnTheStack)
{
    watchSecrets();
    const std::string id = text("e2a57c90-14fb-4b8d-9d36-05c8f1e6a742");
    const std::string entry = id + u64(2) + id;
    const std::string numbers = u32(0) + u32(2) + u64(0) + u32(0);
    for (const std::size_t size : {std::size_t{16}, std::size_t{36}, std::size_t{38}, std::size_t{39}, SecretSize})
    {
        expectNothingOnTheStack(size, [&](const auto& key) { return around(u32(size), key, u64(0)); });
        expectNothingOnTheStack(size, [&](const auto& key) { return around(id + u64(1) + u32(size), key, ""); });
        expectNothingOnTheStack(size, [&](const auto& key) {
            return around(entry + u8(1) + u8(2) + "id" + numbers + u32(size), key, u32(0));
        });
    }
    for (const std::size_t size : {std::size_t{16}, std::size_t{36}, crypto::CKeySetId::MaxSize})
    {
        expectNothingOnTheStack(
            size, [&](const auto& key) { return around(entry + u8(1) + u8(size), key, numbers + u32(0) + u32(0)); });
    }
    expectNothingOnTheStack(SecretSize, [&](const auto& key) { return around(entry + u8(1) + u8(0), key, ""); });
    expectNothingOnTheStack(SecretSize, [&](const auto& key) { return around("", key, ""); });
}

} // namespace
