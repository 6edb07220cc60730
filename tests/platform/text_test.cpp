#include <zelplatform/util/text.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/expect_failure.h"

namespace
{

using zelmodel_test::failureText;
using Parts = std::vector<std::string>;

TEST(TextTest, SubstitutesPlaceholdersInOnePass)
{
    EXPECT_EQ(util::str_format("%1 %2", "10", "GB"), "10 GB");
    EXPECT_EQ(util::str_format("%1%1", std::string("a")), "aa");
    EXPECT_EQ(util::str_format("[%1][%2]", "%2", "%1"), "[%2][%1]");
    EXPECT_EQ(util::str_format("[%1]", "%1"), "[%1]");
    EXPECT_EQ(util::str_format("%%1", "2"), "%2");
    EXPECT_EQ(util::str_format("%1 %2 %3", "a"), "a %2 %3");
    EXPECT_EQ(util::str_format("%1", "a", "surplus"), "a");
    EXPECT_EQ(util::str_format("%0 %a % %", "a"), "%0 %a % %");
    EXPECT_EQ(util::str_format("%10", "a"), "a0");
    EXPECT_EQ(util::str_format("{} {0} \\%1", "a"), "{} {0} \\a");
    EXPECT_EQ(util::str_format("%9%8%7%6%5%4%3%2%1", "a", "b", "c", "d", "e", "f", "g", "h", "i"), "ihgfedcba");
    EXPECT_EQ(util::str_format("no %1"), "no %1");
    EXPECT_EQ(util::str_format("", "a"), "");
    EXPECT_EQ(util::str_format("x%1y", ""), "xy");
    EXPECT_EQ(util::str_format("[%1]", std::string("a\0b", 3)), std::string("[a\0b]", 5));
}

TEST(TextTest, FoldsAsciiLettersOnly)
{
    EXPECT_EQ(util::tolower("AZaz09@[`{"), "azaz09@[`{");
    EXPECT_EQ(util::toupper("AZaz09@[`{"), "AZAZ09@[`{");
    EXPECT_EQ(util::tolower("\xC3\x84\xC4"), "\xC3\x84\xC4");
    EXPECT_EQ(util::toupper("\xC3\xA4\xE4"), "\xC3\xA4\xE4");
    EXPECT_EQ(util::tolower(""), "");
}

TEST(TextTest, ComparesWithoutTheCaseOfAsciiLetters)
{
    struct Case
    {
        std::string a;
        std::string b;
        bool isEqual;
    };
    const Case cases[] = {
        {"", "", true},
        {"Lz4", "lZ4", true},
        {"a", "", false},
        {"ab", "abc", false},
        {"@", "`", false},
        {"[", "{", false},
        {"\xC3\x84", "\xC3\xA4", false},
    };
    for (const auto& [a, b, isEqual] : cases)
    {
        EXPECT_EQ(util::str_is_equal_nocase(a, b), isEqual) << a << " " << b;
        EXPECT_EQ(util::str_is_equal_nocase(b, a), isEqual) << b << " " << a;
    }
}

TEST(TextTest, TrimsBothEnds)
{
    EXPECT_EQ(util::str_trim(" \t\r\n\v\f a b \r\n"), "a b");
    EXPECT_EQ(util::str_trim("a"), "a");
    EXPECT_EQ(util::str_trim(""), "");
    EXPECT_EQ(util::str_trim(" \r\n"), "");
    EXPECT_EQ(util::str_trim("\xC2\xA0x"), "\xC2\xA0x");
    EXPECT_EQ(util::str_trim("--a-b--", '-'), "a-b");
    EXPECT_EQ(util::str_trim(" \ta ", ' '), "\ta");
    EXPECT_EQ(util::str_trim("---", '-'), "");
}

TEST(TextTest, SplitsAtEverySeparator)
{
    struct Case
    {
        std::string text;
        std::string separator;
        Parts parts;
    };
    const Case cases[] = {
        {"", ":", {}},
        {"1:2", ":", {"1", "2"}},
        {"1::2", ":", {"1", "", "2"}},
        {":", ":", {"", ""}},
        {"::", ":", {"", "", ""}},
        {"abc", ":", {"abc"}},
        {"01-03, 05-07", ", ", {"01-03", "05-07"}},
        {"01-03,05-07", ", ", {"01-03,05-07"}},
        {"5-", "-", {"5", ""}},
        {"-5", "-", {"", "5"}},
        {"a, , b", ", ", {"a", "", "b"}},
        {"aaa", "aa", {"", "a"}},
        {", ", ", ", {"", ""}},
    };
    for (const auto& [text, separator, parts] : cases)
    {
        EXPECT_EQ(util::str_split(text, separator), parts) << text;
        EXPECT_EQ(util::str_tokenize(text, separator), parts) << text;
        if (separator.size() == 1)
        {
            EXPECT_EQ(util::str_tokenize(text, separator[0]), parts) << text;
        }
    }
}

TEST(TextTest, RefusesAnEmptySeparator)
{
    const std::string message = "Unable to split text at an empty separator.";
    EXPECT_EQ(failureText([] { util::str_split("a", ""); }), message);
    EXPECT_EQ(failureText([] { util::str_split("", ""); }), message);
    EXPECT_EQ(failureText([] { util::str_tokenize("a", ""); }), message);
}

TEST(TextTest, JoinsWithSeparatorsOnlyBetweenItems)
{
    EXPECT_EQ(util::str_join({}, ", "), "");
    EXPECT_EQ(util::str_join({"a"}, ", "), "a");
    EXPECT_EQ(util::str_join({"a", "b", "c"}, ", "), "a, b, c");
    EXPECT_EQ(util::str_join({"", ""}, ":"), ":");
    EXPECT_EQ(util::str_join({"a", "b"}, ""), "ab");
}

TEST(TextTest, TestsThePrefix)
{
    EXPECT_TRUE(util::str_is_starts_with("ExternalPlatformValue150", "ExternalPlatformValue"));
    EXPECT_TRUE(util::str_is_starts_with("a", "a"));
    EXPECT_TRUE(util::str_is_starts_with("a", ""));
    EXPECT_TRUE(util::str_is_starts_with("", ""));
    EXPECT_FALSE(util::str_is_starts_with("", "a"));
    EXPECT_FALSE(util::str_is_starts_with("a", "ab"));
    EXPECT_FALSE(util::str_is_starts_with("abc", "Ab"));
}

} // namespace
