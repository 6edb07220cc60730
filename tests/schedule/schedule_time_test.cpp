#include <climits>
#include <string>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_time.h>

#include "support/expect_failure.h"

using zelmodel_test::failureText;
using zelplatform::model::structs::CScheduleTime;

namespace
{

using HoursAndMinutes = std::pair<unsigned long, unsigned long>;

std::string validationFailure(const CScheduleTime& time, bool periodical)
{
    return failureText([&] { time.Validate(periodical); });
}

} // namespace

TEST(ScheduleTimeValue, StoresWhatItIsGiven)
{
    CScheduleTime time(99, 61);
    EXPECT_EQ(time.Get(), HoursAndMinutes(99, 61));
    time.Set(ULONG_MAX, 75);
    EXPECT_EQ(time.GetHours(), ULONG_MAX);
    EXPECT_EQ(time.GetMinutes(), 75U);
    time.SetHours(22);
    time.SetMinutes(30);
    EXPECT_EQ(time.Get(), HoursAndMinutes(22, 30));
}

TEST(ScheduleTimeValue, ComparesHoursAndMinutes)
{
    EXPECT_TRUE(CScheduleTime(22, 30) == CScheduleTime(22, 30));
    EXPECT_FALSE(CScheduleTime(22, 30) != CScheduleTime(22, 30));
    EXPECT_TRUE(CScheduleTime(22, 30) != CScheduleTime(22, 31));
    EXPECT_TRUE(CScheduleTime(22, 30) != CScheduleTime(21, 30));
    EXPECT_FALSE(CScheduleTime(1, 0) == CScheduleTime(0, 60));
}

TEST(ScheduleTimeValue, CountsSeconds)
{
    EXPECT_EQ(CScheduleTime(1, 30).ToSeconds(), 5400U);
    EXPECT_EQ(CScheduleTime(0, 0).ToSeconds(), 0U);
    EXPECT_EQ(CScheduleTime(24, 0).ToSeconds(), 86400U);
    EXPECT_EQ(CScheduleTime(0, 90).ToSeconds(), 5400U);
}

TEST(ScheduleTimeValue, RepairsTheWholeDayOfTheManagingServer)
{
    const struct
    {
        HoursAndMinutes given;
        bool periodical;
        HoursAndMinutes fixed;
    } table[] = {{{0, 0}, true, {24, 0}}, {{0, 0}, false, {0, 0}}, {{0, 1}, true, {0, 1}}, {{1, 0}, true, {1, 0}}};
    for (const auto& row : table)
    {
        CScheduleTime time(row.given.first, row.given.second);
        time.FixQorTimeFormat(row.periodical);
        EXPECT_EQ(time.Get(), row.fixed) << row.given.first << ":" << row.given.second;
    }
}

TEST(ScheduleTimeValue, ValidatesBothKinds)
{
    EXPECT_NO_THROW(CScheduleTime(0, 0).Validate(false));
    EXPECT_NO_THROW(CScheduleTime(23, 59).Validate(false));
    EXPECT_NO_THROW(CScheduleTime(0, 0).Validate(true));
    EXPECT_NO_THROW(CScheduleTime(24, 0).Validate(true));
}

TEST(ScheduleTimeValue, ComesFromADuration)
{
    const struct
    {
        long seconds;
        HoursAndMinutes time;
    } table[] = {{0, {0, 0}},       {59, {0, 0}},     {60, {0, 1}},     {3599, {0, 59}},     {5400, {1, 30}},
                 {86399, {23, 59}}, {86400, {24, 0}}, {90061, {25, 1}}, {921599, {255, 59}}, {-30, {0, 0}}};
    for (const auto& row : table)
        EXPECT_EQ(CScheduleTime::FromUnixTime(row.seconds).Get(), row.time) << row.seconds;
}

TEST(ScheduleTimeText, ParsesHoursAndMinutes)
{
    const struct
    {
        const char* text;
        HoursAndMinutes time;
    } table[] = {{"7:5", {7, 5}},
                 {"07:05", {7, 5}},
                 {"22:30", {22, 30}},
                 {"0:0", {0, 0}},
                 {"24:00", {24, 0}},
                 {"0000008:0000009", {8, 9}},
                 {"4294967295:0", {4294967295UL, 0}}};
    for (const auto& row : table)
    {
        EXPECT_EQ(CScheduleTime::FromTimeStr(row.text, false).Get(), row.time) << row.text;
        EXPECT_EQ(CScheduleTime::FromTimeStr(row.text, true).Get(), row.time) << row.text;
    }
}

TEST(ScheduleTimeText, WritesTwoDigits)
{
    EXPECT_EQ(CScheduleTime(7, 5).ToTimeStr(), "07:05");
    EXPECT_EQ(CScheduleTime(24, 0).ToTimeStr(), "24:00");
    EXPECT_EQ(CScheduleTime(0, 0).ToTimeStr(), "00:00");
    EXPECT_EQ(CScheduleTime(123, 4567).ToTimeStr(), "123:4567");
    EXPECT_EQ(CScheduleTime::FromTimeStr("7:5", false).ToTimeStr(), "07:05");
    EXPECT_EQ(CScheduleTime::NumberToTwoDigitNumber(0), "00");
    EXPECT_EQ(CScheduleTime::NumberToTwoDigitNumber(9), "09");
    EXPECT_EQ(CScheduleTime::NumberToTwoDigitNumber(10), "10");
    EXPECT_EQ(CScheduleTime::NumberToTwoDigitNumber(100), "100");
}

