#include <zelplatform/datetime/names.h>
#include <zelplatform/util/util.h>

#include "alternative.h"
#include "svg_calendar.h"

namespace picture
{
namespace
{

using datetime::EDayOfWeek;
using util::toStr;

constexpr int LabelWidth = 60;
constexpr int HourWidth = (InnerWidth - LabelWidth) / static_cast<int>(when::HoursOfDay);
constexpr int RowHeight = 27;
constexpr int ScaleHeight = 22;
constexpr int Gap = 1;
constexpr int FootOfLabel = 18;
constexpr std::size_t HoursOfMark = 3;
constexpr int LegendColumns = 4;

void drawScale(Markup& markup, Point at)
{
    for (std::size_t hour = 0; hour <= when::HoursOfDay; hour += HoursOfMark)
    {
        const auto* style = hour == 0                 ? "small muted"
                            : hour < when::HoursOfDay ? "small muted middle"
                                                      : "small muted end";
        addText(markup, style, {at.x + LabelWidth + static_cast<int>(hour) * HourWidth, at.y + ScaleHeight - 8},
                tellHour(hour));
    }
}

void drawWeekDay(Markup& markup, Point at, const when::PlannedWeekDay& day)
{
    markup.add("g", {{"role", "group"}, {"aria-label", EDayOfWeek::ToStr(day.day)}}, [&] {
        addText(markup, "words", {at.x, at.y + FootOfLabel},
                EDayOfWeek::GetShortStrSet().at(static_cast<std::size_t>(day.day)));
        for (std::size_t hour = 0; hour < when::HoursOfDay; ++hour)
        {
            const Point corner{at.x + LabelWidth + static_cast<int>(hour) * HourWidth, at.y};
            drawHour(markup, {corner, HourWidth - Gap, RowHeight - Gap}, *day.hours.at(hour), tellHour(day, hour));
        }
    });
}

Block makeDays(const when::PlannedWeek& week)
{
    return {ScaleHeight + static_cast<int>(week.size()) * RowHeight, [&week](Markup& markup, Point at) {
                drawScale(markup, at);
                at.y += ScaleHeight;
                for (const auto& day : week)
                {
                    drawWeekDay(markup, at, day);
                    at.y += RowHeight;
                }
            }};
}

} // namespace

std::vector<Block> makeWeek(const when::PlannedWeek& week)
{
    std::vector<LegendItem> items;
    for (const auto* mark : when::legendOf(week))
    {
        const auto draw = [mark](Markup& markup, Point centre) {
            const int width = HourWidth - Gap;
            const int height = RowHeight - Gap;
            drawHour(markup, {{centre.x - width / 2, centre.y - height / 2}, width, height}, *mark, {});
        };
        items.push_back({draw, mark->words, {}});
    }
    return {makeDays(week), makeGap(8), makeLegend(std::move(items), LegendColumns)};
}

} // namespace picture
