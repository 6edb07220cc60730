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
using zelmodel_test::days;
using zelmodel_test::failureText;
using zelmodel_test::golden;
using zelmodel_test::months;

namespace
{

constexpr const char* readFailed = "CStartJobScheduleOptions: Failed to deserialize from Xml. ";
constexpr const char* dailyFailed =
    "CStartJobScheduleOptions: Failed to deserialize from Xml. "
    "CStartJobScheduleOptions: Failed to deserialize old-formated daily options from Xml. ";
constexpr const char* monthlyFailed =
    "CStartJobScheduleOptions: Failed to deserialize from Xml. "
    "CStartJobScheduleOptions: Failed to deserialize old-formated monthly options from Xml. ";
constexpr const char* periodicallyFailed =
    "CStartJobScheduleOptions: Failed to deserialize from Xml. "
    "CStartJobScheduleOptions: Failed to deserialize old-formated periodically options from Xml. ";

constexpr const char* weekEnd = "<WeekMask Monday=\"false\" Tuesday=\"false\" Wednesday=\"false\" Thursday=\"false\" "
                                "Friday=\"false\" Saturday=\"true\" Sunday=\"true\"/>";
constexpr const char* winter =
    "<MonthMask January=\"true\" February=\"true\" March=\"false\" April=\"false\" May=\"false\" June=\"false\" "
    "July=\"false\" August=\"false\" September=\"false\" October=\"false\" November=\"false\" December=\"true\"/>";
constexpr const char* noMonths =
    "<MonthMask January=\"false\" February=\"false\" March=\"false\" April=\"false\" May=\"false\" June=\"false\" "
    "July=\"false\" August=\"false\" September=\"false\" October=\"false\" November=\"false\" December=\"false\"/>";

/// Reads below the document's one root element.
CStartJobScheduleOptions readBelowRoot(const std::string& text)
{
    const auto document = CXmlDocument::Unserialize(text);
    return CStartJobScheduleOptions::FromXml(document.GetRootNode());
}

/// Reads with "Schedule" itself at the top.
CStartJobScheduleOptions read(const std::string& text)
{
    return CStartJobScheduleOptions::FromXml(CXmlDocument::Unserialize(text).ToNode());
}

struct SLegacy
{
    const char* name;
    CStartJobScheduleOptions expected;
};

std::vector<SLegacy> legacyDocuments()
{
    CStartJobScheduleOptions dailyWithoutVersion;
    dailyWithoutVersion.SetWeekly(22, 30,
                                  days({EDayOfWeek::Monday, EDayOfWeek::Tuesday, EDayOfWeek::Wednesday,
                                        EDayOfWeek::Thursday, EDayOfWeek::Friday}));
    CStartJobScheduleOptions dailyWithoutType;
    dailyWithoutType.SetWeekly(3, 15, days({EDayOfWeek::Saturday}));
    CStartJobScheduleOptions daily;
    daily.SetWeekly(7, 5, days({EDayOfWeek::Wednesday, EDayOfWeek::Sunday}));
    CStartJobScheduleOptions monthly;
    monthly.SetMonthlyOnDay(20, 0, CDayOfMonth(15),
                            months({EMonth::January, EMonth::April, EMonth::July, EMonth::October}));
    CStartJobScheduleOptions monthlyLastDay;
    monthlyLastDay.SetMonthlyOnDay(6, 45, CDayOfMonth(32), CMonthMask(true));
    CStartJobScheduleOptions periodically;
    periodically.SetPeriodically(4, 0);
    CStartJobScheduleOptions wholeDay;
    wholeDay.SetPeriodically(24, 0);
    wholeDay.Disable();
    return {{"start_job_daily_without_version", dailyWithoutVersion},
            {"start_job_daily_without_type", dailyWithoutType},
            {"start_job_daily", daily},
            {"start_job_monthly", monthly},
            {"start_job_monthly_last_day", monthlyLastDay},
            {"start_job_periodically", periodically},
            {"start_job_whole_day_period", wholeDay}};
}

struct SRefused
{
    std::string text;
    std::string failure;
};

} // namespace

