#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/full_backup_options.h>
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

constexpr const char* readFailed = "ActiveFullOptions: Failed to deserialize from Xml. ";
constexpr const char* calendarFailed =
    "ActiveFullOptions: Failed to deserialize from Xml. ScheduleCalendar: Failed to deserialize from Xml. ";

CFullBackupOptions read(const std::string& text, EFullBackupType type)
{
    return CFullBackupOptions::FromXml(CXmlDocument::Unserialize(text).ToNode(), type);
}

/// An active full of the attributes, with complete masks.
std::string withAttributes(const std::string& attributes)
{
    return "<ActiveFullOptions " + attributes + ">" + wholeWeek + wholeYear + "</ActiveFullOptions>";
}

struct SGolden
{
    const char* path;
    CFullBackupOptions options;
};

std::vector<SGolden> goldenOptions()
{
    CFullBackupOptions weekly(EFullBackupType::ActiveFull);
    CWeekMask mask(false);
    mask.SetDay(EDayOfWeek::Wednesday, true);
    mask.SetDay(EDayOfWeek::Sunday, true);
    weekly.SetWeekly(mask);

    CFullBackupOptions monthlyDay(EFullBackupType::ActiveFull);
    monthlyDay.SetMonthlyOnDay(CDayOfMonth(31),
                               months({EMonth::January, EMonth::April, EMonth::July, EMonth::October}));

    CFullBackupOptions defaultWeekly(EFullBackupType::SyntheticFull);
    defaultWeekly.SetDefaultWeekly();

    CFullBackupOptions monthly(EFullBackupType::SyntheticFull);
    monthly.SetMonthly(EWeekDayNumber::Second, EDayOfWeek::Monday, months({EMonth::January, EMonth::July}));

    return {{"ActiveFullOptions/default.xml", CFullBackupOptions(EFullBackupType::ActiveFull)},
            {"ActiveFullOptions/weekly.xml", weekly},
            {"ActiveFullOptions/monthly_day.xml", monthlyDay},
            {"SyntheticFullOptions/default.xml", CFullBackupOptions(EFullBackupType::SyntheticFull)},
            {"SyntheticFullOptions/default_weekly.xml", defaultWeekly},
            {"SyntheticFullOptions/monthly_week_day.xml", monthly}};
}

struct SRefused
{
    std::string text;
    std::string failure;
};

} // namespace

TEST(CFullBackupOptionsXml, GoldenDocuments)
{
    for (const auto& row : goldenOptions())
    {
        const std::string text = golden(row.path);
        EXPECT_EQ(text, textOf(row.options)) << row.path;
        const auto again = read(text, row.options.GetType());
        EXPECT_TRUE(row.options == again) << row.path;
        EXPECT_EQ(text, textOf(again)) << row.path;
    }
}

TEST(CFullBackupOptionsXml, ElementNames)
{
    EXPECT_EQ("SyntheticFullOptions", CFullBackupOptions::GetRootNodeName(EFullBackupType::SyntheticFull));
    for (const int type : {0, 2, 3, -1, 100})
        EXPECT_EQ("ActiveFullOptions", CFullBackupOptions::GetRootNodeName(static_cast<EFullBackupType>(type))) << type;
    EXPECT_EQ(golden("ActiveFullOptions/default.xml"), textOf(CFullBackupOptions(EFullBackupType::Constructing)));
}

TEST(CFullBackupOptionsXml, AMissingElementGivesTheDefault)
{
    for (const auto type : {EFullBackupType::ActiveFull, EFullBackupType::SyntheticFull})
    {
        EXPECT_TRUE(read("<Job/>", type) == CFullBackupOptions(type));
        EXPECT_TRUE(read("<activefulloptions/>", type) == CFullBackupOptions(type));
    }
    const auto parent = CXmlDocument::Unserialize("<Job ActiveFullOptions=\"true\"><!-- - --></Job>").GetRootNode();
    EXPECT_TRUE(CFullBackupOptions::FromXml(parent, EFullBackupType::ActiveFull) ==
                CFullBackupOptions(EFullBackupType::ActiveFull));
}

TEST(CFullBackupOptionsXml, EachTypeReadsItsOwnElement)
{
    const std::string synthetic = golden("SyntheticFullOptions/default_weekly.xml");
    EXPECT_TRUE(read(synthetic, EFullBackupType::ActiveFull) == CFullBackupOptions(EFullBackupType::ActiveFull));
    const std::string both = synthetic + golden("ActiveFullOptions/monthly_day.xml");
    EXPECT_TRUE(read(both, EFullBackupType::SyntheticFull).IsScheduleWeekly());
    EXPECT_EQ(31UL, read(both, EFullBackupType::ActiveFull).GetDayOfMonth().Get());
    EXPECT_EQ(EFullBackupType::Constructing, read(both, EFullBackupType::Constructing).GetType());
    EXPECT_EQ(31UL, read(both, EFullBackupType::Constructing).GetDayOfMonth().Get());
}

