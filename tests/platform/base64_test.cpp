#include <zelplatform/util/base64.h>

#include <string>

#include <gtest/gtest.h>

#include "support/expect_failure.h"

namespace
{

std::string decoded(std::string_view text)
{
    const auto bytes = util::fromBase64(text);
    return {bytes.begin(), bytes.end()};
}

TEST(Base64Test, WritesAndReadsTheStandardAlphabet)
{
    struct Case
    {
        std::string bytes;
        std::string text;
    };
    const Case cases[] = {
        {"", ""},
        {"f", "Zg=="},
        {"fo", "Zm8="},
        {"foo", "Zm9v"},
        {"foob", "Zm9vYg=="},
        {"fooba", "Zm9vYmE="},
        {"foobar", "Zm9vYmFy"},
        {std::string(1, '\0'), "AA=="},
        {std::string(2, '\0'), "AAA="},
        {"\xFB\xFF\xBF", "+/+/"},
        {"\xFF", "/w=="},
    };
    for (const auto& [bytes, text] : cases)
    {
        EXPECT_EQ(util::toBase64(bytes.data(), bytes.size()), text);
        EXPECT_EQ(decoded(text), bytes) << text;
    }
    EXPECT_EQ(util::toBase64(nullptr, 0), "");
}

TEST(Base64Test, SkipsWhiteSpaceAnywhere)
{
    EXPECT_EQ(decoded(" Zm\r\n9v\tYg= =\n"), "foob");
    EXPECT_EQ(decoded("   "), "");
    EXPECT_EQ(decoded(std::string(500, ' ') + "Zg=="), "f");
}

TEST(Base64Test, RefusesEverythingElse)
{
    const std::string cases[] = {
        "Z",
        "Zg",
        "Zg=",
        "Zm8",
        "=",
        "==",
        "===",
        "====",
        "Z===",
        "Zg==Zg==",
        "Zg==Zm9v",
        "Zm=v",
        "=Zm9",
        "Zm9v=",
        "Zm9v====",
        "Zh==",
        "Zm9=",
        "Zn8=x",
        "Zm9-",
        "Zm9_",
        "Zm9*",
        "Zm9v\v",
        "Zm9v\f",
        "Zm\xC3\xBC",
        "Zg=.",
        "Zm9v#",
        "AB==",
        "AAB=",
        "//==",
        std::string("Zm9\0", 4),
        std::string("Zg==\0\0\0\0", 8),
    };
    for (const auto& text : cases)
    {
        EXPECT_EQ(zelmodel_test::failureText([&] { util::fromBase64(text); }), "Unable to decode base64 text.") << text;
    }
}

TEST(Base64Test, JoinsThePiecesOfLongData)
{
    constexpr std::size_t Sizes[] = {3U << 20, (3U << 20) + 1, (6U << 20) + 2, (9U << 20) - 1};
    for (const std::size_t size : Sizes)
    {
        std::string bytes(size, '\0');
        for (std::size_t i = 0; i < size; ++i)
            bytes[i] = static_cast<char>(i * 31 >> 3);
        const std::string text = util::toBase64(bytes.data(), bytes.size());
        EXPECT_EQ(text.size(), (size + 2) / 3 * 4);
        EXPECT_TRUE(decoded(text) == bytes) << size;
        EXPECT_TRUE(decoded("\n" + text) == bytes) << size;
    }
}

} // namespace
