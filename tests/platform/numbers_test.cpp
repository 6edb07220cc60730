#include <zelplatform/util/numbers.h>

#include <clocale>
#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <zelplatform/guid/guid.h>
#include <zelplatform/util/text.h>

#include "support/expect_failure.h"

namespace
{

using zelmodel_test::failureText;

enum EPlain
{
    Zero,
    Eleven = 11
};

enum EByte : std::uint8_t
{
    Letter = 65
};

enum class ESigned : std::int32_t
{
    Below = -3
};

template <class T>
void expectRefused(std::initializer_list<std::string> texts, const std::string& typeName)
{
    for (const auto& text : texts)
    {
        const std::string message = util::str_format("Unable to convert string [%1] to [%2].", text, typeName);
        EXPECT_EQ(failureText([&] { util::fromStr<T>(text); }), message);
    }
}

TEST(NumbersTest, WritesValuesAsText)
{
    EXPECT_EQ(util::toStr(true), "true");
    EXPECT_EQ(util::toStr(false), "false");
    EXPECT_EQ(util::toStr(0), "0");
    EXPECT_EQ(util::toStr(-1), "-1");
    EXPECT_EQ(util::toStr(std::uint8_t{25}), "25");
    EXPECT_EQ(util::toStr(static_cast<unsigned char>(65)), "65");
    EXPECT_EQ(util::toStr(static_cast<signed char>(-128)), "-128");
    EXPECT_EQ(util::toStr('A'), "65");
    EXPECT_EQ(util::toStr(std::int16_t{-32768}), "-32768");
    EXPECT_EQ(util::toStr(4294967295U), "4294967295");
    EXPECT_EQ(util::toStr(std::numeric_limits<long>::min()), "-9223372036854775808");
    EXPECT_EQ(util::toStr(std::numeric_limits<long>::max()), "9223372036854775807");
    EXPECT_EQ(util::toStr(std::numeric_limits<unsigned long>::max()), "18446744073709551615");
    EXPECT_EQ(util::toStr(Eleven), "11");
    EXPECT_EQ(util::toStr(Letter), "65");
    EXPECT_EQ(util::toStr(ESigned::Below), "-3");
    EXPECT_EQ(util::toStr("literal"), "literal");
    EXPECT_EQ(util::toStr(std::string("text")), "text");
    EXPECT_EQ(util::toStr(std::string_view("view")), "view");
    EXPECT_EQ(util::toStr(guid::guid_t()), "00000000-0000-0000-0000-000000000000");
    EXPECT_EQ(util::str(Zero), "0");
    EXPECT_EQ(util::str(true), "true");
    EXPECT_EQ(util::str("literal"), "literal");
    EXPECT_EQ(util::str(ESigned::Below), "-3");
}

TEST(NumbersTest, WritesDoublesWithFixedDigits)
{
    EXPECT_EQ(util::toStr(1023.96, 1), "1024.0");
    EXPECT_EQ(util::toStr(1.25, 1), "1.2");
    EXPECT_EQ(util::toStr(1.35, 1), "1.4");
    EXPECT_EQ(util::toStr(0.0, 1), "0.0");
    EXPECT_EQ(util::toStr(-2.5, 0), "-2");
    EXPECT_EQ(util::toStr(1e15, 2), "1000000000000000.00");
    EXPECT_EQ(util::toStr(std::numeric_limits<double>::max(), 1).size(), 311U);
}

TEST(NumbersTest, WritesDoublesWithSignificantDigits)
{
    EXPECT_EQ(util::str_from_double(1.5, 15), "1.5");
    EXPECT_EQ(util::str_from_double(1.0, 15), "1");
    EXPECT_EQ(util::str_from_double(0.0, 15), "0");
    EXPECT_EQ(util::str_from_double(1048575.0, 15), "1048575");
    EXPECT_EQ(util::str_from_double(1.999, 15), "1.999");
    EXPECT_EQ(util::str_from_double(0.1, 15), "0.1");
    EXPECT_EQ(util::str_from_double(123456.0, 3), "1.23e+05");
}

TEST(NumbersTest, ReadsIntegers)
{
    EXPECT_EQ(util::fromStr<int>("-2147483648"), -2147483647 - 1);
    EXPECT_EQ(util::fromStr<int>("2147483647"), 2147483647);
    EXPECT_EQ(util::fromStr<int>("-0"), 0);
    EXPECT_EQ(util::fromStr<int>("08"), 8);
    EXPECT_EQ(util::fromStr<long>("-9223372036854775808"), std::numeric_limits<long>::min());
    EXPECT_EQ(util::fromStr<long>("9223372036854775807"), std::numeric_limits<long>::max());
    EXPECT_EQ(util::fromStr<unsigned>("4294967295"), 4294967295U);
    EXPECT_EQ(util::fromStr<unsigned long>("18446744073709551615"), std::numeric_limits<unsigned long>::max());
    EXPECT_EQ(util::fromStr<unsigned long>("000000000000000000000000000007"), 7UL);
    EXPECT_EQ(util::fromStr<std::uint16_t>("65535"), 65535);
    EXPECT_EQ(util::fromStr<unsigned char>("7"), 7);
    EXPECT_EQ(util::fromStr<unsigned char>("255"), 255);
    EXPECT_EQ(util::str_to_int("-12"), -12);
    EXPECT_EQ(util::str_to_uint("12"), 12U);
    EXPECT_EQ(util::fromStr<int>(std::string_view("12345").substr(1, 2)), 23);
}

TEST(NumbersTest, RefusesWhatIsNoIntegerOfTheType)
{
    const auto nonsense = {"",    " ",    "-",   "+",   "+7",    " 7",  "7 ",  "7\n",      "12abc",
                           "abc", "0x1F", "1e3", "1.0", "1,000", "--1", "- 1", "\xD9\xA1", "true"};
    for (const std::string text : nonsense)
    {
        expectRefused<int>({text}, "int");
        expectRefused<long>({text}, "long");
        expectRefused<unsigned>({text}, "unsigned int");
        expectRefused<unsigned long>({text}, "unsigned long");
        expectRefused<std::uint16_t>({text}, "unsigned short");
        expectRefused<unsigned char>({text}, "unsigned char");
    }
    expectRefused<int>({"2147483648", "-2147483649", "18446744073709551616"}, "int");
    expectRefused<long>({"9223372036854775808", "-9223372036854775809", "18446744073709551615"}, "long");
    expectRefused<unsigned>({"-1", "-0", "4294967296", "18446744073709551615"}, "unsigned int");
    expectRefused<unsigned long>({"-1", "18446744073709551616", "99999999999999999999999"}, "unsigned long");
    expectRefused<std::uint16_t>({"-1", "65536"}, "unsigned short");
    expectRefused<unsigned char>({"-1", "256", "A"}, "unsigned char");
    EXPECT_EQ(failureText([] { util::str_to_int("5-"); }), "Unable to convert string [5-] to [int].");
    EXPECT_EQ(failureText([] { util::str_to_uint("-1"); }), "Unable to convert string [-1] to [unsigned int].");
    EXPECT_EQ(failureText([] { util::fromStr<int>(std::string_view("7\0", 2)); }), "Unable to convert string [7");
}

TEST(NumbersTest, ReadsDoublesInFixedNotationOnly)
{
    EXPECT_EQ(util::fromStr<double>("1.5"), 1.5);
    EXPECT_EQ(util::fromStr<double>("-0.25"), -0.25);
    EXPECT_EQ(util::fromStr<double>("007"), 7.0);
    EXPECT_EQ(util::fromStr<double>("18446744073709551616"), 18446744073709551616.0);
    const std::string huge(400, '9');
    expectRefused<double>({"", ".", "-", "+1.5", " 1.5", "1.5 ", "1.2.3", "1e3", "1E3", "0x1p3", "1,5", "inf", "-inf",
                           "infinity", "nan", "NaN", huge},
                          "double");
}

TEST(NumbersTest, ReadsBooleans)
{
    for (const std::string text : {"true", "True", "TRUE", "tRuE", "1"})
    {
        EXPECT_TRUE(util::fromStr<bool>(text)) << text;
        EXPECT_TRUE(util::str_to_bool(text)) << text;
    }
    for (const std::string text : {"false", "False", "FALSE", "0"})
    {
        EXPECT_FALSE(util::fromStr<bool>(text)) << text;
        EXPECT_FALSE(util::str_to_bool(text)) << text;
    }
    expectRefused<bool>({"", "yes", "no", "2", "-1", "00", "01", " true", "true ", "truee", "tru", "1abc", "on"},
                        "bool");
}

TEST(NumbersTest, DoesNotDependOnTheLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* name : {"de_DE.UTF-8", "tr_TR.UTF-8", "C.UTF-8"})
    {
        if (std::setlocale(LC_ALL, name) == nullptr)
            continue;
        EXPECT_EQ(util::toStr(1234.5, 1), "1234.5") << name;
        EXPECT_EQ(util::str_from_double(1.5, 15), "1.5") << name;
        EXPECT_EQ(util::fromStr<double>("1.5"), 1.5) << name;
    }
    std::setlocale(LC_ALL, before.c_str());
}

} // namespace
