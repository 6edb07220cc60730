#include <string>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_time.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "support/expect_failure.h"

using zelmodel_test::failureText;
using zelplatform::model::structs::CScheduleTime;

namespace
{

using HoursAndMinutes = std::pair<unsigned long, unsigned long>;

const std::string SafeContext = "ScheduleTime: Failed to deserialize from Xml (safe)";
const std::string Context = "ScheduleTime: Failed to deserialize from Xml.";

struct Reading
{
    std::optional<CScheduleTime> time;
    bool isPeriodical;
};

Reading read(const std::string& text, bool before = false)
{
    Reading reading{std::nullopt, before};
    const auto document = xmlpp::CXmlDocument::Unserialize(text);
    reading.time = CScheduleTime::FromXmlSafe(document.GetRootNode(), reading.isPeriodical);
    return reading;
}

CScheduleTime readStrictly(const std::string& text)
{
    return CScheduleTime::FromXml(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}

} // namespace

TEST(ScheduleTimeXml, WritesAChildWithTwoAttributes)
{
    const struct
    {
        CScheduleTime time;
        const char* text;
    } table[] = {{CScheduleTime(22, 30), R"(<Schedule><Time Hours="22" Minutes="30"/></Schedule>)"},
                 {CScheduleTime(0, 0), R"(<Schedule><Time Hours="0" Minutes="0"/></Schedule>)"},
                 {CScheduleTime(24, 5), R"(<Schedule><Time Hours="24" Minutes="5"/></Schedule>)"},
                 {CScheduleTime(300, 18446744073709551615UL),
                  R"(<Schedule><Time Hours="300" Minutes="18446744073709551615"/></Schedule>)"}};
    for (const auto& row : table)
    {
        xmlpp::CXmlDocument document;
        auto parent = document.AddRootNode("Schedule");
        row.time.ToXml(parent);
        EXPECT_EQ(document.Serialize(), row.text);
    }
}

TEST(ScheduleTimeXml, ReadsBackWhatItWrites)
{
    for (unsigned long hours = 0; hours <= 24; ++hours)
    {
        for (unsigned long minutes = 0; minutes < 60; ++minutes)
        {
            xmlpp::CXmlDocument document;
            auto parent = document.AddRootNode("Schedule");
            const CScheduleTime written(hours, minutes);
            written.ToXml(parent);
            ASSERT_EQ(readStrictly(document.Serialize()), written) << written.ToTimeStr();
        }
    }
}

TEST(ScheduleTimeXml, ReadsTheFirstChildAmongOthers)
{
    const auto reading = read(R"(<Schedule Hours="1" Minutes="1"><!-- start --><Note Hours="2" Minutes="2"/>)"
                              R"(<Time Minutes="30" Zone="UTC" Hours="22"><Hours>9</Hours></Time>)"
                              R"(<Time Hours="5" Minutes="5"/></Schedule>)");
    ASSERT_TRUE(reading.time.has_value());
    EXPECT_EQ(reading.time->Get(), HoursAndMinutes(22, 30));
    EXPECT_FALSE(reading.isPeriodical);
}

TEST(ScheduleTimeXml, TellsThePeriodicalFlag)
{
    const struct
    {
        const char* type;
        bool isPeriodical;
    } table[] = {{"0", false}, {"1", true}, {"01", true}, {"2", false}, {"18446744073709551615", false}};
    for (const auto& row : table)
    {
        for (const bool before : {false, true})
        {
            const auto text = std::string(R"(<S><Time Hours="4" Minutes="0" Type=")") + row.type + R"("/></S>)";
            EXPECT_EQ(read(text, before).isPeriodical, row.isPeriodical) << row.type;
        }
    }
    EXPECT_FALSE(read(R"(<S><Time Hours="4" Minutes="0"/></S>)", true).isPeriodical);
}

TEST(ScheduleTimeXml, ANodeWithoutTimeGivesNone)
{
    for (const char* text : {"<S/>", "<S><Time/></S>", R"(<S><Time Hour="1" minutes="2"/></S>)",
                             R"(<S Hours="1" Minutes="2"><Time/></S>)"})
        EXPECT_FALSE(read(text).time.has_value()) << text;

    const auto onlyType = read(R"(<S><Time Type="1"/></S>)");
    EXPECT_FALSE(onlyType.time.has_value());
    EXPECT_TRUE(onlyType.isPeriodical);
}

TEST(ScheduleTimeLegacy, ReadsAttributesOfTheNodeItself)
{
    const auto reading = read(R"(<Schedule Hours="6" Minutes="15" Type="1"/>)");
    ASSERT_TRUE(reading.time.has_value());
    EXPECT_EQ(reading.time->Get(), HoursAndMinutes(6, 15));
    EXPECT_TRUE(reading.isPeriodical);
    EXPECT_EQ(readStrictly(R"(<Schedule Hours="6" Minutes="15"/>)"), CScheduleTime(6, 15));
}

TEST(ScheduleTimeFailures, ReadingWhatIsNoNumber)
{
    for (const char* value : {"", "12abc", " 7", "7 ", "+7", "0x1F", "1e3", "-1", "18446744073709551616", "seven"})
    {
        const std::string cause = std::string(" Unable to convert string [") + value + "] to [unsigned long].";
        for (const std::string& attributes :
             {std::string("Hours=\"") + value + "\" Minutes=\"0\"",
              std::string("Hours=\"0\" Minutes=\"") + value + "\"", std::string("Type=\"") + value + "\""})
        {
            const std::string text = "<S><Time " + attributes + "/></S>";
            EXPECT_EQ(failureText([&] { read(text); }), SafeContext + cause) << text;
            EXPECT_EQ(failureText([&] { readStrictly(text); }), Context + " " + SafeContext + cause) << text;
        }
    }
}

TEST(ScheduleTimeFailures, ReadingHalfATime)
{
    EXPECT_EQ(failureText([] { read(R"(<S><Time Hours="7"/></S>)"); }),
              SafeContext + " Attribute [Minutes] is not found in [Time].");
    EXPECT_EQ(failureText([] { read(R"(<S><Time Minutes="7"/></S>)"); }),
              SafeContext + " Attribute [Hours] is not found in [Time].");
    EXPECT_EQ(failureText([] { readStrictly(R"(<S Hours="7"/>)"); }),
              Context + " " + SafeContext + " Attribute [Minutes] is not found in [S].");
}

TEST(ScheduleTimeFailures, ReadingStrictlyWithoutTime)
{
    for (const char* text : {"<S/>", "<S><Time/></S>", R"(<S><Time Type="1"/></S>)"})
    {
        const std::string failure = failureText([&] { readStrictly(text); });
        EXPECT_EQ(failure.rfind(Context + " ", 0), 0U) << failure;
        EXPECT_GT(failure.size(), Context.size() + 1) << failure;
        EXPECT_EQ(failure.find("(safe)"), std::string::npos) << failure;
    }
}

TEST(ScheduleTimeQuirks, ReadingKeepsTheLowEightBits)
{
    const struct
    {
        const char* hours;
        const char* minutes;
        HoursAndMinutes time;
    } table[] = {{"255", "255", {255, 255}},
                 {"256", "0", {0, 0}},
                 {"300", "0", {44, 0}},
                 {"0", "316", {0, 60}},
                 {"18446744073709551615", "4294967296", {255, 0}}};
    for (const auto& row : table)
    {
        const auto reading =
            read(std::string("<S><Time Hours=\"") + row.hours + "\" Minutes=\"" + row.minutes + "\"/></S>");
        ASSERT_TRUE(reading.time.has_value());
        EXPECT_EQ(reading.time->Get(), row.time) << row.hours << ":" << row.minutes;
    }
}

TEST(ScheduleTimeQuirks, TypeIsNeverWritten)
{
    xmlpp::CXmlDocument document;
    auto parent = document.AddRootNode("S");
    bool isPeriodical = false;
    const auto source = xmlpp::CXmlDocument::Unserialize(R"(<S><Time Type="1" Hours="4" Minutes="0"/></S>)");
    CScheduleTime::FromXmlSafe(source.GetRootNode(), isPeriodical)->ToXml(parent);
    EXPECT_TRUE(isPeriodical);
    EXPECT_EQ(document.Serialize(), R"(<S><Time Hours="4" Minutes="0"/></S>)");
}
