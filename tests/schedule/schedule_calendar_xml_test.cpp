#include <string>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_calendar.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "support/expect_failure.h"
#include "support/golden.h"

using namespace zelplatform::model::structs;
using datetime::EDayOfWeek;
using zelmodel_test::failureText;
using zelmodel_test::golden;

namespace
{

const std::string Context = "ScheduleCalendar: Failed to deserialize from Xml. ";

std::string written(const CScheduleCalendar& calendar)
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode("Schedule");
    calendar.ToXml(root);
    return document.Serialize();
}

CScheduleCalendar readBack(const std::string& text)
{
    return CScheduleCalendar::FromXml(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}

std::string readFailure(const std::string& text)
{
    return failureText([&] { readBack(text); });
}

/// The text with the first occurrence of a part replaced.
std::string changed(std::string text, const std::string& part, const std::string& replacement)
{
    const std::size_t at = text.find(part);
    EXPECT_NE(at, std::string::npos) << part;
    return text.replace(at, part.size(), replacement);
}

CMonthMask months(const std::string& names)
{
    return CMonthMask::FromString(names, ',');
}

} // namespace

TEST(ScheduleCalendarXml, WritesAndReadsEachKind)
{
    const auto type = [](int number) { return static_cast<EScheduleType::type>(number); };
    CScheduleCalendar lastFriday;
    lastFriday.SetMonthly(CScheduleTime(0, 5), EWeekDayNumber::Last, EDayOfWeek::Friday, months("March,June"));
    const struct
    {
        const char* file;
        CScheduleCalendar calendar;
    } table[] = {
        {"calendar_default", CScheduleCalendar()},
        {"calendar_weekly",
         CScheduleCalendar(type(0), CScheduleTime(22, 30), CWeekMask::FromString("Monday,Friday", ','),
                           CMonthMask(false), EWeekDayNumber::First, CDayOfMonth(0))},
        {"calendar_monthly_last_friday", lastFriday},
        {"calendar_monthly_last_day", CScheduleCalendar(type(1), std::nullopt, CWeekMask(false), months("January,July"),
                                                        EWeekDayNumber::First, CDayOfMonth(32))},
        {"calendar_periodical_whole_day", CScheduleCalendar(type(2), CScheduleTime(0, 0), CWeekMask(false),
                                                            CMonthMask(false), EWeekDayNumber::First, CDayOfMonth(0))},
        {"calendar_continuous", CScheduleCalendar(type(3), std::nullopt, CWeekMask(false), CMonthMask(false),
                                                  EWeekDayNumber::First, CDayOfMonth(0))},
    };
    for (const auto& row : table)
    {
        const std::string text = golden(std::string("Schedule/") + row.file + ".xml");
        EXPECT_EQ(written(row.calendar), text) << row.file;
        EXPECT_EQ(readBack(text), row.calendar) << row.file;
        EXPECT_EQ(written(readBack(text)), text) << row.file;
    }
}

TEST(ScheduleCalendarXml, WritesIntoAnElementThatHoldsOtherThings)
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode("Schedule");
    root.SetBoolAttribute("IsEnabled", true);
    root.AddNode("Before");
    CScheduleCalendar().ToXml(root);
    const std::string text = document.Serialize();
    const std::string start =
        R"(<Schedule IsEnabled="true" WeekDayNumber="First" DayOfMonth="0" Type="1"><Before/><WeekMask Monday="true")";
    EXPECT_EQ(text.substr(0, start.size()), start);
    EXPECT_EQ(readBack(text), CScheduleCalendar());
}

TEST(ScheduleCalendarXml, PassesOverCommentsAndWhatItDoesNotKnow)
{
    std::string text = golden("Schedule/calendar_weekly.xml");
    text = changed(text, "<WeekMask", "<!-- a --><Extra Type=\"1\" Hours=\"1\"/>\n<WeekMask");
    text = changed(text, "<Schedule", "<Schedule Color=\"red\"");
    text = changed(text, "</Schedule>", "<Time Hours=\"1\" Minutes=\"1\"/><WeekMask/><!-- b --></Schedule>");
    EXPECT_EQ(readBack(text), readBack(golden("Schedule/calendar_weekly.xml")));
}

