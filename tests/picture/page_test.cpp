#include <cstdlib>
#include <functional>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "elements.h"
#include "picture/html_page.h"
#include "picture/svg_picture.h"
#include "picture_samples.h"
#include "support/temporary_folder.h"

namespace
{

using picture::SchedulePicture;
using zelmodel_test::attributeOf;
using zelmodel_test::Elements;
using zelmodel_test::pictureOf;
using zelmodel_test::scheduleOf;
using zelmodel_test::textIn;

constexpr const char* Hostile = "</title></style><script>alert(1)</script>\"'&\x01\xff\xef\xbf\xbf]]>";
constexpr const char* HostileShown = "</title></style><script>alert(1)</script>\"'&\\x01\\xff\\uffff]]>";

SchedulePicture usual()
{
    auto picture = pictureOf(scheduleOf({"Mon,Fri", "Fri", "Mon"}), "2026-06-01", 1, zelmodel_test::OfficeHoursClosed);
    picture.span = "June 2026";
    return picture;
}

SchedulePicture hostile()
{
    auto picture = usual();
    picture.name = picture.span = picture.words = picture.window->name = picture.window->words = Hostile;
    picture.facts.push_back({Hostile, Hostile});
    picture.window->facts.push_back({Hostile, Hostile});
    return picture;
}

std::vector<SchedulePicture> samples()
{
    return {usual(), hostile(), pictureOf(scheduleOf({}), "2024-01-01", 12),
            zelmodel_test::pictureOfWindow(zelmodel_test::OfficeHoursClosed)};
}

void forEachText(const std::function<void(const std::string& text)>& check)
{
    for (const auto& picture : samples())
    {
        check(renderSvg(picture));
        check(renderHtml(picture));
    }
}

TEST(EveryPicture, IsWellFormedForOthers)
{
    const zelmodel_test::TemporaryFolder folder;
    forEachText([&](const std::string& text) {
        const auto file = folder.write("picture.xml", text);
        EXPECT_EQ(std::system(("xmllint --noout --nonet '" + file + "'").c_str()), 0) << text.substr(0, 300);
        EXPECT_NO_THROW(Elements{text});
    });
}

// One name space is named like a place of the web; it is none, and nothing is fetched from there.
TEST(EveryPicture, NamesNoOtherFileAndHasNoScript)
{
    const std::regex outside(
        R"(url\((?!#)|@import|<(script|link|img|image|iframe|object|embed|use|foreignObject|a)\b)");
    const std::regex acting(R"(^(on.*|src|href|xlink:href|style|action|data|srcset)$)");
    forEachText([&](const std::string& text) {
        EXPECT_FALSE(std::regex_search(text, outside));
        const auto place = text.find("http");
        if (place != std::string::npos)
        {
            EXPECT_EQ(text.compare(place - 7, 34, "xmlns=\"http://www.w3.org/2000/svg\""), 0);
            EXPECT_EQ(text.find("http", place + 1), std::string::npos);
        }
        const Elements elements(text);
        for (const auto* element : elements.all())
        {
            for (const auto* attribute = element->FirstAttribute(); attribute != nullptr; attribute = attribute->Next())
                EXPECT_FALSE(std::regex_match(attribute->Name(), acting)) << attribute->Name();
        }
    });
}

TEST(EveryPicture, IsTheSameEachTime)
{
    EXPECT_EQ(renderSvg(usual()), renderSvg(usual()));
    EXPECT_EQ(renderHtml(usual()), renderHtml(usual()));
}

TEST(EveryPicture, ShowsHostileTextsAsText)
{
    const Elements svg(renderSvg(hostile()));
    EXPECT_EQ(textIn(*svg.named("title").front()), std::string(HostileShown) + ", " + HostileShown);
    EXPECT_TRUE(svg.named("script").empty());
    EXPECT_EQ(svg.named("style").size(), 1U);
    const Elements html(renderHtml(hostile()));
    EXPECT_EQ(textIn(*html.named("h1").front()), HostileShown);
    EXPECT_EQ(textIn(*html.named("dd").at(3)), HostileShown);
    EXPECT_TRUE(html.named("script").empty());
}

TEST(EveryPicture, AStyleSheetReadsTheSameInSvgAndHtml)
{
    forEachText([](const std::string& text) {
        const auto begin = text.find("<style>") + 7;
        const auto rules = text.substr(begin, text.find("</style>") - begin);
        EXPECT_EQ(rules.find_first_of("<>&"), std::string::npos);
        EXPECT_NE(rules.find("@media screen and (prefers-color-scheme:dark){"), std::string::npos);
        EXPECT_NE(rules.find("@media print{"), std::string::npos);
    });
}

TEST(SvgPicture, IsAnImageWithATitleAndADescription)
{
    const Elements elements(renderSvg(usual()));
    const auto& root = elements.root();
    EXPECT_EQ(attributeOf(root, "role"), "img");
    EXPECT_EQ(attributeOf(root, "aria-labelledby"), "title description");
    EXPECT_EQ(attributeOf(root, "xml:lang"), "en");
    const auto* title = root.FirstChildElement("title");
    const auto* description = root.FirstChildElement("desc");
    EXPECT_EQ(attributeOf(*title, "id"), "title");
    EXPECT_EQ(attributeOf(*description, "id"), "description");
    EXPECT_STREQ(title->GetText(), "job.xml, June 2026");
    EXPECT_STREQ(
        description->GetText(),
        "starts Every Monday, Friday at 21:00, local time of UTC (TZ), UTC+00:00 on 2026-06-01. "
        "Start: starts Every Monday, Friday at 21:00. Active full: Every Friday. Synthetic full: Every Monday. "
        "June 2026: start that makes an active full: 5, 12, 19 and 26; start that makes a synthetic full: 1, "
        "8, 15, 22 and 29. Backup window window.xml: open except in the hours that the document lists. "
        "Monday: open 00:00-08:00, 17:00-24:00. Tuesday: open 00:00-08:00, 17:00-24:00. "
        "Wednesday: open 00:00-08:00, 17:00-24:00. Thursday: open 00:00-08:00, 17:00-24:00. "
        "Friday: open 00:00-08:00, 17:00-24:00. Saturday: open all day. Sunday: open all day. "
        "Offset: 0 minutes, stored only: the hours above are not shifted.");
}

TEST(SvgPicture, NothingStandsOutsideOfIt)
{
    for (const auto& picture : samples())
    {
        const Elements elements(renderSvg(picture));
        const auto height = std::stoi(attributeOf(elements.root(), "height"));
        EXPECT_EQ(attributeOf(elements.root(), "viewBox"), "0 0 964 " + std::to_string(height));
        for (const auto* text : elements.named("text"))
        {
            EXPECT_LE(std::stoi(attributeOf(*text, "y")), height);
            EXPECT_LE(std::stoi(attributeOf(*text, "x")), 964);
        }
    }
}

TEST(HtmlPage, HasALanguageHeadingsAndTables)
{
    const Elements elements(renderHtml(usual()));
    EXPECT_EQ(attributeOf(elements.root(), "lang"), "en");
    std::vector<std::string> headings;
    for (const auto* element : elements.all())
    {
        if (std::regex_match(element->Name(), std::regex("h[1-6]")))
            headings.push_back(std::string(element->Name()) + ' ' + textIn(*element));
    }
    EXPECT_EQ(headings,
              (std::vector<std::string>{"h1 job.xml", "h2 Schedule", "h2 Calendar of June 2026", "h2 Backup window"}));
    for (const auto* section : elements.named("section"))
        EXPECT_EQ(attributeOf(*section, "aria-labelledby"), attributeOf(*section->FirstChildElement("h2"), "id"));
    for (const auto* table : elements.named("table"))
        EXPECT_NE(textIn(*table->FirstChildElement("caption")), "");
    for (const auto* head : elements.named("th"))
        EXPECT_NE(attributeOf(*head, "scope"), "");
}

TEST(HtmlPage, TellsTheScheduleInWords)
{
    const auto text = renderHtml(usual());
    EXPECT_NE(text.find("<p>starts Every Monday, Friday at 21:00, local time of UTC (TZ), UTC+00:00 on 2026-06-01</p>"),
              std::string::npos);
    EXPECT_NE(text.find("<dt>Active full</dt>\n                    <dd>Every Friday</dd>\n"), std::string::npos);
}

TEST(HtmlPage, OfAWindowAloneHasNoCalendar)
{
    const auto text = renderHtml(zelmodel_test::pictureOfWindow(zelmodel_test::OfficeHoursClosed));
    EXPECT_EQ(text.find("Calendar of"), std::string::npos);
    EXPECT_EQ(text.find("<h2 id=\"schedule\">"), std::string::npos);
    EXPECT_NE(text.find("<title>window.xml</title>"), std::string::npos);
}

TEST(BothPictures, TellWhatTheClockDoes)
{
    const zelmodel_test::LocalZone zone("Europe/Berlin");
    auto schedule = scheduleOf({"Sun", {}, {}});
    const zelplatform::model::CDate first(zelmodel_test::at("2026-03-01"));
    const when::Evaluation evaluation(schedule, nullptr, first);
    const SchedulePicture picture{"job.xml", "March 2026", "words", {}, when::planMonths(evaluation, first, 1), {}};
    const std::string words = "2026-03-29: 23 hours: the clock goes from 02:00 to 03:00";
    EXPECT_NE(renderHtml(picture).find("<li>" + words + "</li>"), std::string::npos);
    const auto svg = renderSvg(picture);
    EXPECT_NE(svg.find('>' + words + "</text>"), std::string::npos);
    EXPECT_NE(svg.find("<title>Sunday 2026-03-29: start; 23 hours: the clock goes from 02:00 to 03:00</title>"),
              std::string::npos);
}

} // namespace
