#include <zelplatform/crypto/key_set.h>

#include <algorithm>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "memory_device.h"
#include "support/expect_failure.h"
#include "support/stream_failures.h"

namespace
{

using crypto::CKey;
using crypto::CKeySet;
using crypto::CKeySetId;
using zelmodel_test::failureText;
using zelmodel_test::shortRead;
using zelmodel_test::TestDevice;

using Keys = std::vector<std::shared_ptr<CKey>>;

std::shared_ptr<CKey> key(const std::string& bytes)
{
    return std::make_shared<CKey>(crypto::sec_buffer_t(bytes.begin(), bytes.end()));
}

std::string bytesOf(const std::string& hex)
{
    std::string bytes;
    for (std::size_t i = 0; i < hex.size(); i += 3)
        bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
    return bytes;
}

std::string written(const CKeySet& keySet)
{
    TestDevice device;
    io::binary_stream_tt stream(device);
    keySet.Serial(stream);
    return device.bytes;
}

std::shared_ptr<CKeySet> readFrom(TestDevice& device)
{
    io::binary_stream_tt stream(device);
    return CKeySet::Unserial(stream);
}

std::string refusal(const std::string& bytes, bool isSizeKnown)
{
    TestDevice device(bytes, isSizeKnown);
    return failureText([&] { readFrom(device); });
}

CKeySet sample()
{
    return CKeySet(CKeySetId("\xAB\x01"), crypto::Local1, crypto::Storage, CUniString(L"\u00FCx"),
                   {0x0102030405060708, 500'000'000}, {key("sesame"), key("")});
}

const std::string IdForm = bytesOf("01 02 AB 01");
const std::string NumbersForm = bytesOf("01 00 00 00 02 00 00 00 08 07 06 05 04 03 02 01 00 65 CD 1D");
const std::string HintForm = bytesOf("03 00 00 00 C3 BC 78");
const std::string KeysForm = bytesOf("02 00 00 00 06 00 00 00 73 65 73 61 6D 65 00 00 00 00");

void expectEqual(const CKeySet& a, const CKeySet& b)
{
    EXPECT_EQ(a.GetId(), b.GetId());
    EXPECT_EQ(a.GetAlg(), b.GetAlg());
    EXPECT_EQ(a.GetUsageRole(), b.GetUsageRole());
    EXPECT_EQ(a.GetHint(), b.GetHint());
    EXPECT_EQ(a.GetCreationTime().seconds, b.GetCreationTime().seconds);
    EXPECT_EQ(a.GetCreationTime().nanoseconds, b.GetCreationTime().nanoseconds);
    const auto isSame = [](const auto& x, const auto& y) { return *x == *y; };
    EXPECT_TRUE(std::equal(a.GetKeys().begin(), a.GetKeys().end(), b.GetKeys().begin(), b.GetKeys().end(), isSame));
}

TEST(KeySetTest, HoldsWhatItIsBuiltFrom)
{
    const auto keySet = sample();
    EXPECT_EQ(keySet.GetId(), CKeySetId("\xAB\x01"));
    EXPECT_EQ(keySet.GetAlg(), crypto::Local1);
    EXPECT_EQ(keySet.GetUsageRole(), crypto::Storage);
    EXPECT_EQ(keySet.GetHint().str(), L"\u00FCx");
    EXPECT_EQ(keySet.GetCreationTime().GetSecNum(), 0x0102030405060708);
    EXPECT_EQ(keySet.GetCreationTime().nanoseconds, 500'000'000U);
    ASSERT_EQ(keySet.GetKeys().size(), 2U);
    EXPECT_EQ(*keySet.GetKeys()[0], *key("sesame"));
}

TEST(KeySetTest, RefusesWhatCouldNotBeReadBack)
{
    struct Case
    {
        lin::lin_filetime_t time;
        Keys keys;
        std::string message;
    };
    const Case cases[] = {
        {{0, 0}, {key("sesame"), nullptr}, "Key set holds an empty key pointer."},
        {{0, 0}, Keys(4097, key("sesame")), "Key set of [4097] keys has more than [4096]."},
        {{0, 1'000'000'000}, {}, "Nanoseconds [1000000000] are more than a second."},
    };
    for (const auto& [time, keys, message] : cases)
    {
        const auto build = [t = time, k = keys] {
            CKeySet(CKeySetId(), crypto::Local0, crypto::Role0, CUniString(), t, k);
        };
        EXPECT_EQ(failureText(build), message);
    }
    EXPECT_NO_THROW(
        CKeySet(CKeySetId(), crypto::Local0, crypto::Role0, CUniString(), {0, 999'999'999}, Keys(4096, key("sesame"))));
}

TEST(KeySetTest, TellsNeitherHintNorKeysInItsLogText)
{
    EXPECT_EQ(sample().ToLogString(), "id: AB01, algorithm: 1, role: 2, keys: 2");
    const CKeySet other(CKeySetId(), static_cast<crypto::ECryptAlgs>(-7), crypto::KmsMasterPublic, CUniString(L"open"),
                        {}, {});
    EXPECT_EQ(other.ToLogString(), "id: , algorithm: -7, role: 12, keys: 0");
}

TEST(KeySetTest, WritesItsForm)
{
    EXPECT_EQ(written(sample()), IdForm + NumbersForm + HintForm + KeysForm);
    const CKeySet empty(CKeySetId(), crypto::Local0, crypto::Role0, CUniString(), {-1, 0}, {});
    EXPECT_EQ(written(empty), bytesOf("01 00 00 00 00 00 00 00 00 00 FF FF FF FF FF FF FF FF 00 00 00 00 "
                                      "00 00 00 00 00 00 00 00"));
}

TEST(KeySetTest, TellsHowMuchRoomItsFormNeeds)
{
    const CKeySet withoutHint(CKeySetId("id"), crypto::Local0, crypto::Role0, CUniString(), {},
                              {key("sesame"), key(std::string(100, 'k'))});
    EXPECT_EQ(withoutHint.MaxSerialSize(), written(withoutHint).size());
    const CKeySet longCharacters(CKeySetId(), crypto::Local0, crypto::Role0, CUniString(L"\U0001F511\U0001F511"), {},
                                 {});
    EXPECT_EQ(longCharacters.MaxSerialSize(), written(longCharacters).size());
    EXPECT_GE(sample().MaxSerialSize(), written(sample()).size());
}

TEST(KeySetTest, WritesNothingOfAHintThatIsNoUnicode)
{
    const CKeySet keySet(CKeySetId(), crypto::Local0, crypto::Role0, CUniString(std::wstring(1, wchar_t(0xD800))), {},
                         {key("sesame")});
    TestDevice device;
    io::binary_stream_tt stream(device);
    EXPECT_EQ(failureText([&] { keySet.Serial(stream); }), "Wide text is not valid Unicode.");
    EXPECT_TRUE(device.calls.empty());
}

TEST(KeySetTest, TellsOfADeviceThatTakesLess)
{
    TestDevice device;
    io::binary_stream_tt stream(device);
    device.answerWith(-1);
    const auto message = failureText([&] { sample().Serial(stream); });
    EXPECT_EQ(message.find("Failed to write value to the binary stream: written less bytes (-1) than expected ("), 0U);
}

TEST(KeySetTest, ReadsWhatItWrites)
{
    constexpr long Min = std::numeric_limits<long>::min();
    constexpr long Max = std::numeric_limits<long>::max();
    const CKeySet cases[] = {
        sample(),
        CKeySet(CKeySetId(), crypto::Local0, crypto::Role0, CUniString(), {}, {}),
        CKeySet(CKeySetId(std::string(64, '\xFF')), static_cast<crypto::ECryptAlgs>(-1),
                static_cast<crypto::EKeySetUsageRole>(std::numeric_limits<int>::min()), CUniString(L"a\U0001F511"),
                {Min, 999'999'999}, Keys(4096, key("k"))),
        CKeySet(CKeySetId(std::string(1, '\0')), static_cast<crypto::ECryptAlgs>(std::numeric_limits<int>::max()),
                crypto::Role11, CUniString(std::wstring(100'000, L'h')), {Max, 1},
                {key(std::string(65536, 's')), key(std::string("a\0b", 3))}),
    };
    for (const auto& keySet : cases)
    {
        for (const bool isSizeKnown : {false, true})
        {
            TestDevice device(written(keySet) + "rest", isSizeKnown);
            expectEqual(*readFrom(device), keySet);
            EXPECT_EQ(device.bytes.substr(device.position), "rest");
        }
    }
}

TEST(KeySetTest, RefusesLyingForms)
{
    struct Case
    {
        std::string bytes;
        std::string message;
    };
    const std::string beforeHint = IdForm + NumbersForm;
    const std::string beforeKeys = beforeHint + HintForm;
    const std::string oneKey = bytesOf("01 00 00 00");
    const std::string rest(100, 'x');
    const Case cases[] = {
        {bytesOf("00 00") + rest, "Key set form version [0] is not known."},
        {bytesOf("02 00") + rest, "Key set form version [2] is not known."},
        {bytesOf("FF FF"), "Key set form version [255] is not known."},
        {bytesOf("01 41") + rest, "Key set id of [65] bytes is longer than [64]."},
        {bytesOf("01 FF") + rest, "Key set id of [255] bytes is longer than [64]."},
        {IdForm + bytesOf("01 00 00 00 02 00 00 00 00 00 00 00 00 00 00 00 00 CA 9A 3B") + HintForm + KeysForm,
         "Nanoseconds [1000000000] are more than a second."},
        {beforeHint + bytesOf("00 00 00 80") + rest, shortRead("100", "2147483648")},
        {beforeHint + bytesOf("FF FF FF FF") + rest, shortRead("100", "4294967295")},
        {beforeHint + bytesOf("FF FF FF FF"), shortRead("0", "4294967295")},
        {beforeHint + bytesOf("02 00 00 00 C3 28") + KeysForm, "Text is not valid UTF-8."},
        {beforeKeys + bytesOf("01 10 00 00") + rest, "Key set of [4097] keys has more than [4096]."},
        {beforeKeys + bytesOf("00 00 00 80") + rest, "Key set of [2147483648] keys has more than [4096]."},
        {beforeKeys + bytesOf("FF FF FF FF") + rest, "Key set of [4294967295] keys has more than [4096]."},
        {beforeKeys + bytesOf("00 10 00 00"), shortRead("0", "4")},
        {beforeKeys + oneKey + bytesOf("01 00 01 00") + rest, "Key of [65537] bytes is longer than [65536]."},
        {beforeKeys + oneKey + bytesOf("00 00 00 80") + rest, "Key of [2147483648] bytes is longer than [65536]."},
        {beforeKeys + oneKey + bytesOf("FF FF FF FF") + rest, "Key of [4294967295] bytes is longer than [65536]."},
        {beforeKeys + oneKey + bytesOf("00 00 01 00") + rest, shortRead("100", "65536")},
    };
    for (const auto& [bytes, message] : cases)
    {
        EXPECT_EQ(refusal(bytes, true), message);
        EXPECT_EQ(refusal(bytes, false), message);
    }
}

TEST(KeySetTest, RefusesAFormCutAtAnyByte)
{
    const std::string whole = IdForm + NumbersForm + HintForm + KeysForm;
    for (std::size_t size = 0; size < whole.size(); ++size)
    {
        for (const bool isSizeKnown : {false, true})
        {
            const auto message = refusal(whole.substr(0, size), isSizeKnown);
            EXPECT_EQ(message.find("Failed to retrieve value from the binary stream: received less bytes ("), 0U)
                << size;
        }
    }
}

// Bytes that turn out to be no form may still be those of a key.
TEST(KeySetTest, QuotesNothingOfTheForm)
{
    const std::string whole = IdForm + NumbersForm + HintForm + KeysForm;
    for (std::size_t i = 0; i < whole.size(); ++i)
    {
        for (const char byte : {'\0', '\x7F', '\xFF'})
        {
            std::string bytes = whole;
            bytes[i] = byte;
            TestDevice device(bytes);
            try
            {
                readFrom(device);
            }
            catch (const std::exception& failure)
            {
                EXPECT_EQ(std::string(failure.what()).find("sesame"), std::string::npos) << i;
                EXPECT_EQ(std::string(failure.what()).find("\xC3\xBC"), std::string::npos) << i;
            }
        }
    }
}

} // namespace
