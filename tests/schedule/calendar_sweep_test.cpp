#include <cstdlib>
#include <iostream>

#include <gtest/gtest.h>

#include "calendar_sweep_cases.h"
#include "support/expect_failure.h"

using namespace zelplatform::model;
using namespace zelmodel_test;

namespace
{

constexpr std::size_t SampleStep = 331;
constexpr std::size_t NextOfSample = 8;
/// An answer of none takes a search over 41 years: it is asked for on every 97th day only, and twice in a sample.
constexpr std::size_t NextOfNone = 97;
constexpr int NextOfNoneInSample = 2;

bool isFullRun()
{
    const char* value = std::getenv("ZELMODEL_FULL_CALENDAR");
    return value != nullptr && std::string(value) == "1";
}

const CalendarDays& allDays()
{
    static const CalendarDays days;
    return days;
}

datetime::CDateTime dateTime(std::size_t index)
{
    return datetime::CDateTime(allDays().unixSeconds(index), false);
}

std::string isFailure(std::size_t index, const std::string& cause)
{
    return "ScheduleCalendar: Failed to check that date [" + allDays().text(index) + "] is on. " + cause;
}

std::string previousFailureText(std::size_t index, const std::string& cause)
{
    return "CScheduleCalendar: Failed to calculate previous schedule date from date [" + allDays().text(index) + "]. " +
           cause;
}

void judgeScheduled(const SweepCase& sweep, std::size_t index)
{
    const Verdict expected = isScheduled(sweep.rules, allDays()[index]);
    if (expected == Verdict::Fails)
    {
        ASSERT_EQ(failureText([&] { sweep.calendar.IsScheduledAtDate(dateTime(index)); }),
                  isFailure(index, scheduledFailure(sweep.rules)));
        return;
    }
    ASSERT_EQ(sweep.calendar.IsScheduledAtDate(dateTime(index)), expected == Verdict::On) << allDays().text(index);
}

void judgePrevious(const SweepCase& sweep, std::size_t index, std::size_t expected)
{
    const CDate found = sweep.calendar.GetPrevScheduleDateFromDate(CDate(dateTime(index)));
    ASSERT_TRUE(found == CDate(dateTime(expected)))
        << "from " << allDays().text(index) << " came " << found.toString() << ", not " << allDays().text(expected);
}

void judgeNext(const SweepCase& sweep, std::size_t index, const NextAnswer& expected)
{
    const auto ask = [&] { return sweep.calendar.GetNextScheduleDateFromDate(CDate(dateTime(index))); };
    if (expected.kind == Verdict::Fails)
    {
        const std::string failure = failureText(ask);
        const std::string cause = scheduledFailure(sweep.rules);
        ASSERT_GE(failure.size(), cause.size());
        ASSERT_EQ(failure.substr(failure.size() - cause.size()), cause) << "from " << allDays().text(index);
        return;
    }
    const std::optional<CDate> found = ask();
    ASSERT_EQ(found.has_value(), expected.kind == Verdict::On) << "from " << allDays().text(index);
    if (found)
    {
        ASSERT_TRUE(*found == CDate(dateTime(expected.index)))
            << "from " << allDays().text(index) << " came " << found->toString() << ", not "
            << allDays().text(expected.index);
    }
}

void judgeAll(const SweepCase& sweep, std::size_t first, std::size_t last)
{
    const bool hasPrevious = !previousFailure(sweep.rules);
    std::vector<std::size_t> previous;
    if (hasPrevious)
        previous = previousOfAll(allDays(), sweep.rules, first, last);
    const std::vector<NextAnswer> next = nextOfAll(allDays(), sweep.rules, first, last);
    for (std::size_t index = first; index <= last && !testing::Test::HasFailure(); ++index)
    {
        judgeScheduled(sweep, index);
        if (hasPrevious)
            judgePrevious(sweep, index, previous[index - first]);
        if (next[index - first].kind != Verdict::Off || index % NextOfNone == 0)
            judgeNext(sweep, index, next[index - first]);
    }
}

/// The days on which calendars go wrong: ends of months and years, leap days, and the turns of centuries.
std::vector<std::size_t> edgeDays()
{
    std::vector<std::size_t> indexes;
    for (const int year : {1900, 1904, 1972, 1999, 2000, 2024, 2025, 2096, 2100})
    {
        for (const auto& [month, day] : {std::pair{0, 1}, {1, 28}, {1, 29}, {2, 1}, {2, 15}, {11, 31}})
            indexes.push_back(allDays().indexOf(year, month, day));
    }
    return indexes;
}

void judgeSample(const SweepCase& sweep, std::size_t number, std::size_t first, std::size_t last)
{
    std::vector<std::size_t> indexes = edgeDays();
    for (std::size_t index = first + number % SampleStep; index <= last; index += SampleStep)
        indexes.push_back(index);
    const bool hasPrevious = !previousFailure(sweep.rules);
    int nones = 0;
    for (std::size_t i = 0; i < indexes.size() && !testing::Test::HasFailure(); ++i)
    {
        judgeScheduled(sweep, indexes[i]);
        if (hasPrevious)
            judgePrevious(sweep, indexes[i], previousByWalk(allDays(), sweep.rules, indexes[i]));
        if ((i + number) % NextOfSample == 0 && nones < NextOfNoneInSample)
        {
            const NextAnswer expected = nextByWalk(allDays(), sweep.rules, indexes[i]);
            judgeNext(sweep, indexes[i], expected);
            nones += expected.kind == Verdict::Off ? 1 : 0;
        }
    }
}

/// Some days of each calendar, or all of them from 1900 to 2100 when ZELMODEL_FULL_CALENDAR is 1.
void judge(const std::vector<SweepCase>& cases)
{
    const std::size_t first = allDays().indexOf(1900, 0, 1);
    const std::size_t last = allDays().indexOf(2100, 11, 31);
    for (std::size_t number = 0; number < cases.size() && !testing::Test::HasFailure(); ++number)
    {
        SCOPED_TRACE(cases[number].name);
        if (isFullRun())
            judgeAll(cases[number], first, last);
        else
            judgeSample(cases[number], number, first, last);

        const auto failure = previousFailure(cases[number].rules);
        if (failure)
        {
            EXPECT_EQ(failureText([&] { cases[number].calendar.GetPrevScheduleDateFromDate(CDate(dateTime(first))); }),
                      previousFailureText(first, *failure));
        }
    }
    if (isFullRun() && !testing::Test::HasFailure())
        std::cout << cases.size() << " calendars on " << last - first + 1 << " days: no mismatch\n";
}

} // namespace

TEST(CalendarSweep, WeeklyOnEveryMask)
{
    const auto cases = weeklyCases();
    ASSERT_EQ(cases.size(), 128U);
    judge(cases);
}

TEST(CalendarSweep, MonthlyByWeekDay)
{
    const auto cases = monthlyByWeekDayCases();
    ASSERT_EQ(cases.size(), 7U * 5U * 6U);
    judge(cases);
}

TEST(CalendarSweep, MonthlyOnDay)
{
    const auto cases = monthlyOnDayCases();
    ASSERT_EQ(cases.size(), 32U * 5U);
    judge(cases);
}

TEST(CalendarSweep, WhatOnlyDocumentsHold)
{
    judge(documentCases());
}

TEST(CalendarSweep, NumbersWithoutNameAndRecurrent)
{
    judge(oddCases());
}
