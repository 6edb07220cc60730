#include <regex>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/expect_quick.h>

#include "sample_jobs.h"

namespace
{

using namespace zelplatform::model;
using zelmodel_test::expectQuick;
using zelmodel_test::failureText;
using zelmodel_test::failureTrace;
using zelmodel_test::fullJob;

const std::regex parseFailure("Unable to parse XML at line [0-9]+: \\[[A-Za-z0-9_ .,'()-]+\\]\\.");

/// The text is refused before any part of the job is looked at, and the chain names the text and the parser's reason.
void expectNoXml(const std::string& text)
{
    const std::vector<std::string> trace = failureTrace([&] { SBackupJobOptions::fromStr(text); });
    ASSERT_EQ(2U, trace.size()) << text.substr(0, 80);
    EXPECT_TRUE(trace[0] == "BackupJobOptions: Converting from string [" + text + "] failed.") << text.substr(0, 80);
    EXPECT_TRUE(std::regex_match(trace[1], parseFailure)) << trace[1].substr(0, 200);
    if (text.find('\0') == std::string::npos)
    {
        EXPECT_TRUE(trace[0] + " " + trace[1] == failureText([&] { SBackupJobOptions::fromStr(text); }));
    }
}

TEST(HostileJobOptions, MalformedTexts)
{
    for (const char* text : {"",
                             " ",
                             "\n",
                             "rubbish",
                             "<",
                             "<>",
                             "<JobOptions",
                             "<JobOptions>",
                             "</JobOptions>",
                             "<JobOptions></Other>",
                             "<JobOptions/",
                             "<JobOptions MaxPoints>",
                             "<JobOptions MaxPoints=7/>",
                             "<JobOptions MaxPoints=\"7/>",
                             "<JobOptions MaxPoints=\"7\" MaxPoints=\"7\"/>",
                             "<JobOptions><RetainDays></JobOptions></RetainDays>",
                             "<JobOptions><!-- </JobOptions>",
                             "<JobOptions><![CDATA[ </JobOptions>",
                             "<!-- only a comment -->",
                             "<?xml version=\"1.0\"?>",
                             "<JobOptions/><?xml version=\"1.0\"?>",
                             "{\"JobOptions\": {}}"})
        expectNoXml(text);
}

TEST(HostileJobOptions, TextAtTheTop)
{
    for (const char* text : {"rubbish<JobOptions/>", "<JobOptions/>rubbish", "<JobOptions/>x<JobOptions/>",
                             "<![CDATA[x]]><JobOptions/>", "&#65;<JobOptions/>"})
        expectNoXml(text);
}

TEST(HostileJobOptions, NulBytesAnywhere)
{
    const std::string document = "<JobOptions MaxPoints=\"5\"><RetainDays>3</RetainDays></JobOptions>";
    for (std::size_t at = 0; at <= document.size(); ++at)
    {
        std::string text = document;
        text.insert(at, 1, '\0');
        expectNoXml(text);
    }
    expectNoXml(document + "\n" + std::string(3, '\0') + "<JobOptions/>");
    expectNoXml(std::string(1, '\0'));
    expectNoXml("<!-- " + std::string(1, '\0') + " -->" + document);
}

TEST(HostileJobOptions, ReferencesThatXmlDoesNotHave)
{
    for (const std::string reference : {"&#0;",
                                        "&#00;",
                                        "&#x0;",
                                        "&#x0000000000000000000000;",
                                        "&#;",
                                        "&#x;",
                                        "&#x1x0;",
                                        "&#x4100000041;",
                                        "&#4294967361;",
                                        "&#18446744073709551681;",
                                        "&#xD800;",
                                        "&#xDBFF;",
                                        "&#xDC00;",
                                        "&#xDFFF;",
                                        "&#55296;",
                                        "&#x110000;",
                                        "&#1114112;",
                                        "&#1;",
                                        "&#8;",
                                        "&#11;",
                                        "&#12;",
                                        "&#14;",
                                        "&#31;",
                                        "&#x1F;",
                                        "&#-65;",
                                        "&#+65;",
                                        "&# 65;",
                                        "&#65 ;",
                                        "&#6a;",
                                        "&#xG;",
                                        "&#X41;",
                                        "&#65",
                                        "&#x41",
                                        "&#",
                                        "&#x"})
    {
        expectNoXml("<JobOptions PrejobCommand=\"x" + reference + "y\"/>");
        expectNoXml("<JobOptions PrejobCommand='" + reference + "'/>");
        expectNoXml("<JobOptions><RetainDays>3" + reference + "</RetainDays></JobOptions>");
    }
}

TEST(HostileJobOptions, ReferencesThatXmlHas)
{
    const struct
    {
        const char* reference;
        const char* expected;
    } cases[] = {
        {"&#9;", "\t"},
        {"&#10;", "\n"},
        {"&#13;", "\r"},
        {"&#xd;", "\r"},
        {"&#x00000A;", "\n"},
        {"&#32;", " "},
        {"&#65;", "A"},
        {"&#x41;", "A"},
        {"&#xE4;", "\xC3\xA4"},
        {"&#x20AC;", "\xE2\x82\xAC"},
        {"&#xD7FF;", "\xED\x9F\xBF"},
        {"&#xE000;", "\xEE\x80\x80"},
        {"&#x10FFFF;", "\xF4\x8F\xBF\xBF"},
        {"&#1114111;", "\xF4\x8F\xBF\xBF"},
        {"&lt;&gt;&amp;&quot;&apos;", "<>&\"'"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(std::string("x") + each.expected + "y",
                  SBackupJobOptions::fromStr("<JobOptions PrejobCommand=\"x" + std::string(each.reference) + "y\"/>")
                      .preJobCommand)
            << each.reference;
}

TEST(HostileJobOptions, ForeignEncodings)
{
    for (const char* name : {"ISO-8859-1", "iso-8859-15", "windows-1251", "UTF-16", "UTF-16LE", "UTF-32", "UTF-7",
                             "UTF-88", "UTF8-", "EBCDIC-CP-US", "Shift_JIS", ""})
        for (const char quote : {'"', '\''})
            expectNoXml("<?xml version=\"1.0\" encoding=" + std::string(1, quote) + name + quote + "?><JobOptions/>");

    // UTF-16 with and without a byte order mark.
    std::string wide;
    for (const char each : std::string("<JobOptions/>"))
    {
        wide.push_back(each);
        wide.push_back('\0');
    }
    expectNoXml(wide);
    expectNoXml("\xFF\xFE" + wide);
    expectNoXml("\xFE\xFF" + std::string(1, '\0') + wide);
}

TEST(HostileJobOptions, EncodingsThatAreRead)
{
    for (const char* prolog :
         {"", "\xEF\xBB\xBF", "<?xml version=\"1.0\"?>", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>",
          "<?xml version='1.0' encoding='utf-8' standalone='yes'?>", "<?xml version=\"1.0\" encoding = \"US-ASCII\" ?>",
          "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n", "<!DOCTYPE JobOptions>",
          "<!DOCTYPE JobOptions SYSTEM \"http://example.invalid/job.dtd\">", "<!-- encoding=\"UTF-16\" -->"})
        EXPECT_EQ(5UL, SBackupJobOptions::fromStr(prolog + std::string("<JobOptions MaxPoints=\"5\"/>")).maxPoints)
            << prolog;
}

TEST(HostileJobOptions, BytesThatAreNoUtf8PassUnchanged)
{
    const std::string bytes = "/home/\xE4\xF6\xFC/\xC0\x80/\xED\xA0\x80/\xFF";
    const SBackupJobOptions job =
        SBackupJobOptions::fromStr("<JobOptions IndexOnly=\"" + bytes + "\" ProductSpecific=\"" + bytes + "\"/>");
    EXPECT_EQ(bytes, job.indexing.folders);
    EXPECT_EQ(bytes, SBackupJobOptions::fromStr(job.toString()).productSpecific);
}

TEST(HostileJobOptions, JobThatWasReadCanBeWritten)
{
    for (int code = 1; code < 32; ++code)
    {
        SBackupJobOptions job(KbBlockSize::KbBlockSize1024);
        try
        {
            job = SBackupJobOptions::fromStr(std::string("<JobOptions ProductSpecific=\"x") + static_cast<char>(code) +
                                             "y\"/>");
        }
        catch (const exc::CRuntimeExc&)
        {
            continue;
        }
        EXPECT_NO_THROW((void)job.toString()) << code;
    }
}

TEST(HostileJobOptions, RawLineBreaksInAttributesAreReadAsOne)
{
    // Bare line breaks of a text are not what a writer of ours produces; references are.
    EXPECT_EQ("a\nb\nc", SBackupJobOptions::fromStr("<JobOptions PrejobCommand=\"a\r\nb\nc\"/>").preJobCommand);
    EXPECT_EQ("a\r\nb", SBackupJobOptions::fromStr("<JobOptions PrejobCommand=\"a&#13;&#10;b\"/>").preJobCommand);
}

TEST(HostileJobOptions, DeepNesting)
{
    for (const int levels : {99, 10000, 1000000})
    {
        std::string text = "<JobOptions>";
        for (int level = 1; level < levels; ++level)
            text += "<a>";
        for (int level = 1; level < levels; ++level)
            text += "</a>";
        text += "</JobOptions>";
        expectQuick([&] { expectNoXml(text); });
        expectQuick([&] { expectNoXml(text.substr(0, text.size() / 2)); });
    }
}

TEST(HostileJobOptions, NinetyEightLevelsAreRead)
{
    std::string opening;
    std::string closing;
    for (int level = 1; level < 98; ++level)
    {
        opening += "<a>";
        closing += "</a>";
    }
    EXPECT_EQ(
        5UL,
        SBackupJobOptions::fromStr("<JobOptions MaxPoints=\"5\">" + opening + closing + "</JobOptions>").maxPoints);
}

TEST(HostileJobOptions, HundredThousandAttributes)
{
    std::string attributes;
    for (int number = 0; number < 100000; ++number)
        attributes += " a" + std::to_string(number) + "=\"\"";
    expectQuick([&] { expectNoXml("<JobOptions" + attributes + "/>"); });
    expectQuick([&] { expectNoXml("<JobOptions><Schedule" + attributes + "/></JobOptions>"); });
    expectQuick([&] { expectNoXml("<JobOptions" + attributes); });
}

TEST(HostileJobOptions, ManyElementsAndLongValuesAreRead)
{
    std::string children;
    for (int number = 0; number < 50000; ++number)
        children += "<a/>";
    const std::string value(1000000, 'x');
    SBackupJobOptions job(KbBlockSize::KbBlockSize1024);
    const std::string text = "<JobOptions PrejobCommand=\"" + value + "\">" + children + "</JobOptions>";
    expectQuick([&] { job = SBackupJobOptions::fromStr(text); });
    EXPECT_EQ(value, job.preJobCommand);
}

TEST(HostileJobOptions, EntitiesAreNotExpanded)
{
    const std::string text = "<!DOCTYPE JobOptions><JobOptions PrejobCommand=\"&x;&x;\"/>";
    EXPECT_EQ("&x;&x;", SBackupJobOptions::fromStr(text).preJobCommand);
}

TEST(HostileJobOptions, RefusalLeavesTheCallersObjectAsItWas)
{
    SBackupJobOptions job = fullJob();
    EXPECT_THROW(job = SBackupJobOptions::fromStr("<JobOptions MaxPoints=\"5\" MaxDays=\"x\"/>"), exc::CRuntimeExc);
    zelmodel_test::expectSameJob(job, fullJob());
}

} // namespace
