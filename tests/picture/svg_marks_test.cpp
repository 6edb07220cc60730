#include "picture/svg_marks.h"

#include <string>

#include <gtest/gtest.h>

namespace
{

using picture::Markup;
using when::DayMark;
using when::EDayMark;
using when::EHour;
using when::HourMark;

std::string circle(const std::string& style, const char* radius)
{
    return "    <circle class=\"" + style + "\" cx=\"100\" cy=\"50\" r=\"" + radius + "\"/>\n";
}

constexpr const char* Square = "    <rect class=\"shape\" x=\"87\" y=\"37\" width=\"26\" height=\"26\" rx=\"2\"/>\n";
constexpr const char* RoundSquare =
    "    <rect class=\"shape\" x=\"87\" y=\"37\" width=\"26\" height=\"26\" rx=\"8\"/>\n";
constexpr const char* InnerSquare =
    "    <rect class=\"inner\" x=\"89\" y=\"39\" width=\"22\" height=\"22\" rx=\"0\"/>\n";
constexpr const char* InnerRoundSquare =
    "    <rect class=\"inner\" x=\"89\" y=\"39\" width=\"22\" height=\"22\" rx=\"6\"/>\n";

struct DayCase
{
    DayMark mark;
    std::string name;
    std::string shape;
    std::string number;
};

// Each differs from the others without its colours: by its outline, its inner line or its letter.
TEST(SvgDay, HasAShapeAndALetter)
{
    const DayCase rows[] = {
        {{EDayMark::Start, '*', ""}, "start", circle("shape", "13"), "17"},
        {{EDayMark::ActiveFull, 'A', ""}, "active", Square, ""},
        {{EDayMark::SyntheticFull, 'S', ""}, "synthetic", std::string(RoundSquare) + InnerRoundSquare, ""},
        {{EDayMark::BothFulls, 'B', ""}, "both", std::string(Square) + InnerSquare, ""},
        {{EDayMark::ClosedWindow, 'x', ""}, "shut", circle("shape", "13"), ""},
        {{EDayMark::ActiveFullWithoutStart, 'a', ""}, "idle-active", Square, ""},
        {{EDayMark::SyntheticFullWithoutStart, 's', ""},
         "idle-synthetic",
         std::string(RoundSquare) + InnerRoundSquare,
         ""},
        {{EDayMark::BothFullsWithoutStart, 'b', ""}, "idle-both", std::string(Square) + InnerSquare, ""}};
    for (const auto& row : rows)
    {
        Markup markup;
        drawDay(markup, {100, 50}, "17", row.mark, "a title");
        const auto lettered =
            std::string("<tspan class=\"number\">17</tspan><tspan class=\"sign\">") + row.mark.sign + "</tspan>";
        EXPECT_EQ(markup.text(), "<g class=\"" + row.name + "\">\n    <title>a title</title>\n" + row.shape +
                                     "    <text class=\"day\" x=\"100\" y=\"54\">" +
                                     (row.number.empty() ? lettered : row.number) + "</text>\n</g>\n");
    }
}

TEST(SvgDay, IsANumberWithoutAMark)
{
    Markup markup;
    markup.add("g", {}, [&] { picture::drawDay(markup, {10, 20}, "31"); });
    EXPECT_EQ(markup.text(), "<g>\n    <text class=\"day\" x=\"10\" y=\"24\">31</text>\n</g>\n");
}

struct HourCase
{
    HourMark mark;
    std::string name;
    std::string sign;
};

TEST(SvgHour, HasASignOfItsOwn)
{
    const HourCase rows[] = {{{EHour::Open, '#', ""},
                              "open",
                              "    <rect class=\"hatch\" x=\"83\" y=\"37\" width=\"34\" height=\"26\" rx=\"2\"/>\n"},
                             {{EHour::Closed, '.', ""}, "closed", circle("spot", "2")},
                             {{EHour::OpenStart, '*', ""}, "open-start", circle("spot", "5")},
                             {{EHour::ClosedStart, 'x', ""},
                              "closed-start",
                              "    <path class=\"spot\" d=\"M95 45l10 10m-10 0l10 -10\"/>\n"}};
    for (const auto& row : rows)
    {
        Markup markup;
        drawHour(markup, {{83, 37}, 34, 26}, row.mark, "");
        EXPECT_EQ(markup.text(),
                  "<g class=\"" + row.name +
                      "\">\n    <rect class=\"shape\" x=\"83\" y=\"37\" width=\"34\" height=\"26\" rx=\"2\"/>\n" +
                      row.sign + "</g>\n");
    }
}

TEST(SvgPattern, IsNamedAsTheStyleSheetNamesIt)
{
    Markup markup;
    picture::definePattern(markup);
    EXPECT_EQ(markup.text(),
              "<defs>\n"
              "    <pattern id=\"hatch\" class=\"open\" width=\"6\" height=\"6\" patternUnits=\"userSpaceOnUse\">\n"
              "        <path class=\"shape hatching\" d=\"M-1 1l2 -2M0 6l6 -6M5 7l2 -2\"/>\n"
              "    </pattern>\n"
              "</defs>\n");
}

} // namespace