TEST(CStartJobScheduleOptionsLegacy, Documents)
{
    for (const auto& row : legacyDocuments())
        EXPECT_TRUE(row.expected == readBelowRoot(golden(std::string("legacy/") + row.name + ".xml"))) << row.name;
}

TEST(CStartJobScheduleOptionsLegacy, AreWrittenInTheCurrentLayout)
{
    const auto options = readBelowRoot(golden("legacy/start_job_periodically.xml"));
    CXmlDocument document;
    auto node = document.ToNode();
    options.ToXml(node);
    EXPECT_EQ(golden("Schedule/periodically.xml"), document.Serialize());
}

TEST(CStartJobScheduleOptionsLegacy, EveryVersionWithEveryTypeAndPlaceOfTheTime)
{
    CStartJobScheduleOptions daily;
    daily.SetWeekly(9, 10, days({EDayOfWeek::Saturday, EDayOfWeek::Sunday}));
    CStartJobScheduleOptions monthly;
    monthly.SetMonthlyOnDay(9, 10, CDayOfMonth(31), months({EMonth::January, EMonth::February, EMonth::December}));
    CStartJobScheduleOptions periodically;
    periodically.SetPeriodically(9, 10);
    const struct
    {
        const char* type;
        const CStartJobScheduleOptions* expected;
    } types[] = {{"", &daily}, {" Type=\"0\"", &daily}, {" Type=\"1\"", &monthly}, {" Type=\"2\"", &periodically}};
    const std::string everything = std::string(winter) + "<!-- c --><Other/>" + weekEnd;
    for (const std::string version : {"", " Version=\"1\"", " Version=\"2\""})
        for (const auto& type : types)
        {
            if (version == " Version=\"2\"" && std::string(type.type).empty())
                continue;
            const std::string own = "<Schedule Minutes=\"10\"" + std::string(type.type) + " DayOfMonth=\"31\"" +
                                    version + " Hours=\"9\">" + everything + "</Schedule>";
            const std::string child = "<Schedule" + version + std::string(type.type) + " DayOfMonth=\"31\">" +
                                      everything + "<Time Minutes=\"10\" Hours=\"9\"/></Schedule>";
            for (const auto& text : {own, child})
            {
                EXPECT_TRUE(*type.expected == readBelowRoot("<A Schedule=\"true\">" + text + "</A>")) << text;
                auto off = *type.expected;
                off.Disable();
                EXPECT_TRUE(off == readBelowRoot("<A Schedule=\"False\">" + text + "</A>")) << text;
            }
        }
}

TEST(CStartJobScheduleOptionsLegacy, FlagComesFromTheParent)
{
    const std::string schedule =
        std::string("<Schedule IsEnabled=\"true\" Hours=\"1\" Minutes=\"0\">") + weekEnd + "</Schedule>";
    for (const char* on : {"true", "TRUE", "1"})
        EXPECT_TRUE(readBelowRoot("<A Schedule=\"" + std::string(on) + "\">" + schedule + "</A>").IsEnabled()) << on;
    for (const char* off : {"false", "0"})
        EXPECT_FALSE(readBelowRoot("<A Schedule=\"" + std::string(off) + "\">" + schedule + "</A>").IsEnabled()) << off;
    EXPECT_FALSE(readBelowRoot("<A>" + schedule + "</A>").IsEnabled());
    EXPECT_FALSE(readBelowRoot("<A schedule=\"true\">" + schedule + "</A>").IsEnabled());
}

TEST(CStartJobScheduleOptionsLegacy, ADocumentHasNoFlagAndReadsAsOff)
{
    const auto options = read(std::string("<Schedule Hours=\"1\" Minutes=\"0\">") + weekEnd + "</Schedule>");
    EXPECT_FALSE(options.IsEnabled());
    EXPECT_TRUE(options.GetTime() == CScheduleTime(1, 0));
    EXPECT_FALSE(read("<Schedule Version=\"1\" Type=\"2\" Hours=\"4\" Minutes=\"0\"/>").IsEnabled());
}

