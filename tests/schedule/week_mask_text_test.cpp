#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/week_mask.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "support/expect_failure.h"

using datetime::EDayOfWeek;
using zelmodel_test::failureText;
using zelplatform::model::structs::CWeekMask;

namespace
{

const CWeekMask SundayMondayFriday(std::vector<bool>{true, true, false, false, false, true, false});
const CWeekMask TooLong(std::vector<bool>(8, true));
const CWeekMask TooShort(std::vector<bool>(2, true));

std::string written(const CWeekMask& mask)
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode("Schedule");
    mask.ToXml(root);
    return document.Serialize();
}

CWeekMask readBack(const std::string& text)
{
    return CWeekMask::FromXml(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}

} // namespace

TEST(WeekMaskText, NamesDaysSundayFirst)
{
    EXPECT_EQ(SundayMondayFriday.ToStringVector(false), (std::vector<std::string>{"Sunday", "Monday", "Friday"}));
    EXPECT_EQ(SundayMondayFriday.ToStringVector(true), (std::vector<std::string>{"Sun", "Mon", "Fri"}));
    EXPECT_EQ(CWeekMask(true).ToStringVector(true),
              (std::vector<std::string>{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"}));
    EXPECT_EQ(SundayMondayFriday.ToString("/", false), "Sunday/Monday/Friday");
    EXPECT_EQ(SundayMondayFriday.ToString("", true), "SunMonFri");
    EXPECT_EQ(SundayMondayFriday.ToLogStr(false), "Sunday, Monday, Friday");
    EXPECT_EQ(SundayMondayFriday.ToLogStr(true), "Sun, Mon, Fri");
    EXPECT_EQ(CWeekMask::FromString("Wednesday,Monday", ',').ToLogStr(false), "Monday, Wednesday");
    EXPECT_EQ(CWeekMask(false).ToLogStr(false), "");
    EXPECT_TRUE(CWeekMask(false).ToStringVector(true).empty());
}

TEST(WeekMaskText, ReadsNames)
{
    const struct
    {
        const char* text;
        char separator;
        const char* days;
    } table[] = {{" Monday , Friday ", ',', "Monday, Friday"},
                 {"Friday,Monday", ',', "Monday, Friday"},
                 {"mon;FRI;Monday", ';', "Monday, Friday"},
                 {"sUNDAY", ',', "Sunday"},
                 {"", ',', ""}};
    for (const auto& row : table)
        EXPECT_EQ(CWeekMask::FromString(row.text, row.separator).ToLogStr(false), row.days) << row.text;
    EXPECT_EQ(CWeekMask::FromStringVector({}), CWeekMask(false));
    EXPECT_EQ(CWeekMask::FromStringVector({"Friday", "Sun", " Monday", "Friday"}), SundayMondayFriday);
}

TEST(WeekMaskText, ReadsBackBothFormsOfAllMasks)
{
    for (unsigned bits = 0; bits < 128; ++bits)
    {
        std::vector<bool> flags;
        for (unsigned day = 0; day < 7; ++day)
            flags.push_back(((bits >> day) & 1U) != 0);
        const CWeekMask mask(flags);
        EXPECT_EQ(CWeekMask::FromString(mask.ToString(",", false), ','), mask);
        EXPECT_EQ(CWeekMask::FromStringVector(mask.ToStringVector(true)), mask);
        EXPECT_EQ(readBack(written(mask)), mask);
    }
}

TEST(WeekMaskXml, WritesSevenAttributesMondayFirst)
{
    EXPECT_EQ(written(SundayMondayFriday),
              R"(<Schedule><WeekMask Monday="true" Tuesday="false" Wednesday="false" Thursday="false" Friday="true" )"
              R"(Saturday="false" Sunday="true"/></Schedule>)");
    EXPECT_EQ(written(CWeekMask(false)),
              R"(<Schedule><WeekMask Monday="false" Tuesday="false" Wednesday="false" Thursday="false" )"
              R"(Friday="false" Saturday="false" Sunday="false"/></Schedule>)");
}

TEST(WeekMaskXml, ReadsAttributesInAnyOrderAndSpelling)
{
    EXPECT_EQ(readBack(R"(<S><!-- days --><Other/><WeekMask Sunday="TRUE" Holiday="maybe" Monday="1" Tuesday="0" )"
                       R"(Wednesday="False" Thursday="FALSE" Friday="True" Saturday="false"><Monday/></WeekMask>)"
                       R"(<WeekMask/></S>)"),
              SundayMondayFriday);
}

TEST(WeekMaskFailures, UnknownNames)
{
    const std::string vectorContext = "WeekMask: Failed to convert from string vector. ";
    const std::string textContext = "WeekMask: Failed to convert from string. ";
    for (const char* name : {"", "Mo", "Mondays", "\tMonday", "2", "January"})
    {
        const std::string cause = std::string("Unknown day of week: [") + name + "].";
        EXPECT_EQ(failureText([&] { CWeekMask::FromStringVector({"Friday", name}); }), vectorContext + cause);
        EXPECT_EQ(failureText([&] { CWeekMask::FromString(std::string("Friday,") + name, ','); }),
                  textContext + vectorContext + cause);
    }
    EXPECT_EQ(failureText([] { CWeekMask::FromString("Monday, fooday ", ','); }),
              textContext + vectorContext + "Unknown day of week: [fooday].");
    EXPECT_EQ(failureText([] { CWeekMask::FromString("Monday;Friday", ','); }),
              textContext + vectorContext + "Unknown day of week: [Monday;Friday].");
}

TEST(WeekMaskFailures, MissingElementAndAttributes)
{
    const std::string context = "WeekMask: Failed to deserialize from Xml. ";
    EXPECT_EQ(failureText([] { readBack("<Schedule/>"); }), context + "Node [WeekMask] is not found in [Schedule].");
    EXPECT_EQ(failureText([] { readBack("<Schedule WeekMask=\"1\"/>"); }),
              context + "Node [WeekMask] is not found in [Schedule].");
    for (const char* missing : {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"})
    {
        std::string text = "<Schedule><WeekMask";
        for (const char* day : {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"})
        {
            if (std::string(day) != missing)
                text += std::string(" ") + day + "=\"true\"";
        }
        text += "/></Schedule>";
        EXPECT_EQ(failureText([&] { readBack(text); }),
                  context + "Attribute [" + missing + "] is not found in [WeekMask].");
    }
}

TEST(WeekMaskFailures, FlagsThatAreNone)
{
    for (const char* value : {"", "yes", "2", " true", "1abc", "-1", "on"})
    {
        const std::string text = std::string(R"(<S><WeekMask Monday="1" Tuesday="1" Wednesday="1" Thursday=")") +
                                 value + R"(" Friday="1" Saturday="1" Sunday="1"/></S>)";
        EXPECT_EQ(failureText([&] { readBack(text); }),
                  std::string("WeekMask: Failed to deserialize from Xml. Unable to convert string [") + value +
                      "] to [bool].");
    }
}

TEST(WeekMaskFailures, MasksOfWrongLength)
{
    const std::string vectorContext = "WeekMask: Failed to convert to string vector. ";
    EXPECT_EQ(failureText([] { TooLong.ToStringVector(false); }).rfind(vectorContext, 0), 0U);
    EXPECT_EQ(failureText([] { TooShort.ToStringVector(false); }).rfind(vectorContext, 0), 0U);
    EXPECT_EQ(
        failureText([] { TooLong.ToLogStr(true); }).rfind("WeekMask: Failed to convert to string. " + vectorContext, 0),
        0U);
    const std::string failure = failureText([] { written(TooShort); });
    EXPECT_EQ(failure.rfind("WeekMask: Failed to serialize to Xml. ", 0), 0U) << failure;
}
