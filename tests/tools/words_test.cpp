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