TEST(CFullBackupOptionsXml, TheFirstOfSeveralElementsCounts)
{
    const auto options = read(golden("ActiveFullOptions/weekly.xml") + golden("ActiveFullOptions/default.xml") +
                                  "<ActiveFullOptions Version=\"9\"/>",
                              EFullBackupType::ActiveFull);
    EXPECT_TRUE(options.IsEnabled());
    EXPECT_TRUE(options.IsScheduleWeekly());
}

TEST(CFullBackupOptionsXml, VersionsThatAreRead)
{
    const std::string rest = "IsEnabled=\"true\" WeekDayNumber=\"Every\" DayOfMonth=\"9\" Type=\"1\"";
    for (const char* version : {"", "Version=\"0\" ", "Version=\"1\" ", "Version=\"0001\" "})
    {
        const auto options = read(withAttributes(version + rest), EFullBackupType::ActiveFull);
        EXPECT_TRUE(options.IsEnabled()) << version;
        EXPECT_EQ(9UL, options.GetDayOfMonth().Get()) << version;
    }
}

TEST(CFullBackupOptionsXml, FlagsThatAreRead)
{
    const std::string rest = " WeekDayNumber=\"Every\" DayOfMonth=\"9\" Type=\"1\"";
    for (const char* flag : {"true", "True", "TRUE", "1"})
        EXPECT_TRUE(read(withAttributes("IsEnabled=\"" + std::string(flag) + "\"" + rest), EFullBackupType::ActiveFull)
                        .IsEnabled())
            << flag;
    for (const char* flag : {"false", "False", "FALSE", "0"})
        EXPECT_FALSE(read(withAttributes("IsEnabled=\"" + std::string(flag) + "\"" + rest), EFullBackupType::ActiveFull)
                         .IsEnabled())
            << flag;
}

TEST(CFullBackupOptionsXml, EveryOrderOfAttributesAndChildren)
{
    CFullBackupOptions expected(EFullBackupType::ActiveFull);
    expected.SetMonthly(EWeekDayNumber::Last, EDayOfWeek::Friday, months({EMonth::February}));
    std::vector<std::string> attributes = {"DayOfMonth=\"0\"", "IsEnabled=\"true\"", "Type=\"1\"", "Version=\"1\"",
                                           "WeekDayNumber=\"Last\""};
    const std::vector<std::string> children = {
        "<WeekMask Sunday=\"false\" Saturday=\"false\" Friday=\"true\" Thursday=\"false\" Tuesday=\"false\" "
        "Monday=\"false\" Wednesday=\"false\"/>",
        "<MonthMask December=\"false\" November=\"false\" October=\"false\" September=\"false\" August=\"false\" "
        "July=\"false\" June=\"false\" May=\"false\" April=\"false\" March=\"false\" February=\"true\" "
        "January=\"false\"/>"};
    std::sort(attributes.begin(), attributes.end());
    do
    {
        for (std::size_t first = 0; first < 2; ++first)
        {
            std::string text = "<ActiveFullOptions Unknown=\"1\"";
            for (const auto& attribute : attributes)
                text += " " + attribute;
            text += "><!-- c --><Other Type=\"7\"/>" + children[first] + "<!-- d -->" + children[1 - first] +
                    "</ActiveFullOptions>";
            ASSERT_TRUE(read(text, EFullBackupType::ActiveFull) == expected) << text;
        }
    } while (std::next_permutation(attributes.begin(), attributes.end()));
}

TEST(CFullBackupOptionsFailures, VersionsAboveOne)
{
    for (const char* version : {"2", "3", "100", "18446744073709551615"})
        for (const auto type : {EFullBackupType::ActiveFull, EFullBackupType::SyntheticFull})
            EXPECT_EQ(std::string(readFailed) + "Unknown version: [" + version + "].", failureText([&] {
                          read("<" + CFullBackupOptions::GetRootNodeName(type) + " Version=\"" + version + "\"/>",
                               type);
                      }))
                << version;
}