TEST(ScheduleTimeText, ReadsAsAPhrase)
{
    const struct
    {
        HoursAndMinutes time;
        const char* phrase;
    } table[] = {{{1, 0}, "1 hour"},    {{2, 1}, "2 hours 1 minute"},   {{0, 0}, "0 minutes"}, {{0, 5}, "5 minutes"},
                 {{0, 1}, "1 minute"},  {{1, 30}, "1 hour 30 minutes"}, {{2, 0}, "2 hours"},   {{0, 45}, "45 minutes"},
                 {{24, 0}, "24 hours"}, {{1, 1}, "1 hour 1 minute"}};
    for (const auto& row : table)
        EXPECT_EQ(CScheduleTime(row.time.first, row.time.second).ToUserFriendlyStr(), row.phrase);
    EXPECT_EQ(CScheduleTime::HoursToUserFriendlyStr(0), "0 hours");
    EXPECT_EQ(CScheduleTime::HoursToUserFriendlyStr(1), "1 hour");
    EXPECT_EQ(CScheduleTime::HoursToUserFriendlyStr(21), "21 hours");
    EXPECT_EQ(CScheduleTime::MinutesToUserFriendlyStr(0), "0 minutes");
    EXPECT_EQ(CScheduleTime::MinutesToUserFriendlyStr(1), "1 minute");
    EXPECT_EQ(CScheduleTime::MinutesToUserFriendlyStr(2), "2 minutes");
}

TEST(ScheduleTimeFailures, ParsingATextThatIsNoPair)
{
    for (const char* text : {"", "12", "1:2:3", "1::2", ":::", "7.5"})
    {
        EXPECT_EQ(failureText([&] { CScheduleTime::FromTimeStr(text, false); }),
                  "Unable to parse time. Bad time pair string.")
            << text;
    }
}

TEST(ScheduleTimeFailures, ParsingANumberThatIsNone)
{
    const struct
    {
        const char* text;
        const char* part;
    } table[] = {{"a:5", "a"},       {"5:b", "b"},
                 {":", ""},          {"7:", ""},
                 {":7", ""},         {"-1:0", "-1"},
                 {"0:-1", "-1"},     {"+7:00", "+7"},
                 {" 7:00", " 7"},    {"7:00 ", "00 "},
                 {"0x1F:0", "0x1F"}, {"1e3:0", "1e3"},
                 {"12h:0", "12h"},   {"4294967296:0", "4294967296"}};
    for (const auto& row : table)
    {
        EXPECT_EQ(failureText([&] { CScheduleTime::FromTimeStr(row.text, false); }),
                  std::string("Unable to parse time. Unable to convert string [") + row.part + "] to [unsigned int].")
            << row.text;
    }
}

TEST(ScheduleTimeFailures, Validation)
{
    EXPECT_EQ(validationFailure(CScheduleTime(24, 0), false),
              "Failed to validate time [24:00] (schedule is periodically? [false]). Wrong hours of time.");
    EXPECT_EQ(validationFailure(CScheduleTime(25, 0), true),
              "Failed to validate time [25:00] (schedule is periodically? [true]). Wrong hours of period.");
    EXPECT_EQ(validationFailure(CScheduleTime(23, 60), false),
              "Failed to validate time [23:60] (schedule is periodically? [false]). Wrong minutes.");
    EXPECT_EQ(validationFailure(CScheduleTime(23, 60), true),
              "Failed to validate time [23:60] (schedule is periodically? [true]). Wrong minutes.");
    EXPECT_EQ(validationFailure(CScheduleTime(25, 99), false),
              "Failed to validate time [25:99] (schedule is periodically? [false]). Wrong hours of time.");
    EXPECT_EQ(validationFailure(CScheduleTime(ULONG_MAX, 5), true),
              "Failed to validate time [18446744073709551615:05] (schedule is periodically? [true]). "
              "Wrong hours of period.");
}

TEST(ScheduleTimeFailures, DurationsThatDoNotFit)
{
    const struct
    {
        long seconds;
        const char* value;
    } table[] = {{921600, "256"}, {3600000, "1000"}, {-3600, "-1"}, {-60, "-1"}, {-1080000, "-300"}};
    for (const auto& row : table)
    {
        EXPECT_EQ(failureText([&] { CScheduleTime::FromUnixTime(row.seconds); }),
                  std::string("Failed to convert from UnixTime. Unable to cast value from [") + row.value +
                      "] to [unsigned char].")
            << row.seconds;
    }
}

TEST(ScheduleTimeQuirks, TheFlagOfResetIsIgnored)
{
    for (const bool flag : {false, true})
    {
        CScheduleTime time(22, 30);
        time.Reset(flag);
        EXPECT_EQ(time.Get(), HoursAndMinutes(0, 0));
    }
}

TEST(ScheduleTimeQuirks, ParsingChecksNoRange)
{
    const CScheduleTime time = CScheduleTime::FromTimeStr("25:99", true);
    EXPECT_EQ(time.Get(), HoursAndMinutes(25, 99));
    EXPECT_THROW(time.Validate(true), std::exception);
}

TEST(ScheduleTimeQuirks, HalfPastTwentyFourIsAPeriod)
{
    EXPECT_NO_THROW(CScheduleTime(24, 30).Validate(true));
    EXPECT_NO_THROW(CScheduleTime(24, 59).Validate(true));
}
