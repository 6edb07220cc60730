#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>

#include <openssl/crypto.h>
#include <tinyxml2.h>

#include <gtest/gtest.h>

#include "secret_samples.h"
#include "stack_watch.h"

namespace
{

using namespace zelmodel_test;

// What the tests of memory rely on: each place and each spelling of a secret is seen.

void releasePlain()
{
    const std::string text(SecretSize, SecretByte);
}

void releaseWide()
{
    const std::wstring text(SecretRun, static_cast<wchar_t>(SecretByte));
}

void releaseBase64()
{
    const std::string text = "x" + util::toBase64(std::string(SecretSize, SecretByte).data(), SecretSize);
}

void releaseHexadecimal()
{
    std::string text;
    while (text.size() < SecretSize)
        text += "51";
}

void releaseAdded()
{
    const std::string text(SecretSize, 'w');
}

void releaseMalloc()
{
    void* const block = std::malloc(SecretSize);
    std::fill_n(static_cast<volatile char*>(block), SecretSize, SecretByte);
    std::free(block);
}

void releaseGrowing()
{
    void* block = std::malloc(SecretSize);
    std::fill_n(static_cast<volatile char*>(block), SecretSize, SecretByte);
    block = std::realloc(block, 100 * SecretSize);
    util::SecureErase(block, 100 * SecretSize);
    std::free(block);
}

void releaseOfOpenSsl()
{
    void* const block = OPENSSL_malloc(SecretSize);
    std::fill_n(static_cast<volatile char*>(block), SecretSize, SecretByte);
    OPENSSL_free(block);
}

void releaseOfTinyxml()
{
    ErasedText text("<a>" + std::string(SecretSize, SecretByte) + "</a>");
    tinyxml2::XMLDocument document;
    document.Parse(text.str().data(), text.str().size());
}

TEST(MemoryWatch, SeesEverySecretInABlock)
{
    constexpr void (*releases[])() = {releasePlain,  releaseWide,    releaseBase64,    releaseHexadecimal, releaseAdded,
                                      releaseMalloc, releaseGrowing, releaseOfOpenSsl, releaseOfTinyxml};
    for (std::size_t i = 0; i < std::size(releases); ++i)
    {
        watchSecrets();
        watchFor(std::string(SecretRun, 'w'));
        releases[i]();
        EXPECT_LE(1U, secretsGivenBack()) << i;
    }
}

TEST(MemoryWatch, SeesNoneInWhatWasErased)
{
    watchSecrets();
    secretBytes();
    secretDerivedKey();
    const std::string text(SecretRun - 1, SecretByte);
    EXPECT_EQ(0U, secretsGivenBack());
}

TEST(MemoryWatch, SeesASecretOnTheStack)
{
    watchSecrets();
    EXPECT_TRUE(leavesSecretOnStack([] {
        std::array<char, SecretSize> copy;
        std::fill_n(static_cast<volatile char*>(copy.data()), copy.size(), SecretByte);
    }));
    EXPECT_FALSE(leavesSecretOnStack([] {
        std::array<char, SecretSize> copy;
        copy.fill(SecretByte);
        util::SecureErase(copy.data(), copy.size());
    }));
}

} // namespace
