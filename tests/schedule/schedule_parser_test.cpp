#include <climits>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_parser.h>
#include <zelplatform/datetime/names.h>

#include "backup_window_failure.h"
#include "support/expect_failure.h"

using namespace zelplatform::model::structs;
using zelmodel_test::failureText;
using zelmodel_test::pointerFailureText;

namespace
{

/// The hours of a day as 24 characters, 'x' for those that differ from the kind's default.
std::string listedHours(const DayHourMatrix& matrix, int day)
{
    std::string hours;
    for (int hour = 0; hour < 24; ++hour)
        hours.push_back(matrix(day, hour) == matrix.getDefaultValue() ? '.' : 'x');
    return hours;
}

constexpr const char* noHours = "........................";
constexpr const char* allHours = "xxxxxxxxxxxxxxxxxxxxxxxx";
constexpr const char* outOfRange = "Backup window matrix indices out of range.";

struct SAccepted
{
    const char* text;
    const char* hours;
};

constexpr SAccepted accepted[] = {
    {"", noHours},
    {"08-17", "........xxxxxxxxx......."},
    {"08-17, 20-24", "........xxxxxxxxx...xxxx"},
    {"20-24, 08-17", "........xxxxxxxxx...xxxx"},
    {"00-03, 22-24", "xxx...................xx"},
    {"00-24", allHours},
    {"0-24", allHours},
    {"0-1", "x......................."},
    {"8-9", "........x..............."},
    {"008-0009", "........x..............."},
    {"23-24", ".......................x"},
    {"05-10, 08-12", ".....xxxxxxx............"},
    {"05-10, 05-10", ".....xxxxx.............."},
    {"00-12, 12-24", allHours},
    {"01-02, 03-04, 05-06", ".x.x.x.................."},
};

constexpr const char* emptyIntervals[] = {"05-05",       "07-03", "24-24", "24-05",        "30-30",
                                          "99-12",       "00-00", "23-23", "2147483647-0", "2147483647-2147483647",
                                          "05-05, 07-03"};

struct SRefused
{
    const char* text;
    const char* failure;
    const char* hours; ///< what was listed before the failure and stays
};

constexpr SRefused refused[] = {
    {"01-03,05-07", "Cannot parse a date time interval from the string [01-03,05-07].", noHours},
    {"01-03;05-07", "Cannot parse a date time interval from the string [01-03;05-07].", noHours},
    {"08", "Cannot parse a date time interval from the string [08].", noHours},
    {" ", "Cannot parse a date time interval from the string [ ].", noHours},
    {",", "Cannot parse a date time interval from the string [,].", noHours},
    {", ", "Cannot parse a date time interval from the string [].", noHours},
    {", 08-17", "Cannot parse a date time interval from the string [].", noHours},
    {"08-10, ", "Cannot parse a date time interval from the string [].", "........xx.............."},
    {"08-10, , 12-13", "Cannot parse a date time interval from the string [].", "........xx.............."},
    {"08-10, 11", "Cannot parse a date time interval from the string [11].", "........xx.............."},
    {"-1-5", "Cannot parse a date time interval from the string [-1-5].", noHours},
    {"1-5-7", "Cannot parse a date time interval from the string [1-5-7].", noHours},
    {"1--5", "Cannot parse a date time interval from the string [1--5].", noHours},
    {"--", "Cannot parse a date time interval from the string [--].", noHours},
    {"08:00", "Cannot parse a date time interval from the string [08:00].", noHours},
    {"%1", "Cannot parse a date time interval from the string [%1].", noHours},
    {"-", "Unable to convert string [] to [int].", noHours},
    {"08-", "Unable to convert string [] to [int].", noHours},
    {"-17", "Unable to convert string [] to [int].", noHours},
    {"08 - 17", "Unable to convert string [08 ] to [int].", noHours},
    {" 08-17", "Unable to convert string [ 08] to [int].", noHours},
    {"08-17 ", "Unable to convert string [17 ] to [int].", noHours},
    {"08-10,  12-13", "Unable to convert string [ 12] to [int].", "........xx.............."},
    {"08-12abc", "Unable to convert string [12abc] to [int].", noHours},
    {"08x-12", "Unable to convert string [08x] to [int].", noHours},
    {"+8-12", "Unable to convert string [+8] to [int].", noHours},
    {"0x1-5", "Unable to convert string [0x1] to [int].", noHours},
    {"1e0-5", "Unable to convert string [1e0] to [int].", noHours},
    {"1.0-2", "Unable to convert string [1.0] to [int].", noHours},
    {"08:00-17:00", "Unable to convert string [08:00] to [int].", noHours},
    {"2147483648-5", "Unable to convert string [2147483648] to [int].", noHours},
    {"1-4294967297", "Unable to convert string [4294967297] to [int].", noHours},
    {"1-18446744073709551616", "Unable to convert string [18446744073709551616] to [int].", noHours},
    {"22-25", outOfRange, "......................xx"},
    {"24-25", outOfRange, noHours},
    {"30-31", outOfRange, noHours},
    {"00-25", outOfRange, allHours},
    {"0-2147483647", outOfRange, allHours},
    {"2147483646-2147483647", outOfRange, noHours},
    {"01-02, 22-25, 05-06", outOfRange, ".x....................xx"},
};

} // namespace

