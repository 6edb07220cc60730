#include "html_page.h"

#include "alternative.h"
#include "html_tables.h"
#include "markup.h"
#include "style_sheet.h"

namespace picture
{
namespace
{

void addHead(Markup& markup, const SchedulePicture& picture)
{
    markup.add("head", {}, [&] {
        markup.addEmpty("meta", {{"charset", "utf-8"}});
        markup.addEmpty("meta", {{"name", "viewport"}, {"content", "width=device-width, initial-scale=1"}});
        markup.addEmpty("meta", {{"name", "color-scheme"}, {"content", "light dark"}});
        markup.add("title", {}, tellTitle(picture));
        markup.addStyle(htmlStyle());
    });
}

void addFacts(Markup& markup, const std::vector<Fact>& facts)
{
    markup.add("dl", {}, [&] {
        for (const auto& fact : facts)
        {
            markup.add("dt", {}, fact.label);
            markup.add("dd", {}, fact.words);
        }
    });
}

void addSection(Markup& markup, const char* id, const std::string& heading, const Markup::Content& content)
{
    markup.add("section", {{"aria-labelledby", id}}, [&] {
        markup.add("h2", {{"id", id}}, heading);
        content();
    });
}

void addSchedule(Markup& markup, const SchedulePicture& picture)
{
    addSection(markup, "schedule", "Schedule", [&] { addFacts(markup, picture.facts); });
    addSection(markup, "calendar", "Calendar of " + picture.span, [&] { addCalendar(markup, picture.months); });
}

void addWindow(Markup& markup, const WindowPart& window)
{
    addSection(markup, "window", "Backup window", [&] {
        markup.add("p", {}, window.name + ": " + window.words);
        addWeek(markup, window.week);
        addFacts(markup, window.facts);
    });
}

} // namespace

std::string renderHtml(const SchedulePicture& picture)
{
    Markup markup;
    markup.addDocumentType();
    markup.add("html", {{"lang", "en"}}, [&] {
        addHead(markup, picture);
        markup.add("body", {}, [&] {
            markup.add("main", {}, [&] {
                markup.add("h1", {}, picture.name);
                if (!picture.months.empty())
                {
                    markup.add("p", {}, picture.words);
                    addSchedule(markup, picture);
                }
                if (picture.window)
                    addWindow(markup, *picture.window);
            });
        });
    });
    return markup.text();
}

} // namespace picture
