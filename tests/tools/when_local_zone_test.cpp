#include "when/local_zone.h"

#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "local_zone.h"

namespace
{

using datetime::CDateTime;
using when::EReading;
using zelmodel_test::LocalZone;
using zelplatform::model::CDate;

CDateTime moment(const std::string& text)
{
    return CDateTime::fromString(text, "%Y-%m-%d %H:%M", false);
}

CDate date(const std::string& text)
{
    return CDate(moment(text + " 00:00"));
}

struct ReadingCase
{
    const char* zone;
    const char* local;
    EReading reading;
    const char* utc;
};

std::ostream& operator<<(std::ostream& stream, const ReadingCase& test)
{
    return stream << test.zone << ' ' << test.local;
}

class Reading : public testing::TestWithParam<ReadingCase>
{
};

TEST_P(Reading, OfTheWallClock)
{
    const auto& test = GetParam();
    const LocalZone zone(test.zone);
    EXPECT_EQ(when::readingOf(moment(test.local)), test.reading);
    EXPECT_EQ(when::instantOf(moment(test.local)), moment(test.utc).toUnixTime());
}

INSTANTIATE_TEST_SUITE_P(
    Zones, Reading,
    testing::Values(ReadingCase{"UTC", "2026-03-29 02:30", EReading::Once, "2026-03-29 02:30"},
                    ReadingCase{"Asia/Kathmandu", "2026-03-29 02:30", EReading::Once, "2026-03-28 20:45"},
                    ReadingCase{"Europe/Berlin", "2026-03-29 01:59", EReading::Once, "2026-03-29 00:59"},
                    ReadingCase{"Europe/Berlin", "2026-03-29 02:00", EReading::Never, "2026-03-29 01:00"},
                    ReadingCase{"Europe/Berlin", "2026-03-29 02:59", EReading::Never, "2026-03-29 01:59"},
                    ReadingCase{"Europe/Berlin", "2026-03-29 03:00", EReading::Once, "2026-03-29 01:00"},
                    ReadingCase{"Europe/Berlin", "2026-10-25 01:59", EReading::Once, "2026-10-24 23:59"},
                    ReadingCase{"Europe/Berlin", "2026-10-25 02:00", EReading::Twice, "2026-10-25 00:00"},
                    ReadingCase{"Europe/Berlin", "2026-10-25 02:59", EReading::Twice, "2026-10-25 00:59"},
                    ReadingCase{"Europe/Berlin", "2026-10-25 03:00", EReading::Once, "2026-10-25 02:00"},
                    ReadingCase{"America/New_York", "2026-03-08 02:15", EReading::Never, "2026-03-08 07:15"},
                    ReadingCase{"America/New_York", "2026-11-01 01:15", EReading::Twice, "2026-11-01 05:15"},
                    ReadingCase{"Australia/Lord_Howe", "2026-04-05 01:29", EReading::Once, "2026-04-04 14:29"},
                    ReadingCase{"Australia/Lord_Howe", "2026-04-05 01:30", EReading::Twice, "2026-04-04 14:30"},
                    ReadingCase{"Australia/Lord_Howe", "2026-10-04 02:15", EReading::Never, "2026-10-03 15:45"}));

struct LengthCase
{
    const char* zone;
    const char* date;
    long seconds;
    const char* words;
};

std::ostream& operator<<(std::ostream& stream, const LengthCase& test)
{
    return stream << test.zone << ' ' << test.date;
}

class Length : public testing::TestWithParam<LengthCase>
{
};

TEST_P(Length, OfADay)
{
    const auto& test = GetParam();
    const LocalZone zone(test.zone);
    EXPECT_EQ(when::lengthOf(date(test.date)), test.seconds);
    EXPECT_EQ(when::tellClock(date(test.date), {}), test.words);
}

INSTANTIATE_TEST_SUITE_P(
    Zones, Length,
    testing::Values(
        LengthCase{"UTC", "2026-03-29", 86400, ""}, LengthCase{"Asia/Kathmandu", "2026-03-29", 86400, ""},
        LengthCase{"Europe/Berlin", "2026-03-28", 86400, ""},
        LengthCase{"Europe/Berlin", "2026-03-29", 82800, "23 hours: the clock goes from 02:00 to 03:00"},
        LengthCase{"Europe/Berlin", "2026-03-30", 86400, ""},
        LengthCase{"Europe/Berlin", "2026-10-25", 90000, "25 hours: the clock goes back from 03:00 to 02:00"},
        LengthCase{"America/New_York", "2026-11-01", 90000, "25 hours: the clock goes back from 02:00 to 01:00"},
        LengthCase{"Australia/Lord_Howe", "2026-10-04", 84600,
                   "23 hours 30 minutes: the clock goes from 02:00 to 02:30"},
        // Where midnight itself is left out, comes twice, or a day is dropped at the date line.
        LengthCase{"America/Sao_Paulo", "2018-11-04", 82800, "23 hours: the clock goes from 00:00 to 01:00"},
        LengthCase{"America/Sao_Paulo", "2018-11-03", 86400, ""},
        LengthCase{"America/Havana", "2012-11-04", 90000, "25 hours: the clock goes back from 01:00 to 00:00"},
        LengthCase{"Pacific/Apia", "2011-12-30", 0, "the calendar leaves this day out"},
        LengthCase{"Europe/Berlin", "9999-12-31", 86400, ""}, LengthCase{"Europe/Berlin", "1400-01-01", 86400, ""}));

TEST(Clock, TellsTheTimesThatItLeavesOutOrShowsTwice)
{
    const LocalZone zone("Europe/Berlin");
    EXPECT_EQ(when::tellClock(date("2026-03-29"), {moment("2026-03-29 01:30"), moment("2026-03-29 02:30")}),
              "23 hours: the clock goes from 02:00 to 03:00; 02:30 is left out");
    EXPECT_EQ(when::tellClock(date("2026-10-25"), {moment("2026-10-25 02:00"), moment("2026-10-25 02:30")}),
              "25 hours: the clock goes back from 03:00 to 02:00; 02:00 and 02:30 come twice");
    std::vector<CDateTime> minutes;
    for (int minute = 0; minute < 60; ++minute)
    {
        minutes.push_back(moment("2026-10-25 02:00"));
        minutes.back().setMinutes(minute);
    }
    EXPECT_EQ(when::tellClock(date("2026-10-25"), minutes),
              "25 hours: the clock goes back from 03:00 to 02:00; 60 starts come twice");
}

TEST(Zone, IsNamedWithItsOffset)
{
    {
        const LocalZone zone("Asia/Kathmandu");
        EXPECT_EQ(when::tellZone(date("2026-03-02")), "local time of Asia/Kathmandu (TZ), UTC+05:45 on 2026-03-02");
    }
    {
        const LocalZone zone(":America/New_York");
        EXPECT_EQ(when::tellZone(date("2026-07-02")), "local time of America/New_York (TZ), UTC-04:00 on 2026-07-02");
    }
    const LocalZone machine("");
    EXPECT_EQ(when::tellZone(date("2026-07-02")).find("(TZ)"), std::string::npos);
}

} // namespace
