#include "html_tables.h"

#include <zelplatform/datetime/names.h>
#include <zelplatform/util/util.h>

#include "alternative.h"
#include "describe/words.h"
#include "palette.h"
#include "when/day_mark.h"

namespace picture
{
namespace
{

using datetime::CDateTime;
using datetime::EDayOfWeek;
using util::toStr;
using when::EDayMark;

constexpr const char* SampleDay = "1";

void addHidden(Markup& markup, const std::string& words)
{
    markup.add("span", {{"class", "hidden"}}, words);
}

// What is seen and what is read aloud: a short name and a whole one.
void addShortHead(Markup& markup, const std::string& seen, const std::string& whole)
{
    markup.addLine("th", {{"scope", "col"}}, [&] {
        markup.add("span", {{"aria-hidden", "true"}}, seen);
        addHidden(markup, whole);
    });
}

// A plain start has no letter: its circle says it.
void addSign(Markup& markup, const when::DayMark& mark)
{
    if (mark.kind != EDayMark::Start)
        markup.add("span", {{"class", "sign"}, {"aria-hidden", "true"}}, std::string(1, mark.sign));
}

void addMarkedDay(Markup& markup, const when::PlannedDay& day, const when::DayMark& mark)
{
    markup.add("span", {{"class", std::string("mark ") + nameOf(mark.kind)}}, [&] {
        markup.add("time", {{"class", "number"}, {"datetime", describe::isoDate(day.date)}},
                   toStr(CDateTime(day.date).day()));
        addSign(markup, mark);
    });
    addHidden(markup, std::string(", ") + mark.words);
}

void addDay(Markup& markup, const when::PlannedDay* day)
{
    if (day == nullptr)
    {
        markup.add("td", {}, "");
        return;
    }
    const auto* mark = when::markOf(*day);
    if (mark == nullptr)
        markup.add("td", {}, toStr(CDateTime(day->date).day()));
    else
        markup.addLine("td", {}, [&] { addMarkedDay(markup, *day, *mark); });
}

void addMonth(Markup& markup, const when::PlannedMonth& month)
{
    markup.add("table", {}, [&] {
        markup.add("caption", {}, when::tellMonth(month));
        markup.add("thead", {}, [&] {
            markup.add("tr", {}, [&] {
                for (std::size_t i = 1; i <= when::DaysOfWeek; ++i)
                {
                    const auto& name = EDayOfWeek::GetLongStrSet().at(i % when::DaysOfWeek);
                    addShortHead(markup, name.substr(0, 2), name);
                }
            });
        });
        markup.add("tbody", {}, [&] {
            for (const auto& week : when::weeksOf(month))
            {
                markup.add("tr", {}, [&] {
                    for (const auto* day : week)
                        addDay(markup, day);
                });
            }
        });
    });
}

void addLegend(Markup& markup, const std::vector<when::UsedMark>& used)
{
    if (used.empty())
    {
        markup.add("p", {}, when::NothingScheduled);
        return;
    }
    markup.add("ul", {{"class", "legend"}}, [&] {
        for (const auto& [mark, days] : used)
        {
            markup.addLine("li", {}, [&, mark = mark, days = days] {
                markup.add("span", {{"class", std::string("mark ") + nameOf(mark->kind)}, {"aria-hidden", "true"}},
                           [&] {
                               markup.add("span", {{"class", "number"}}, SampleDay);
                               addSign(markup, *mark);
                           });
                markup.add("span", {}, [&] {
                    markup.addText(mark->words);
                    addHidden(markup, ", ");
                    markup.add("span", {{"class", "note muted"}}, describe::countOf(days, "day"));
                });
            });
        }
    });
}

void addClocks(Markup& markup, const std::vector<const when::PlannedDay*>& days)
{
    if (days.empty())
        return;
    markup.add("ul", {{"class", "clocks"}}, [&] {
        for (const auto* day : days)
            markup.add("li", {}, describe::isoDate(day->date) + ": " + day->clock);
    });
}

void addHours(Markup& markup, const when::PlannedWeekDay& day)
{
    const auto name = EDayOfWeek::ToStr(day.day);
    markup.add("tr", {}, [&] {
        markup.addLine("th", {{"scope", "row"}}, [&] {
            markup.add("span", {{"class", "full"}}, name);
            markup.add("span", {{"class", "brief"}}, name.substr(0, 3));
        });
        for (const auto* hour : day.hours)
        {
            markup.addLine("td", {}, [&] {
                markup.add("span", {{"class", std::string("hour ") + nameOf(hour->kind)}}, "");
                addHidden(markup, hour->words);
            });
        }
    });
}

} // namespace

void addCalendar(Markup& markup, const std::vector<when::PlannedMonth>& months)
{
    addLegend(markup, when::usedMarks(months));
    markup.add("div", {{"class", months.size() == 1 ? "months" : "months year"}}, [&] {
        for (const auto& month : months)
            addMonth(markup, month);
    });
    addClocks(markup, when::daysWithClock(months));
}

void addWeek(Markup& markup, const when::PlannedWeek& week)
{
    markup.add("table", {{"class", "week"}}, [&] {
        markup.add("caption", {{"class", "hidden"}}, "Hours of the week");
        markup.add("thead", {}, [&] {
            markup.add("tr", {}, [&] {
                markup.add("td", {}, "");
                for (std::size_t hour = 0; hour < when::HoursOfDay; ++hour)
                    addShortHead(markup, toStr(hour), tellHour(hour) + " to " + tellHour(hour + 1));
            });
        });
        markup.add("tbody", {}, [&] {
            for (const auto& day : week)
                addHours(markup, day);
        });
    });
    markup.add("ul", {{"class", "legend hours"}}, [&] {
        for (const auto* mark : when::legendOf(week))
        {
            markup.addLine("li", {}, [&] {
                markup.add("span", {{"class", std::string("hour ") + nameOf(mark->kind)}, {"aria-hidden", "true"}}, "");
                markup.add("span", {}, mark->words);
            });
        }
    });
}

} // namespace picture
