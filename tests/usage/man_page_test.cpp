#include <string>

#include <gtest/gtest.h>

#include "made_tree.h"
#include "usage/man_page.h"
#include "usage/roff.h"

namespace
{

struct TextCase
{
    const char* text;
    const char* roff;
};

TEST(Roff, EscapesWhatItTakesForMore)
{
    const TextCase cases[] = {{"", ""},
                              {"plain text, 100 %", "plain text, 100 %"},
                              {"--in-place", "\\-\\-in\\-place"},
                              {"C:\\new", "C:\\enew"},
                              {"it's \"so\"", "it\\(aqs \\(dqso\\(dq"},
                              {"`a` ^b ~c", "\\(gaa\\(ga \\(hab \\(tic"}};
    for (const auto& [text, roff] : cases)
        EXPECT_EQ(usage::roffEscaped(text), roff);
}

TEST(Roff, NoLineIsARequest)
{
    const TextCase cases[] = {{".orig is kept", "\\&.orig is kept\n"},
                              {"'x' is", "\\(aqx\\(aq is\n"},
                              {"First. .second", "First.\n\\&.second\n"},
                              {"  a\n\n.b  ", "a .b\n"},
                              {"", ""}};
    for (const auto& [text, roff] : cases)
        EXPECT_EQ(usage::roffLines(text), roff);
}

TEST(Roff, LinesAreShortAndSentencesBeginThem)
{
    const std::string word(38, 'a');
    EXPECT_EQ(usage::roffLines(word + "s " + word + ' ' + word), word + "s " + word + '\n' + word + '\n');
    EXPECT_EQ(usage::roffLines(word + "s " + word + "s"), word + "s\n" + word + "s\n");
    EXPECT_EQ(usage::roffLines(std::string(100, 'b') + " c"), std::string(100, 'b') + "\nc\n");
    EXPECT_EQ(usage::roffLines("Why? So! Yes. 1.5 of it"), "Why?\nSo!\nYes.\n1.5 of it\n");
}

constexpr const char* ExpectedPage = R"(.TH TOOL 1 2026-01-02 "tool 1.2" "User Commands"
.SH NAME
tool \- does things
.SH SYNOPSIS
\fBtool put\fR [\fIOPTION\fR]... \fIINPUT\fR [\fIKEY=VALUE\fR]...
.br
\fBtool go far\fR \fB\-\-at\fR \fI\(dqDAY HH:MM\(dq\fR [\fIOPTION\fR]...
.SH DESCRIPTION
One.
.PP
Two.
.SH COMMANDS
.SS tool put
Put it\ethere.
.TP
\fIINPUT\fR
What is read.
.TP
\fIKEY=VALUE\fR
What is set.
.TP
\fB\-o\fR \fIFILE\fR, \fB\-\-out\fR \fIFILE\fR
It\(aqs a [new] file: here.
Not together with \-\-dry.
.TP
\fB\-\-dry\fR
Nothing is written.
Not together with \-\-out.
.SS tool go
Go somewhere.
.TP
\fB\-\-at\fR \fI\(dqDAY HH:MM\(dq\fR
When.
It must be given.
.SS tool go far
Go far.
.TP
\fB\-\-level\fR \fIN\fR
How far.
Only together with \-\-at.
.SH OPTIONS
Every command has these.
.TP
\fB\-h\fR, \fB\-\-help\fR
Help.
.TP
\fB\-\-version\fR
Version (without a command).
.SH FILES
.TP
\fB.rc\fR
\&.rc is read.
)";

TEST(ManPage, TellsTheTreeAndTheSections)
{
    const usage::Manual manual{zelmodel_test::madeTree(),
                               "1.2",
                               "2026-01-02",
                               {"DESCRIPTION", {"One.", "Two."}},
                               {{"FILES", {}, {{".rc", ".rc is read."}}}}};
    EXPECT_EQ(usage::renderManPage(manual), ExpectedPage);
}

} // namespace
