#include "when/ical.h"

#include <string>

#include <gtest/gtest.h>

#include <zelplatform/datetime/clock.h>

#include "local_zone.h"

namespace
{

using datetime::CDateTime;
using zelmodel_test::LocalZone;
using zelplatform::model::CDate;
using zelplatform::model::structs::CScheduleOptions;
using zelplatform::model::structs::CWeekMask;

/// 2026-02-03 04:05:06 UTC for as long as the object lives.
class FixedClock
{
public:
    FixedClock()
    {
        datetime::set_clock_for_tests([] { return 1770091506L; }, {});
    }
    FixedClock(const FixedClock&) = delete;
    FixedClock& operator=(const FixedClock&) = delete;
    ~FixedClock() { datetime::set_clock_for_tests({}, {}); }
};

std::string ical(const CScheduleOptions& schedule, const std::string& from, const std::string& job)
{
    const FixedClock clock;
    const CDate date(CDateTime::fromString(from, "%Y-%m-%d", false));
    const when::Evaluation evaluation(schedule, nullptr, date);
    return when::renderIcal(evaluation, evaluation.daysFrom(date, 1), job);
}

// The identifier is the name-based UUID (version 5, name space URL) of "nightly.xml", a line break and the local time.
TEST(Ical, AnEventInUtcWithAStableIdentifier)
{
    const LocalZone zone("Europe/Berlin");
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetWeekly(2, 30, CWeekMask(true));
    schedule.GetActiveFullOptions().SetWeekly(CWeekMask::FromString("Sun", ','));
    EXPECT_EQ(ical(schedule, "2026-03-29", "nightly.xml"),
              "BEGIN:VCALENDAR\r\n"
              "VERSION:2.0\r\n"
              "PRODID:-//zelmodel//next//EN\r\n"
              "CALSCALE:GREGORIAN\r\n"
              "BEGIN:VEVENT\r\n"
              "UID:b6cb592b-1bca-526b-bc14-5238b65d50ea\r\n"
              "DTSTAMP:20260203T040506Z\r\n"
              "DTSTART:20260329T013000Z\r\n"
              "SUMMARY:nightly.xml (active full)\r\n"
              "DESCRIPTION:starts Every day at 02:30\\, local time of Europe/Berlin (TZ)\\, \r\n"
              " UTC+01:00 on 2026-03-29\\n23 hours: the clock goes from 02:00 to 03:00\\; 02\r\n"
              " :30 is left out\r\n"
              "TRANSP:TRANSPARENT\r\n"
              "END:VEVENT\r\n"
              "END:VCALENDAR\r\n");
}

TEST(Ical, ADayWithoutATimeIsAWholeDay)
{
    const LocalZone zone("UTC");
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetContinuously();
    const auto text = ical(schedule, "2026-03-02", "job");
    EXPECT_NE(text.find("\r\nDTSTART;VALUE=DATE:20260302\r\n"), std::string::npos) << text;
}

TEST(Ical, NamesAreEscapedAndFoldedBetweenCharacters)
{
    const LocalZone zone("UTC");
    CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetWeekly(2, 30, CWeekMask(true));
    std::string name = "a,b;c\\d";
    for (int i = 0; i < 40; ++i)
        name += "\xc3\xa4"; // a letter of two bytes
    const auto text = ical(schedule, "2026-03-02", name);
    // "SUMMARY:" and the escaped beginning are 18 bytes; 28 letters fill 74 of 75, the 29th has no room.
    std::string first = "\r\nSUMMARY:a\\,b\\;c\\\\d";
    for (int i = 0; i < 28; ++i)
        first += "\xc3\xa4";
    EXPECT_NE(text.find(first + "\r\n \xc3\xa4"), std::string::npos) << text;
}

} // namespace
