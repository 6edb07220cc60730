#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <support/attributes.h>
#include <support/expect_failure.h>
#include <zelmodel/repositories.h>
#include <zelplatform/exc/exc.h>

namespace
{

using zelmodel_test::Attributes;
using zelmodel_test::elementText;
using zelmodel_test::failureText;
using zelmodel_test::firstOf;
using zelmodel_test::without;
using zelplatform::model::structs::CRepositoryLimitationsSpec;

const std::string refused = "Unable to parse string repository limitations specification. ";
const std::string elementRefused = refused + "Unable to parse xml repository limitations specification. ";

/// In the order in which they are read.
const Attributes attributes = {
    {"ChainLength", "14"},
    {"TransformFullToSynthetic", "false"},
    {"TransformIncrementsToSynthetic", "true"},
    {"CompactFullEnabled", "false"},
    {"FullBackupEnabled", "true"},
    {"BackupMode", "2"},
    {"RepositoryId", "6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab"},
};

std::string document(const Attributes& given)
{
    return "<Repository>" + elementText("JobSettings", given) + "</Repository>";
}

std::string withValue(const std::string& name, const std::string& value)
{
    return document(zelmodel_test::withValue(attributes, name, value));
}

std::string refusal(const std::string& text)
{
    return failureText([&] { CRepositoryLimitationsSpec::FromString(text); });
}

TEST(RepositoryLimitationsRefusal, EveryAttributeIsRequired)
{
    for (std::size_t missing = 0; missing < attributes.size(); ++missing)
    {
        EXPECT_EQ(elementRefused + "Attribute [" + attributes[missing].name + "] is not found in [JobSettings].",
                  refusal(document(without(attributes, missing))));
    }
}

TEST(RepositoryLimitationsRefusal, TheFirstMissingInReadingOrderIsNamed)
{
    for (std::size_t present = 0; present < attributes.size(); ++present)
    {
        EXPECT_EQ(elementRefused + "Attribute [" + attributes[present].name + "] is not found in [JobSettings].",
                  refusal(document(firstOf(attributes, present))));
    }
}

TEST(RepositoryLimitationsRefusal, NumbersMustBeWholeAndInRange)
{
    for (const char* text :
         {"", " ", "12abc", "1 2", " 7", "7 ", "+7", "0x1F", "1e3", "1.0", "--1", "-", "true", "18446744073709551616"})
    {
        EXPECT_EQ(elementRefused + "Unable to convert string [" + text + "] to [int].",
                  refusal(withValue("ChainLength", text)));
        EXPECT_EQ(elementRefused + "Unable to convert string [" + text + "] to [long].",
                  refusal(withValue("BackupMode", text)));
    }
    for (const char* text : {"2147483648", "-2147483649", "4294967296"})
    {
        EXPECT_EQ(elementRefused + "Unable to convert string [" + text + "] to [int].",
                  refusal(withValue("ChainLength", text)));
    }
    for (const char* text : {"9223372036854775808", "-9223372036854775809"})
    {
        EXPECT_EQ(elementRefused + "Unable to convert string [" + text + "] to [long].",
                  refusal(withValue("BackupMode", text)));
    }
}

TEST(RepositoryLimitationsRefusal, FlagsMustBeFlags)
{
    for (const char* name :
         {"TransformFullToSynthetic", "TransformIncrementsToSynthetic", "CompactFullEnabled", "FullBackupEnabled"})
    {
        for (const char* text : {"", "yes", "2", " true", "true ", "truely", "on", "-1", "01"})
        {
            EXPECT_EQ(elementRefused + "Unable to convert string [" + text + "] to [bool].",
                      refusal(withValue(name, text)));
        }
    }
}

TEST(RepositoryLimitationsRefusal, IdentifierMustBeOne)
{
    for (const char* text : {"x", "{6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab", "6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab}",
                             "6b1f2c3d-0a1b-4c2d-8e3f-0123456789a", "6b1f2c3d-0a1b-4c2d-8e3f-0123456789abc",
                             "6b1f2c3d0a1b4c2d8e3f0123456789ab", "gb1f2c3d-0a1b-4c2d-8e3f-0123456789ab", "{}"})
    {
        EXPECT_EQ(elementRefused + "Unable to convert string [" + text + "] to GUID.",
                  refusal(withValue("RepositoryId", text)));
    }
}

TEST(RepositoryLimitationsRefusal, EmptyIdentifierIsTheZeroOne)
{
    EXPECT_TRUE(CRepositoryLimitationsSpec::FromString(withValue("RepositoryId", "")).GetRepositoryId().IsEmpty());
}

TEST(RepositoryLimitationsRefusal, ElementMustStandDirectlyBelowTheRoot)
{
    const std::string inside = document(attributes);
    const struct
    {
        std::string text;
        const char* parent;
    } cases[] = {
        {"<a/>", "a"},
        {"<a JobSettings=\"1\"/>", "a"},
        {"<a><jobsettings/></a>", "a"},
        {"<a><!-- <JobSettings/> --></a>", "a"},
        {"<a>" + inside + "</a>", "a"},
        {"<a/>" + inside, "a"},
    };
    for (const auto& each : cases)
    {
        EXPECT_EQ(elementRefused + "Node [JobSettings] is not found in [" + each.parent + "].", refusal(each.text));
    }
}

TEST(RepositoryLimitationsRefusal, TextMustBeXml)
{
    EXPECT_EQ(refused + "Unable to parse XML at line 1: [XML_ERROR_MISMATCHED_ELEMENT].", refusal("<a></b>"));
    for (const std::string& text :
         {std::string(), std::string("  "), std::string("junk"), std::string("<a"), withValue("ChainLength", "1&#0;"),
          withValue("ChainLength", std::string("1\0", 2)), std::string("<a x=\"1\" x=\"2\"/>")})
    {
        const std::string failure = refusal(text);
        EXPECT_EQ(0U, failure.find(refused + "Unable to parse XML at line ")) << failure;
    }
}

TEST(RepositoryLimitationsRefusal, TraceKeepsEverySentence)
{
    try
    {
        CRepositoryLimitationsSpec::FromString("<a/>");
        FAIL() << "nothing was thrown";
    }
    catch (const exc::CRuntimeExc& failure)
    {
        const std::vector<std::string> expected = {"Unable to parse string repository limitations specification.",
                                                   "Unable to parse xml repository limitations specification.",
                                                   "Node [JobSettings] is not found in [a]."};
        EXPECT_EQ(expected, failure.trace());
    }
}

} // namespace
