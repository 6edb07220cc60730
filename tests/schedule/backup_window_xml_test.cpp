#include <climits>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/backup_window.h>
#include <zelplatform/xmlpp/xmlpp.h>

#include "backup_window_failure.h"
#include "support/expect_failure.h"
#include "support/golden.h"

using namespace zelplatform::model::structs;
using xmlpp::CXmlDocument;
using zelmodel_test::failureText;
using zelmodel_test::golden;
using zelmodel_test::pointerFailureText;

namespace
{

std::string textOf(const BackupWindow& window)
{
    CXmlDocument document;
    auto node = document.ToNode();
    window.toXml(node);
    return document.Serialize();
}

std::shared_ptr<BackupWindow> read(const std::string& text)
{
    return BackupWindow::fromXml(CXmlDocument::Unserialize(text).ToNode());
}

bool sameCells(const DayHourMatrix& a, const DayHourMatrix& b)
{
    for (int day = 0; day < 7; ++day)
        for (int hour = 0; hour < 24; ++hour)
            if (a(day, hour) != b(day, hour))
                return false;
    return a.getScheduleWindowKind() == b.getScheduleWindowKind();
}

struct SGolden
{
    const char* name;
    EScheduleWindowKind kind;
    int minutes;
    std::vector<std::string> days;
};

const std::vector<SGolden>& goldenWindows()
{
    static const std::vector<SGolden> windows = {
        {"always_open", EScheduleWindowKind::Enabled, 0, {}},
        {"always_closed", EScheduleWindowKind::Disabled, 0, {}},
        {"monday_hours", EScheduleWindowKind::Disabled, 120, {"", "08-17"}},
        {"office_hours_closed",
         EScheduleWindowKind::Enabled,
         -300,
         {"00-24", "08-17", "00-03, 22-24", "09-10, 12-13, 15-16", "23-24", "00-01", "06-24"}},
    };
    return windows;
}

BackupWindow windowOf(const SGolden& row)
{
    ScheduleParser parser(row.kind);
    for (std::size_t day = 0; day < row.days.size(); ++day)
        parser.parseDay(static_cast<int>(day), row.days[day]);
    return BackupWindow(parser.getMatrix(), row.minutes);
}

/// A window of the attributes' text.
std::string withAttributes(const std::string& attributes)
{
    return "<ScheduleWindow " + attributes + "><Days/></ScheduleWindow>";
}

/// A closed window with the text between the tags of "Days".
std::string withDays(const std::string& days)
{
    return "<ScheduleWindow Minutes=\"0\" Kind=\"1\"><Days>" + days + "</Days></ScheduleWindow>";
}

struct SText
{
    const char* text;
    const char* expected;
};

struct SMinutes
{
    const char* text;
    int minutes;
};

} // namespace

TEST(BackupWindowXml, GoldenDocuments)
{
    for (const auto& row : goldenWindows())
    {
        const auto window = windowOf(row);
        const std::string text = golden(std::string("ScheduleWindow/") + row.name + ".xml");
        EXPECT_EQ(text, textOf(window)) << row.name;
        const auto again = read(text);
        EXPECT_EQ(row.minutes, again->getHourlyOffsetMinutes()) << row.name;
        EXPECT_TRUE(sameCells(window.getMatrix(), again->getMatrix())) << row.name;
        EXPECT_EQ(text, textOf(*again)) << row.name;
    }
}

TEST(BackupWindowXml, ManyWindowsRoundTrip)
{
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round)
    {
        DayHourMatrix matrix(static_cast<EScheduleWindowKind>(round % 2));
        for (int day = 0; day < 7; ++day)
            for (int hour = 0; hour < 24; ++hour)
                matrix(day, hour) = static_cast<unsigned>(random() % 2);
        const int minutes = static_cast<int>(static_cast<unsigned>(random()));
        const auto again = read(textOf(BackupWindow(matrix, minutes)));
        ASSERT_TRUE(sameCells(matrix, again->getMatrix())) << round;
        ASSERT_EQ(minutes, again->getHourlyOffsetMinutes()) << round;
    }
}

