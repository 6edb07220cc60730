#include <optional>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_calendar.h>

using namespace zelplatform::model::structs;
using datetime::EDayOfWeek;

namespace
{

using Time = std::optional<CScheduleTime>;

const Time HalfPastTen = CScheduleTime(22, 30);
const CMonthMask AllMonths(true);
const CMonthMask MayAndJune = CMonthMask::FromString("May,June", ',');
const CWeekMask AllDays(true);

CWeekMask weekOf(const std::string& names)
{
    return CWeekMask::FromString(names, ',');
}

void expectState(const CScheduleCalendar& calendar, EScheduleType::type type, const CWeekMask& week,
                 const CMonthMask& months, EWeekDayNumber::type number, unsigned long day, const Time& time)
{
    EXPECT_EQ(calendar.GetScheduleType(), type);
    EXPECT_EQ(calendar.GetWeekMask(), week);
    EXPECT_EQ(calendar.GetMonthMask(), months);
    EXPECT_EQ(calendar.GetWeekDayNumber(), number);
    EXPECT_EQ(calendar.GetDayOfMonth().Get(), day);
    EXPECT_EQ(calendar.TryGetTime(), time);
}

/// A calendar whose every field differs from what any setter leaves behind.
CScheduleCalendar strayCalendar()
{
    CScheduleCalendar calendar;
    calendar.SetMonthlyOnDay(CScheduleTime(1, 1), CDayOfMonth(17), CMonthMask::FromString("March", ','));
    calendar.GetWeekMask() = weekOf("Tuesday,Saturday");
    return calendar;
}

} // namespace

TEST(ScheduleCalendarValue, TypesHaveFixedNumbers)
{
    EXPECT_EQ(static_cast<int>(EScheduleType::Weekly), 0);
    EXPECT_EQ(static_cast<int>(EScheduleType::Monthly), 1);
    EXPECT_EQ(static_cast<int>(EScheduleType::Periodically), 2);
    EXPECT_EQ(static_cast<int>(EScheduleType::Continuously), 3);
}

TEST(ScheduleCalendarValue, DefaultIsTheFirstMondayOfEveryMonth)
{
    expectState(CScheduleCalendar(), EScheduleType::Monthly, weekOf("Monday"), AllMonths, EWeekDayNumber::First, 0,
                std::nullopt);
}

TEST(ScheduleCalendarValue, SettersLeaveTheStateOfTheirKind)
{
    CScheduleCalendar calendar = strayCalendar();
    calendar.SetWeekly(HalfPastTen, weekOf("Monday,Friday"));
    expectState(calendar, EScheduleType::Weekly, weekOf("Monday,Friday"), AllMonths, EWeekDayNumber::Every, 0,
                HalfPastTen);

    calendar = strayCalendar();
    calendar.SetMonthly(HalfPastTen, EWeekDayNumber::Third, EDayOfWeek::Sunday, MayAndJune);
    expectState(calendar, EScheduleType::Monthly, weekOf("Sunday"), MayAndJune, EWeekDayNumber::Third, 0, HalfPastTen);

    calendar.SetMonthlyOnDay(std::nullopt, CDayOfMonth(32), MayAndJune);
    expectState(calendar, EScheduleType::Monthly, AllDays, MayAndJune, EWeekDayNumber::Every, 32, std::nullopt);

    calendar = strayCalendar();
    calendar.SetPeriodically(CScheduleTime(4, 0));
    expectState(calendar, EScheduleType::Periodically, AllDays, AllMonths, EWeekDayNumber::Every, 0,
                CScheduleTime(4, 0));

    calendar = strayCalendar();
    calendar.SetContinuously();
    expectState(calendar, EScheduleType::Continuously, AllDays, AllMonths, EWeekDayNumber::Every, 0, std::nullopt);

    calendar = strayCalendar();
    calendar.SetDefaultWeekly(HalfPastTen);
    expectState(calendar, EScheduleType::Weekly, weekOf("Saturday"), AllMonths, EWeekDayNumber::Every, 0, HalfPastTen);

    calendar = strayCalendar();
    calendar.SetDefaultMonthly(HalfPastTen);
    expectState(calendar, EScheduleType::Monthly, weekOf("Monday"), AllMonths, EWeekDayNumber::First, 0, HalfPastTen);
}

