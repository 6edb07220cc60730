#include <string>

#include <gtest/gtest.h>

#include "edit/texts.h"
#include "edit/window_text.h"
#include "support/expect_failure.h"

namespace
{

using edit::parseDuration;
using edit::parseMonths;
using edit::parseWeekDays;
using zelmodel_test::failureText;

struct NamesCase
{
    const char* text;
    const char* names;
};

TEST(WeekDayTexts, NamesAndRanges)
{
    for (const auto& [text, names] :
         {NamesCase{"", ""}, NamesCase{"Mon", "Monday"}, NamesCase{"fri,MON", "Monday,Friday"},
          NamesCase{"Monday, Friday", "Monday,Friday"},
          NamesCase{"Mon-Fri", "Monday,Tuesday,Wednesday,Thursday,Friday"},
          NamesCase{"Fri - Mon", "Sunday,Monday,Friday,Saturday"}, NamesCase{"Wed-Wed", "Wednesday"},
          NamesCase{"Sat-Sun,Wed", "Sunday,Wednesday,Saturday"},
          NamesCase{"Sun-Sat", "Sunday,Monday,Tuesday,Wednesday,Thursday,Friday,Saturday"}})
        EXPECT_EQ(parseWeekDays(text).ToString(",", false), names) << text;
}

TEST(MonthTexts, NamesAndRanges)
{
    for (const auto& [text, names] : {NamesCase{"", ""}, NamesCase{"jan,July", "January,July"},
                                      NamesCase{"Nov-Feb", "January,February,November,December"}})
        EXPECT_EQ(parseMonths(text).ToString(",", false), names) << text;
}

TEST(WeekDayTexts, UnknownNamesAreRefusedByTheLibrary)
{
    EXPECT_EQ(failureText([] { parseWeekDays("Mon,Tux"); }),
              "WeekMask: Failed to convert from string vector. Unknown day of week: [Tux].");
    EXPECT_EQ(failureText([] { parseWeekDays("Mon-"); }), "Unknown day of week: [].");
    EXPECT_EQ(failureText([] { parseWeekDays("Mon--Fri"); }), "Unknown day of week: [-Fri].");
    EXPECT_EQ(failureText([] { parseMonths("Jan-Fry"); }), "Unknown month: [Fry].");
}

TEST(Durations, AddUpTheirUnits)
{
    struct Case
    {
        const char* text;
        unsigned long milliseconds;
    };
    for (const auto& [text, milliseconds] :
         {Case{"10m", 600000}, Case{"1h30m", 5400000}, Case{"90s", 90000}, Case{"250ms", 250}, Case{"1d", 86400000},
          Case{"0s", 0}, Case{"1m1ms", 60001}, Case{"18446744073709551615ms", 18446744073709551615U}})
        EXPECT_EQ(parseDuration(text), milliseconds) << text;
}

TEST(Durations, WhatIsNone)
{
    struct Case
    {
        const char* text;
        const char* cause;
    };
    for (const auto& [text, cause] :
         {Case{"", "The text is empty."}, Case{"10", "[] is no unit of time: there are d, h, m, s and ms."},
          Case{"10x", "[x] is no unit of time: there are d, h, m, s and ms."},
          Case{"1 h", "[ h] is no unit of time: there are d, h, m, s and ms."},
          Case{"h", "Unable to convert string [] to [unsigned long]."},
          Case{"-1h", "[-] is no unit of time: there are d, h, m, s and ms."},
          Case{"213503982335d", "That is too long."}, Case{"18446744073709551615ms1ms", "That is too long."}})
        EXPECT_EQ(failureText([text = text] { parseDuration(text); }),
                  "[" + std::string(text) + "] is no length of time such as 10m or 1h30m. " + cause);
}

TEST(WindowTexts, HoursOfEachDay)
{
    struct Case
    {
        const char* text;
        const char* days;
    };
    for (const auto& [text, days] :
         {Case{"Mon 20-24", "monday=20-24 "}, Case{"Mon,Wed 0-6,20-24", "monday=0-6,20-24 wednesday=0-6,20-24 "},
          Case{"Mon 1-2,Mon 3-4", "monday=1-2,3-4 "}, Case{"Sat-Sun 0-24", "sunday=0-24 saturday=0-24 "},
          Case{"Fri 20-24, Sat 0-24", "friday=20-24 saturday=0-24 "},
          Case{"20-24", "sunday=20-24 monday=20-24 tuesday=20-24 wednesday=20-24 thursday=20-24 friday=20-24 "
                        "saturday=20-24 "}})
    {
        std::string all;
        for (const auto& [path, hours] : edit::hoursOfWeek(text))
            all.append(path).append("=").append(hours).append(" ");
        EXPECT_EQ(all, days) << text;
    }
}

TEST(WindowTexts, DaysWithoutHours)
{
    const std::string example = " tells no hours of a week such as [Mon-Fri 20-24,Sat 0-24]. ";
    EXPECT_EQ(failureText([] { edit::hoursOfWeek(""); }), "[]" + example + "There are no hours.");
    EXPECT_EQ(failureText([] { edit::hoursOfWeek("Mon"); }), "[Mon]" + example + "There are no hours for Monday.");
    EXPECT_EQ(failureText([] { edit::hoursOfWeek("Mon 1-2,Fri"); }),
              "[Mon 1-2,Fri]" + example + "There are no hours for Friday.");
}

} // namespace
