#include <climits>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/day_of_month.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "support/expect_failure.h"

using zelmodel_test::failureText;
using zelplatform::model::structs::CDayOfMonth;
using zelplatform::model::structs::CMonthMask;

namespace
{

std::string monthsNotFit(unsigned long day, const CMonthMask& months)
{
    return CDayOfMonth::GetDayNotFitMonths(CDayOfMonth(day), months).ToLogStr(true);
}

CDayOfMonth readBack(const std::string& text)
{
    return CDayOfMonth::FromXml(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}

} // namespace

TEST(DayOfMonthValue, HoldsDaysAndTheLastOne)
{
    for (unsigned long day = 1; day <= 31; ++day)
    {
        const CDayOfMonth value(day);
        EXPECT_EQ(value.Get(), day);
        EXPECT_EQ(static_cast<unsigned long>(value), day);
        EXPECT_TRUE(value.IsSet());
        EXPECT_FALSE(value.IsSetLast());
        EXPECT_EQ(value.CheckAndGet(false), day);
        EXPECT_EQ(value.CheckAndGet(true), day);
    }
    EXPECT_EQ(CDayOfMonth::GetMagicLastDay(), 32U);
    EXPECT_EQ(CDayOfMonth::s_magicLastDayOfMonth, 32U);
}

TEST(DayOfMonthValue, SetsResetsAndAssigns)
{
    CDayOfMonth day(0);
    day.Set(15);
    EXPECT_EQ(day.Get(), 15U);
    day = 31UL;
    EXPECT_EQ(day.Get(), 31U);
    day.SetLast();
    EXPECT_EQ(day.Get(), 32U);
    EXPECT_TRUE(day.IsSet());
    EXPECT_TRUE(day.IsSetLast());
    EXPECT_EQ(day.CheckAndGet(true), 32U);
    day.Reset();
    EXPECT_EQ(day.Get(), 0U);
    EXPECT_FALSE(day.IsSet());
    EXPECT_FALSE(day.IsSetLast());
}

TEST(DayOfMonthValue, FindsMonthsThatNeverHaveTheDay)
{
    const CMonthMask all(true);
    for (unsigned long day = 1; day <= 29; ++day)
        EXPECT_EQ(monthsNotFit(day, all), "") << day;
    EXPECT_EQ(monthsNotFit(30, all), "Feb");
    EXPECT_EQ(monthsNotFit(31, all), "Feb, Apr, Jun, Sep, Nov");
    EXPECT_EQ(monthsNotFit(32, all), "");
    EXPECT_EQ(monthsNotFit(0, all), "");
    EXPECT_EQ(monthsNotFit(31, CMonthMask::FromString("January,April,July", ',')), "Apr");
    EXPECT_EQ(monthsNotFit(30, CMonthMask::FromString("January,April", ',')), "");
    EXPECT_EQ(monthsNotFit(31, CMonthMask(false)), "");
    EXPECT_EQ(CDayOfMonth::GetDayNotFitMonths(CDayOfMonth(31), all).GetMask().size(), 12U);
}

TEST(DayOfMonthText, ReadsNumbersAndLast)
{
    for (const char* text : {"LAST", "Last", "last", "lAsT"})
        EXPECT_TRUE(CDayOfMonth::FromStr(text).IsSetLast()) << text;
    EXPECT_EQ(CDayOfMonth::FromStr("1").Get(), 1U);
    EXPECT_EQ(CDayOfMonth::FromStr("15").Get(), 15U);
    EXPECT_EQ(CDayOfMonth::FromStr("031").Get(), 31U);
}

TEST(DayOfMonthText, ListsAllDays)
{
    const std::vector<std::string> list = CDayOfMonth::GetMonthDayStrList();
    ASSERT_EQ(list.size(), 32U);
    EXPECT_EQ(list[0], "1");
    EXPECT_EQ(list[8], "9");
    EXPECT_EQ(list[9], "10");
    EXPECT_EQ(list[30], "31");
    EXPECT_EQ(list[31], "Last");
    for (std::size_t i = 0; i < list.size(); ++i)
        EXPECT_EQ(CDayOfMonth::FromStr(list[i]).Get(), i + 1) << list[i];
}

TEST(DayOfMonthXml, WritesAnAttributeOfTheNode)
{
    const struct
    {
        unsigned long day;
        const char* text;
    } table[] = {{15, R"(<Schedule DayOfMonth="15"/>)"},
                 {32, R"(<Schedule DayOfMonth="32"/>)"},
                 {0, R"(<Schedule DayOfMonth="0"/>)"}};
    for (const auto& row : table)
    {
        xmlpp::CXmlDocument document;
        auto node = document.AddRootNode("Schedule");
        CDayOfMonth(row.day).ToXml(node);
        EXPECT_EQ(document.Serialize(), row.text);
        EXPECT_EQ(readBack(row.text).Get(), row.day);
    }
    EXPECT_TRUE(readBack(R"(<Schedule DayOfMonth="32"/>)").IsSetLast());
}

TEST(DayOfMonthFailures, SettingOutOfRange)
{
    for (const unsigned long day : {0UL, 33UL, 40UL, ULONG_MAX})
    {
        const std::string expected =
            "DayOfMonth: Failed set [" + std::to_string(day) + "]. Day must be in range [1;31].";
        CDayOfMonth value(7);
        EXPECT_EQ(failureText([&] { value.Set(day); }), expected);
        EXPECT_EQ(failureText([&] { value = day; }), expected);
        EXPECT_EQ(value.Get(), 7U);
    }
}

TEST(DayOfMonthFailures, AskingForADayThatIsNotThere)
{
    EXPECT_EQ(failureText([] { CDayOfMonth(0).CheckAndGet(true); }), "Day of month is not set.");
    EXPECT_EQ(failureText([] { CDayOfMonth(0).CheckAndGet(false); }), "Day of month is not set.");
    EXPECT_EQ(failureText([] { CDayOfMonth(32).CheckAndGet(false); }), "The last day of month is not supported.");
}

TEST(DayOfMonthFailures, TextsThatAreNoNumber)
{
    for (const char* text : {"", "-1", "+1", " 7", "7 ", "12abc", "0x1f", "1e1", "first", "18446744073709551616"})
    {
        EXPECT_EQ(failureText([&] { CDayOfMonth::FromStr(text); }),
                  std::string("Unable to convert string [") + text + "] to [unsigned long].");
        EXPECT_EQ(failureText([&] { readBack(std::string("<S DayOfMonth=\"") + text + "\"/>"); }),
                  std::string("DayOfMonth: Failed to deserialize from Xml. Unable to convert string [") + text +
                      "] to [unsigned long].");
    }
    EXPECT_EQ(failureText([] { readBack(R"(<S DayOfMonth="Last"/>)"); }),
              "DayOfMonth: Failed to deserialize from Xml. Unable to convert string [Last] to [unsigned long].");
}

TEST(DayOfMonthFailures, XmlWithoutTheAttribute)
{
    EXPECT_EQ(failureText([] { readBack("<Schedule dayOfMonth=\"1\"><DayOfMonth/></Schedule>"); }),
              "DayOfMonth: Failed to deserialize from Xml. Attribute [DayOfMonth] is not found in [Schedule].");
    const std::string failure = failureText([] {
        xmlpp::CXmlDocument document;
        auto node = document.ToNode();
        CDayOfMonth(1).ToXml(node);
    });
    EXPECT_EQ(failure.rfind("DayOfMonth: Failed to serialize to Xml. ", 0), 0U) << failure;
}

TEST(DayOfMonthFailures, MonthsOfWrongLength)
{
    EXPECT_THROW(CDayOfMonth::GetDayNotFitMonths(CDayOfMonth(31), CMonthMask(std::vector<bool>(11, true))),
                 std::out_of_range);
    EXPECT_THROW(CDayOfMonth::GetDayNotFitMonths(CDayOfMonth(31), CMonthMask(std::vector<bool>{})), std::out_of_range);
}

TEST(DayOfMonthQuirks, ConstructionOutOfRangeIsNotSet)
{
    for (const unsigned long day : {0UL, 33UL, 40UL, ULONG_MAX})
        EXPECT_FALSE(CDayOfMonth(day).IsSet()) << day;
    EXPECT_FALSE(CDayOfMonth::FromStr("0").IsSet());
    EXPECT_FALSE(CDayOfMonth::FromStr("99").IsSet());
    EXPECT_FALSE(readBack(R"(<S DayOfMonth="33"/>)").IsSet());
    EXPECT_FALSE(readBack(R"(<S DayOfMonth="18446744073709551615"/>)").IsSet());
}

TEST(DayOfMonthQuirks, ThirtyTwoIsTheLastDay)
{
    CDayOfMonth day(0);
    day.Set(32);
    EXPECT_TRUE(day.IsSetLast());
    EXPECT_TRUE(CDayOfMonth(32).IsSetLast());
    EXPECT_TRUE(CDayOfMonth::FromStr("32").IsSetLast());
}
