#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/repositories.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using namespace zelplatform::model::structs;
using zelmodel_test::failureText;

const std::string refused = "Unable to parse repository immutability settings. ";

// The comma is kept on purpose.
const std::string directRefused = "Unable to parse direct backup immutability settings, ";

std::string refusal(const std::string& text)
{
    const auto document = xmlpp::CXmlDocument::Unserialize(text);
    return failureText([&] { SObjectStorageImmutabilitySettings::FromXml(document.GetRootNode()); });
}

std::string directRefusal(const std::string& text)
{
    const auto document = xmlpp::CXmlDocument::Unserialize(text);
    return failureText([&] { SDirectBackupImmutabilitySettings::FromXml(document.GetRootNode()); });
}

std::string settings(const std::string& attributes, const std::string& children = {})
{
    return "<a><ImmutabilitySettings " + attributes + ">" + children + "</ImmutabilitySettings></a>";
}

std::string direct(const std::string& attributes,
                   const std::string& children = R"(<ImmutabilitySettings IsEnabled="1" IntervalDays="1"/>)")
{
    return "<a><DirectBackupImmutabilitySettings " + attributes + ">" + children +
           "</DirectBackupImmutabilitySettings></a>";
}

TEST(ImmutabilityRefusal, WhatIsMissingIsNamed)
{
    const std::pair<std::string, std::string> cases[] = {
        {"<a/>", "Node [ImmutabilitySettings] is not found in [a]."},
        {"<ImmutabilitySettings IsEnabled=\"1\" IntervalDays=\"1\"/>",
         "Node [ImmutabilitySettings] is not found in [ImmutabilitySettings]."},
        {settings(""), "Attribute [IsEnabled] is not found in [ImmutabilitySettings]."},
        {settings("IntervalDays=\"1\""), "Attribute [IsEnabled] is not found in [ImmutabilitySettings]."},
        {settings("IsEnabled=\"1\""), "Attribute [IntervalDays] is not found in [ImmutabilitySettings]."},
        {settings("isEnabled=\"1\" IntervalDays=\"1\""),
         "Attribute [IsEnabled] is not found in [ImmutabilitySettings]."},
    };
    for (const auto& [text, inner] : cases)
        EXPECT_EQ(refused + inner, refusal(text));
}

// A child announces the mode as well as an attribute does, but the number is read from the attribute alone.
TEST(ImmutabilityRefusal, ModeAsAChildIsAMissingAttribute)
{
    EXPECT_EQ(refused + "Attribute [ImmutabilityMode] is not found in [ImmutabilitySettings].",
              refusal(settings("IsEnabled=\"1\" IntervalDays=\"1\"", "<ImmutabilityMode>1</ImmutabilityMode>")));
}

TEST(ImmutabilityRefusal, ModeIsNeverAWord)
{
    for (const char* text : {"ByRepositorySettings", "ByRetentionSettings", "", "true", "1x", " 1", "+1", "0x1", "1e3",
                             "9223372036854775808", "-9223372036854775809", "18446744073709551616"})
    {
        EXPECT_EQ(
            refused + "Unable to convert string [" + text + "] to [long].",
            refusal(settings("IsEnabled=\"1\" IntervalDays=\"1\" ImmutabilityMode=\"" + std::string(text) + "\"")));
    }
}

TEST(ImmutabilityRefusal, IntervalOutOfThirtyTwoBits)
{
    for (const char* text : {"2147483648", "-2147483649", "4294967297", "9223372036854775807"})
    {
        EXPECT_EQ(refused + "Unable to cast value from [long] to [int].",
                  refusal(settings("IsEnabled=\"1\" IntervalDays=\"" + std::string(text) + "\"")));
    }
}

TEST(ImmutabilityRefusal, IntervalThatIsNoNumber)
{
    for (const char* text : {"", "12abc", " 7", "7 ", "+7", "0x1F", "1e3", "1.5", "9223372036854775808"})
    {
        EXPECT_EQ(refused + "Unable to convert string [" + text + "] to [long].",
                  refusal(settings("IsEnabled=\"1\" IntervalDays=\"" + std::string(text) + "\"")));
    }
}

TEST(ImmutabilityRefusal, FlagThatIsNone)
{
    for (const char* text : {"", "yes", "2", " true", "false "})
    {
        const std::string inner = "Unable to convert string [" + std::string(text) + "] to [bool].";
        EXPECT_EQ(refused + inner, refusal(settings("IsEnabled=\"" + std::string(text) + "\" IntervalDays=\"1\"")));
        EXPECT_EQ(directRefused + inner,
                  directRefusal(direct("HasImmutableCapacityOrArchiveTierExtent=\"" + std::string(text) + "\"")));
    }
}

