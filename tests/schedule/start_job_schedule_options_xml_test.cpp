#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/start_job_schedule_options.h>
#include <zelplatform/xmlpp/xmlpp.h>

#include "support/expect_failure.h"
#include "support/golden.h"
#include "support/schedule_samples.h"

using namespace zelplatform::model::structs;
using datetime::EDayOfWeek;
using datetime::EMonth;
using xmlpp::CXmlDocument;
using zelmodel_test::failureText;
using zelmodel_test::golden;
using zelmodel_test::months;
using zelmodel_test::textOf;
using zelmodel_test::wholeWeek;
using zelmodel_test::wholeYear;

namespace
{

constexpr const char* readFailed = "CStartJobScheduleOptions: Failed to deserialize from Xml. ";
constexpr const char* calendarFailed =
    "CStartJobScheduleOptions: Failed to deserialize from Xml. ScheduleCalendar: Failed to deserialize from Xml. ";
CStartJobScheduleOptions read(const std::string& text)
{
    return CStartJobScheduleOptions::FromXml(CXmlDocument::Unserialize(text).ToNode());
}

/// A schedule of the attributes, with complete masks and a time.
std::string withAttributes(const std::string& attributes)
{
    return "<Schedule " + attributes + ">" + wholeWeek + wholeYear + "<Time Hours=\"1\" Minutes=\"2\"/></Schedule>";
}

struct SGolden
{
    const char* name;
    CStartJobScheduleOptions options;
};

std::vector<SGolden> goldenOptions()
{
    CStartJobScheduleOptions weekly;
    CWeekMask workDays(true);
    workDays.SetDay(EDayOfWeek::Saturday, false);
    workDays.SetDay(EDayOfWeek::Sunday, false);
    weekly.SetWeekly(22, 5, workDays);

    CStartJobScheduleOptions monthlyWeekDay;
    monthlyWeekDay.SetMonthly(23, 59, EWeekDayNumber::Last, EDayOfWeek::Friday,
                              months({EMonth::January, EMonth::April, EMonth::July, EMonth::October}));

    CStartJobScheduleOptions monthlyLastDay;
    monthlyLastDay.SetMonthlyOnDay(1, 0, CDayOfMonth(32), months({EMonth::January, EMonth::July}));

    CStartJobScheduleOptions periodically;
    periodically.SetPeriodically(4, 0);

    CStartJobScheduleOptions continuously;
    continuously.SetContinuously();

    return {{"default", CStartJobScheduleOptions()}, {"weekly", weekly},
            {"monthly_week_day", monthlyWeekDay},    {"monthly_last_day", monthlyLastDay},
            {"periodically", periodically},          {"continuously", continuously}};
}

struct SRefused
{
    std::string text;
    std::string failure;
};

} // namespace

TEST(CStartJobScheduleOptionsXml, GoldenDocuments)
{
    for (const auto& row : goldenOptions())
    {
        const std::string text = golden(std::string("Schedule/") + row.name + ".xml");
        EXPECT_EQ(text, textOf(row.options)) << row.name;
        const auto again = read(text);
        EXPECT_TRUE(row.options == again) << row.name;
        EXPECT_EQ(text, textOf(again)) << row.name;
    }
}

TEST(CStartJobScheduleOptionsXml, IsAddedBehindOtherElements)
{
    CXmlDocument document;
    auto root = document.AddRootNode("JobOptions");
    root.AddNode("Other");
    CStartJobScheduleOptions().ToXml(root);
    EXPECT_EQ("<JobOptions><Other/>" + golden("Schedule/default.xml") + "</JobOptions>", document.Serialize());
}

TEST(CStartJobScheduleOptionsXml, WithoutTheChildTheDefaultIsRead)
{
    for (const char* text : {"<JobOptions/>", "<JobOptions Schedule=\"true\"/>", "<JobOptions Schedule=\"rubbish\"/>",
                             "<JobOptions><schedule Version=\"9\"/><!-- <Schedule/> --></JobOptions>",
                             "<JobOptions><Other><Schedule Version=\"9\"/></Other></JobOptions>"})
    {
        EXPECT_TRUE(CStartJobScheduleOptions::FromXml(CXmlDocument::Unserialize(text).GetRootNode()) ==
                    CStartJobScheduleOptions())
            << text;
        EXPECT_TRUE(read(text) == CStartJobScheduleOptions()) << text;
    }
}