TEST(CStartJobScheduleOptionsLegacy, TheFirstScheduleCountsForTheOldReadersToo)
{
    EXPECT_TRUE(read("<Schedule Version=\"1\" Type=\"2\" Hours=\"4\" Minutes=\"0\"/>"
                     "<Schedule Version=\"1\" Type=\"2\" Hours=\"5\" Minutes=\"0\"/>")
                    .GetTime() == CScheduleTime(4, 0));
}

TEST(CStartJobScheduleOptionsFailures, LegacyTypes)
{
    for (const char* version : {"", " Version=\"1\"", " Version=\"2\""})
    {
        for (const char* type : {"3", "-1", "7", "2147483647", "-2147483648"})
            EXPECT_EQ(std::string(readFailed) + "Schedule type [" + type + "] is not supported.",
                      failureText([&] { read("<Schedule" + std::string(version) + " Type=\"" + type + "\"/>"); }))
                << version << type;
        for (const char* type : {"", "0abc", " 0", "+1", "0x1", "1e0", "daily", "2147483648", "18446744073709551616"})
            EXPECT_EQ(std::string(readFailed) + "Unable to convert string [" + type + "] to [int].",
                      failureText([&] { read("<Schedule" + std::string(version) + " Type=\"" + type + "\"/>"); }))
                << version << type;
    }
}

TEST(CStartJobScheduleOptionsFailures, LegacyDocuments)
{
    const std::string weekly =
        "CStartJobScheduleOptions: Failed set weekly schedule. ScheduleCalendar: Failed to set weekly schedule. ";
    const std::string time = "Hours=\"1\" Minutes=\"2\"";
    const SRefused rows[] = {
        {"<Schedule " + time + "/>",
         std::string(dailyFailed) +
             "WeekMask: Failed to deserialize from Xml. Node [WeekMask] is not found in [Schedule]."},
        {"<Schedule " + time + "><WeekMask Monday=\"true\"/></Schedule>",
         std::string(dailyFailed) +
             "WeekMask: Failed to deserialize from Xml. Attribute [Tuesday] is not found in [WeekMask]."},
        {"<Schedule Hours=\"1\"/>", std::string(dailyFailed) + "ScheduleTime: Failed to deserialize from Xml. "
                                                               "ScheduleTime: Failed to deserialize from Xml (safe) "
                                                               "Attribute [Minutes] is not found in [Schedule]."},
        {"<Schedule Version=\"1\" Hours=\"12abc\" Minutes=\"0\"/>",
         std::string(dailyFailed) + "ScheduleTime: Failed to deserialize from Xml. "
                                    "ScheduleTime: Failed to deserialize from Xml (safe) "
                                    "Unable to convert string [12abc] to [unsigned long]."},
        {std::string("<Schedule Hours=\"24\" Minutes=\"0\">") + weekEnd + "</Schedule>",
         dailyFailed + weekly +
             "Failed to validate time [24:00] (schedule is periodically? [false]). Wrong hours of time."},
        {std::string("<Schedule Hours=\"300\" Minutes=\"0\">") + weekEnd + "</Schedule>",
         dailyFailed + weekly +
             "Failed to validate time [44:00] (schedule is periodically? [false]). Wrong hours of time."},
        {"<Schedule Version=\"2\" Type=\"1\" " + time + ">" + winter + "</Schedule>",
         std::string(monthlyFailed) +
             "DayOfMonth: Failed to deserialize from Xml. Attribute [DayOfMonth] is not found in [Schedule]."},
        {"<Schedule Version=\"2\" Type=\"1\" DayOfMonth=\"1\" " + time + "/>",
         std::string(monthlyFailed) +
             "MonthMask: Failed to deserialize from Xml. Node [MonthMask] is not found in [Schedule]."},
        {"<Schedule Version=\"2\" Type=\"1\" DayOfMonth=\"40\" " + time + ">" + winter + "</Schedule>",
         std::string(monthlyFailed) +
             "CStartJobScheduleOptions: Failed set monthly schedule on day [0]. "
             "ScheduleCalendar: Failed to set monthly schedule on day [0]. Day of month is not set."},
        {"<Schedule Version=\"2\" Type=\"1\" DayOfMonth=\"5\" " + time + ">" + noMonths + "</Schedule>",
         std::string(monthlyFailed) + "CStartJobScheduleOptions: Failed set monthly schedule on day [5]. "
                                      "ScheduleCalendar: Failed to set monthly schedule on day [5]. "
                                      "No one month is chosen."},
        {"<Schedule Type=\"2\" Hours=\"25\" Minutes=\"0\"/>",
         std::string(periodicallyFailed) +
             "CStartJobScheduleOptions: Failed set periodically at [25:0]. "
             "ScheduleCalendar: Failed to set periodical schedule. "
             "Failed to validate time [25:00] (schedule is periodically? [true]). Wrong hours of period."},
        {"<Schedule Version=\"1\" Type=\"2\" Hours=\"-4\" Minutes=\"0\"/>",
         std::string(periodicallyFailed) + "ScheduleTime: Failed to deserialize from Xml. "
                                           "ScheduleTime: Failed to deserialize from Xml (safe) "
                                           "Unable to convert string [-4] to [unsigned long]."},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.failure, failureText([&] { read(row.text); })) << row.text;
}

