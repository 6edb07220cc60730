#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/keys.h>

#include "dump/renderer.h"
#include "dump_samples.h"

namespace
{

using namespace zelmodel_test;

// Each byte once, so that a short piece is found only where a secret is.
const std::string firstKey = "\x81\xF3\x9C\xE4 5u{W~\xD8\xB6\xAF\xC1\x97\x8E\xEBj`";
const std::string secondKey = "\xD3\xFAq&#Q\x9A\xBD\xC6\xEE\x84zXp'\xA7";
const std::string hint = "gfedcbaZYXQ";
const std::string derivation = "\xF7\xB2\x93^\xDC\x8A\xE9\xC3*\\";

std::string secretKeySet()
{
    return u8(1) + u8(2) + "id" + u32(0) + u32(2) + u64(1709728496) + u32(0) + text(hint) + u32(2) + text(firstKey) +
           text(secondKey);
}

std::string secretBundle()
{
    return text("e2a57c90-14fb-4b8d-9d36-05c8f1e6a742") + u64(2) + text("1f6c8a42-90d7-4e35-b3a8-62e5d4c7f019") +
           secretKeySet() + text("84b0d3f9-2e61-47ca-8f15-d96c70ab31e5") + secretKeySet();
}

std::string secretDerivedKey()
{
    return secretKeySet() + u8(derivation.size()) + derivation;
}

/// Pieces of five bytes in every spelling: as they are, in hexadecimal and in base64 from each of its three places.
std::vector<std::string> needles()
{
    std::vector<std::string> found;
    for (const auto& secret : {firstKey, secondKey, hint, derivation})
    {
        constexpr std::size_t piece = 5;
        for (std::size_t at = 0; at + piece <= secret.size(); ++at)
        {
            const auto bytes = secret.substr(at, piece);
            found.push_back(bytes);
            found.push_back(crypto::CKeySetId(bytes).ToLogString());
            found.push_back(util::tolower(found.back()));
        }
        for (std::size_t at = 0; at + 6 <= secret.size(); ++at)
            found.push_back(util::toBase64(secret.data() + at, 6));
    }
    return found;
}

/// The whole of what the command would print.
std::string toldOf(const std::string& bytes)
{
    const auto told = dump::tell(bytes, nullptr, false);
    std::string all = dump::renderText(told, describe::TextStyle());
    all += dump::toJson(told, describe::TextStyle())
               .dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
    if (told.refusal)
    {
        for (const auto& sentence : told.refusal->sentences)
            all += sentence;
    }
    return all;
}

class DumpSecrets : public testing::Test
{
protected:
    void expectNone(const std::string& bytes)
    {
        const auto all = toldOf(bytes);
        EXPECT_TRUE(std::none_of(m_needles.begin(), m_needles.end(), [&all](const auto& needle) {
            return all.find(needle) != std::string::npos;
        })) << all;
    }

    const std::vector<std::string> m_needles = needles();
};

TEST_F(DumpSecrets, AreShownWhenAsked)
{
    const auto told = dump::tell(secretBundle(), nullptr, true);
    EXPECT_EQ(valueAt(told, "keySets/0/keys/0"), util::tolower(crypto::CKeySetId(firstKey).ToLogString()));
    EXPECT_EQ(valueAt(told, "keySets/1/hint"), hint);
    const auto derived = dump::tell(secretDerivedKey(), nullptr, true);
    EXPECT_EQ(valueAt(derived, "buffer"), util::tolower(crypto::CKeySetId(derivation).ToLogString()));
}

TEST_F(DumpSecrets, AreHiddenInWholeForms)
{
    for (const auto& bytes : {secretBundle(), secretDerivedKey(), secretKeySet()})
    {
        expectNone(bytes);
        expectNone(util::toBase64(bytes.data(), bytes.size()));
        EXPECT_FALSE(dump::tell(bytes, nullptr, false).refusal);
    }
}

TEST_F(DumpSecrets, AreHiddenInEveryTruncation)
{
    for (const auto& bytes : {secretBundle(), secretDerivedKey()})
    {
        for (std::size_t size = 0; size < bytes.size(); ++size)
            expectNone(bytes.substr(0, size));
    }
}

/// The bytes in which a wrong bit may move a field: all but the secrets themselves.
std::vector<std::size_t> structureOf(const std::string& bytes)
{
    std::string marked = bytes;
    for (const auto& secret : {firstKey, secondKey, hint, derivation})
    {
        for (auto at = marked.find(secret); at != std::string::npos; at = marked.find(secret))
            marked.replace(at, secret.size(), secret.size(), '\xFF');
    }
    std::vector<std::size_t> places;
    for (std::size_t at = 0; at < marked.size(); ++at)
    {
        if (marked[at] != '\xFF')
            places.push_back(at);
    }
    return places;
}

TEST_F(DumpSecrets, AreHiddenWhateverBitIsWrong)
{
    std::size_t refused = 0;
    for (const auto& bytes : {secretBundle(), secretDerivedKey()})
    {
        for (const auto at : structureOf(bytes))
        {
            for (const char mask : {'\x01', '\x02', '\x04', '\x08', '\x10', '\x20', '\x40', '\x80'})
            {
                auto changed = bytes;
                changed[at] = static_cast<char>(changed[at] ^ mask);
                expectNone(changed);
                refused += dump::tell(changed, nullptr, false).refusal ? 1U : 0U;
            }
        }
    }
    EXPECT_GT(refused, 500U);
}

/// A wrong length or count makes the next field begin within a key: nothing of it is shown or quoted there.
TEST_F(DumpSecrets, AreHiddenWhereAFieldBeginsWithinAKey)
{
    const std::string secret36 = firstKey + secondKey + "\x9B";
    ASSERT_EQ(secret36.size(), 36U);
    const std::string id = text("e2a57c90-14fb-4b8d-9d36-05c8f1e6a742");
    const std::string start = u8(1) + u8(0) + u32(0) + u32(2) + u64(0) + u32(0) + text("");
    // The next identifier is the key's bytes.
    expectNone(id + u64(2) + id + start + u32(0) + text(secret36));
    // The numbers of the next key set are.
    expectNone(id + u64(2) + id + start + u32(0) + id + u8(1) + u8(5) + firstKey + secondKey);
    // So are they of the only one, which the bundle's end confirms with one byte too many.
    expectNone(id + u64(1) + id + u8(1) + u8(12) + firstKey + secondKey + text("") + u32(0) + "x");
    // The text that a server's or a client's name would be.
    expectNone(text(secret36));
    expectNone(secret36);
}

} // namespace