TEST(CStartJobScheduleOptionsXml, TheFirstOfSeveralElementsCounts)
{
    EXPECT_TRUE(read("<Other/>" + golden("Schedule/periodically.xml") + golden("Schedule/continuously.xml") +
                     "<Schedule Version=\"9\"/>")
                    .IsSchedulePeriodically());
}

TEST(CStartJobScheduleOptionsXml, EveryOrderOfAttributesAndChildren)
{
    CStartJobScheduleOptions expected;
    CWeekMask mask(false);
    mask.SetDay(EDayOfWeek::Sunday, true);
    expected.SetWeekly(7, 8, mask);
    std::vector<std::string> attributes = {"DayOfMonth=\"0\"", "IsEnabled=\"true\"", "Type=\"0\"", "Version=\"3\"",
                                           "WeekDayNumber=\"Every\""};
    std::sort(attributes.begin(), attributes.end());
    do
    {
        std::vector<std::string> children = {
            "<MonthMask December=\"true\" November=\"true\" October=\"true\" September=\"true\" August=\"true\" "
            "July=\"true\" June=\"true\" May=\"true\" April=\"true\" March=\"true\" February=\"true\" "
            "January=\"true\"/>",
            "<Time Minutes=\"8\" Hours=\"7\"/>",
            "<WeekMask Sunday=\"true\" Saturday=\"false\" Friday=\"false\" Thursday=\"false\" Tuesday=\"false\" "
            "Monday=\"false\" Wednesday=\"false\"/>"};
        do
        {
            std::string text = "<!-- a --><JobOptions><!-- b --><Schedule First=\"1\"";
            for (const auto& attribute : attributes)
                text += " " + attribute;
            text += " Last=\"2\"><!-- c --><Other Type=\"7\"/>" + children[0] + "text" + children[1] + "<!-- d -->" +
                    children[2] + "</Schedule></JobOptions>";
            const auto document = CXmlDocument::Unserialize(text);
            ASSERT_TRUE(CStartJobScheduleOptions::FromXml(document.GetRootNode()) == expected) << text;
        } while (std::next_permutation(children.begin(), children.end()));
    } while (std::next_permutation(attributes.begin(), attributes.end()));
}

TEST(CStartJobScheduleOptionsFailures, VersionsAboveThree)
{
    for (const char* version : {"4", "5", "100", "18446744073709551615"})
        EXPECT_EQ(std::string(readFailed) + "Unknown version: [" + version + "].",
                  failureText([&] { read("<Schedule Version=\"" + std::string(version) + "\"/>"); }))
            << version;
}

TEST(CStartJobScheduleOptionsFailures, CurrentDocuments)
{
    const std::string good = "Version=\"3\" IsEnabled=\"true\" WeekDayNumber=\"Every\" DayOfMonth=\"0\" Type=\"0\"";
    const std::string time = "<Time Hours=\"1\" Minutes=\"2\"/>";
    const SRefused rows[] = {
        {"<Schedule Version=\"3\"/>", std::string(readFailed) + "Attribute [IsEnabled] is not found in [Schedule]."},
        {"<Schedule Version=\"3\" IsEnabled=\"true\"/>",
         std::string(calendarFailed) + "Attribute [WeekDayNumber] is not found in [Schedule]."},
        {withAttributes("Version=\"3\" IsEnabled=\"true\" WeekDayNumber=\"Fifth\" DayOfMonth=\"0\" Type=\"0\""),
         std::string(calendarFailed) + "Value [Fifth] is not a valid week number."},
        {withAttributes("Version=\"3\" IsEnabled=\"true\" WeekDayNumber=\"Every\" Type=\"0\""),
         std::string(calendarFailed) +
             "DayOfMonth: Failed to deserialize from Xml. Attribute [DayOfMonth] is not found in [Schedule]."},
        {withAttributes("Version=\"3\" IsEnabled=\"true\" WeekDayNumber=\"Every\" DayOfMonth=\"1st\" Type=\"0\""),
         std::string(calendarFailed) +
             "DayOfMonth: Failed to deserialize from Xml. Unable to convert string [1st] to [unsigned long]."},
        {withAttributes("Version=\"3\" IsEnabled=\"true\" WeekDayNumber=\"Every\" DayOfMonth=\"0\" Type=\"weekly\""),
         std::string(calendarFailed) + "Unable to convert string [weekly] to [int]."},
        {withAttributes(
             "Version=\"3\" IsEnabled=\"true\" WeekDayNumber=\"Every\" DayOfMonth=\"0\" Type=\"2147483648\""),
         std::string(calendarFailed) + "Unable to convert string [2147483648] to [int]."},
        {"<Schedule " + good + ">" + wholeYear + time + "</Schedule>",
         std::string(calendarFailed) +
             "WeekMask: Failed to deserialize from Xml. Node [WeekMask] is not found in [Schedule]."},
        {"<Schedule " + good + ">" + wholeWeek + time + "</Schedule>",
         std::string(calendarFailed) +
             "MonthMask: Failed to deserialize from Xml. Node [MonthMask] is not found in [Schedule]."},
        {"<Schedule " + good + ">" + wholeWeek + wholeYear + "<Time Hours=\"1\"/></Schedule>",
         std::string(calendarFailed) +
             "ScheduleTime: Failed to deserialize from Xml (safe) Attribute [Minutes] is not found in [Time]."},
        {"<Schedule " + good + ">" + wholeWeek + wholeYear + "<Time Hours=\"1\" Minutes=\"0x1\"/></Schedule>",
         std::string(calendarFailed) +
             "ScheduleTime: Failed to deserialize from Xml (safe) Unable to convert string [0x1] to [unsigned long]."},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.failure, failureText([&] { read(row.text); })) << row.text;
}

