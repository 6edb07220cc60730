#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_calendar.h>

#include "calendar_sweep_cases.h"
#include "support/expect_failure.h"

#include <zelplatform/xmlpp/xml_document.h>

using namespace zelplatform::model;
using namespace zelplatform::model::structs;
using datetime::EDayOfWeek;
using zelmodel_test::CalendarRules;
using zelmodel_test::failureText;

namespace
{

const CMonthMask AllMonths(true);

datetime::CDateTime at(const std::string& date)
{
    return datetime::CDateTime::fromString(date, "%Y-%m-%d", false);
}

bool isOn(const CScheduleCalendar& calendar, const std::string& date)
{
    return calendar.IsScheduledAtDate(at(date));
}

std::string previous(const CScheduleCalendar& calendar, const std::string& date)
{
    return calendar.GetPrevScheduleDateFromDate(CDate(at(date))).toString();
}

CScheduleCalendar weekly(const std::string& days)
{
    CScheduleCalendar calendar;
    calendar.SetWeekly(std::nullopt, CWeekMask::FromString(days, ','));
    return calendar;
}

CScheduleCalendar monthly(EWeekDayNumber::type number, EDayOfWeek::type day, const CMonthMask& months = AllMonths)
{
    CScheduleCalendar calendar;
    calendar.SetMonthly(std::nullopt, number, day, months);
    return calendar;
}

CScheduleCalendar monthly(unsigned long day, const CMonthMask& months = AllMonths)
{
    CScheduleCalendar calendar;
    calendar.SetMonthlyOnDay(std::nullopt, CDayOfMonth(day), months);
    return calendar;
}

CScheduleCalendar recurrent(EScheduleType::type type)
{
    return CScheduleCalendar(type, CScheduleTime(4, 0), CWeekMask(true), AllMonths, EWeekDayNumber::Every,
                             CDayOfMonth(0));
}

CScheduleCalendar ofType7()
{
    CalendarRules rules;
    rules.type = 7;
    const auto document = xmlpp::CXmlDocument::Unserialize(zelmodel_test::calendarDocument(rules));
    return CScheduleCalendar::FromXml(document.GetRootNode());
}

CMonthMask months(const std::string& names)
{
    return CMonthMask::FromString(names, ',');
}

class FixedClock : public ITimeManager
{
public:
    FixedClock(long utc, long offset) : m_now(utc, offset) {}
    CDateTimeEx GetCurrentTime() const override { return m_now; }

private:
    CDateTimeEx m_now;
};

class BrokenClock : public ITimeManager
{
public:
    CDateTimeEx GetCurrentTime() const override { throw std::runtime_error("The clock has stopped."); }
};

const std::string PreviousContext = "CScheduleCalendar: Failed to calculate previous schedule date from date ";

} // namespace

TEST(ScheduleCalendarEvaluation, WeeklyAsksTheWeekDay)
{
    const CScheduleCalendar calendar = weekly("Monday,Sunday");
    EXPECT_TRUE(isOn(calendar, "2024-03-03"));
    EXPECT_TRUE(isOn(calendar, "2024-03-04"));
    EXPECT_FALSE(isOn(calendar, "2024-03-05"));
    EXPECT_FALSE(isOn(calendar, "2024-03-09"));
    EXPECT_FALSE(isOn(weekly(""), "2024-03-04"));
}

TEST(ScheduleCalendarEvaluation, RecurrentCoversEveryDate)
{
    for (const auto type : {EScheduleType::Periodically, EScheduleType::Continuously})
    {
        for (const char* date : {"1400-01-01", "1900-02-28", "2024-02-29", "9999-12-31"})
            EXPECT_TRUE(isOn(recurrent(type), date)) << date;
    }
}

TEST(ScheduleCalendarEvaluation, MonthlyByWeekDay)
{
    const CScheduleCalendar lastFriday = monthly(EWeekDayNumber::Last, EDayOfWeek::Friday, months("March"));
    EXPECT_TRUE(isOn(lastFriday, "2024-03-29"));
    EXPECT_FALSE(isOn(lastFriday, "2024-03-22"));
    EXPECT_FALSE(isOn(lastFriday, "2024-04-26"));
    const CScheduleCalendar fourthMonday = monthly(EWeekDayNumber::Fourth, EDayOfWeek::Monday);
    EXPECT_TRUE(isOn(fourthMonday, "2024-04-22"));
    EXPECT_FALSE(isOn(fourthMonday, "2024-04-29"));
    EXPECT_FALSE(isOn(fourthMonday, "2024-04-15"));
    EXPECT_TRUE(isOn(monthly(EWeekDayNumber::First, EDayOfWeek::Monday), "2024-10-07"));
    EXPECT_FALSE(isOn(monthly(EWeekDayNumber::First, EDayOfWeek::Monday), "2024-10-08"));
    EXPECT_TRUE(isOn(monthly(EWeekDayNumber::Last, EDayOfWeek::Monday), "2024-04-29"));
}