TEST(BackupWindowXml, MatrixIsInjectedIntoAnyElement)
{
    ScheduleParser parser(EScheduleWindowKind::Disabled);
    parser.parseDay(6, "10-12");
    CXmlDocument document;
    auto node = document.AddRootNode("Anything");
    BackupWindow(parser.getMatrix(), 15).injectMatrix(node);
    EXPECT_EQ("<Anything Kind=\"1\"><Days><Saturday Intervals=\"10-12\"/></Days></Anything>", document.Serialize());
    EXPECT_TRUE(sameCells(parser.getMatrix(), BackupWindow::getMatrix(node)));
}

TEST(BackupWindowXml, IsAddedBehindOtherElements)
{
    CXmlDocument document;
    auto root = document.AddRootNode("Job");
    root.AddNode("Other");
    BackupWindow(DayHourMatrix(EScheduleWindowKind::Enabled), 0).toXml(root);
    EXPECT_EQ("<Job><Other/><ScheduleWindow Minutes=\"0\" Kind=\"0\"><Days/></ScheduleWindow></Job>",
              document.Serialize());
}

TEST(BackupWindowXml, AttributesMayStandInAnyOrder)
{
    for (const char* text :
         {"<ScheduleWindow Kind=\"1\" Minutes=\"5\"><Days><Monday Intervals=\"01-02\"/></Days></ScheduleWindow>",
          "<ScheduleWindow Minutes=\"5\" Kind=\"1\"><Days><Monday Intervals=\"01-02\"/></Days></ScheduleWindow>",
          "<ScheduleWindow a=\"1\" Kind=\"1\" b=\"2\" Minutes=\"5\" c=\"3\"><Other/><Days x=\"y\">"
          "<Monday Note=\"n\" Intervals=\"01-02\" Kind=\"0\"/></Days><Days2/></ScheduleWindow>"})
    {
        const auto window = read(text);
        EXPECT_EQ(5, window->getHourlyOffsetMinutes()) << text;
        EXPECT_EQ(EScheduleWindowKind::Disabled, window->getMatrix().getScheduleWindowKind()) << text;
        EXPECT_EQ("01-02", window->getIntervals(1)) << text;
    }
}

TEST(BackupWindowXml, DaysMayStandInAnyOrderAmongCommentsAndText)
{
    const auto window =
        read(withDays("<!-- week end --><Saturday Intervals=\"01-02\"/>text<!-- - --><Sunday Intervals=\"03-04\"/>"
                      "<Friday/><Monday Intervals=\"\"/><Tuesday><Intervals/></Tuesday>"));
    EXPECT_EQ("03-04", window->getIntervals(0));
    for (int day = 1; day < 6; ++day)
        EXPECT_EQ("", window->getIntervals(day)) << day;
    EXPECT_EQ("01-02", window->getIntervals(6));
}

TEST(BackupWindowXml, TheFirstWindowOfSeveralCounts)
{
    const auto window = read("<ScheduleWindow Minutes=\"1\" Kind=\"0\"/><ScheduleWindow Minutes=\"2\" Kind=\"1\"/>");
    EXPECT_EQ(1, window->getHourlyOffsetMinutes());
    EXPECT_EQ(EScheduleWindowKind::Enabled, window->getMatrix().getScheduleWindowKind());
}

TEST(BackupWindowXml, MinutesThatAreRead)
{
    for (const auto& row :
         {SMinutes{"0", 0}, SMinutes{"60", 60}, SMinutes{"0060", 60}, SMinutes{"-300", -300}, SMinutes{"-0", 0},
          SMinutes{"18446744073709551316", -300}, SMinutes{"18446744073709551615", -1}, SMinutes{"2147483647", INT_MAX},
          SMinutes{"18446744071562067968", INT_MIN}, SMinutes{"-2147483648", INT_MIN}})
        EXPECT_EQ(
            row.minutes,
            read(withAttributes(std::string("Kind=\"0\" Minutes=\"") + row.text + "\""))->getHourlyOffsetMinutes())
            << row.text;
}

