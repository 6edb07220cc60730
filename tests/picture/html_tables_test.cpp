#include "picture/html_tables.h"

#include <string>

#include <gtest/gtest.h>

#include "picture_samples.h"

namespace
{

using picture::Markup;
using zelmodel_test::pictureOf;
using zelmodel_test::scheduleOf;

std::string tableOf(const std::string& text)
{
    const auto begin = text.find("<table");
    return text.substr(begin, text.find("</thead>", begin) - begin);
}

std::string lineWith(const std::string& part, const std::string& text)
{
    const auto at = text.find(part);
    EXPECT_NE(at, std::string::npos) << part;
    const auto begin = text.rfind('\n', at) + 1;
    return text.substr(begin, text.find('\n', at) - begin);
}

std::string june(const zelmodel_test::SampleSchedule& sample)
{
    Markup markup;
    const auto picture = pictureOf(scheduleOf(sample), "2026-06-01", 1);
    markup.add("div", {}, [&] { addCalendar(markup, picture.months); });
    return markup.text();
}

std::string officeHours()
{
    Markup markup;
    const auto picture = zelmodel_test::pictureOfWindow(zelmodel_test::OfficeHoursClosed);
    markup.add("div", {}, [&] { addWeek(markup, picture.window->week); });
    return markup.text();
}

std::string dayHead(const std::string& name)
{
    return "                    <th scope=\"col\"><span aria-hidden=\"true\">" + name.substr(0, 2) +
           "</span><span class=\"hidden\">" + name + "</span></th>\n";
}

TEST(HtmlMonth, HasACaptionAndHeads)
{
    EXPECT_EQ(tableOf(june({})), "<table>\n"
                                 "            <caption>June 2026</caption>\n"
                                 "            <thead>\n"
                                 "                <tr>\n" +
                                     dayHead("Monday") + dayHead("Tuesday") + dayHead("Wednesday") +
                                     dayHead("Thursday") + dayHead("Friday") + dayHead("Saturday") + dayHead("Sunday") +
                                     "                </tr>\n            ");
}

TEST(HtmlMonth, ADayIsToldInWords)
{
    const auto text = june({"Mon,Tue", "Tue,Wed", {}});
    EXPECT_EQ(lineWith("2026-06-08", text),
              "                    <td><span class=\"mark start\"><time class=\"number\" "
              "datetime=\"2026-06-08\">8</time></span><span class=\"hidden\">, start</span></td>");
    EXPECT_EQ(lineWith("2026-06-09", text),
              "                    <td><span class=\"mark active\"><time class=\"number\" "
              "datetime=\"2026-06-09\">9</time><span class=\"sign\" aria-hidden=\"true\">A</span></span><span "
              "class=\"hidden\">, start that makes an active full</span></td>");
    EXPECT_EQ(lineWith("2026-06-10", text),
              "                    <td><span class=\"mark idle-active\"><time class=\"number\" "
              "datetime=\"2026-06-10\">10</time><span class=\"sign\" aria-hidden=\"true\">a</span></span><span "
              "class=\"hidden\">, day of an active full, but no start</span></td>");
    EXPECT_NE(text.find("                    <td>11</td>\n"), std::string::npos);
    // 30 June is a Tuesday: five days of the last week are of another month.
    EXPECT_NE(text.find("                    <td></td>\n                    <td></td>\n                    <td></td>\n"
                        "                    <td></td>\n                    <td></td>\n                </tr>\n"
                        "            </tbody>\n"),
              std::string::npos)
        << text;
}

TEST(HtmlLegend, TellsTheMarksThatOccur)
{
    const auto text = june({"Mon,Tue", "Tue", {}});
    EXPECT_EQ(lineWith("start that makes an active full<", text),
              "        <li><span class=\"mark active\" aria-hidden=\"true\"><span class=\"number\">1</span><span "
              "class=\"sign\" aria-hidden=\"true\">A</span></span><span>start that makes an active full<span "
              "class=\"hidden\">, </span><span class=\"note muted\">5 days</span></span></li>");
}

TEST(HtmlLegend, SaysWhenThereIsNothing)
{
    zelplatform::model::structs::CScheduleOptions schedule = scheduleOf({});
    schedule.GetJobStartOptions().SetMonthlyOnDay(21, 0, zelplatform::model::structs::CDayOfMonth(31),
                                                  zelmodel_test::months({datetime::EMonth::January}));
    Markup markup;
    const auto picture = pictureOf(schedule, "2026-06-01", 1);
    markup.add("div", {}, [&] { addCalendar(markup, picture.months); });
    EXPECT_NE(markup.text().find("    <p>nothing is scheduled in this time</p>\n"), std::string::npos);
    EXPECT_EQ(markup.text().find("class=\"mark"), std::string::npos);
}

TEST(HtmlWeek, HasACaptionAndHeads)
{
    const auto text = officeHours();
    EXPECT_EQ(tableOf(text).rfind("<table class=\"week\">\n"
                                  "        <caption class=\"hidden\">Hours of the week</caption>\n"
                                  "        <thead>\n"
                                  "            <tr>\n"
                                  "                <td></td>\n"
                                  "                <th scope=\"col\"><span aria-hidden=\"true\">0</span><span "
                                  "class=\"hidden\">00:00 to 01:00</span></th>\n",
                                  0),
              0U)
        << text;
    EXPECT_NE(text.find("<span aria-hidden=\"true\">23</span><span class=\"hidden\">23:00 to 24:00</span></th>\n"),
              std::string::npos);
    EXPECT_EQ(lineWith(">Wednesday<", text),
              "                <th scope=\"row\"><span class=\"full\">Wednesday</span><span "
              "class=\"brief\">Wed</span></th>");
}

} // namespace
