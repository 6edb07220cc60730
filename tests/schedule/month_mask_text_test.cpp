#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/month_mask.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "support/expect_failure.h"

using zelmodel_test::failureText;
using zelplatform::model::structs::CMonthMask;

namespace
{

const std::vector<std::string> LongNames{"January", "February", "March",     "April",   "May",      "June",
                                         "July",    "August",   "September", "October", "November", "December"};

const CMonthMask JanuaryMayJuly(std::vector<bool>{true, false, false, false, true, false, true, false, false, false,
                                                  false, false});

std::string written(const CMonthMask& mask)
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode("Schedule");
    mask.ToXml(root);
    return document.Serialize();
}

CMonthMask readBack(const std::string& text)
{
    return CMonthMask::FromXml(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}

std::string documentWith(const std::string& month, const std::string& value)
{
    std::string text = "<Schedule><MonthMask";
    for (const std::string& name : LongNames)
    {
        if (name != month)
            text += " " + name + "=\"false\"";
        else if (value != "missing")
            text += " " + name + "=\"" + value + "\"";
    }
    return text + "/></Schedule>";
}

} // namespace

TEST(MonthMaskText, NamesMonthsInOrder)
{
    EXPECT_EQ(JanuaryMayJuly.ToStringVector(false), (std::vector<std::string>{"January", "May", "July"}));
    EXPECT_EQ(JanuaryMayJuly.ToStringVector(true), (std::vector<std::string>{"Jan", "May", "Jul"}));
    EXPECT_EQ(CMonthMask(true).ToStringVector(false), LongNames);
    EXPECT_EQ(JanuaryMayJuly.ToString("; ", true), "Jan; May; Jul");
    EXPECT_EQ(JanuaryMayJuly.ToLogStr(false), "January, May, July");
    EXPECT_EQ(JanuaryMayJuly.ToLogStr(true), "Jan, May, Jul");
    EXPECT_EQ(CMonthMask(false).ToLogStr(true), "");
}

TEST(MonthMaskText, ReadsNames)
{
    EXPECT_EQ(CMonthMask::FromString(" July ,january, MAY ", ','), JanuaryMayJuly);
    EXPECT_EQ(CMonthMask::FromString("jul|JAN|may|July", '|'), JanuaryMayJuly);
    EXPECT_EQ(CMonthMask::FromStringVector({"  May", "Jan  ", "July"}), JanuaryMayJuly);
    EXPECT_EQ(CMonthMask::FromString("", ','), CMonthMask(false));
    EXPECT_EQ(CMonthMask::FromStringVector({}), CMonthMask(false));
    EXPECT_EQ(CMonthMask::FromStringVector(LongNames), CMonthMask(true));
}

TEST(MonthMaskText, ReadsBackAllMasks)
{
    for (unsigned bits = 0; bits < 4096; bits += 7)
    {
        std::vector<bool> flags;
        for (unsigned month = 0; month < 12; ++month)
            flags.push_back(((bits >> month) & 1U) != 0);
        const CMonthMask mask(flags);
        EXPECT_EQ(CMonthMask::FromString(mask.ToLogStr(false), ','), mask);
        EXPECT_EQ(CMonthMask::FromStringVector(mask.ToStringVector(true)), mask);
        EXPECT_EQ(readBack(written(mask)), mask);
    }
}

TEST(MonthMaskXml, WritesTwelveAttributesJanuaryFirst)
{
    EXPECT_EQ(written(JanuaryMayJuly),
              R"(<Schedule><MonthMask January="true" February="false" March="false" April="false" May="true" )"
              R"(June="false" July="true" August="false" September="false" October="false" November="false" )"
              R"(December="false"/></Schedule>)");
}

TEST(MonthMaskXml, ReadsAttributesInAnyOrderAndSpelling)
{
    EXPECT_EQ(readBack(R"(<S><Month/><!-- months --><MonthMask December="0" November="FALSE" October="False" )"
                       R"(September="0" August="0" July="TRUE" June="0" May="1" April="0" March="0" February="0" )"
                       R"(January="True" Undecember="perhaps"/><MonthMask/></S>)"),
              JanuaryMayJuly);
}

TEST(MonthMaskFailures, UnknownNames)
{
    const std::string vectorContext = "MonthMask: Failed to convert from string vector. ";
    const std::string textContext = "MonthMask: Failed to convert from string. ";
    for (const char* name : {"", "Ja", "Monday", "1", "\tMay"})
    {
        const std::string cause = std::string("Unknown month: [") + name + "].";
        EXPECT_EQ(failureText([&] { CMonthMask::FromStringVector({"May", name}); }), vectorContext + cause);
        EXPECT_EQ(failureText([&] { CMonthMask::FromString(std::string("May,") + name, ','); }),
                  textContext + vectorContext + cause);
    }
}

TEST(MonthMaskFailures, MissingElementAndAttributes)
{
    const std::string context = "MonthMask: Failed to deserialize from Xml. ";
    EXPECT_EQ(failureText([] { readBack("<Schedule><Monthmask/></Schedule>"); }),
              context + "Node [MonthMask] is not found in [Schedule].");
    for (const std::string& month : LongNames)
    {
        EXPECT_EQ(failureText([&] { readBack(documentWith(month, "missing")); }),
                  context + "Attribute [" + month + "] is not found in [MonthMask].");
    }
}

TEST(MonthMaskFailures, FlagsThatAreNone)
{
    for (const char* value : {"", "yes", "2", "true ", "1abc", "-1"})
    {
        EXPECT_EQ(failureText([&] { readBack(documentWith("August", value)); }),
                  std::string("MonthMask: Failed to deserialize from Xml. Unable to convert string [") + value +
                      "] to [bool].");
    }
}

TEST(MonthMaskFailures, MasksOfWrongLength)
{
    const CMonthMask tooLong(std::vector<bool>(13, true));
    const CMonthMask tooShort(std::vector<bool>(11, true));
    const std::string vectorContext = "MonthMask: Failed to convert to string vector. ";
    EXPECT_EQ(failureText([&] { tooLong.ToStringVector(true); }).rfind(vectorContext, 0), 0U);
    EXPECT_EQ(failureText([&] {
                  tooLong.ToLogStr(true);
              }).rfind("MonthMask: Failed to convert to string. " + vectorContext, 0),
              0U);
    EXPECT_EQ(failureText([&] { written(tooShort); }).rfind("MonthMask: Failed to serialize to Xml. ", 0), 0U);
}
