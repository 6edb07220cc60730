#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "elements.h"
#include "picture/html_page.h"
#include "picture/svg_picture.h"
#include "picture_samples.h"

namespace
{

using zelmodel_test::attributeOf;
using zelmodel_test::Elements;
using zelmodel_test::pictureOfWindow;

/// Seven days from Monday on, an hour a sign: "#" open, "." closed, "*" and "x" with a start in it.
using Week = std::vector<std::string>;

struct Sign
{
    const char* style;
    char sign;
    const char* words;
};

constexpr Sign Signs[] = {{"open", '#', "open"},
                          {"closed", '.', "closed"},
                          {"open-start", '*', "start in an open hour"},
                          {"closed-start", 'x', "start in a closed hour"}};

/// The sign of a class, when the words beside it are its own.
char signOf(const std::string& style, const std::string& words)
{
    for (const auto& sign : Signs)
    {
        if (style == sign.style && words == sign.words)
            return sign.sign;
    }
    return '?';
}

constexpr const char* Days[] = {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};

std::string clock(std::size_t hour)
{
    return (hour < 10 ? "0" : "") + std::to_string(hour) + ":00";
}

/// Each hour is told with its day and its time: "Monday 08:00-09:00: closed".
Week weekInSvg(const std::string& text)
{
    Week week;
    const Elements elements(text);
    for (const auto* day : elements.named("g"))
    {
        if (week.size() == std::size(Days) || attributeOf(*day, "aria-label") != Days[week.size()])
            continue;
        const std::string name = Days[week.size()];
        week.emplace_back();
        for (const auto* hour = day->FirstChildElement("g"); hour != nullptr; hour = hour->NextSiblingElement("g"))
        {
            const auto at = week.back().size();
            const auto prefix = name + ' ' + clock(at) + '-' + clock(at + 1) + ": ";
            const std::string title = hour->FirstChildElement("title")->GetText();
            EXPECT_EQ(title.rfind(prefix, 0), 0U) << title;
            week.back() += signOf(attributeOf(*hour, "class"), title.substr(prefix.size()));
        }
    }
    return week;
}

Week weekInHtml(const std::string& text)
{
    Week week;
    const Elements elements(text);
    for (const auto* row : elements.named("tr"))
    {
        const auto* head = row->FirstChildElement("th");
        if (head == nullptr || attributeOf(*head, "scope") != "row")
            continue;
        EXPECT_STREQ(head->FirstChildElement("span")->GetText(), Days[week.size()]);
        week.emplace_back();
        for (const auto* cell = row->FirstChildElement("td"); cell != nullptr; cell = cell->NextSiblingElement("td"))
        {
            const auto* sign = cell->FirstChildElement("span");
            week.back() += signOf(attributeOf(*sign, "class").substr(std::string("hour ").size()),
                                  sign->NextSiblingElement("span")->GetText());
        }
    }
    return week;
}

void expectWeek(const picture::SchedulePicture& picture, const Week& week)
{
    EXPECT_EQ(weekInSvg(renderSvg(picture)), week);
    EXPECT_EQ(weekInHtml(renderHtml(picture)), week);
}

// The scale:                   0     6     12    18    24
constexpr const char* Working = "########.........#######";
constexpr const char* Free = "########################";

TEST(WindowHours, OfOneThatListsItsClosedHours)
{
    expectWeek(pictureOfWindow(zelmodel_test::OfficeHoursClosed),
               {Working, Working, Working, Working, Working, Free, Free});
}

TEST(WindowHours, OfOneThatListsItsOpenHours)
{
    expectWeek(pictureOfWindow(R"(<ScheduleWindow Minutes="0" Kind="1"><Days><Monday Intervals="00-01"/>)"
                               R"(<Wednesday Intervals="03-05, 22-24"/><Sunday Intervals="23-24"/></Days>)"
                               R"(</ScheduleWindow>)"),
               {"#.......................", "........................", "...##.................##",
                "........................", "........................", "........................",
                ".......................#"});
}

TEST(WindowHours, ThoseOfStartsAreMarked)
{
    zelplatform::model::structs::CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetPeriodically(12, 0);
    const std::string working = "*#######....x....#######";
    const std::string weekend = "*###########*###########";
    expectWeek(zelmodel_test::pictureOf(schedule, "2026-06-01", 1, zelmodel_test::OfficeHoursClosed),
               {working, working, working, working, working, weekend, weekend});
}

TEST(WindowHours, OfAWindowAreToldInWordsToo)
{
    const auto html = renderHtml(pictureOfWindow(zelmodel_test::OfficeHoursClosed));
    EXPECT_NE(html.find("<dt>Monday</dt>\n"
                        "                    <dd>open 00:00-08:00, 17:00-24:00</dd>\n"),
              std::string::npos);
    EXPECT_NE(html.find("<dt>Saturday</dt>\n"
                        "                    <dd>open all day</dd>\n"),
              std::string::npos);
    EXPECT_NE(html.find("<p>window.xml: open except in the hours that the document lists</p>\n"), std::string::npos);
}

} // namespace
