#include <zelplatform/util/unicode.h>

#include <string>

#include <gtest/gtest.h>

#include "support/expect_failure.h"

namespace
{

using zelmodel_test::failureText;

TEST(UnicodeTest, ConvertsWellFormedTextBothWays)
{
    struct Case
    {
        std::string bytes;
        std::wstring characters;
    };
    const Case cases[] = {
        {"", L""},
        {"oracle", L"oracle"},
        {std::string("a\0b", 3), std::wstring(L"a\0b", 3)},
        {"\x7F", L"\x7F"},
        {"\xC2\x80", L"\x80"},
        {"\xDF\xBF", L"\x7FF"},
        {"\xE0\xA0\x80", L"\x800"},
        {"\xED\x9F\xBF", L"\xD7FF"},
        {"\xEE\x80\x80", L"\xE000"},
        {"\xEF\xBF\xBF", L"\xFFFF"},
        {"\xF0\x90\x80\x80", L"\x10000"},
        {"\xF4\x8F\xBF\xBF", L"\x10FFFF"},
        {"gr\xC3\xBC\xC3\x9F\xF0\x9F\x98\x80", L"gr\xFC\xDF\x1F600"},
    };
    for (const auto& [bytes, characters] : cases)
    {
        EXPECT_EQ(CUniString::FromUtf8(bytes).str(), characters) << bytes;
        EXPECT_EQ(CUtf8String::FromWide(CUniString(characters)).str(), bytes);
    }
}

TEST(UnicodeTest, RefusesMalformedUtf8)
{
    const std::string cases[] = {
        "\x80",
        "\xBF",
        "a\x80z",
        "\xC3",
        "\xC3(",
        "\xC3\xC3",
        "\xE2\x82",
        "\xE2\x82z",
        "\xF0\x9F\x98",
        "\xF0\x9F\x98z",
        "\xC0\x80",
        "\xC0\xAF",
        "\xC1\xBF",
        "\xE0\x80\x80",
        "\xE0\x9F\xBF",
        "\xF0\x80\x80\x80",
        "\xF0\x8F\xBF\xBF",
        "\xED\xA0\x80",
        "\xED\xBF\xBF",
        "\xF4\x90\x80\x80",
        "\xF7\xBF\xBF\xBF",
        "\xF8\x88\x80\x80\x80",
        "\xFE",
        "\xFF",
        "gut \xFC bad",
    };
    for (const auto& bytes : cases)
    {
        EXPECT_EQ(failureText([&] { CUniString::FromUtf8(bytes); }), "Text is not valid UTF-8.") << bytes;
    }
}

TEST(UnicodeTest, RefusesWideTextThatIsNoUnicode)
{
    for (const long code : {0xD800L, 0xDBFFL, 0xDC00L, 0xDFFFL, 0x110000L, 0x7FFFFFFFL, -1L})
    {
        const CUniString text(std::wstring(1, static_cast<wchar_t>(code)));
        EXPECT_EQ(failureText([&] { CUtf8String::FromWide(text); }), "Wide text is not valid Unicode.") << code;
    }
}

TEST(UnicodeTest, IsErased)
{
    for (const std::wstring& characters : {std::wstring(), std::wstring(L"ab"), std::wstring(100, L'x')})
    {
        CUniString text(characters);
        const wchar_t* const place = text.str().data();
        text.Erase();
        EXPECT_EQ(text, CUniString());
        EXPECT_EQ(place, text.str().data());
        EXPECT_EQ(std::wstring(place, characters.size()), std::wstring(characters.size(), L'\0'));
    }
}

TEST(UnicodeTest, ComparesByTheirText)
{
    EXPECT_EQ(CUtf8String("a"), CUtf8String(std::string("a")));
    EXPECT_NE(CUtf8String("a"), CUtf8String("A"));
    EXPECT_LT(CUtf8String("a"), CUtf8String("b"));
    EXPECT_EQ(CUniString(L"a"), CUniString(L"a"));
    EXPECT_NE(CUniString(L"a"), CUniString());
    EXPECT_LT(CUniString(L"a"), CUniString(L"b"));
    EXPECT_EQ(CUtf8String().str(), "");
}

} // namespace