TEST(ScheduleCalendarLegacy, TheTimeMarksAPeriod)
{
    CScheduleCalendar expected;
    expected.SetPeriodically(CScheduleTime(4, 0));
    const std::string text = golden("legacy/calendar_periodical_by_time_type.xml");
    EXPECT_EQ(readBack(text), expected);
    EXPECT_TRUE(readBack(changed(text, "Hours=\"4\" Minutes=\"0\"", "")).IsSchedulePeriodically());
    EXPECT_FALSE(readBack(changed(text, "Hours=\"4\" Minutes=\"0\"", "")).IsTimeSet());
    EXPECT_TRUE(readBack(changed(text, "Time Type=\"1\"", "Time Type=\"2\"")).IsScheduleWeekly());
}

TEST(ScheduleCalendarLegacy, TheDayOrNumberMarksAMonth)
{
    CScheduleCalendar onDay;
    onDay.SetMonthlyOnDay(CScheduleTime(6, 15), CDayOfMonth(15), months("May"));
    EXPECT_EQ(readBack(golden("legacy/calendar_monthly_on_day.xml")), onDay);

    CScheduleCalendar byNumber;
    byNumber.SetMonthly(std::nullopt, EWeekDayNumber::Third, EDayOfWeek::Tuesday, CMonthMask(true));
    EXPECT_EQ(readBack(golden("legacy/calendar_monthly_by_number.xml")), byNumber);
}

TEST(ScheduleCalendarLegacy, TheTimeStandsOnTheElement)
{
    CScheduleCalendar expected;
    expected.SetWeekly(CScheduleTime(6, 15), CWeekMask::FromString("Saturday", ','));
    EXPECT_EQ(readBack(golden("legacy/calendar_time_on_element.xml")), expected);
}

TEST(ScheduleCalendarFailures, MissingParts)
{
    const std::string text = golden("Schedule/calendar_weekly.xml");
    EXPECT_EQ(readFailure(changed(text, " WeekDayNumber=\"Every\"", "")),
              Context + "Attribute [WeekDayNumber] is not found in [Schedule].");
    EXPECT_EQ(readFailure(changed(text, " DayOfMonth=\"0\"", "")),
              Context +
                  "DayOfMonth: Failed to deserialize from Xml. Attribute [DayOfMonth] is not found in [Schedule].");
    EXPECT_EQ(readFailure(changed(text, "<WeekMask", "<Mask")),
              Context + "WeekMask: Failed to deserialize from Xml. Node [WeekMask] is not found in [Schedule].");
    EXPECT_EQ(readFailure(changed(text, "<MonthMask", "<Mask")),
              Context + "MonthMask: Failed to deserialize from Xml. Node [MonthMask] is not found in [Schedule].");
    EXPECT_EQ(readFailure(changed(text, " Minutes=\"30\"", "")),
              Context +
                  "ScheduleTime: Failed to deserialize from Xml (safe) Attribute [Minutes] is not found in [Time].");
    EXPECT_EQ(readFailure("<Schedule/>"), Context + "Attribute [WeekDayNumber] is not found in [Schedule].");
}

TEST(ScheduleCalendarFailures, PartsThatCannotBeRead)
{
    const std::string text = golden("Schedule/calendar_weekly.xml");
    for (const char* word : {"", "fifth", " Every", "6"})
    {
        EXPECT_EQ(readFailure(changed(text, "\"Every\"", std::string("\"") + word + "\"")),
                  Context + "Value [" + word + "] is not a valid week number.");
    }
    for (const char* type : {"", "weekly", "0x0", " 0", "1e0", "0abc", "+1", "2147483648", "-2147483649"})
    {
        EXPECT_EQ(readFailure(changed(text, "Type=\"0\"", std::string("Type=\"") + type + "\"")),
                  Context + "Unable to convert string [" + type + "] to [int].");
    }
    EXPECT_EQ(readFailure(changed(text, "DayOfMonth=\"0\"", "DayOfMonth=\"last\"")),
              Context +
                  "DayOfMonth: Failed to deserialize from Xml. Unable to convert string [last] to [unsigned long].");
    EXPECT_EQ(readFailure(changed(text, "Friday=\"true\"", "Friday=\"yes\"")),
              Context + "WeekMask: Failed to deserialize from Xml. Unable to convert string [yes] to [bool].");
    EXPECT_EQ(readFailure(changed(text, "May=\"true\"", "May=\"\"")),
              Context + "MonthMask: Failed to deserialize from Xml. Unable to convert string [] to [bool].");
    EXPECT_EQ(readFailure(changed(text, "Hours=\"22\"", "Hours=\"22h\"")),
              Context + "ScheduleTime: Failed to deserialize from Xml (safe) Unable to convert string [22h] to "
                        "[unsigned long].");
}