TEST(ImmutabilityRefusal, FirstInReadingOrderIsNamed)
{
    EXPECT_EQ(refused + "Unable to convert string [x] to [bool].",
              refusal(settings("ImmutabilityMode=\"x\" IntervalDays=\"x\" IsEnabled=\"x\"")));
    EXPECT_EQ(refused + "Unable to cast value from [long] to [int].",
              refusal(settings("ImmutabilityMode=\"x\" IntervalDays=\"2147483648\" IsEnabled=\"1\"")));
    EXPECT_EQ(directRefused + "Unable to convert string [x] to [long].",
              directRefusal(direct("HasImmutableCapacityOrArchiveTierExtent=\"x\" "
                                   "NumberDaysForCapacityTierMoveOrArchiveTier=\"x\"",
                                   "")));
    EXPECT_EQ(directRefused + "Unable to convert string [x] to [bool].",
              directRefusal(direct("HasImmutableCapacityOrArchiveTierExtent=\"x\"", "")));
}

TEST(ImmutabilityRefusal, DirectFormNamesWhatIsMissing)
{
    const std::pair<std::string, std::string> cases[] = {
        {"<a/>", "Node [DirectBackupImmutabilitySettings] is not found in [a]."},
        {"<a><ImmutabilitySettings IsEnabled=\"1\" IntervalDays=\"1\"/></a>",
         "Node [DirectBackupImmutabilitySettings] is not found in [a]."},
        {direct(""), "Attribute [HasImmutableCapacityOrArchiveTierExtent] is not found in "
                     "[DirectBackupImmutabilitySettings]."},
        {direct("NumberDaysForCapacityTierMoveOrArchiveTier=\"1\""),
         "Attribute [HasImmutableCapacityOrArchiveTierExtent] is not found in [DirectBackupImmutabilitySettings]."},
        {direct("HasImmutableCapacityOrArchiveTierExtent=\"1\"", ""),
         refused + "Node [ImmutabilitySettings] is not found in [DirectBackupImmutabilitySettings]."},
        {direct("HasImmutableCapacityOrArchiveTierExtent=\"1\"", "<ImmutabilitySettings IsEnabled=\"1\"/>"),
         refused + "Attribute [IntervalDays] is not found in [ImmutabilitySettings]."},
        {direct("HasImmutableCapacityOrArchiveTierExtent=\"1\"",
                "<ImmutabilitySettings IsEnabled=\"1\" IntervalDays=\"2147483648\"/>"),
         refused + "Unable to cast value from [long] to [int]."},
    };
    for (const auto& [text, inner] : cases)
        EXPECT_EQ(directRefused + inner, directRefusal(text));
}

TEST(ImmutabilityRefusal, SettingsBesideTheDirectElementAreNotIts)
{
    EXPECT_EQ(directRefused + refused +
                  "Node [ImmutabilitySettings] is not found in [DirectBackupImmutabilitySettings].",
              directRefusal("<a><ImmutabilitySettings IsEnabled=\"1\" IntervalDays=\"1\"/>"
                            "<DirectBackupImmutabilitySettings HasImmutableCapacityOrArchiveTierExtent=\"1\"/></a>"));
}

TEST(ImmutabilityRefusal, DaysOfTheTierMustBeANumberThatFits)
{
    const auto withDays = [](const std::string& days) {
        return direct("NumberDaysForCapacityTierMoveOrArchiveTier=\"" + days +
                      "\" HasImmutableCapacityOrArchiveTierExtent=\"1\"");
    };
    for (const char* text : {"2147483648", "-2147483649"})
        EXPECT_EQ(directRefused + "Unable to cast value from [long] to [int].", directRefusal(withDays(text)));
    for (const char* text : {"", "x", "7d", " 7"})
    {
        EXPECT_EQ(directRefused + "Unable to convert string [" + text + "] to [long].", directRefusal(withDays(text)));
    }
}

TEST(ImmutabilityRefusal, MissingDirectNodeIsPlain)
{
    const auto document = xmlpp::CXmlDocument::Unserialize("<a/>");
    EXPECT_EQ("Node [DirectBackupImmutabilitySettings] is not found in [a].",
              failureText([&] { SDirectBackupImmutabilitySettings::GetXmlNode(document.GetRootNode()); }));
}

} // namespace