TEST(BackupWindowXml, MinutesThatAreWritten)
{
    for (const auto& row : {SMinutes{"0", 0}, SMinutes{"60", 60}, SMinutes{"18446744073709551316", -300},
                            SMinutes{"18446744073709551615", -1}, SMinutes{"2147483647", INT_MAX},
                            SMinutes{"18446744071562067968", INT_MIN}})
    {
        const std::string text = textOf(BackupWindow(DayHourMatrix(EScheduleWindowKind::Enabled), row.minutes));
        EXPECT_EQ(std::string("<ScheduleWindow Minutes=\"") + row.text + "\" Kind=\"0\"><Days/></ScheduleWindow>",
                  text);
        EXPECT_EQ(row.minutes, read(text)->getHourlyOffsetMinutes()) << row.text;
    }
}

TEST(BackupWindowFailures, Documents)
{
    for (const auto& row : {
             SText{"<Job/>", "Node [ScheduleWindow] is not found in []."},
             SText{"<schedulewindow Minutes=\"0\" Kind=\"0\"/>", "Node [ScheduleWindow] is not found in []."},
             SText{"<ScheduleWindow/>", "Attribute [Minutes] is not found in [ScheduleWindow]."},
             SText{"<ScheduleWindow Kind=\"0\"/>", "Attribute [Minutes] is not found in [ScheduleWindow]."},
             SText{"<ScheduleWindow Minutes=\"0\"/>", "Attribute [Kind] is not found in [ScheduleWindow]."},
             SText{"<ScheduleWindow Minutes=\"x\" Kind=\"y\"/>", "Unable to convert string [x] to [long]."},
         })
        EXPECT_EQ(row.expected, failureText([&] { read(row.text); })) << row.text;
}

TEST(BackupWindowFailures, AWindowWithinAnElementIsNamedInIt)
{
    const auto document = CXmlDocument::Unserialize("<Job><Other/></Job>");
    EXPECT_EQ("Node [ScheduleWindow] is not found in [Job].",
              failureText([&] { BackupWindow::fromXml(document.GetRootNode()); }));
}

TEST(BackupWindowFailures, NumbersWithRubbish)
{
    for (const char* number : {"", "12abc", " 7", "7 ", "+7", "0x1F", "1e3", "1.0", "true", "--1", "-", "9 9",
                               "18446744073709551616", "-9223372036854775809", "99999999999999999999999999"})
    {
        const std::string expected = "Unable to convert string [" + std::string(number) + "] to [long].";
        const std::string quoted = "\"" + std::string(number) + "\"";
        EXPECT_EQ(expected, failureText([&] { read(withAttributes("Kind=\"0\" Minutes=" + quoted)); })) << number;
        EXPECT_EQ(expected, failureText([&] { read(withAttributes("Minutes=\"0\" Kind=" + quoted)); })) << number;
    }
    // Only the minutes take the upper half of the unsigned numbers.
    for (const char* number : {"9223372036854775808", "18446744073709551615"})
        EXPECT_EQ("Unable to convert string [" + std::string(number) + "] to [long].",
                  failureText([&] { read(withAttributes(std::string("Minutes=\"0\" Kind=\"") + number + "\"")); }))
            << number;
}

TEST(BackupWindowFailures, KindOutsideTheRangeOfAnInt)
{
    for (const char* kind :
         {"2147483648", "-2147483649", "4294967296", "4294967297", "9223372036854775807", "-9223372036854775808"})
        EXPECT_EQ("Unable to cast value from [long] to [zelplatform::model::structs::EScheduleWindowKind].",
                  failureText([&] { read(withAttributes(std::string("Minutes=\"0\" Kind=\"") + kind + "\"")); }))
            << kind;
}