TEST(CStartJobScheduleOptionsFailures, LegacyDocumentsWithoutATime)
{
    const SRefused rows[] = {{"<Schedule/>", dailyFailed},
                             {std::string("<Schedule>") + weekEnd + "</Schedule>", dailyFailed},
                             {"<Schedule Hours=\"1\" Minutes=\"2\"><Time/></Schedule>", dailyFailed},
                             {"<Schedule Type=\"1\" DayOfMonth=\"1\"/>", monthlyFailed},
                             {"<Schedule Type=\"2\"/>", periodicallyFailed}};
    for (const auto& row : rows)
    {
        const std::string expected = row.failure + "ScheduleTime: Failed to deserialize from Xml. ";
        const std::string failure = failureText([&] { read(row.text); });
        EXPECT_EQ(expected, failure.substr(0, expected.size())) << row.text;
        EXPECT_GT(failure.size(), expected.size()) << row.text;
    }
}

TEST(CStartJobScheduleOptionsFailures, LegacyFlagOfTheParent)
{
    for (const char* flag : {"", "yes", "2", " true"})
    {
        const std::string inner = "Unable to convert string [" + std::string(flag) + "] to [bool].";
        const std::string open = "<A Schedule=\"" + std::string(flag) + "\">";
        EXPECT_EQ(dailyFailed + inner, failureText([&] {
                      readBelowRoot(open + "<Schedule Hours=\"1\" Minutes=\"0\">" + weekEnd + "</Schedule></A>");
                  }));
        EXPECT_EQ(monthlyFailed + inner, failureText([&] {
                      readBelowRoot(open + "<Schedule Type=\"1\" DayOfMonth=\"3\" Hours=\"1\" Minutes=\"0\">" + winter +
                                    "</Schedule></A>");
                  }));
        EXPECT_EQ(periodicallyFailed + inner,
                  failureText([&] { readBelowRoot(open + "<Schedule Type=\"2\" Hours=\"1\" Minutes=\"0\"/></A>"); }));
    }
}

TEST(CStartJobScheduleOptionsQuirks, VersionTwoNeedsTheType)
{
    EXPECT_EQ(std::string(readFailed) + "Attribute [Type] is not found in [Schedule].", failureText([] {
                  read(std::string("<Schedule Version=\"2\" Hours=\"1\" Minutes=\"2\">") + weekEnd + "</Schedule>");
              }));
}

TEST(CStartJobScheduleOptionsQuirks, LegacyTimesKeepTheirLowEightBits)
{
    EXPECT_TRUE(read(std::string("<Schedule Hours=\"263\" Minutes=\"286\">") + weekEnd + "</Schedule>").GetTime() ==
                CScheduleTime(7, 30));
    EXPECT_TRUE(read("<Schedule Type=\"2\" Hours=\"256\" Minutes=\"512\"/>").GetTime() == CScheduleTime(24, 0));
}
