#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

#include <zelmodel/repositories.h>
#include <zelplatform/crypto/crypto.h>
#include <zelplatform/exc/exc.h>

#include "secret_samples.h"
#include "stack_watch.h"

namespace
{

using namespace std::string_view_literals;
using namespace zelmodel_test;
using crypto::openssl::CEvpPrivateKey;

/// The text of a private key of 32 secret bytes, which stand between these.
ErasedText pemAround(std::string_view label, std::string_view before, std::string_view after)
{
    crypto::sec_buffer_t der(before.begin(), before.end());
    der.insert(der.end(), 32, SecretByte);
    der.insert(der.end(), after.begin(), after.end());
    const ErasedText body(util::toBase64(der.data(), der.size()));
    const std::string begin = "-----BEGIN " + std::string(label) + "-----\n";
    const std::string end = "\n-----END " + std::string(label) + "-----\n";
    std::string text(begin.size() + body.str().size() + end.size(), '\0');
    std::copy(begin.begin(), begin.end(), text.begin());
    std::copy(body.str().begin(), body.str().end(), text.begin() + static_cast<std::ptrdiff_t>(begin.size()));
    std::copy(end.begin(), end.end(), text.end() - static_cast<std::ptrdiff_t>(end.size()));
    return ErasedText(std::move(text));
}

void use(const std::string& pem, bool isKey)
{
    try
    {
        zelplatform::model::structs::SCertificate certificate;
        certificate.privateKey = CEvpPrivateKey::FromPem(pem);
        EXPECT_TRUE(isKey);
        EXPECT_EQ(certificate.privateKey, certificate.ToOstraCertificateContainer()->privateKey);
    }
    catch (const exc::CRuntimeExc&)
    {
        EXPECT_FALSE(isKey);
    }
}

constexpr std::string_view EdwardsKey = "\x30\x2E\x02\x01\x00\x30\x05\x06\x03\x2B\x65\x70\x04\x22\x04\x20"sv;
constexpr std::string_view CurveKey =
    "\x30\x41\x02\x01\x00\x30\x13\x06\x07\x2A\x86\x48\xCE\x3D\x02\x01\x06\x08\x2A\x86\x48\xCE\x3D\x03\x01\x07\x04\x27"
    "\x30\x25\x02\x01\x01\x04\x20"sv;
constexpr std::string_view OlderCurveKey = "\x30\x31\x02\x01\x01\x04\x20"sv;
constexpr std::string_view CurveName = "\xA0\x0A\x06\x08\x2A\x86\x48\xCE\x3D\x03\x01\x07"sv;

// What OpenSSL's decoders release is theirs: they leave copies of a key in blocks, and none on the stack.
TEST(PrivateKeyMemory, LeavesNoSecretOnTheStack)
{
    struct Case
    {
        const char* label;
        std::string_view before;
        std::string_view after;
        bool isKey;
    };
    const Case cases[] = {
        {"PRIVATE KEY", EdwardsKey, "", true},
        {"PRIVATE KEY", CurveKey, "", true},
        {"EC PRIVATE KEY", OlderCurveKey, CurveName, true},
        {"PRIVATE KEY", EdwardsKey, "x", false},
        {"PRIVATE KEY", EdwardsKey.substr(2), "", false},
        {"PRIVATE KEY", CurveKey.substr(1), "", false},
        {"EC PRIVATE KEY", OlderCurveKey, "", false},
    };
    for (const auto& [label, before, after, isKey] : cases)
    {
        const auto pem = pemAround(label, before, after);
        const bool expected = isKey;
        watchSecrets();
        EXPECT_FALSE(leavesSecretOnStack([&] { use(pem.str(), expected); })) << label << before.size();
    }
}

/// Does something with each text that is refused before OpenSSL sees it.
template <class F>
void forEachUndecoded(F&& act)
{
    auto cut = pemAround("PRIVATE KEY", EdwardsKey, "");
    cut.str().resize(80);
    auto foreign = pemAround("PRIVATE KEY", EdwardsKey, "");
    foreign.str()[80] = '!';
    const auto encrypted = pemAround("ENCRYPTED PRIVATE KEY", EdwardsKey, "");
    const auto other = pemAround("PUBLIC KEY", EdwardsKey, "");
    for (const ErasedText* text : {&std::as_const(cut), &std::as_const(foreign), &encrypted, &other})
    {
        watchSecrets();
        act(text->str());
    }
}

TEST(PrivateKeyMemory, IsErasedWhenItIsNotDecoded)
{
    forEachUndecoded([](const std::string& pem) {
        use(pem, false);
        EXPECT_EQ(0U, secretsGivenBack());
    });
}

TEST(PrivateKeyMemory, LeavesNoSecretOnTheStackWhenItIsNotDecoded)
{
    forEachUndecoded([](const std::string& pem) { EXPECT_FALSE(leavesSecretOnStack([&] { use(pem, false); })); });
}

} // namespace