TEST(BackupWindowFailures, DaysAndIntervals)
{
    for (const auto& row : {
             SText{"<monday Intervals=\"01-02\"/>", "Unknown day of the week value: [monday]."},
             SText{"<MONDAY Intervals=\"01-02\"/>", "Unknown day of the week value: [MONDAY]."},
             SText{"<Mon Intervals=\"01-02\"/>", "Unknown day of the week value: [Mon]."},
             SText{"<Mondays/>", "Unknown day of the week value: [Mondays]."},
             SText{"<Day/>", "Unknown day of the week value: [Day]."},
             SText{"<Monday Intervals=\"01-02\"/><Holiday/>", "Unknown day of the week value: [Holiday]."},
             SText{"<Monday Intervals=\"01-03,05-07\"/>",
                   "Cannot parse a date time interval from the string [01-03,05-07]."},
             SText{"<Monday Intervals=\" \"/>", "Cannot parse a date time interval from the string [ ]."},
             SText{"<Monday Intervals=\"08\"/>", "Cannot parse a date time interval from the string [08]."},
             SText{"<Monday Intervals=\"08-1x\"/>", "Unable to convert string [1x] to [int]."},
             SText{"<Sunday Intervals=\"22-25\"/>", "Backup window matrix indices out of range."},
             SText{"<Sunday Intervals=\"22-25\"/><Day/>", "Backup window matrix indices out of range."},
             SText{"<Day/><Sunday Intervals=\"22-25\"/>", "Unknown day of the week value: [Day]."},
         })
        EXPECT_EQ(row.expected, failureText([&] { read(withDays(row.text)); })) << row.text;
}

TEST(BackupWindowQuirks, MissingDaysAreTheDefaults)
{
    for (const int kind : {0, 1})
        for (const char* rest : {"/>", "></ScheduleWindow>", "><!-- none --></ScheduleWindow>",
                                 "><Monday Intervals=\"01-02\"/></ScheduleWindow>"})
        {
            const auto window =
                read("<ScheduleWindow Minutes=\"0\" Kind=\"" + std::to_string(kind) + "\"" + std::string(rest));
            EXPECT_TRUE(sameCells(DayHourMatrix(static_cast<EScheduleWindowKind>(kind)), window->getMatrix())) << rest;
        }
}

TEST(BackupWindowQuirks, RepeatedDaysAddUpButOnlyTheFirstDaysAreRead)
{
    const auto window = read("<ScheduleWindow Minutes=\"0\" Kind=\"1\"><Days><Monday Intervals=\"01-02\"/>"
                             "<Monday Intervals=\"05-06\"/><Monday/></Days>"
                             "<Days><Monday Intervals=\"10-11\"/><Unknown/></Days></ScheduleWindow>");
    EXPECT_EQ("01-02, 05-06", window->getIntervals(1));
}

TEST(BackupWindowQuirks, MinutesAreCutToAnInt)
{
    for (const auto& row :
         {SMinutes{"4294967297", 1}, SMinutes{"4294967296", 0}, SMinutes{"2147483648", INT_MIN},
          SMinutes{"4294967295", -1}, SMinutes{"-2147483649", INT_MAX}, SMinutes{"9223372036854775807", -1},
          SMinutes{"-9223372036854775808", 0}, SMinutes{"9223372036854775808", 0}})
        EXPECT_EQ(
            row.minutes,
            read(withAttributes(std::string("Kind=\"0\" Minutes=\"") + row.text + "\""))->getHourlyOffsetMinutes())
            << row.text;
}

TEST(BackupWindowQuirks, UnknownKindsOfDocumentsAreThrownAsPointers)
{
    for (const char* kind : {"2", "-1", "3", "100", "2147483647", "-2147483648"})
    {
        const auto document =
            CXmlDocument::Unserialize(withAttributes(std::string("Minutes=\"0\" Kind=\"") + kind + "\""));
        EXPECT_EQ("An unsupported schedule window kind occurred: [].",
                  pointerFailureText([&] { BackupWindow::getMatrix(document.GetRootNode()); }))
            << kind;
        EXPECT_EQ("An unsupported schedule window kind occurred: [].",
                  pointerFailureText([&] { BackupWindow::fromXml(document.ToNode()); }))
            << kind;
    }
}

TEST(BackupWindowQuirks, AnUnknownKindComesBeforeFaultyDays)
{
    const auto document =
        CXmlDocument::Unserialize("<ScheduleWindow Minutes=\"0\" Kind=\"2\"><Days><Day/></Days></ScheduleWindow>");
    EXPECT_EQ("An unsupported schedule window kind occurred: [].",
              pointerFailureText([&] { BackupWindow::fromXml(document.ToNode()); }));
}
