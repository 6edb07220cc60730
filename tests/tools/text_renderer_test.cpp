#include <string>

#include <gtest/gtest.h>

#include "describe/text_renderer.h"

namespace
{

using describe::EOrigin;
using describe::makeDetail;
using describe::makeField;
using describe::makeSecret;
using describe::Node;
using describe::Origin;
using describe::renderTable;
using describe::renderText;
using describe::TextStyle;

Node makeTree()
{
    auto root = makeField("job", "Job", "", "of a test");
    root.children.push_back(makeField("size", "Size", "1024", "1024 KB"));
    auto group = makeField("start", "Start of all", "", "");
    group.children.push_back(makeField("time", "Time", "22:30", "at 22:30"));
    group.children.push_back(makeDetail("mask", "Mask", "1", "not to be seen"));
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

Origin onLine(int line)
{
    return {EOrigin::Document, line, "Name"};
}

TEST(RenderText, MarginTellsWhereValuesCameFrom)
{
    auto root = makeField("job", "Job", "", "of a test", onLine(1));
    root.children.push_back(makeField("size", "Size", 1024, "1024 KB", onLine(12345)));
    root.children.push_back(makeField("retries", "Retries", 0, "none", {EOrigin::Default, 0, "RetryCount"}));
    root.children.push_back(makeField("mode", "Snapshot", "", "required", {EOrigin::Older, 7, "Is\x1bNeeded"}));
    root.children.push_back(makeField("rule", "Rule", "", "", {EOrigin::Older, 8, "Rule"}));
    root.children.push_back(makeField("note", "Note", "", "from nowhere"));
    EXPECT_EQ(renderText(root, TextStyle{}), "   line  Job: of a test\n"
                                             "  12345    Size      1024 KB\n"
                                             "default    Retries   none\n"
                                             "      7    Snapshot  required (older form: Is\\x1bNeeded)\n"
                                             "      8    Rule      (older form: Rule)\n"
                                             "           Note      from nowhere\n");
    TextStyle narrow;
    narrow.width = 40;
    EXPECT_EQ(renderText(root, narrow), "   line  Job: of a test\n"
                                        "  12345    Size      1024 KB\n"
                                        "default    Retries   none\n"
                                        "      7    Snapshot  required (older\n"
                                        "                     form: Is\\x1bNeeded)\n"
                                        "      8    Rule      (older form: Rule)\n"
                                        "           Note      from nowhere\n");
}

TEST(RenderText, TitleWithoutWordsOrWithoutLabel)
{
    EXPECT_EQ(renderText(makeField("a", "Schedule", "", ""), TextStyle{}), "Schedule\n");
    EXPECT_EQ(renderText(makeField("a", "", "", "words"), TextStyle{}), "words\n");
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
    auto root = makeField("a", "A", "", "");
    root.children.push_back(makeField("b", "Label", "", "one two three four five six seven eight"));
    TextStyle style;
    style.width = 33;
    EXPECT_EQ(renderText(root, style), "A\n"
                                       "  Label  one two three four five\n"
                                       "         six seven eight\n");
}

TEST(RenderText, KeepsALongWordWholeOnANarrowTerminal)
{
    auto root = makeField("a", "A", "", "");
    root.children.push_back(makeField("b", "Label", "", "of /a/path/that/is/longer/than/the/line or so"));
    TextStyle style;
    style.width = 1;
    EXPECT_EQ(renderText(root, style), "A\n"
                                       "  Label  of\n"
                                       "         /a/path/that/is/longer/than/the/line\n"
                                       "         or so\n");
}

TEST(RenderText, HidesSecretsUnlessTold)
{
    auto root = makeField("a", "A", "", "");
    root.children.push_back(makeField("key", "Key", "canary", "canary"));
    root.children.back().secret = true;
    EXPECT_EQ(renderText(root, TextStyle{}), "A\n  Key  (hidden, 6 characters)\n");
    TextStyle style;
    style.showsSecrets = true;
    EXPECT_EQ(renderText(root, style), "A\n  Key  canary\n");
}

TEST(RenderText, CountsTheCharactersOfASecretNotItsBytes)
{
    auto root = makeField("a", "A", "", "");
    root.children.push_back(makeSecret("key", "Key", "\xc3\xa9\xe2\x82\xac"));
    root.children.push_back(makeSecret("pin", "Pin", "1"));
    EXPECT_EQ(renderText(root, TextStyle{}), "A\n  Key  (hidden, 2 characters)\n  Pin  (hidden, 1 character)\n");
}

TEST(RenderText, AnEmptySecretHidesNothing)
{
    auto root = makeField("a", "A", "", "");
    root.children.push_back(makeSecret("key", "Key", ""));
    EXPECT_FALSE(root.children.back().secret);
    EXPECT_EQ(renderText(root, TextStyle{}), "A\n  Key  none\n");
}

TEST(RenderTable, HidesSecrets)
{
    auto row = makeField("row", "", "", "");
    row.children.push_back(makeSecret("key", "Key", "canary"));
    auto root = makeField("a", "A", "", "");
    root.children.push_back(row);
    EXPECT_EQ(renderTable(root, TextStyle{}), "A\nKey\n(hidden, 6 characters)\n");
}

TEST(RenderText, EscapesControlCharacters)
{
    auto root = makeField("a", "A", "", "");
    root.children.push_back(makeField("b", "B", "", "x\x1b]0;title\x07\ny"));
    EXPECT_EQ(renderText(root, TextStyle{}), "A\n  B  x\\x1b]0;title\\x07\\ny\n");
}

TEST(RenderText, ShortensEndlessWords)
{
    auto root = makeField("a", "A", "", "");
    root.children.push_back(makeField("b", "B", "", std::string(100, 'x')));
    TextStyle style;
    style.longestWords = 16;
    EXPECT_EQ(renderText(root, style), "A\n  B  xxxxxxxxxxxx ... (84 bytes left out) ... xxxx\n");
}

TEST(RenderText, CountsCharactersNotBytes)
{
    auto root = makeField("a", "A", "", "");
    root.children.push_back(makeField("b", "\xc3\xa9t\xc3\xa9", "", "one"));
    root.children.push_back(makeField("c", "winter", "", "two"));
    EXPECT_EQ(renderText(root, TextStyle{}), "A\n  \xc3\xa9t\xc3\xa9     one\n  winter  two\n");
}

Node makeRow(const std::string& date, const std::string& full)
{
    auto row = makeField("day", "", date, "");
    row.children.push_back(makeField("date", "Date", date, date));
    row.children.push_back(makeField("full", "Full", full, full));
    row.children.push_back(makeField("window", "Window", "", ""));
    return row;
}

TEST(RenderTable, AlignsColumnsAndLeavesOutEmptyOnes)
{
    auto root = makeField("next", "", "", "starts daily");
    root.children.push_back(makeRow("2026-03-06", ""));
    root.children.push_back(makeRow("2026-03-07", "active full"));
    EXPECT_EQ(renderTable(root, TextStyle{}), "starts daily\n"
                                              "Date        Full\n"
                                              "2026-03-06\n"
                                              "2026-03-07  active full\n");
}

TEST(RenderTable, WithoutRowsIsItsTitle)
{
    EXPECT_EQ(renderTable(makeField("next", "", "", "starts never"), TextStyle{}), "starts never\n");
}

} // namespace
