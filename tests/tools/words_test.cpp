#include <gtest/gtest.h>

#include "describe/words.h"

namespace
{

using datetime::CDateTime;

TEST(Words, Counts)
{
    EXPECT_EQ(describe::countOf(0, "day"), "0 days");
    EXPECT_EQ(describe::countOf(1, "day"), "1 day");
    EXPECT_EQ(describe::countOf(14, "restore point"), "14 restore points");
}

TEST(Words, CountsThatMayBeNegative)
{
    EXPECT_EQ(describe::countOfSigned(1, "day"), "1 day");
    EXPECT_EQ(describe::countOfSigned(0, "day"), "0 days");
    EXPECT_EQ(describe::countOfSigned(-1, "day"), "-1 days");
    EXPECT_EQ(describe::countOfSigned(-2147483648L, "day"), "-2147483648 days");
}

TEST(Words, Sizes)
{
    EXPECT_EQ(describe::sizeOf(0), "0.0 B");
    EXPECT_EQ(describe::sizeOf(1536), "1.5 KB");
    EXPECT_EQ(describe::sizeOf(18446744073709551615UL), "16.0 EB");
}

TEST(Words, Identifiers)
{
    EXPECT_EQ(describe::identifierOf(guid::guid_t()), "none");
    EXPECT_EQ(describe::identifierOf(guid::guid_t::FromAStr("{5D3E9F10-7B42-4E6A-8C91-2F60A4B8D317}")),
              "5d3e9f10-7b42-4e6a-8c91-2f60a4b8d317");
}

TEST(Words, Durations)
{
    struct Case
    {
        unsigned long milliseconds;
        const char* words;
    };
    for (const auto& [milliseconds, words] :
         {Case{0, "0 ms"}, Case{250, "250 ms"}, Case{1000, "1 second"}, Case{90000, "1 minute 30 seconds"},
          Case{600000, "10 minutes"}, Case{5400000, "1 hour 30 minutes"},
          Case{90061000, "1 day 1 hour 1 minute 1 second"}, Case{1500, "1500 ms"}})
        EXPECT_EQ(describe::duration(milliseconds), words);
}

TEST(Words, Lists)
{
    EXPECT_EQ(describe::listOf({}), "");
    EXPECT_EQ(describe::listOf({"a"}), "a");
    EXPECT_EQ(describe::listOf({"a", "b"}), "a and b");
    EXPECT_EQ(describe::listOf({"a", "b", "c"}), "a, b and c");
}

TEST(Words, Dates)
{
    const auto moment = CDateTime::fromString("2024-03-07 22:05", "%Y-%m-%d %H:%M");
    EXPECT_EQ(describe::isoDate(moment), "2024-03-07");
    EXPECT_EQ(describe::clockTime(moment), "22:05");
    EXPECT_EQ(describe::weekDay(moment), "Thursday");
    EXPECT_EQ(describe::momentUtc(moment), "2024-03-07 22:05:00 UTC");
}

TEST(Words, FlagsAndEmptyTexts)
{
    EXPECT_EQ(describe::onOrOff(true), "on");
    EXPECT_EQ(describe::onOrOff(false), "off");
    EXPECT_EQ(describe::flagText(true), "true");
    EXPECT_EQ(describe::flagText(false), "false");
    EXPECT_EQ(describe::textOr("", "none"), "none");
    EXPECT_EQ(describe::textOr("x", "none"), "x");
}

} // namespace
