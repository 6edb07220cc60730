#include <string>

#include <gtest/gtest.h>

#include "describe/text_renderer.h"

namespace
{

using describe::makeDetail;
using describe::makeField;
using describe::makeSecret;
using describe::Node;
using describe::renderTable;
using describe::renderText;
using describe::TextStyle;

Node makeTree()
{
    auto root = makeField("job", "Job", "", "of a test", 1);
    root.children.push_back(makeField("size", "Size", "1024", "1024 KB", 2));
    auto group = makeField("start", "Start of all", "", "", 3);
    group.children.push_back(makeField("time", "Time", "22:30", "at 22:30", 4));
    group.children.push_back(makeDetail("mask", "Mask", "1", "not to be seen", 5));
    root.children.push_back(group);
    return root;
}

TEST(RenderText, AlignsWordsAndLeavesOutDetails)
{
    EXPECT_EQ(renderText(makeTree(), TextStyle{}), "Job: of a test\n"
                                                   "  Size          1024 KB\n"
                                                   "  Start of all\n"
                                                   "    Time        at 22:30\n");
}

TEST(RenderText, TitleWithoutWordsOrWithoutLabel)
{
    EXPECT_EQ(renderText(makeField("a", "Schedule", "", "", 0), TextStyle{}), "Schedule\n");
    EXPECT_EQ(renderText(makeField("a", "", "", "words", 0), TextStyle{}), "words\n");
}

TEST(RenderText, BoldTitleOnly)
{
    TextStyle style;
    style.isBold = true;
    EXPECT_EQ(renderText(makeTree(), style), "\x1b[1mJob: of a test\x1b[0m\n"
                                             "  Size          1024 KB\n"
                                             "  Start of all\n"
                                             "    Time        at 22:30\n");
}

TEST(RenderText, BreaksLongWordsUnderTheirColumn)
{
    auto root = makeField("a", "A", "", "", 0);
    root.children.push_back(makeField("b", "Label", "", "one two three four five six seven eight", 0));
    TextStyle style;
    style.width = 33;
    EXPECT_EQ(renderText(root, style), "A\n"
                                       "  Label  one two three four five\n"
                                       "         six seven eight\n");
}

TEST(RenderText, KeepsALongWordWholeOnANarrowTerminal)
{
    auto root = makeField("a", "A", "", "", 0);
    root.children.push_back(makeField("b", "Label", "", "of /a/path/that/is/longer/than/the/line or so", 0));
    TextStyle style;
    style.width = 1;
    EXPECT_EQ(renderText(root, style), "A\n"
                                       "  Label  of\n"
                                       "         /a/path/that/is/longer/than/the/line\n"
                                       "         or so\n");
}

TEST(RenderText, HidesSecretsUnlessTold)
{
    auto root = makeField("a", "A", "", "", 0);
    root.children.push_back(makeField("key", "Key", "canary", "canary", 0));
    root.children.back().secret = true;
    EXPECT_EQ(renderText(root, TextStyle{}), "A\n  Key  (hidden, 6 characters)\n");
    TextStyle style;
    style.showsSecrets = true;
    EXPECT_EQ(renderText(root, style), "A\n  Key  canary\n");
}

TEST(RenderText, CountsTheCharactersOfASecretNotItsBytes)
{
    auto root = makeField("a", "A", "", "", 0);
    root.children.push_back(makeSecret("key", "Key", "\xc3\xa9\xe2\x82\xac", 0));
    root.children.push_back(makeSecret("pin", "Pin", "1", 0));
    EXPECT_EQ(renderText(root, TextStyle{}), "A\n  Key  (hidden, 2 characters)\n  Pin  (hidden, 1 character)\n");
}

TEST(RenderText, AnEmptySecretHidesNothing)
{
    auto root = makeField("a", "A", "", "", 0);
    root.children.push_back(makeSecret("key", "Key", "", 0));
    EXPECT_FALSE(root.children.back().secret);
    EXPECT_EQ(renderText(root, TextStyle{}), "A\n  Key  none\n");
}

TEST(RenderTable, HidesSecrets)
{
    auto row = makeField("row", "", "", "", 0);
    row.children.push_back(makeSecret("key", "Key", "canary", 0));
    auto root = makeField("a", "A", "", "", 0);
    root.children.push_back(row);
    EXPECT_EQ(renderTable(root, TextStyle{}), "A\nKey\n(hidden, 6 characters)\n");
}

TEST(RenderText, EscapesControlCharacters)
{
    auto root = makeField("a", "A", "", "", 0);
    root.children.push_back(makeField("b", "B", "", "x\x1b]0;title\x07\ny", 0));
    EXPECT_EQ(renderText(root, TextStyle{}), "A\n  B  x\\x1b]0;title\\x07\\ny\n");
}

TEST(RenderText, ShortensEndlessWords)
{
    auto root = makeField("a", "A", "", "", 0);
    root.children.push_back(makeField("b", "B", "", std::string(100, 'x'), 0));
    TextStyle style;
    style.longestWords = 16;
    EXPECT_EQ(renderText(root, style), "A\n  B  xxxxxxxxxxxx ... (84 bytes left out) ... xxxx\n");
}

TEST(RenderText, CountsCharactersNotBytes)
{
    auto root = makeField("a", "A", "", "", 0);
    root.children.push_back(makeField("b", "\xc3\xa9t\xc3\xa9", "", "one", 0));
    root.children.push_back(makeField("c", "winter", "", "two", 0));
    EXPECT_EQ(renderText(root, TextStyle{}), "A\n  \xc3\xa9t\xc3\xa9     one\n  winter  two\n");
}

Node makeRow(const std::string& date, const std::string& full)
{
    auto row = makeField("day", "", date, "", 0);
    row.children.push_back(makeField("date", "Date", date, date, 0));
    row.children.push_back(makeField("full", "Full", full, full, 0));
    row.children.push_back(makeField("window", "Window", "", "", 0));
    return row;
}

TEST(RenderTable, AlignsColumnsAndLeavesOutEmptyOnes)
{
    auto root = makeField("next", "", "", "starts daily", 0);
    root.children.push_back(makeRow("2026-03-06", ""));
    root.children.push_back(makeRow("2026-03-07", "active full"));
    EXPECT_EQ(renderTable(root, TextStyle{}), "starts daily\n"
                                              "Date        Full\n"
                                              "2026-03-06\n"
                                              "2026-03-07  active full\n");
}

TEST(RenderTable, WithoutRowsIsItsTitle)
{
    EXPECT_EQ(renderTable(makeField("next", "", "", "starts never", 0), TextStyle{}), "starts never\n");
}

} // namespace