TEST(ScheduleCalendarEvaluation, MonthlyOnADay)
{
    EXPECT_FALSE(isOn(monthly(31), "2024-04-30"));
    EXPECT_TRUE(isOn(monthly(31), "2024-05-31"));
    EXPECT_TRUE(isOn(monthly(32), "2024-04-30"));
    EXPECT_TRUE(isOn(monthly(32), "2024-02-29"));
    EXPECT_FALSE(isOn(monthly(32), "2024-02-28"));
    EXPECT_TRUE(isOn(monthly(32), "1900-02-28"));
    EXPECT_FALSE(isOn(monthly(15, months("June")), "2024-05-15"));
    EXPECT_TRUE(isOn(monthly(15, months("June")), "2024-06-15"));
}

TEST(ScheduleCalendarEvaluation, TheTimeOfDayPlaysNoPart)
{
    auto late = at("2024-03-04");
    late.setTime(23, 59, 59);
    CScheduleCalendar calendar = weekly("Monday");
    calendar.SetTime(CScheduleTime(1, 0));
    EXPECT_TRUE(calendar.IsScheduledAtDate(late));
    EXPECT_EQ(calendar.GetPrevScheduleDateFromDate(CDate(late)).toString(), "03/04/2024");
}

TEST(ScheduleCalendarEvaluation, TodayIsTheManagersLocalDay)
{
    const auto late = std::make_shared<FixedClock>(1709767800, 0); // Wednesday 2024-03-06 23:30 UTC
    const auto lateInEast = std::make_shared<FixedClock>(1709767800, 7200);
    EXPECT_TRUE(weekly("Wednesday").IsTodayScheduled(late));
    EXPECT_FALSE(weekly("Thursday").IsTodayScheduled(late));
    EXPECT_FALSE(weekly("Wednesday").IsTodayScheduled(lateInEast));
    EXPECT_TRUE(weekly("Thursday").IsTodayScheduled(lateInEast));
}

TEST(ScheduleCalendarEvaluation, PreviousIncludesTheDate)
{
    EXPECT_EQ(previous(weekly("Monday"), "2024-03-06"), "03/04/2024");
    EXPECT_EQ(previous(weekly("Monday"), "2024-03-04"), "03/04/2024");
    EXPECT_EQ(previous(weekly("Monday"), "2024-03-03"), "02/26/2024");
    EXPECT_EQ(previous(weekly("Thursday"), "2024-03-06"), "02/29/2024");
}

TEST(ScheduleCalendarEvaluation, PreviousMonthly)
{
    const CScheduleCalendar firstMonday = monthly(EWeekDayNumber::First, EDayOfWeek::Monday);
    EXPECT_EQ(previous(firstMonday, "2024-10-03"), "09/02/2024");
    EXPECT_EQ(previous(firstMonday, "2024-10-07"), "10/07/2024");
    EXPECT_EQ(previous(monthly(EWeekDayNumber::Last, EDayOfWeek::Friday, months("March")), "2024-03-28"), "03/31/2023");
    EXPECT_EQ(previous(monthly(31), "2024-05-30"), "03/31/2024");
    EXPECT_EQ(previous(monthly(32), "2024-03-30"), "02/29/2024");
    EXPECT_EQ(previous(monthly(1, months("January")), "2024-12-31"), "01/01/2024");
    EXPECT_EQ(previous(monthly(1, months("December")), "2024-11-30"), "12/01/2023");
}

TEST(ScheduleCalendarEvaluationFailures, CalendarsThatCannotBeJudged)
{
    const std::string context = "ScheduleCalendar: Failed to check that date [03/06/2024] is on. ";
    EXPECT_EQ(failureText([] { isOn(ofType7(), "2024-03-06"); }), context + "Unsupported schedule type [7]");
    const CScheduleCalendar bad = monthly(static_cast<EWeekDayNumber::type>(0), EDayOfWeek::Wednesday, months("May"));
    EXPECT_EQ(failureText([&] { isOn(bad, "2024-03-06"); }), context + "Bad week day number [0].");
    EXPECT_FALSE(isOn(bad, "2024-03-05"));
    CScheduleCalendar withDay = bad;
    withDay.GetDayOfMonth().Set(13);
    EXPECT_FALSE(isOn(withDay, "2024-03-06"));
    EXPECT_THROW(isOn(withDay, "2024-03-13"), std::exception);
}

TEST(ScheduleCalendarEvaluationFailures, MasksOfWrongLength)
{
    CScheduleCalendar calendar = weekly("Monday");
    calendar.GetWeekMask() = CWeekMask(std::vector<bool>(3, false));
    const std::string failure = failureText([&] { isOn(calendar, "2024-03-06"); });
    EXPECT_EQ(failure.rfind("ScheduleCalendar: Failed to check that date [03/06/2024] is on. ", 0), 0U) << failure;

    CScheduleCalendar onDay = monthly(6);
    onDay.GetMonthMask() = CMonthMask(std::vector<bool>(2, true));
    EXPECT_THROW(isOn(onDay, "2024-03-06"), std::exception);
    EXPECT_THROW(previous(onDay, "2024-03-06"), std::exception);
}

