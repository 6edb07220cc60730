#include "picture/palette.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace
{

using picture::Schemes;

// The bounds of the Web Content Accessibility Guidelines 2.1, level AA: of small text, and of what is no text.
constexpr double LeastOfText = 4.5;
constexpr double LeastOfShapes = 3;

double linear(const std::string& hexadecimal)
{
    const double value = static_cast<double>(std::strtol(hexadecimal.c_str(), nullptr, 16)) / 255;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const std::string& colour)
{
    return 0.2126 * linear(colour.substr(1, 2)) + 0.7152 * linear(colour.substr(3, 2)) +
           0.0722 * linear(colour.substr(5, 2));
}

double contrast(const std::string& one, const std::string& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

TEST(Contrast, IsMeasuredAsTheGuidelinesSay)
{
    EXPECT_NEAR(contrast("#000000", "#ffffff"), 21, 0.001);
    EXPECT_NEAR(contrast("#777777", "#ffffff"), 4.48, 0.005);
}

TEST(Palette, TextIsReadableInEveryScheme)
{
    for (std::size_t scheme = 0; scheme < Schemes.size(); ++scheme)
    {
        const auto& paper = picture::Papers.at(scheme);
        EXPECT_GE(contrast(paper.ink, paper.page), LeastOfText) << scheme;
        EXPECT_GE(contrast(paper.muted, paper.page), LeastOfText) << scheme;
        for (const auto& style : picture::DayStyles)
            EXPECT_GE(contrast(style.tints.at(scheme).text, style.tints.at(scheme).fill), LeastOfText)
                << style.name << ' ' << scheme;
    }
}

TEST(Palette, ShapesStandOutInEveryScheme)
{
    for (std::size_t scheme = 0; scheme < Schemes.size(); ++scheme)
    {
        const auto& page = picture::Papers.at(scheme).page;
        for (const auto& style : picture::DayStyles)
            EXPECT_GE(contrast(style.tints.at(scheme).line, page), LeastOfShapes) << style.name << ' ' << scheme;
        for (const auto& style : picture::HourStyles)
        {
            const auto& tint = style.tints.at(scheme);
            EXPECT_GE(contrast(tint.line, tint.fill), LeastOfShapes) << style.name << ' ' << scheme;
            EXPECT_GE(contrast(tint.line, page), LeastOfShapes) << style.name << ' ' << scheme;
        }
    }
}

TEST(Palette, PaperIsWhiteAndEverythingOnItBlack)
{
    const auto print = static_cast<std::size_t>(picture::EScheme::Print);
    EXPECT_STREQ(picture::Papers.at(print).page, "#ffffff");
    for (const auto& style : picture::DayStyles)
    {
        EXPECT_STREQ(style.tints.at(print).fill, "#ffffff") << style.name;
        EXPECT_STREQ(style.tints.at(print).line, "#000000") << style.name;
    }
}

TEST(Palette, EveryMarkHasANameOfItsOwn)
{
    std::set<std::string> names;
    for (const auto& style : picture::DayStyles)
        names.insert(picture::nameOf(style.kind));
    for (const auto& style : picture::HourStyles)
        names.insert(picture::nameOf(style.kind));
    EXPECT_EQ(names,
              (std::set<std::string>{"start", "active", "synthetic", "both", "shut", "idle-active", "idle-synthetic",
                                     "idle-both", "open", "closed", "open-start", "closed-start"}));
}

} // namespace
