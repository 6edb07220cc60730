#include "describe/markup_diff.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace
{

using describe::compareMarkup;
using describe::EMarkup;
using describe::MarkupPart;

std::string told(const std::vector<MarkupPart>& parts)
{
    std::string text;
    for (const auto& part : parts)
    {
        const auto* kind = part.kind == EMarkup::Attribute ? "@" : part.kind == EMarkup::Element ? "<>" : "text";
        text += kind + part.name + " of " + part.owner + ':' + std::to_string(part.line) + ' ';
    }
    return text;
}

/// The root was read, and nothing else by another name.
bool isRootRead(EMarkup kind, const std::string& name, int /*line*/)
{
    return kind == EMarkup::Element && name == "a";
}

struct MarkupCase
{
    const char* before;
    const char* after;
    const char* lost;
    const char* respelled;
};

TEST(MarkupDiff, FindsWhatIsGoneAndWhatHasAnotherText)
{
    const std::vector<MarkupCase> cases{
        {"<a x='1'/>", "<a x='1'/>", "", ""},
        {"<a y='2' x='1'/>", "<a x='1' y='2' z='3'/>", "", ""},
        {"<a\nx='1'/>", "<a/>", "@x of a:2 ", ""},
        {"<a x='1'/>", "<a x='true'/>", "", "@x of a:1 "},
        {"<a><b/>\n<c><d/></c></a>", "<a><b/></a>", "<>c of a:2 ", ""},
        {"<a><b x='1'/>\n<b x='2'/></a>", "<a><b x='1'/></a>", "<>b of a:2 ", ""},
        {"<a><c/><b x='1'/><b x='2'/></a>", "<a><b x='1'/><b x='3'/><c/></a>", "", "@x of b:1 "},
        {"<a><b>30</b></a>", "<a><b> 30\n</b></a>", "", ""},
        {"<a><b>30</b></a>", "<a><b>31</b></a>", "", "text of b:1 "},
        {"<a><b>30</b></a>", "<a><b/></a>", "text of b:1 ", ""},
        {"<a><b> \n </b></a>", "<a><b/></a>", "", ""},
        {"<a/>\n<b/>\n<a x='1'/>", "<a/>", "<>b of :2 @x of a:3 ", ""},
    };
    for (const auto& test : cases)
    {
        const auto diff = compareMarkup(test.before, test.after, isRootRead);
        EXPECT_EQ(told(diff.lost), test.lost) << test.before;
        EXPECT_EQ(told(diff.respelled), test.respelled) << test.before;
    }
}

TEST(MarkupDiff, WhatWasReadFromElsewhereIsNoLoss)
{
    const auto isRead = [](EMarkup kind, const std::string& name, int line) {
        return isRootRead(kind, name, line) || (name == "old" && line == 2) || name == "list";
    };
    const auto diff = compareMarkup("<a\nold='1'>\n<list old='2' x='1'>\n<y/></list></a>", "<a new='1'/>", isRead);
    EXPECT_EQ(told(diff.lost), "@old of list:3 @x of list:3 <>y of list:4 ");
}

/// Older layouts keep the time on the schedule itself.
TEST(MarkupDiff, TheTimeOfAnOlderScheduleIsNoLoss)
{
    const auto diff =
        compareMarkup("<a><Schedule Hours='5' Minutes='300' Seconds='1'/></a>",
                      "<a><Schedule><Time Hours='5' Minutes='44' Seconds='1'/></Schedule></a>", isRootRead);
    EXPECT_EQ(told(diff.lost), "@Seconds of Schedule:1 ");
    EXPECT_EQ(told(diff.respelled), "@Minutes of Schedule:1 ");
}

TEST(MarkupDiff, CommentsAndInstructionsAreCounted)
{
    const auto diff =
        compareMarkup("<?xml version='1.0'?><!DOCTYPE a><!-- one --><a><!-- two --><b><!-- three --></b></a>",
                      "<a><b/></a>", isRootRead);
    EXPECT_EQ(diff.comments, 3U);
    EXPECT_EQ(diff.instructions, 1U);
    EXPECT_EQ(told(diff.lost), "");
}

TEST(MarkupDiff, AnEnclosedRecordIsFound)
{
    const auto diff = compareMarkup("<outer x='1'><y/>\n<a p='1' q='1'/></outer>", "<a p='1'/>", isRootRead);
    EXPECT_EQ(diff.enclosing.name, "outer");
    EXPECT_EQ(diff.enclosing.line, 1);
    EXPECT_EQ(told(diff.lost), "@q of a:2 ");
    EXPECT_EQ(compareMarkup("<a/>", "<a/>", isRootRead).enclosing.line, 0);
}

} // namespace
