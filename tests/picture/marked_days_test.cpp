#include <map>
#include <ostream>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "elements.h"
#include "picture/html_page.h"
#include "picture/svg_picture.h"
#include "picture_samples.h"

namespace
{

using datetime::EDayOfWeek;
using datetime::EMonth;
using zelmodel_test::attributeOf;
using zelmodel_test::Elements;
using zelmodel_test::scheduleOf;
using zelplatform::model::structs::CDayOfMonth;
using zelplatform::model::structs::CMonthMask;
using zelplatform::model::structs::CScheduleOptions;
using zelplatform::model::structs::CWeekMask;
using zelplatform::model::structs::EWeekDayNumber;

/// The class of each day that has a mark, by its date.
using Marks = std::map<std::string, std::string>;

struct Case
{
    const char* name;
    CScheduleOptions schedule;
    const char* first;
    std::size_t months;
    const char* window;
    Marks marks;
};

std::ostream& operator<<(std::ostream& stream, const Case& test)
{
    return stream << test.name;
}

Marks marksOf(const std::string& style, const std::string& month, std::initializer_list<const char*> days)
{
    Marks marks;
    for (const auto* day : days)
        marks[month + '-' + day] = style;
    return marks;
}

Marks both(Marks one, const Marks& other)
{
    one.insert(other.begin(), other.end());
    return one;
}

CScheduleOptions monthEnds()
{
    CScheduleOptions schedule;
    CDayOfMonth last;
    last.SetLast();
    schedule.GetJobStartOptions().SetMonthlyOnDay(23, 45, last, CMonthMask(true));
    return schedule;
}

CScheduleOptions withMonthlyFulls()
{
    auto schedule = scheduleOf({"Mon,Fri", {}, {}});
    schedule.GetActiveFullOptions().SetMonthly(EWeekDayNumber::First, EDayOfWeek::Friday, CMonthMask(true));
    schedule.GetSyntheticFullOptions().SetMonthly(EWeekDayNumber::First, EDayOfWeek::Monday,
                                                  zelmodel_test::months({EMonth::January, EMonth::July}));
    return schedule;
}

// Typed from a calendar.
Case cases(std::size_t index)
{
    const auto window = zelmodel_test::OfficeHoursClosed;
    const Case all[] = {
        {"Mondays and Fridays of June 2026", scheduleOf({"Mon,Fri", "Fri", {}}), "2026-06-01", 1, "",
         both(marksOf("start", "2026-06", {"01", "08", "15", "22", "29"}),
              marksOf("active", "2026-06", {"05", "12", "19", "26"}))},
        {"fulls of a January", withMonthlyFulls(), "2026-01-01", 1, "",
         both(both(marksOf("active", "2026-01", {"02"}), marksOf("synthetic", "2026-01", {"05"})),
              marksOf("start", "2026-01", {"09", "12", "16", "19", "23", "26", "30"}))},
        {"both fulls of a Sunday", scheduleOf({"Sun", "Sun", "Sun"}), "2026-03-01", 1, "",
         marksOf("both", "2026-03", {"01", "08", "15", "22", "29"})},
        {"the ends of months in a leap year",
         monthEnds(),
         "2024-01-01",
         12,
         "",
         {{"2024-01-31", "start"},
          {"2024-02-29", "start"},
          {"2024-03-31", "start"},
          {"2024-04-30", "start"},
          {"2024-05-31", "start"},
          {"2024-06-30", "start"},
          {"2024-07-31", "start"},
          {"2024-08-31", "start"},
          {"2024-09-30", "start"},
          {"2024-10-31", "start"},
          {"2024-11-30", "start"},
          {"2024-12-31", "start"}}},
        {"the ends of February and March in a year without a leap day",
         monthEnds(),
         "2025-02-01",
         2,
         "",
         {{"2025-02-28", "start"}, {"2025-03-31", "start"}}},
        {"fulls on days without a start", scheduleOf({"Mon", "Tue,Thu", "Wed,Thu"}), "2027-02-01", 1, "",
         both(both(marksOf("start", "2027-02", {"01", "08", "15", "22"}),
                   marksOf("idle-active", "2027-02", {"02", "09", "16", "23"})),
              both(marksOf("idle-synthetic", "2027-02", {"03", "10", "17", "24"}),
                   marksOf("idle-both", "2027-02", {"04", "11", "18", "25"})))},
        {"starts while the window is open", scheduleOf({"Mon", {}, {}}), "2026-06-01", 1, window,
         marksOf("start", "2026-06", {"01", "08", "15", "22", "29"})},
    };
    return all[index];
}

Marks marksInSvg(const std::string& text)
{
    Marks marks;
    const Elements elements(text);
    for (const auto* group : elements.named("g"))
    {
        const auto* title = group->FirstChildElement("title");
        if (title == nullptr || group->FirstChildElement("text") == nullptr)
            continue;
        // "Friday 2026-01-02: start that makes an active full"
        const std::string words = title->GetText();
        marks[words.substr(words.find(' ') + 1, 10)] = attributeOf(*group, "class");
    }
    return marks;
}

Marks marksInHtml(const std::string& text)
{
    Marks marks;
    const Elements elements(text);
    for (const auto* time : elements.named("time"))
        marks[attributeOf(*time, "datetime")] =
            attributeOf(*time->Parent()->ToElement(), "class").substr(std::string("mark ").size());
    return marks;
}

class MarkedDays : public testing::TestWithParam<std::size_t>
{
};

TEST_P(MarkedDays, AreThoseOfTheCalendar)
{
    const auto test = cases(GetParam());
    const auto picture = zelmodel_test::pictureOf(test.schedule, test.first, test.months, test.window);
    EXPECT_EQ(marksInSvg(renderSvg(picture)), test.marks) << test;
    EXPECT_EQ(marksInHtml(renderHtml(picture)), test.marks) << test;
}

INSTANTIATE_TEST_SUITE_P(Calendars, MarkedDays, testing::Range(std::size_t{0}, std::size_t{7}));

TEST(MarkedDays, AreShutWhereTheWindowIsClosed)
{
    auto schedule = scheduleOf({});
    schedule.GetJobStartOptions().SetWeekly(12, 0, CWeekMask::FromString("Fri,Sat", ','));
    const auto picture = zelmodel_test::pictureOf(schedule, "2026-06-01", 1, zelmodel_test::OfficeHoursClosed);
    const auto expected = both(marksOf("shut", "2026-06", {"05", "12", "19", "26"}),
                               marksOf("start", "2026-06", {"06", "13", "20", "27"}));
    EXPECT_EQ(marksInSvg(renderSvg(picture)), expected);
    EXPECT_EQ(marksInHtml(renderHtml(picture)), expected);
}

TEST(MarkedDays, OfJobsThatRecurAreAll)
{
    CScheduleOptions continuous;
    continuous.GetJobStartOptions().SetContinuously();
    CScheduleOptions periodical;
    periodical.GetJobStartOptions().SetPeriodically(4, 0);
    for (const auto& schedule : {continuous, periodical})
    {
        const auto picture = zelmodel_test::pictureOf(schedule, "2026-01-01", 12);
        EXPECT_EQ(marksInSvg(renderSvg(picture)).size(), 365U);
        EXPECT_EQ(marksInHtml(renderHtml(picture)).size(), 365U);
    }
}

TEST(MarkedDays, StandInTheColumnOfTheirWeekDay)
{
    // 1 June 2026 is a Monday, 5 June a Friday: the first and the fifth column of the first week.
    const Elements elements(renderSvg(zelmodel_test::pictureOf(scheduleOf({"Mon,Fri", {}, {}}), "2026-06-01", 1)));
    std::map<std::string, std::pair<std::string, std::string>> places;
    for (const auto* text : elements.named("text"))
    {
        if (attributeOf(*text, "class") == "day")
            places[zelmodel_test::textIn(*text)] = {attributeOf(*text, "x"), attributeOf(*text, "y")};
    }
    using Place = std::pair<std::string, std::string>;
    EXPECT_EQ(places.at("5"), Place("135", "62"));
    EXPECT_EQ(places.at("8"), Place("15", "92"));
    EXPECT_EQ(places.at("28"), Place("195", "152"));
    EXPECT_EQ(places.at("30"), Place("45", "182"));
}

} // namespace
