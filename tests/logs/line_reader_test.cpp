#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "logs/line_reader.h"
#include "pieces.h"

namespace
{

using logs::LineReader;
using zelmodel_test::Pieces;
using namespace std::string_literals;

using Texts = std::vector<std::string>;

Texts linesOf(const Texts& pieces)
{
    Pieces source(pieces);
    LineReader reader(source);
    Texts lines;
    while (reader.next())
        lines.push_back(reader.text());
    if (reader.finish())
        lines.push_back(reader.text());
    EXPECT_EQ(reader.number(), lines.size());
    return lines;
}

struct LinesCase
{
    Texts pieces;
    Texts lines;
};

TEST(LineReader, CutsAtLineEnds)
{
    const LinesCase cases[] = {{{}, {}},
                               {{"one"}, {"one"}},
                               {{"one\n"}, {"one"}},
                               {{"one\ntwo"}, {"one", "two"}},
                               {{"\n\n"}, {"", ""}},
                               {{"o", "ne\nt", "wo", "\n"}, {"one", "two"}},
                               {{"one\r\ntwo\r\n\r\n"}, {"one", "two", ""}},
                               {{"one\r", "\ntwo\r"}, {"one", "two"}},
                               // Only the CR that belongs to the line end goes.
                               {{"one\rtwo\r\r\n"}, {"one\rtwo\r"}},
                               {{"nul\0nul\n\0"s}, {"nul\0nul"s, "\0"s}}};
    for (const auto& expected : cases)
    {
        EXPECT_EQ(linesOf(expected.pieces), expected.lines);
    }
}

TEST(LineReader, GoesOnWhereTheSourceDoes)
{
    Pieces source({"one\ntw"});
    LineReader reader(source);
    EXPECT_TRUE(reader.next());
    EXPECT_FALSE(reader.next());
    EXPECT_FALSE(reader.next());
    source.add("o\n");
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.text(), "two");
    EXPECT_EQ(reader.number(), 2U);
    EXPECT_FALSE(reader.next());
    EXPECT_FALSE(reader.finish());
}

TEST(LineReader, KeepsTheLongestLineAndNoLonger)
{
    const std::string longest(LineReader::LongestLine, 'x');
    Pieces source({longest + "\n", longest + "\r\n", longest + "x\n", longest + "\rx\n", longest, longest, longest,
                   "\r\nafter\n", longest + "x"});
    LineReader reader(source);
    for (const bool isTooLong : {false, false, true, true, true})
    {
        ASSERT_TRUE(reader.next());
        EXPECT_EQ(reader.isTooLong(), isTooLong) << reader.number();
        EXPECT_EQ(reader.text().substr(0, longest.size()), longest);
        EXPECT_LE(reader.text().size(), longest.size() + 1);
    }
    ASSERT_TRUE(reader.next());
    EXPECT_FALSE(reader.isTooLong());
    EXPECT_EQ(reader.text(), "after");
    EXPECT_FALSE(reader.next());
    ASSERT_TRUE(reader.finish());
    EXPECT_TRUE(reader.isTooLong());
    EXPECT_EQ(reader.number(), 7U);
}

} // namespace