TEST(CStartJobScheduleOptionsFailures, NumbersAndFlagsWithRubbish)
{
    for (const char* version : {"", "3abc", " 3", "3 ", "+3", "-1", "0x3", "3e0", "3.0", "18446744073709551616"})
        EXPECT_EQ(std::string(readFailed) + "Unable to convert string [" + version + "] to [unsigned long].",
                  failureText([&] { read("<Schedule Version=\"" + std::string(version) + "\"/>"); }))
            << version;
    for (const char* flag : {"", "yes", "2", " true", "on"})
        EXPECT_EQ(std::string(readFailed) + "Unable to convert string [" + flag + "] to [bool].",
                  failureText([&] { read("<Schedule Version=\"3\" IsEnabled=\"" + std::string(flag) + "\"/>"); }))
            << flag;
}

TEST(CStartJobScheduleOptionsQuirks, VersionZeroIsTheCurrentLayout)
{
    for (const char* version : {"0", "3", "003"})
    {
        const auto options =
            read(withAttributes("Version=\"" + std::string(version) +
                                "\" IsEnabled=\"1\" WeekDayNumber=\"every\" DayOfMonth=\"32\" Type=\"1\""));
        EXPECT_TRUE(options.IsEnabled()) << version;
        EXPECT_TRUE(options.IsScheduleMonthly()) << version;
        EXPECT_TRUE(options.GetDayOfMonth().IsSetLast()) << version;
        EXPECT_TRUE(options.GetTime() == CScheduleTime(1, 2)) << version;
    }
}

TEST(CStartJobScheduleOptionsQuirks, TheParentsAttributeCountsForOlderLayoutsOnly)
{
    const auto document =
        CXmlDocument::Unserialize("<JobOptions Schedule=\"true\">" + golden("Schedule/default.xml") + "</JobOptions>");
    EXPECT_FALSE(CStartJobScheduleOptions::FromXml(document.GetRootNode()).IsEnabled());
    const auto rubbish = CXmlDocument::Unserialize("<JobOptions Schedule=\"rubbish\">" + golden("Schedule/weekly.xml") +
                                                   "</JobOptions>");
    EXPECT_TRUE(CStartJobScheduleOptions::FromXml(rubbish.GetRootNode()).IsEnabled());
}

TEST(CStartJobScheduleOptionsQuirks, DocumentsMayHoldWhatTheSettersRefuse)
{
    const auto zero =
        read("<Schedule Version=\"3\" IsEnabled=\"true\" WeekDayNumber=\"Every\" DayOfMonth=\"77\" Type=\"2\">" +
             std::string(wholeWeek) + wholeYear + "<Time Hours=\"0\" Minutes=\"0\"/></Schedule>");
    EXPECT_TRUE(zero.GetTime() == CScheduleTime(0, 0));
    EXPECT_FALSE(zero.GetDayOfMonth().IsSet());
    const auto unknown =
        read(withAttributes("Version=\"3\" IsEnabled=\"true\" WeekDayNumber=\"Every\" DayOfMonth=\"0\" Type=\"7\""));
    EXPECT_EQ(7, static_cast<int>(unknown.GetScheduleType()));
}
