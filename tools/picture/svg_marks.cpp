#include "svg_marks.h"

#include <zelplatform/util/util.h>

#include "palette.h"

namespace picture
{
namespace
{

using util::toStr;
using when::EDayMark;
using when::EHour;

constexpr int Radius = 13;
constexpr int InnerRadius = 11;
constexpr int SharpCorner = 2;
constexpr int RoundCorner = 8;
constexpr int BelowMiddle = 4; ///< from the middle of a number to its foot
constexpr int SpotRadius = 5;
constexpr int DotRadius = 2;

void drawSquare(Markup& markup, const char* style, Point centre, int radius, int corner)
{
    markup.addEmpty("rect", {{"class", style},
                             {"x", toStr(centre.x - radius)},
                             {"y", toStr(centre.y - radius)},
                             {"width", toStr(2 * radius)},
                             {"height", toStr(2 * radius)},
                             {"rx", toStr(corner)}});
}

void drawCircle(Markup& markup, const char* style, Point centre, int radius)
{
    markup.addEmpty("circle",
                    {{"class", style}, {"cx", toStr(centre.x)}, {"cy", toStr(centre.y)}, {"r", toStr(radius)}});
}

void drawShape(Markup& markup, Point centre, EDayMark mark)
{
    switch (mark)
    {
    case EDayMark::Start:
    case EDayMark::ClosedWindow: drawCircle(markup, "shape", centre, Radius); break;
    case EDayMark::ActiveFull:
    case EDayMark::ActiveFullWithoutStart: drawSquare(markup, "shape", centre, Radius, SharpCorner); break;
    case EDayMark::SyntheticFull:
    case EDayMark::SyntheticFullWithoutStart:
        drawSquare(markup, "shape", centre, Radius, RoundCorner);
        drawSquare(markup, "inner", centre, InnerRadius, RoundCorner - Radius + InnerRadius);
        break;
    case EDayMark::BothFulls:
    case EDayMark::BothFullsWithoutStart:
        drawSquare(markup, "shape", centre, Radius, SharpCorner);
        drawSquare(markup, "inner", centre, InnerRadius, 0);
        break;
    }
}

void addTitle(Markup& markup, const std::string& title)
{
    if (!title.empty())
        markup.add("title", {}, title);
}

// A plain start has no letter: its circle says it.
void drawNumber(Markup& markup, Point centre, const std::string& number, const when::DayMark* mark)
{
    const auto x = toStr(centre.x);
    const auto y = toStr(centre.y + BelowMiddle);
    markup.addLine("text", {{"class", "day"}, {"x", x}, {"y", y}}, [&] {
        if (mark == nullptr || mark->kind == EDayMark::Start)
        {
            markup.addText(number);
            return;
        }
        markup.add("tspan", {{"class", "number"}}, number);
        markup.add("tspan", {{"class", "sign"}}, std::string(1, mark->sign));
    });
}

void drawCross(Markup& markup, Point centre)
{
    const auto path = 'M' + toStr(centre.x - SpotRadius) + ' ' + toStr(centre.y - SpotRadius) + 'l' +
                      toStr(2 * SpotRadius) + ' ' + toStr(2 * SpotRadius) + "m-" + toStr(2 * SpotRadius) + " 0l" +
                      toStr(2 * SpotRadius) + " -" + toStr(2 * SpotRadius);
    markup.addEmpty("path", {{"class", "spot"}, {"d", path}});
}

void drawBox(Markup& markup, const char* style, const Box& box)
{
    markup.addEmpty("rect", {{"class", style},
                             {"x", toStr(box.at.x)},
                             {"y", toStr(box.at.y)},
                             {"width", toStr(box.width)},
                             {"height", toStr(box.height)},
                             {"rx", toStr(SharpCorner)}});
}

} // namespace

void drawDay(Markup& markup, Point centre, const std::string& number)
{
    drawNumber(markup, centre, number, nullptr);
}

void drawDay(Markup& markup, Point centre, const std::string& number, const when::DayMark& mark,
             const std::string& title)
{
    markup.add("g", {{"class", nameOf(mark.kind)}}, [&] {
        addTitle(markup, title);
        drawShape(markup, centre, mark.kind);
        drawNumber(markup, centre, number, &mark);
    });
}

void definePattern(Markup& markup)
{
    markup.add("defs", {}, [&] {
        markup.add("pattern",
                   {{"id", "hatch"},
                    {"class", nameOf(EHour::Open)},
                    {"width", "6"},
                    {"height", "6"},
                    {"patternUnits", "userSpaceOnUse"}},
                   [&] {
                       markup.addEmpty("path", {{"class", "shape hatching"}, {"d", "M-1 1l2 -2M0 6l6 -6M5 7l2 -2"}});
                   });
    });
}

void drawHour(Markup& markup, const Box& box, const when::HourMark& mark, const std::string& title)
{
    const Point centre{box.at.x + box.width / 2, box.at.y + box.height / 2};
    markup.add("g", {{"class", nameOf(mark.kind)}}, [&] {
        addTitle(markup, title);
        drawBox(markup, "shape", box);
        switch (mark.kind)
        {
        case EHour::Open: drawBox(markup, "hatch", box); break;
        case EHour::Closed: drawCircle(markup, "spot", centre, DotRadius); break;
        case EHour::OpenStart: drawCircle(markup, "spot", centre, SpotRadius); break;
        case EHour::ClosedStart: drawCross(markup, centre); break;
        }
    });
}

} // namespace picture