TEST(ScheduleCalendarEvaluationFailures, Today)
{
    const std::string context = "ScheduleCalendar: Failed to check that today is on. ";
    for (const auto type : {EScheduleType::Weekly, EScheduleType::Continuously})
    {
        EXPECT_EQ(failureText([&] { recurrent(type).IsTodayScheduled(nullptr); }),
                  context + "Unexpected internal error: time manager is not initialized.");
    }
    const auto wednesday = std::make_shared<FixedClock>(1709767800, 0);
    EXPECT_EQ(failureText([&] { ofType7().IsTodayScheduled(wednesday); }),
              context +
                  "ScheduleCalendar: Failed to check that date [03/06/2024] is on. Unsupported schedule type [7]");
    EXPECT_EQ(failureText([] { weekly("Monday").IsTodayScheduled(std::make_shared<BrokenClock>()); }),
              context + "The clock has stopped.");
}

TEST(ScheduleCalendarEvaluationFailures, Previous)
{
    const auto failure = [](const CScheduleCalendar& calendar) {
        return failureText([&] { previous(calendar, "2024-03-06"); });
    };
    const std::string context = PreviousContext + "[03/06/2024]. ";
    EXPECT_EQ(failure(weekly("")), context + "No days are specified.");
    EXPECT_EQ(failure(monthly(EWeekDayNumber::First, EDayOfWeek::Monday, CMonthMask(false))),
              context + "No months are specified.");
    EXPECT_EQ(failure(recurrent(EScheduleType::Periodically)), context + "Unsupported schedule type [2]");
    EXPECT_EQ(failure(recurrent(EScheduleType::Continuously)), context + "Unsupported schedule type [3]");
    EXPECT_EQ(failure(ofType7()), context + "Unsupported schedule type [7]");
}

TEST(ScheduleCalendarEvaluationFailures, PreviousBeforeTheCalendarBegins)
{
    for (const CScheduleCalendar& calendar :
         {weekly("Monday"), monthly(31, months("December")), monthly(30, months("February"))})
    {
        const std::string failure = failureText([&] { previous(calendar, "1400-01-01"); });
        EXPECT_EQ(failure.rfind(PreviousContext + "[01/01/1400]. ", 0), 0U) << failure;
    }
    EXPECT_THROW(previous(monthly(30, months("February")), "1401-01-01"), std::exception);
    EXPECT_EQ(previous(monthly(1, months("January")), "1401-01-01"), "01/01/1401");
}

TEST(ScheduleCalendarEvaluationQuirks, AnUnsetClockMeansTheEpoch)
{
    const auto unset = std::make_shared<FixedClock>(0, 0);
    EXPECT_TRUE(weekly("Thursday").IsTodayScheduled(unset));
    EXPECT_TRUE(monthly(1, months("January")).IsTodayScheduled(unset));
}

TEST(ScheduleCalendarEvaluationQuirks, WithoutAMatchTheDayBeforeTheRangeComesBack)
{
    EXPECT_EQ(previous(monthly(31, months("April,June")), "2024-03-06"), "02/28/2023");
    EXPECT_EQ(previous(monthly(31, months("April,June")), "2024-12-31"), "11/30/2023");
    EXPECT_EQ(previous(monthly(30, months("February")), "2025-01-15"), "12/31/2023");
    EXPECT_EQ(previous(monthly(30, months("February")), "2025-03-31"), "02/29/2024");
    EXPECT_EQ(previous(monthly(29, months("February")), "2025-03-15"), "02/29/2024");
    EXPECT_EQ(previous(monthly(29, months("February")), "2026-03-15"), "02/28/2025");
    EXPECT_EQ(previous(monthly(29, months("February")), "2025-02-28"), "02/29/2024");
}

TEST(ScheduleCalendarEvaluationQuirks, PreviousIgnoresTheDayBesideANumber)
{
    CScheduleCalendar calendar = monthly(EWeekDayNumber::First, EDayOfWeek::Monday);
    calendar.GetDayOfMonth().Set(15);
    EXPECT_FALSE(isOn(calendar, "2024-03-04"));
    EXPECT_EQ(previous(calendar, "2024-03-06"), "03/04/2024");
}

TEST(ScheduleCalendarEvaluationQuirks, PreviousNeverFindsADayThatIsNotSet)
{
    CScheduleCalendar calendar = monthly(EWeekDayNumber::First, EDayOfWeek::Monday);
    calendar.SetWeekDayNumber(EWeekDayNumber::Every);
    EXPECT_TRUE(isOn(calendar, "2024-03-04"));
    EXPECT_EQ(previous(calendar, "2024-03-04"), "02/28/2023");
}

TEST(ScheduleCalendarEvaluationQuirks, PreviousTakesOtherNumbersAsNeverMatching)
{
    for (const int number : {0, 7, -1})
    {
        EXPECT_EQ(previous(monthly(static_cast<EWeekDayNumber::type>(number), EDayOfWeek::Monday), "2024-03-04"),
                  "02/28/2023");
    }
}
