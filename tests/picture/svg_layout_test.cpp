#include "picture/svg_layout.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace
{

using Lines = std::vector<std::string>;
using picture::Markup;
using picture::wrapped;

TEST(WrappedText, IsBrokenAtBlanks)
{
    EXPECT_EQ(wrapped("", 30), Lines());
    EXPECT_EQ(wrapped("one line", 30), Lines{"one line"});
    EXPECT_EQ(wrapped("twenty-five columns here, and more", 25), (Lines{"twenty-five columns here,", "and more"}));
}

TEST(WrappedText, WithoutBlanksIsBrokenBetweenCharacters)
{
    const std::string letter = "\xc3\xa4";
    std::string word;
    std::string line;
    for (int i = 0; i < 25; ++i)
        word += letter;
    for (int i = 0; i < 20; ++i)
        line += letter;
    EXPECT_EQ(wrapped(word, 20), (Lines{line, letter + letter + letter + letter + letter}));
    EXPECT_EQ(wrapped(std::string(60, 'x'), 20),
              (Lines{std::string(20, 'x'), std::string(20, 'x'), std::string(20, 'x')}));
}

std::string drawn(const picture::Block& block)
{
    Markup markup;
    markup.add("g", {}, [&] { block.draw(markup, {10, 100}); });
    return markup.text();
}

TEST(TextBlock, HasALineForEach)
{
    const auto block = picture::makeText("words", {"first", "second"}, 20);
    EXPECT_EQ(block.height, 40);
    EXPECT_EQ(drawn(block), "<g>\n"
                            "    <text class=\"words\" x=\"10\" y=\"115\">first</text>\n"
                            "    <text class=\"words\" x=\"10\" y=\"135\">second</text>\n"
                            "</g>\n");
}

TEST(FactBlock, HasTheLabelOnceBesideItsWords)
{
    const auto block =
        picture::makeFacts({{"Start", std::string(100, 'a') + ' ' + std::string(100, 'b')}, {"Full", "c"}});
    EXPECT_EQ(block.height, 60);
    EXPECT_EQ(drawn(block), "<g>\n"
                            "    <text class=\"muted\" x=\"10\" y=\"115\">Start</text>\n"
                            "    <text class=\"words\" x=\"120\" y=\"115\">" +
                                std::string(100, 'a') +
                                "</text>\n"
                                "    <text class=\"words\" x=\"120\" y=\"135\">" +
                                std::string(100, 'b') +
                                "</text>\n"
                                "    <text class=\"muted\" x=\"10\" y=\"155\">Full</text>\n"
                                "    <text class=\"words\" x=\"120\" y=\"155\">c</text>\n"
                                "</g>\n");
}

TEST(LegendBlock, GoesAcrossAndThenDown)
{
    std::vector<picture::LegendItem> items;
    for (const auto* words : {"a", "b", "c"})
        items.push_back({[](Markup&, picture::Point) {}, words, ""});
    items.back().note = "2 days";
    const auto block = picture::makeLegend(items, 2);
    EXPECT_EQ(block.height, 68);
    EXPECT_EQ(drawn(block), "<g>\n"
                            "    <text class=\"words\" x=\"54\" y=\"122\">a</text>\n"
                            "    <text class=\"words\" x=\"504\" y=\"122\">b</text>\n"
                            "    <text class=\"words\" x=\"54\" y=\"149\">c</text>\n"
                            "    <text class=\"small muted\" x=\"54\" y=\"163\">2 days</text>\n"
                            "</g>\n");
}

} // namespace
