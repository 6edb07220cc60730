#include "calendar_sweep_cases.h"

#include <zelplatform/xmlpp/xml_document.h>

namespace zelmodel_test
{

using namespace zelplatform::model::structs;

namespace
{

using Week = std::array<bool, 7>;
using Months = std::array<bool, 12>;

constexpr Months AllMonths{true, true, true, true, true, true, true, true, true, true, true, true};
constexpr Months NoMonths{};
constexpr Months February{false, true};
constexpr Months December{false, false, false, false, false, false, false, false, false, false, false, true};
constexpr Months ShortMonths{false, false, false, true, false, true, false, false, true, false, true, false};
constexpr Months JanuaryAndJuly{true, false, false, false, false, false, true};
constexpr Week AllDays{true, true, true, true, true, true, true};
constexpr Week NoDays{};
constexpr Week Monday{false, true};
constexpr Week TuesdayAndSaturday{false, false, true, false, false, false, true};

const char* const WeekDayNames[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
const char* const MonthNames[] = {"January", "February", "March",     "April",   "May",      "June",
                                  "July",    "August",   "September", "October", "November", "December"};
const char* const NumberNames[] = {"", "First", "Second", "Third", "Fourth", "Last", "Every"};

struct NamedMonths
{
    const char* name;
    Months months;
};
constexpr NamedMonths MonthSets[] = {{"all months", AllMonths},
                                     {"February", February},
                                     {"December", December},
                                     {"months of 30 days", ShortMonths},
                                     {"January, July", JanuaryAndJuly}};

Week onlyDay(int weekDay)
{
    Week week{};
    week[static_cast<std::size_t>(weekDay)] = true;
    return week;
}

CWeekMask toMask(const Week& week)
{
    return CWeekMask(std::vector<bool>(week.begin(), week.end()));
}

CMonthMask toMask(const Months& months)
{
    return CMonthMask(std::vector<bool>(months.begin(), months.end()));
}

SweepCase fromDocument(const std::string& name, const CalendarRules& rules)
{
    const auto document = xmlpp::CXmlDocument::Unserialize(calendarDocument(rules));
    return {name, rules, CScheduleCalendar::FromXml(document.GetRootNode())};
}

const char* word(bool flag)
{
    return flag ? "true" : "false";
}

} // namespace

std::string calendarDocument(const CalendarRules& rules)
{
    std::string text = std::string("<Schedule WeekDayNumber=\"") + NumberNames[rules.number] + "\" DayOfMonth=\"" +
                       std::to_string(rules.day) + "\" Type=\"" + std::to_string(rules.type) + "\"><WeekMask";
    for (std::size_t day = 0; day < rules.week.size(); ++day)
        text += std::string(" ") + WeekDayNames[day] + "=\"" + word(rules.week[day]) + "\"";
    text += "/><MonthMask";
    for (std::size_t month = 0; month < rules.months.size(); ++month)
        text += std::string(" ") + MonthNames[month] + "=\"" + word(rules.months[month]) + "\"";
    return text + "/><Time Hours=\"22\" Minutes=\"30\"/></Schedule>";
}

std::vector<SweepCase> weeklyCases()
{
    std::vector<SweepCase> cases;
    for (unsigned bits = 0; bits < 128; ++bits)
    {
        Week week{};
        for (std::size_t day = 0; day < week.size(); ++day)
            week[day] = ((bits >> day) & 1U) != 0;
        CScheduleCalendar calendar;
        calendar.SetWeekly(std::nullopt, toMask(week));
        cases.push_back({"weekly, mask " + std::to_string(bits), {0, week, AllMonths, 6, 0}, calendar});
    }
    return cases;
}

std::vector<SweepCase> monthlyByWeekDayCases()
{
    std::vector<SweepCase> cases;
    std::vector<NamedMonths> sets(std::begin(MonthSets), std::end(MonthSets));
    sets.push_back({"no month", NoMonths});
    for (const NamedMonths& set : sets)
    {
        for (int number = 1; number <= 5; ++number)
        {
            for (int weekDay = 0; weekDay < 7; ++weekDay)
            {
                CScheduleCalendar calendar;
                calendar.SetMonthly(std::nullopt, static_cast<EWeekDayNumber::type>(number),
                                    static_cast<datetime::EDayOfWeek::type>(weekDay), toMask(set.months));
                cases.push_back({std::string(NumberNames[number]) + " " + WeekDayNames[weekDay] + " of " + set.name,
                                 {1, onlyDay(weekDay), set.months, number, 0},
                                 calendar});
            }
        }
    }
    return cases;
}

std::vector<SweepCase> monthlyOnDayCases()
{
    std::vector<SweepCase> cases;
    for (const NamedMonths& set : MonthSets)
    {
        for (int day = 1; day <= 32; ++day)
        {
            CScheduleCalendar calendar;
            calendar.SetMonthlyOnDay(std::nullopt, CDayOfMonth(static_cast<unsigned long>(day)), toMask(set.months));
            cases.push_back(
                {"day " + std::to_string(day) + " of " + set.name, {1, AllDays, set.months, 6, day}, calendar});
        }
    }
    return cases;
}

std::vector<SweepCase> documentCases()
{
    std::vector<SweepCase> cases;
    const auto add = [&cases](const std::string& name, const CalendarRules& rules) {
        cases.push_back(fromDocument("document: " + name, rules));
    };

    for (const int day : {1, 7, 8, 14, 15, 22, 28, 29, 31, 32})
    {
        for (int number = 1; number <= 5; ++number)
        {
            const std::string name = std::string(NumberNames[number]) + " and day " + std::to_string(day);
            add(name + " on Monday", {1, Monday, AllMonths, number, day});
            add(name + " on every week day in February", {1, AllDays, February, number, day});
        }
    }
    for (int weekDay = 0; weekDay < 7; ++weekDay)
    {
        add(std::string("29 February on ") + WeekDayNames[weekDay], {1, onlyDay(weekDay), February, 6, 29});
        add(std::string("Every ") + WeekDayNames[weekDay], {1, onlyDay(weekDay), JanuaryAndJuly, 6, 0});
        add(std::string("last day on ") + WeekDayNames[weekDay], {1, onlyDay(weekDay), ShortMonths, 6, 32});
    }
    for (int number = 1; number <= 6; ++number)
    {
        add(std::string("two week days, ") + NumberNames[number], {1, TuesdayAndSaturday, AllMonths, number, 0});
        add(std::string("no week day, ") + NumberNames[number], {1, NoDays, AllMonths, number, 13});
        add(std::string("no month, ") + NumberNames[number], {1, AllDays, NoMonths, number, 0});
        add(std::string("all week days, ") + NumberNames[number], {1, AllDays, ShortMonths, number, 0});
        add(std::string("weekly with stray ") + NumberNames[number], {0, TuesdayAndSaturday, NoMonths, number, 13});
        add(std::string("type 7, ") + NumberNames[number], {7, AllDays, AllMonths, number, 0});
    }
    add("no month on a day", {1, AllDays, NoMonths, 6, 5});
    add("day 30 in February", {1, AllDays, February, 6, 30});
    add("day 31 in months of 30 days", {1, AllDays, ShortMonths, 6, 31});
    add("Friday the 13th", {1, onlyDay(5), AllMonths, 6, 13});
    add("weekly without days", {0, NoDays, AllMonths, 6, 13});
    add("periodical with stray fields", {2, NoDays, NoMonths, 3, 13});
    add("continuous with stray fields", {3, NoDays, NoMonths, 5, 32});
    add("type -1", {-1, AllDays, AllMonths, 6, 0});
    return cases;
}

std::vector<SweepCase> oddCases()
{
    std::vector<SweepCase> cases;
    for (const int number : {0, 7, -1})
    {
        CScheduleCalendar calendar;
        calendar.SetMonthly(std::nullopt, static_cast<EWeekDayNumber::type>(number), datetime::EDayOfWeek::Wednesday,
                            toMask(February));
        CalendarRules rules{1, onlyDay(3), February, number, 0};
        cases.push_back({"number " + std::to_string(number), rules, calendar});

        calendar.GetDayOfMonth().Set(29);
        rules.day = 29;
        cases.push_back({"number " + std::to_string(number) + " and day 29", rules, calendar});
    }
    CScheduleCalendar periodical;
    periodical.SetPeriodically(CScheduleTime(4, 0));
    cases.push_back({"periodical", {2, AllDays, AllMonths, 6, 0}, periodical});
    CScheduleCalendar continuous;
    continuous.SetContinuously();
    cases.push_back({"continuous", {3, AllDays, AllMonths, 6, 0}, continuous});
    return cases;
}

} // namespace zelmodel_test
