#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_options.h>
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

namespace
{

CScheduleOptions weeklyWithFulls()
{
    CScheduleOptions options;
    CWeekMask workDays(true);
    workDays.SetDay(EDayOfWeek::Saturday, false);
    workDays.SetDay(EDayOfWeek::Sunday, false);
    options.GetJobStartOptions().SetWeekly(22, 5, workDays);
    options.GetActiveFullOptions().SetMonthlyOnDay(
        CDayOfMonth(31), months({EMonth::January, EMonth::April, EMonth::July, EMonth::October}));
    options.GetSyntheticFullOptions().SetDefaultWeekly();
    return options;
}

CScheduleOptions everyFourHours()
{
    CScheduleOptions options;
    options.GetJobStartOptions().SetPeriodically(4, 0);
    return options;
}

struct SGolden
{
    const char* name;
    CScheduleOptions options;
};

std::vector<SGolden> goldenOptions()
{
    return {
        {"default", CScheduleOptions()}, {"weekly_with_fulls", weeklyWithFulls()}, {"periodically", everyFourHours()}};
}

struct SRefused
{
    std::string text;
    std::string failure;
};

std::string inRoot(const std::string& children)
{
    return "<ScheduleOptions>" + children + "</ScheduleOptions>";
}

} // namespace

TEST(CScheduleOptionsXml, GoldenDocuments)
{
    for (const auto& row : goldenOptions())
    {
        const std::string text = golden(std::string("ScheduleOptions/") + row.name + ".xml");
        EXPECT_EQ(text, row.options.ToXmlString()) << row.name;
        const auto again = CScheduleOptions::FromXmlString(text);
        EXPECT_TRUE(row.options == again) << row.name;
        EXPECT_TRUE(row.options.GetSyntheticFullOptions() == again.GetSyntheticFullOptions()) << row.name;
        EXPECT_EQ(text, again.ToXmlString()) << row.name;
    }
}

TEST(CScheduleOptionsXml, PartsAreAddedToAnyElementInTheirOrder)
{
    CXmlDocument document;
    auto root = document.AddRootNode("JobOptions");
    root.AddNode("Other");
    weeklyWithFulls().ToXml(root);
    EXPECT_EQ("<JobOptions><Other/>" + golden("Schedule/weekly.xml") + golden("ActiveFullOptions/monthly_day.xml") +
                  golden("SyntheticFullOptions/default_weekly.xml") + "</JobOptions>",
              document.Serialize());
    EXPECT_TRUE(CScheduleOptions::FromXml(root) == weeklyWithFulls());
}

TEST(CScheduleOptionsXml, MissingPartsKeepTheirDefaults)
{
    const auto expected = weeklyWithFulls();
    const std::string start = golden("Schedule/weekly.xml");
    const std::string active = golden("ActiveFullOptions/monthly_day.xml");
    const std::string synthetic = golden("SyntheticFullOptions/default_weekly.xml");
    for (unsigned parts = 0; parts < 8; ++parts)
    {
        const bool hasStart = (parts & 1U) != 0;
        const bool hasActive = (parts & 2U) != 0;
        const bool hasSynthetic = (parts & 4U) != 0;
        const std::string text =
            inRoot((hasStart ? start : "") + (hasActive ? active : "") + (hasSynthetic ? synthetic : ""));
        const auto options = CScheduleOptions::FromXmlString(text);
        const CScheduleOptions none;
        EXPECT_TRUE(options.GetJobStartOptions() == (hasStart ? expected : none).GetJobStartOptions()) << text;
        EXPECT_TRUE(options.GetActiveFullOptions() == (hasActive ? expected : none).GetActiveFullOptions()) << text;
        EXPECT_TRUE(options.GetSyntheticFullOptions() == (hasSynthetic ? expected : none).GetSyntheticFullOptions())
            << text;
        EXPECT_EQ(nullptr, options.getBackupWindow());
    }
}

TEST(CScheduleOptionsXml, PartsMayStandInAnyOrderAmongOthers)
{
    std::vector<std::string> parts = {golden("Schedule/weekly.xml"), golden("ActiveFullOptions/monthly_day.xml"),
                                      golden("SyntheticFullOptions/default_weekly.xml")};
    std::sort(parts.begin(), parts.end());
    do
    {
        const auto options = CScheduleOptions::FromXmlString(
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?><!-- a -->\n<ScheduleOptions Schedule=\"false\">\n  <!-- b -->" +
            parts[0] + "<Schedules/>" + parts[1] + "text<!-- c -->" + parts[2] + "</ScheduleOptions><Other/>");
        EXPECT_TRUE(options == weeklyWithFulls());
        EXPECT_TRUE(options.GetSyntheticFullOptions() == weeklyWithFulls().GetSyntheticFullOptions());
    } while (std::next_permutation(parts.begin(), parts.end()));
}

TEST(CScheduleOptionsXml, OlderLayoutsOfTheStart)
{
    const auto document = CXmlDocument::Unserialize(golden("legacy/start_job_periodically.xml"));
    const auto options = CScheduleOptions::FromXml(document.GetRootNode());
    EXPECT_TRUE(options == everyFourHours());
    EXPECT_EQ(golden("ScheduleOptions/periodically.xml"), options.ToXmlString());
}