TEST(ScheduleParserValue, ParsingValueIsTheOppositeOfTheDefault)
{
    EXPECT_EQ(0U, ScheduleParser::getParsingValue(EScheduleWindowKind::Enabled));
    EXPECT_EQ(1U, ScheduleParser::getParsingValue(EScheduleWindowKind::Disabled));
}

TEST(ScheduleParserValue, Separators)
{
    EXPECT_STREQ("-", ScheduleParser::RangeSeparator);
    EXPECT_STREQ(", ", ScheduleParser::IntervalSeparator);
    EXPECT_TRUE(std::has_virtual_destructor_v<ScheduleParser>);
}

TEST(ScheduleParserText, ListedHoursOfBothKinds)
{
    for (const auto kind : {EScheduleWindowKind::Enabled, EScheduleWindowKind::Disabled})
        for (const auto& row : accepted)
            for (int day = 0; day < 7; ++day)
            {
                ScheduleParser parser(kind);
                parser.parseDay(day, row.text);
                const auto matrix = parser.getMatrix();
                EXPECT_EQ(kind, matrix.getScheduleWindowKind());
                for (int other = 0; other < 7; ++other)
                    EXPECT_EQ(other == day ? row.hours : noHours, listedHours(matrix, other)) << row.text << ' ' << day;
            }
}

TEST(ScheduleParserText, MondayFromEightToFiveOpensNineHours)
{
    ScheduleParser parser(EScheduleWindowKind::Disabled);
    parser.parseDay(datetime::EDayOfWeek::Monday, "08-17");
    const auto matrix = parser.getMatrix();
    EXPECT_EQ(0U, matrix(1, 7));
    EXPECT_EQ(1U, matrix(1, 8));
    EXPECT_EQ(1U, matrix(1, 16));
    EXPECT_EQ(0U, matrix(1, 17));
}

TEST(ScheduleParserText, CallsForADayAddUp)
{
    ScheduleParser parser(EScheduleWindowKind::Enabled);
    parser.parseDay(4, "01-02");
    const auto before = parser.getMatrix();
    parser.parseDay(4, "03-04");
    parser.parseDay(4, "");
    EXPECT_EQ(".x......................", listedHours(before, 4));
    EXPECT_EQ(".x.x....................", listedHours(parser.getMatrix(), 4));
}

TEST(ScheduleParserFailures, RefusedTextsKeepWhatWasListedBefore)
{
    for (const auto kind : {EScheduleWindowKind::Enabled, EScheduleWindowKind::Disabled})
        for (const auto& row : refused)
        {
            ScheduleParser parser(kind);
            EXPECT_EQ(row.failure, failureText([&] { parser.parseDay(2, row.text); })) << row.text;
            EXPECT_EQ(row.hours, listedHours(parser.getMatrix(), 2)) << row.text;
        }
}

TEST(ScheduleParserFailures, DaysOutsideTheWeek)
{
    for (const int day : {7, -1, 100, INT_MAX, INT_MIN})
    {
        ScheduleParser parser(EScheduleWindowKind::Disabled);
        EXPECT_EQ(outOfRange, failureText([&] { parser.parseDay(day, "00-01"); })) << day;
        for (int other = 0; other < 7; ++other)
            EXPECT_EQ(noHours, listedHours(parser.getMatrix(), other)) << day;
    }
}

TEST(ScheduleParserQuirks, IntervalsThatEndBeforeTheyStartListNothing)
{
    for (const char* text : emptyIntervals)
    {
        ScheduleParser parser(EScheduleWindowKind::Disabled);
        parser.parseDay(3, text);
        EXPECT_EQ(noHours, listedHours(parser.getMatrix(), 3)) << text;
        parser.parseDay(7, text);
    }
}

TEST(ScheduleParserQuirks, AnUnknownKindIsThrownAsAPointerWithEmptyBrackets)
{
    for (const int kind : {2, -1, 77, INT_MAX, INT_MIN})
    {
        const auto unknown = static_cast<EScheduleWindowKind>(kind);
        EXPECT_EQ("An unsupported schedule window type: [].",
                  pointerFailureText([&] { (void)ScheduleParser::getParsingValue(unknown); }))
            << kind;
        EXPECT_EQ("An unsupported schedule window kind occurred: [].",
                  pointerFailureText([&] { const ScheduleParser parser(unknown); }))
            << kind;
    }
}