TEST(ScheduleCalendarValue, SameScheduleComparesEqualWhateverCameBefore)
{
    CScheduleCalendar fresh;
    CScheduleCalendar used = strayCalendar();
    fresh.SetWeekly(HalfPastTen, weekOf("Friday"));
    used.SetWeekly(HalfPastTen, weekOf("Friday"));
    EXPECT_TRUE(fresh == used);
    fresh.SetPeriodically(CScheduleTime(2, 0));
    used.SetPeriodically(CScheduleTime(2, 0));
    EXPECT_TRUE(fresh == used);
}

TEST(ScheduleCalendarValue, ComparesEveryField)
{
    const CScheduleCalendar base = strayCalendar();
    EXPECT_TRUE(base == strayCalendar());
    EXPECT_FALSE(base != strayCalendar());
    std::vector<CScheduleCalendar> others(6, base);
    others[0].ResetTime();
    others[1].SetTime(CScheduleTime(1, 2));
    others[2].GetWeekMask().SetDay(EDayOfWeek::Sunday, true);
    others[3].GetMonthMask().Reset(true);
    others[4].GetDayOfMonth().Set(18);
    others[5].SetContinuously();
    for (std::size_t i = 0; i < others.size(); ++i)
    {
        EXPECT_TRUE(base != others[i]) << i;
        EXPECT_FALSE(others[i] == base) << i;
    }
    CScheduleCalendar first;
    CScheduleCalendar second;
    second.SetWeekDayNumber(EWeekDayNumber::Second);
    EXPECT_TRUE(first != second);
}

TEST(ScheduleCalendarValue, SetsAndResetsTheTime)
{
    CScheduleCalendar calendar;
    EXPECT_FALSE(calendar.IsTimeSet());
    EXPECT_THROW(calendar.GetTime(), std::bad_optional_access);
    calendar.SetTime(HalfPastTen);
    EXPECT_TRUE(calendar.IsTimeSet());
    EXPECT_EQ(calendar.GetTime(), *HalfPastTen);
    calendar.SetTime(std::nullopt);
    EXPECT_EQ(calendar.TryGetTime(), std::nullopt);
    calendar.SetTime(CScheduleTime(0, 0));
    EXPECT_EQ(calendar.GetTime(), CScheduleTime(0, 0));
    calendar.ResetTime();
    EXPECT_FALSE(calendar.IsTimeSet());
}

TEST(ScheduleCalendarValue, APeriodOfZeroIsAWholeDay)
{
    CScheduleCalendar calendar;
    calendar.SetPeriodically(CScheduleTime(0, 0));
    EXPECT_EQ(calendar.GetTime(), CScheduleTime(24, 0));
    calendar.SetTime(CScheduleTime(3, 0));
    calendar.SetTime(CScheduleTime(0, 0));
    EXPECT_EQ(calendar.GetTime(), CScheduleTime(24, 0));
    calendar.SetPeriodically(CScheduleTime(24, 0));
    EXPECT_EQ(calendar.GetTime(), CScheduleTime(24, 0));
}

TEST(ScheduleCalendarValue, TellsItsKind)
{
    CScheduleCalendar calendar;
    const struct
    {
        bool weekly, monthly, periodical, continuous;
    } table[] = {{true, false, false, false},
                 {false, true, false, false},
                 {false, false, true, false},
                 {false, false, false, true}};
    for (int kind = 0; kind < 4; ++kind)
    {
        calendar = CScheduleCalendar(static_cast<EScheduleType::type>(kind), CScheduleTime(5, 0), weekOf("Monday"),
                                     AllMonths, EWeekDayNumber::Second, CDayOfMonth(0));
        EXPECT_EQ(calendar.IsScheduleWeekly(), table[kind].weekly);
        EXPECT_EQ(calendar.IsScheduleMonthly(), table[kind].monthly);
        EXPECT_EQ(calendar.IsSchedulePeriodically(), table[kind].periodical);
        EXPECT_EQ(calendar.IsScheduleContinuously(), table[kind].continuous);
        EXPECT_EQ(calendar.IsScheduleRecurrent(), kind >= 2);
        EXPECT_EQ(calendar.IsActiveFullSupported(), kind < 2);
    }
}

