#include <zelplatform/guid/guid.h>

#include <cctype>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/numbers.h>

#include "support/expect_failure.h"

namespace
{

using guid::guid_t;

constexpr const char* ZeroText = "00000000-0000-0000-0000-000000000000";
constexpr const char* SomeText = "01234567-89ab-cdef-fedc-ba9876543210";

TEST(GuidTest, IsZeroByDefault)
{
    EXPECT_TRUE(guid_t().IsEmpty());
    EXPECT_EQ(guid_t().ToAStr(), ZeroText);
    EXPECT_EQ(guid_t(), guid_t::FromAStr(""));
    EXPECT_EQ(guid_t(), guid_t::FromAStr(ZeroText));
}

TEST(GuidTest, ReadsAnyCaseWithOrWithoutBraces)
{
    const std::string cases[] = {
        SomeText,
        "01234567-89AB-CDEF-FEDC-BA9876543210",
        "01234567-89aB-CdEf-feDC-bA9876543210",
        "{01234567-89ab-cdef-fedc-ba9876543210}",
        "{01234567-89AB-CDEF-FEDC-BA9876543210}",
    };
    for (const auto& text : cases)
    {
        const guid_t id = guid_t::FromAStr(text);
        EXPECT_EQ(id.ToAStr(), SomeText) << text;
        EXPECT_EQ(util::toStr(id), SomeText) << text;
        EXPECT_FALSE(id.IsEmpty());
    }
}

TEST(GuidTest, RefusesEveryOtherText)
{
    const std::string cases[] = {
        " ",
        "x",
        "{}",
        "0123456789abcdeffedcba9876543210",
        "{0123456789abcdeffedcba9876543210}",
        "{0123456789abcdeffedcba98765432100}}",
        "0123456789abcdeffedcba98765432100123",
        "{0123456789abcdeffedcba9876543210012}",
        "01234567-89ab-cdef-fedc-ba987654321",
        "01234567-89ab-cdef-fedc-ba98765432101",
        "01234567-89ab-cdef-fedc-ba987654321012",
        "0123456-789ab-cdef-fedc-ba9876543210",
        "01234567-89ab-cdeff-edc-ba9876543210",
        "01234567_89ab_cdef_fedc_ba9876543210",
        "g1234567-89ab-cdef-fedc-ba9876543210",
        " 1234567-89ab-cdef-fedc-ba9876543210",
        "+1234567-89ab-cdef-fedc-ba9876543210",
        "{01234567-89ab-cdef-fedc-ba9876543210",
        "01234567-89ab-cdef-fedc-ba9876543210}",
        "{01234567-89ab-cdef-fedc-ba98765432101",
        "(01234567-89ab-cdef-fedc-ba9876543210)",
        "{{1234567-89ab-cdef-fedc-ba987654321}}",
        " 01234567-89ab-cdef-fedc-ba9876543210 ",
        "%1234567-89ab-cdef-fedc-ba9876543210",
    };
    for (const auto& text : cases)
    {
        EXPECT_EQ(zelmodel_test::failureText([&] { guid_t::FromAStr(text); }),
                  "Unable to convert string [" + text + "] to GUID.");
        EXPECT_FALSE(guid_t::TryFromAStr(text)) << text;
    }
    EXPECT_EQ(guid_t(), guid_t::TryFromAStr(""));
    EXPECT_EQ(guid_t::FromAStr(SomeText), guid_t::TryFromAStr(SomeText));
}

TEST(GuidTest, WritesTheSameTextWithoutMemory)
{
    for (const std::string& text : {std::string(ZeroText), std::string(SomeText)})
    {
        const auto characters = guid_t::FromAStr(text).ToChars();
        EXPECT_EQ(std::string(characters.data(), characters.size()), text);
    }
}

TEST(GuidTest, RefusesANulByte)
{
    const std::string text("\0001234567-89ab-cdef-fedc-ba9876543210", 36);
    EXPECT_THROW(guid_t::FromAStr(text), exc::CRuntimeExc);
}

TEST(GuidTest, IsOrderedAsItsText)
{
    const std::string ascending[] = {
        ZeroText,
        "00000000-0000-0000-0000-000000000001",
        "00000000-0000-0000-0000-0000000000ff",
        "00000000-0000-0000-0001-000000000000",
        "01000000-0000-0000-0000-000000000000",
        "7fffffff-0000-0000-0000-000000000000",
        "80000000-0000-0000-0000-000000000000",
        "a0000000-0000-0000-0000-000000000000",
        "ffffffff-ffff-ffff-ffff-ffffffffffff",
    };
    for (const auto& a : ascending)
    {
        for (const auto& b : ascending)
        {
            EXPECT_EQ(guid_t::FromAStr(a) < guid_t::FromAStr(b), a < b) << a << " " << b;
            EXPECT_EQ(guid_t::FromAStr(a) == guid_t::FromAStr(b), a == b) << a << " " << b;
            EXPECT_EQ(guid_t::FromAStr(a) != guid_t::FromAStr(b), a != b) << a << " " << b;
        }
    }
}

TEST(GuidTest, CreatesFreshRandomIdentifiers)
{
    std::set<guid_t> ids;
    for (int i = 0; i < 1000; ++i)
    {
        const guid_t id = guid_t::CreateNew();
        const std::string text = id.ToAStr();
        ids.insert(id);
        EXPECT_EQ(text[14], '4') << text;
        EXPECT_NE(std::string("89ab").find(text[19]), std::string::npos) << text;
        EXPECT_EQ(guid_t::FromAStr(text), id);
    }
    EXPECT_EQ(ids.size(), 1000U);
}

// What an identifier's character may be, told without the reader's arithmetic.
bool isInPlace(std::size_t place, char c)
{
    const bool isHyphenPlace = std::string(SomeText)[place] == '-';
    return isHyphenPlace ? c == '-' : std::string("0123456789abcdefABCDEF").find(c) != std::string::npos;
}

TEST(GuidTest, EveryByteInEveryPlace)
{
    for (std::size_t place = 0; place < std::string(SomeText).size(); ++place)
    {
        for (int byte = 0; byte < 256; ++byte)
        {
            SCOPED_TRACE(std::to_string(byte) + " at " + std::to_string(place));
            std::string text = SomeText;
            text[place] = static_cast<char>(byte);
            if (!isInPlace(place, text[place]))
            {
                EXPECT_THROW(guid_t::FromAStr(text), exc::CRuntimeExc);
                continue;
            }
            std::string lower = text;
            lower[place] = static_cast<char>(std::tolower(byte));
            EXPECT_EQ(guid_t::FromAStr(text).ToAStr(), lower);
        }
    }
}

} // namespace