TEST(ScheduleCalendarFailures, Writing)
{
    CScheduleCalendar calendar;
    calendar.SetWeekDayNumber(static_cast<EWeekDayNumber::type>(0));
    EXPECT_EQ(failureText([&] { written(calendar); }),
              "ScheduleCalendar: Failed to serialize to Xml. Unable to convert EWeekDayNumber::type [0] to string.");
    const std::string failure = failureText([] {
        xmlpp::CXmlDocument document;
        auto node = document.ToNode();
        CScheduleCalendar().ToXml(node);
    });
    EXPECT_EQ(failure.rfind("ScheduleCalendar: Failed to serialize to Xml. ", 0), 0U) << failure;
}

TEST(ScheduleCalendarQuirks, ReadingAcceptsWhatSettersRefuse)
{
    const std::string text = golden("Schedule/calendar_refused_by_setters.xml");
    const CScheduleCalendar calendar = readBack(text);
    EXPECT_EQ(static_cast<int>(calendar.GetScheduleType()), 7);
    EXPECT_EQ(calendar.GetWeekDayNumber(), EWeekDayNumber::Second);
    EXPECT_EQ(calendar.GetDayOfMonth().Get(), 13U);
    EXPECT_EQ(calendar.GetWeekMask().ToLogStr(true), "Sun, Tue");
    EXPECT_TRUE(calendar.GetMonthMask().IsAllMonthsOff());
    EXPECT_EQ(calendar.GetTime(), CScheduleTime(25, 99));
    EXPECT_FALSE(calendar.IsScheduleRecurrent());
    EXPECT_TRUE(calendar.IsActiveFullSupported());
    EXPECT_EQ(written(calendar), text);
}

TEST(ScheduleCalendarQuirks, ReadingRepairsNothing)
{
    const std::string period = changed(golden("Schedule/calendar_periodical_whole_day.xml"), "\"24\"", "\"0\"");
    EXPECT_EQ(readBack(period).GetTime(), CScheduleTime(0, 0));
    EXPECT_EQ(written(readBack(period)), period);
    const std::string day = changed(golden("Schedule/calendar_weekly.xml"), "DayOfMonth=\"0\"", "DayOfMonth=\"40\"");
    EXPECT_FALSE(readBack(day).GetDayOfMonth().IsSet());
    const std::string hours = changed(golden("Schedule/calendar_weekly.xml"), "Hours=\"22\"", "Hours=\"300\"");
    EXPECT_EQ(readBack(hours).GetTime(), CScheduleTime(44, 30));
}

TEST(ScheduleCalendarQuirks, TheTypeAttributeWinsOverTheTimesMark)
{
    const std::string text = changed(golden("Schedule/calendar_weekly.xml"), "<Time ", "<Time Type=\"1\" ");
    EXPECT_TRUE(readBack(text).IsScheduleWeekly());
    const std::string onElement =
        changed(golden("legacy/calendar_time_on_element.xml"), "<Schedule ", "<Schedule Type=\"1\" ");
    EXPECT_TRUE(readBack(onElement).IsScheduleMonthly());
    EXPECT_EQ(readBack(onElement).GetTime(), CScheduleTime(6, 15));
}

TEST(ScheduleCalendarQuirks, ANegativeTypePassesOnlyBesideATime)
{
    const std::string withTime = changed(golden("Schedule/calendar_weekly.xml"), "Type=\"0\"", "Type=\"-1\"");
    EXPECT_EQ(static_cast<int>(readBack(withTime).GetScheduleType()), -1);
    const std::string without = changed(golden("Schedule/calendar_continuous.xml"), "Type=\"3\"", "Type=\"-1\"");
    EXPECT_EQ(readFailure(without), Context + "ScheduleTime: Failed to deserialize from Xml (safe) Unable to convert "
                                              "string [-1] to [unsigned long].");
}
