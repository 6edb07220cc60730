#include <vector>

#include <benchmark/benchmark.h>
#include <boost/date_time/gregorian/gregorian.hpp>

#include <zelmodel/schedules.h>

#include "ratio_table.h"

namespace
{

using namespace zelplatform::model;
using namespace zelplatform::model::structs;
namespace gregorian = boost::gregorian;

constexpr int FirstYear = 2000;
constexpr int Days = 4096;

CScheduleCalendar secondTuesday()
{
    CScheduleCalendar calendar;
    calendar.SetMonthly(std::nullopt, EWeekDayNumber::Second, datetime::EDayOfWeek::Tuesday, CMonthMask(true));
    return calendar;
}

const std::vector<datetime::CDateTime>& ourDays()
{
    static const std::vector<datetime::CDateTime> days = [] {
        datetime::CDateTime first(true);
        first.setDate(FirstYear, 1, 1);
        std::vector<datetime::CDateTime> all;
        for (long i = 0; i < Days; ++i)
            all.emplace_back(first.toUnixTime() + i * 86400, true);
        return all;
    }();
    return days;
}

const std::vector<gregorian::date>& boostDays()
{
    static const std::vector<gregorian::date> days = [] {
        const gregorian::date first(FirstYear, 1, 1);
        std::vector<gregorian::date> all;
        for (int i = 0; i < Days; ++i)
            all.push_back(first + gregorian::days(i));
        return all;
    }();
    return days;
}

void isScheduledAtDate(benchmark::State& state)
{
    const auto calendar = secondTuesday();
    const auto& days = ourDays();
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(calendar.IsScheduledAtDate(days[i++ % Days]));
}
BENCHMARK(isScheduledAtDate);

// The same question asked of the generator: is the day the second Tuesday of its month?
void isScheduledByGenerator(benchmark::State& state)
{
    using Generator = gregorian::nth_day_of_the_week_in_month;
    const auto& days = boostDays();
    std::size_t i = 0;
    for (auto _ : state)
    {
        const auto& day = days[i++ % Days];
        const Generator generator(Generator::second, gregorian::Tuesday, day.month());
        benchmark::DoNotOptimize(generator.get_date(day.year()) == day);
    }
}
BENCHMARK(isScheduledByGenerator);

void previousScheduleDate(benchmark::State& state)
{
    const auto calendar = secondTuesday();
    const auto& days = ourDays();
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(calendar.GetPrevScheduleDateFromDate(CDate(days[i++ % Days])));
}
BENCHMARK(previousScheduleDate);

// The walk that the definition describes, a day at a time, with the generator as the test of a day.
void previousByGenerator(benchmark::State& state)
{
    using Generator = gregorian::nth_day_of_the_week_in_month;
    const auto& days = boostDays();
    std::size_t i = 0;
    for (auto _ : state)
    {
        for (gregorian::day_iterator day(days[i++ % Days]);; --day)
        {
            const Generator generator(Generator::second, gregorian::Tuesday, day->month());
            if (generator.get_date(day->year()) == *day)
            {
                benchmark::DoNotOptimize(*day);
                break;
            }
        }
    }
}
BENCHMARK(previousByGenerator);

// The kinder peer: asks the generator once for each month instead of once for each day.
void previousByGeneratorOfMonth(benchmark::State& state)
{
    using Generator = gregorian::nth_day_of_the_week_in_month;
    const auto& days = boostDays();
    std::size_t i = 0;
    for (auto _ : state)
    {
        const auto& day = days[i++ % Days];
        gregorian::date month(day.year(), day.month(), 1);
        auto found = Generator(Generator::second, gregorian::Tuesday, month.month()).get_date(month.year());
        while (found > day)
        {
            month -= gregorian::months(1);
            found = Generator(Generator::second, gregorian::Tuesday, month.month()).get_date(month.year());
        }
        benchmark::DoNotOptimize(found);
    }
}
BENCHMARK(previousByGeneratorOfMonth);

const bool added =
    zelmodel_bench::addFigure({"is a date scheduled", "isScheduledAtDate", "isScheduledByGenerator", 0.50}) &&
    zelmodel_bench::addFigure({"previous scheduled date", "previousScheduleDate", "previousByGenerator", 0.25}) &&
    zelmodel_bench::addFigure(
        {"previous scheduled date, generator per month", "previousScheduleDate", "previousByGeneratorOfMonth", 1.00});

} // namespace