TEST(CFullBackupOptionsFailures, Documents)
{
    const std::string good = "IsEnabled=\"true\" WeekDayNumber=\"Every\" DayOfMonth=\"1\" Type=\"1\"";
    const SRefused rows[] = {
        {"<ActiveFullOptions/>",
         std::string(readFailed) + "Attribute [IsEnabled] is not found in [ActiveFullOptions]."},
        {"<ActiveFullOptions Version=\"2\" IsEnabled=\"yes\"/>", std::string(readFailed) + "Unknown version: [2]."},
        {"<ActiveFullOptions Version=\"1\" IsEnabled=\"true\"/>",
         std::string(calendarFailed) + "Attribute [WeekDayNumber] is not found in [ActiveFullOptions]."},
        {withAttributes("IsEnabled=\"true\" WeekDayNumber=\"Fifth\" DayOfMonth=\"1\" Type=\"1\""),
         std::string(calendarFailed) + "Value [Fifth] is not a valid week number."},
        {withAttributes("IsEnabled=\"true\" WeekDayNumber=\"\" DayOfMonth=\"1\" Type=\"1\""),
         std::string(calendarFailed) + "Value [] is not a valid week number."},
        {withAttributes("IsEnabled=\"true\" WeekDayNumber=\"Every\" Type=\"1\""),
         std::string(calendarFailed) + "DayOfMonth: Failed to deserialize from Xml. "
                                       "Attribute [DayOfMonth] is not found in [ActiveFullOptions]."},
        {withAttributes("IsEnabled=\"true\" WeekDayNumber=\"Every\" DayOfMonth=\"-1\" Type=\"1\""),
         std::string(calendarFailed) +
             "DayOfMonth: Failed to deserialize from Xml. Unable to convert string [-1] to [unsigned long]."},
        {withAttributes("IsEnabled=\"true\" WeekDayNumber=\"Every\" DayOfMonth=\"1\" Type=\"1x\""),
         std::string(calendarFailed) + "ScheduleTime: Failed to deserialize from Xml (safe) "
                                       "Unable to convert string [1x] to [unsigned long]."},
        {"<ActiveFullOptions " + good + ">" + wholeYear + "</ActiveFullOptions>",
         std::string(calendarFailed) +
             "WeekMask: Failed to deserialize from Xml. Node [WeekMask] is not found in [ActiveFullOptions]."},
        {"<ActiveFullOptions " + good + ">" + wholeWeek + "</ActiveFullOptions>",
         std::string(calendarFailed) +
             "MonthMask: Failed to deserialize from Xml. Node [MonthMask] is not found in [ActiveFullOptions]."},
        {"<ActiveFullOptions " + good + "><WeekMask Monday=\"true\"/>" + wholeYear + "</ActiveFullOptions>",
         std::string(calendarFailed) +
             "WeekMask: Failed to deserialize from Xml. Attribute [Tuesday] is not found in [WeekMask]."},
        {"<ActiveFullOptions " + good + ">" + wholeWeek + "<MonthMask January=\"2\"/></ActiveFullOptions>",
         std::string(calendarFailed) +
             "MonthMask: Failed to deserialize from Xml. Unable to convert string [2] to [bool]."},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.failure, failureText([&] { read(row.text, EFullBackupType::ActiveFull); })) << row.text;
}

TEST(CFullBackupOptionsFailures, NumbersAndFlagsWithRubbish)
{
    for (const char* version :
         {"", "1abc", " 1", "1 ", "+1", "-1", "0x1", "1e0", "1.0", "true", "18446744073709551616"})
        EXPECT_EQ(std::string(readFailed) + "Unable to convert string [" + version + "] to [unsigned long].",
                  failureText([&] {
                      read("<ActiveFullOptions Version=\"" + std::string(version) + "\"/>",
                           EFullBackupType::ActiveFull);
                  }))
            << version;
    for (const char* flag : {"", "yes", "2", " true", "true ", "on", "truefalse", "-1"})
        EXPECT_EQ(std::string(readFailed) + "Unable to convert string [" + flag + "] to [bool].", failureText([&] {
                      read("<ActiveFullOptions IsEnabled=\"" + std::string(flag) + "\"/>", EFullBackupType::ActiveFull);
                  }))
            << flag;
}

TEST(CFullBackupOptionsQuirks, AFailedReadOfASyntheticFullSpeaksOfTheActiveOne)
{
    EXPECT_EQ("ActiveFullOptions: Failed to deserialize from Xml. "
              "Attribute [IsEnabled] is not found in [SyntheticFullOptions].",
              failureText([] { read("<SyntheticFullOptions/>", EFullBackupType::SyntheticFull); }));
}

TEST(CFullBackupOptionsQuirks, DocumentsMayHoldWhatTheSettersRefuse)
{
    const auto options =
        read("<ActiveFullOptions IsEnabled=\"true\" WeekDayNumber=\"every\" DayOfMonth=\"99\" Type=\"2\">"
             "<Time Hours=\"25\" Minutes=\"99\"/>" +
                 std::string(wholeWeek) + wholeYear + "</ActiveFullOptions>",
             EFullBackupType::ActiveFull);
    EXPECT_EQ(EScheduleType::Periodically, options.GetScheduleType());
    EXPECT_FALSE(options.GetDayOfMonth().IsSet());
    ASSERT_TRUE(options.GetCalendar().IsTimeSet());
    EXPECT_TRUE(options.GetCalendar().GetTime() == CScheduleTime(25, 99));
}