TEST(CScheduleOptionsFailures, TextsThatAreNoXml)
{
    const std::string failed = "ScheduleOptions: Failed to convert FromXmlString: ";
    for (const std::string text : {"<a></b>", "<a>%1 %2</b>", "<ScheduleOptions></scheduleOptions>"})
        EXPECT_EQ(failed + text + " Unable to parse XML at line 1: [XML_ERROR_MISMATCHED_ELEMENT].",
                  failureText([&] { CScheduleOptions::FromXmlString(text); }));
    for (const std::string text :
         {"", "rubbish", "rubbish<ScheduleOptions/>", "<ScheduleOptions/>rubbish", "<ScheduleOptions",
          "<ScheduleOptions>", "<!-- only -->", "<ScheduleOptions a='1' a='2'/>",
          "<?xml version=\"1.0\" encoding=\"UTF-16\"?><ScheduleOptions/>"})
    {
        const std::string expected = failed + text + " Unable to parse XML at line ";
        EXPECT_EQ(expected, failureText([&] { CScheduleOptions::FromXmlString(text); }).substr(0, expected.size()));
    }
}

TEST(CScheduleOptionsFailures, TextsWithANulAreNotReadUpToIt)
{
    const std::string text = golden("ScheduleOptions/default.xml");
    for (const std::size_t place : {std::size_t{0}, std::size_t{20}, text.size()})
    {
        std::string broken = text;
        broken.insert(place, 1, '\0');
        EXPECT_EQ("ScheduleOptions: Failed to convert FromXmlString: " + text.substr(0, place),
                  failureText([&] { CScheduleOptions::FromXmlString(broken); }))
            << place;
    }
}

TEST(CScheduleOptionsFailures, Documents)
{
    const std::string wrapped = "ScheduleOptions: Failed to deserialize from Xml. ";
    const SRefused rows[] = {
        {"<JobOptions/>", "Root node [ScheduleOptions] is not found."},
        {"<scheduleoptions/>", "Root node [ScheduleOptions] is not found."},
        {"<Other/>" + golden("ScheduleOptions/default.xml"), "Root node [ScheduleOptions] is not found."},
        {inRoot("<Schedule Version=\"4\"/>"),
         wrapped + "CStartJobScheduleOptions: Failed to deserialize from Xml. Unknown version: [4]."},
        {inRoot("<ActiveFullOptions Version=\"2\"/>"),
         wrapped + "ActiveFullOptions: Failed to deserialize from Xml. Unknown version: [2]."},
        {inRoot("<SyntheticFullOptions Version=\"2\"/>"),
         wrapped + "ActiveFullOptions: Failed to deserialize from Xml. Unknown version: [2]."},
        {inRoot("<SyntheticFullOptions Version=\"1\" IsEnabled=\"yes\"/>"),
         wrapped + "ActiveFullOptions: Failed to deserialize from Xml. Unable to convert string [yes] to [bool]."},
        // The parts are read in their own order, whatever the order in the document.
        {inRoot("<SyntheticFullOptions Version=\"7\"/><ActiveFullOptions Version=\"6\"/><Schedule Version=\"5\"/>"),
         wrapped + "CStartJobScheduleOptions: Failed to deserialize from Xml. Unknown version: [5]."},
        {inRoot("<SyntheticFullOptions Version=\"7\"/><ActiveFullOptions Version=\"6\"/>"),
         wrapped + "ActiveFullOptions: Failed to deserialize from Xml. Unknown version: [6]."},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ("ScheduleOptions: Failed to convert FromXmlString: " + row.text + " " + row.failure,
                  failureText([&] { CScheduleOptions::FromXmlString(row.text); }));
    }
}

TEST(CScheduleOptionsFailures, OfAnElementAlone)
{
    const auto document = CXmlDocument::Unserialize("<A><ActiveFullOptions/></A>");
    EXPECT_EQ("ScheduleOptions: Failed to deserialize from Xml. ActiveFullOptions: Failed to deserialize from Xml. "
              "Attribute [IsEnabled] is not found in [ActiveFullOptions].",
              failureText([&] { CScheduleOptions::FromXml(document.GetRootNode()); }));
}

TEST(CScheduleOptionsQuirks, TheWindowIsNotStored)
{
    auto options = weeklyWithFulls();
    options.setBackupWindow(std::make_shared<BackupWindow>(DayHourMatrix(EScheduleWindowKind::Disabled), 60));
    EXPECT_EQ(golden("ScheduleOptions/weekly_with_fulls.xml"), options.ToXmlString());
    EXPECT_EQ(nullptr, CScheduleOptions::FromXmlString(options.ToXmlString()).getBackupWindow());
    // Nor is one read that stands in the document.
    EXPECT_EQ(nullptr,
              CScheduleOptions::FromXmlString(inRoot(golden("ScheduleWindow/monday_hours.xml"))).getBackupWindow());
    EXPECT_EQ(nullptr, CScheduleOptions::FromXmlString(inRoot("<ScheduleWindow Kind=\"2\"/>")).getBackupWindow());
}

TEST(CScheduleOptionsQuirks, ASyntheticFullSetAsActiveIsWrittenUnderItsOwnName)
{
    CScheduleOptions options;
    CFullBackupOptions stray(EFullBackupType::SyntheticFull);
    stray.SetDefaultWeekly();
    options.SetActiveFullOptions(stray);
    EXPECT_EQ(golden("Schedule/default.xml") + golden("SyntheticFullOptions/default_weekly.xml") +
                  golden("SyntheticFullOptions/default.xml"),
              textOf(options));
    const auto again = CScheduleOptions::FromXmlString(options.ToXmlString());
    EXPECT_TRUE(again.GetActiveFullOptions() == CFullBackupOptions(EFullBackupType::ActiveFull));
    EXPECT_TRUE(again.GetSyntheticFullOptions() == stray);
}