TEST(ScheduleCalendarValue, BuildsFromAllFields)
{
    expectState(CScheduleCalendar(EScheduleType::Weekly, HalfPastTen, weekOf("Monday,Sunday"), MayAndJune,
                                  EWeekDayNumber::First, CDayOfMonth(3)),
                EScheduleType::Weekly, weekOf("Monday,Sunday"), AllMonths, EWeekDayNumber::Every, 0, HalfPastTen);
    expectState(CScheduleCalendar(EScheduleType::Monthly, HalfPastTen, weekOf("Monday,Sunday"), MayAndJune,
                                  EWeekDayNumber::First, CDayOfMonth(3)),
                EScheduleType::Monthly, AllDays, MayAndJune, EWeekDayNumber::Every, 3, HalfPastTen);
    expectState(CScheduleCalendar(EScheduleType::Monthly, std::nullopt, weekOf("Thursday"), MayAndJune,
                                  EWeekDayNumber::Last, CDayOfMonth(0)),
                EScheduleType::Monthly, weekOf("Thursday"), MayAndJune, EWeekDayNumber::Last, 0, std::nullopt);
    expectState(CScheduleCalendar(EScheduleType::Periodically, CScheduleTime(0, 0), CWeekMask(false), CMonthMask(false),
                                  EWeekDayNumber::Last, CDayOfMonth(9)),
                EScheduleType::Periodically, AllDays, AllMonths, EWeekDayNumber::Every, 0, CScheduleTime(24, 0));
    expectState(CScheduleCalendar(EScheduleType::Continuously, CScheduleTime(99, 99), CWeekMask(false),
                                  CMonthMask(false), EWeekDayNumber::Last, CDayOfMonth(9)),
                EScheduleType::Continuously, AllDays, AllMonths, EWeekDayNumber::Every, 0, std::nullopt);
}

TEST(ScheduleCalendarValue, TellsTheTypeOfOldDocuments)
{
    CScheduleCalendar weekly;
    weekly.SetWeekly(std::nullopt, AllDays);
    EXPECT_EQ(weekly.DetermineOldScheduleType(false), EScheduleType::Weekly);
    EXPECT_EQ(weekly.DetermineOldScheduleType(true), EScheduleType::Periodically);
    EXPECT_EQ(strayCalendar().DetermineOldScheduleType(false), EScheduleType::Monthly);
    EXPECT_EQ(strayCalendar().DetermineOldScheduleType(true), EScheduleType::Periodically);
    EXPECT_EQ(CScheduleCalendar().DetermineOldScheduleType(false), EScheduleType::Monthly);
}

TEST(ScheduleCalendarQuirks, EveryKeepsTheDayAndOthersClearIt)
{
    CScheduleCalendar calendar = strayCalendar();
    calendar.SetWeekDayNumber(EWeekDayNumber::Every);
    EXPECT_EQ(calendar.GetDayOfMonth().Get(), 17U);
    calendar.SetWeekDayNumber(EWeekDayNumber::Second);
    EXPECT_FALSE(calendar.GetDayOfMonth().IsSet());
    EXPECT_EQ(calendar.GetWeekDayNumber(), EWeekDayNumber::Second);
    EXPECT_EQ(calendar.GetWeekMask(), weekOf("Tuesday,Saturday"));
}

TEST(ScheduleCalendarQuirks, AContinuousCalendarTakesATime)
{
    CScheduleCalendar calendar;
    calendar.SetContinuously();
    calendar.SetTime(HalfPastTen);
    EXPECT_EQ(calendar.TryGetTime(), HalfPastTen);
    EXPECT_TRUE(calendar.IsScheduleContinuously());
}
