#include <bitset>
#include <optional>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/backup_window.h>
#include <zelplatform/datetime/datetime.h>

#include "support/expect_failure.h"

using namespace zelplatform::model::structs;
using datetime::CDateTime;
using zelmodel_test::failureText;

namespace
{

constexpr const char* format = "%Y-%m-%d %H:%M:%S";
constexpr EScheduleWindowKind bothKinds[] = {EScheduleWindowKind::Enabled, EScheduleWindowKind::Disabled};

CDateTime at(const std::string& text, bool isUtc = false)
{
    return CDateTime::fromString(text, format, isUtc);
}

/// A window of the kind with the texts of the days, Sunday first; an empty text lists nothing.
BackupWindow windowOf(EScheduleWindowKind kind, const std::vector<std::string>& days)
{
    ScheduleParser parser(kind);
    for (std::size_t day = 0; day < days.size(); ++day)
        parser.parseDay(static_cast<int>(day), days[day]);
    return BackupWindow(parser.getMatrix(), 0);
}

std::string closing(const BackupWindow& window, const CDateTime& moment)
{
    const auto closingTime = window.getWindowClosingTime(moment);
    return closingTime ? closingTime->toStdString(format) : "never";
}

/// The intervals of a day, worked out from the lengths of its runs.
std::string intervalsOf(const std::bitset<24>& listed)
{
    const auto twoDigits = [](int number) { return std::string(number < 10 ? "0" : "") + std::to_string(number); };
    std::string text;
    for (int from = 0; from < 24; ++from)
    {
        int length = 0;
        while (from + length < 24 && listed[static_cast<std::size_t>(from + length)])
            ++length;
        if (length == 0)
            continue;
        text += (text.empty() ? "" : ", ") + twoDigits(from) + "-" + twoDigits(from + length);
        from += length;
    }
    return text;
}

void list(DayHourMatrix& matrix, int day, const std::bitset<24>& listed)
{
    for (int hour = 0; hour < 24; ++hour)
        if (listed[static_cast<std::size_t>(hour)])
            matrix(day, hour) = ScheduleParser::getParsingValue(matrix.getScheduleWindowKind());
}

struct SClosing
{
    const char* moment;
    const char* closing;
};

} // namespace

TEST(BackupWindowValue, HoldsACopyOfTheMatrixAndTheOffset)
{
    DayHourMatrix matrix(EScheduleWindowKind::Disabled);
    matrix(1, 8) = 1;
    const BackupWindow window(matrix, -300);
    matrix(1, 9) = 1;
    EXPECT_EQ(-300, window.getHourlyOffsetMinutes());
    EXPECT_EQ(EScheduleWindowKind::Disabled, window.getMatrix().getScheduleWindowKind());
    EXPECT_EQ(1U, window.getMatrix()(1, 8));
    EXPECT_EQ(0U, window.getMatrix()(1, 9));
    EXPECT_TRUE(std::has_virtual_destructor_v<BackupWindow>);
}

TEST(BackupWindowValue, NamesOfTheDocument)
{
    EXPECT_STREQ("ScheduleWindow", BackupWindow::BackupWindowTag);
    EXPECT_STREQ("Minutes", BackupWindow::MinutesTag);
    EXPECT_STREQ("Kind", BackupWindow::KindTag);
    EXPECT_STREQ("Days", BackupWindow::DaysTag);
    EXPECT_STREQ("Intervals", BackupWindow::IntervalsTag);
}

TEST(BackupWindowValue, AsksTheCellOfTheHour)
{
    // Sunday 2024-03-03 and the six days after it; every cell by itself.
    for (const auto kind : bothKinds)
        for (int day = 0; day < 7; ++day)
            for (int hour = 0; hour < 24; ++hour)
            {
                DayHourMatrix matrix(kind);
                matrix(day, hour) = ScheduleParser::getParsingValue(kind);
                const BackupWindow window(matrix, 0);
                const bool listedIsOpen = kind == EScheduleWindowKind::Disabled;
                const long start = at("2024-03-03 00:00:00").toUnixTime() + (day * 24 + hour) * 3600L;
                EXPECT_EQ(listedIsOpen, window.isWindowOpen(CDateTime(start, false)));
                EXPECT_EQ(listedIsOpen, window.isWindowOpen(CDateTime(start + 3599, true)));
                EXPECT_EQ(!listedIsOpen, window.isWindowOpen(CDateTime(start - 1, false)));
                EXPECT_EQ(!listedIsOpen, window.isWindowOpen(CDateTime(start + 3600, true)));
                EXPECT_EQ(listedIsOpen, window.isWindowOpen(CDateTime(start + 7 * 86400L, false)));
            }
}

TEST(BackupWindowValue, OpenBefore1970AndAtTheEndsOfTheCalendar)
{
    const auto window = windowOf(EScheduleWindowKind::Disabled, {"", "", "", "23-24", "00-01", "", ""});
    EXPECT_TRUE(window.isWindowOpen(at("1969-12-31 23:59:59"))); // a Wednesday
    EXPECT_TRUE(window.isWindowOpen(at("1970-01-01 00:00:00")));
    EXPECT_FALSE(window.isWindowOpen(at("1969-12-31 22:59:59")));
    EXPECT_FALSE(window.isWindowOpen(at("1970-01-01 01:00:00")));
    EXPECT_FALSE(window.isWindowOpen(at("9999-12-31 23:59:59"))); // a Friday
}

TEST(BackupWindowValue, MondayHoursCloseAtFive)
{
    const auto window = windowOf(EScheduleWindowKind::Disabled, {"", "08-17"});
    for (const auto& row : {SClosing{"2024-03-04 10:30:00", "2024-03-04 17:00:00"},
                            SClosing{"2024-03-04 08:00:00", "2024-03-04 17:00:00"},
                            SClosing{"2024-03-04 16:59:59", "2024-03-04 17:00:00"},
                            SClosing{"2024-03-04 17:00:00", "2024-03-04 17:00:00"},
                            SClosing{"2024-03-04 18:00:00", "2024-03-04 18:00:00"},
                            SClosing{"2024-03-04 07:59:59", "2024-03-04 07:59:59"},
                            SClosing{"2024-03-05 10:30:00", "2024-03-05 10:30:00"}})
        EXPECT_EQ(row.closing, closing(window, at(row.moment))) << row.moment;
}

TEST(BackupWindowValue, ClosesAcrossDaysWeeksMonthsAndYears)
{
    const auto window =
        windowOf(EScheduleWindowKind::Disabled, {"00-03, 22-24", "00-24", "00-01", "", "", "23-24", "00-24"});
    for (const auto& row : {SClosing{"2024-03-02 23:30:00", "2024-03-03 03:00:00"}, // Saturday into Sunday
                            SClosing{"2024-03-01 23:00:00", "2024-03-03 03:00:00"}, // Friday, all Saturday, Sunday
                            SClosing{"2024-03-03 22:10:00", "2024-03-05 01:00:00"}, // Sunday, all Monday, Tuesday
                            SClosing{"2024-03-03 02:59:59", "2024-03-03 03:00:00"},
                            SClosing{"2024-03-03 03:00:00", "2024-03-03 03:00:00"},
                            SClosing{"2024-06-29 12:00:00", "2024-06-30 03:00:00"},
                            SClosing{"2022-12-31 23:59:59", "2023-01-01 03:00:00"},  // over the year
                            SClosing{"2020-02-29 20:00:00", "2020-03-01 03:00:00"}}) // over a leap day
        EXPECT_EQ(row.closing, closing(window, at(row.moment))) << row.moment;
}

TEST(BackupWindowValue, TheOnlyClosedHourIsFoundAroundTheWeek)
{
    const auto window = windowOf(EScheduleWindowKind::Enabled, {"00-01"});
    EXPECT_EQ("2024-03-10 00:00:00", closing(window, at("2024-03-03 01:10:00"))); // 167 hours
    EXPECT_EQ("2024-03-10 00:00:00", closing(window, at("2024-03-09 23:59:59")));
    EXPECT_EQ("2024-03-03 00:10:00", closing(window, at("2024-03-03 00:10:00")));
    const auto lastHour = windowOf(EScheduleWindowKind::Enabled, {"", "", "", "", "", "", "23-24"});
    EXPECT_EQ("2024-03-09 23:00:00", closing(lastHour, at("2024-03-03 00:00:00")));
}

TEST(BackupWindowValue, OneOpenHourClosesAnHourLater)
{
    for (int day = 0; day < 7; ++day)
        for (int hour = 0; hour < 24; ++hour)
        {
            DayHourMatrix matrix(EScheduleWindowKind::Disabled);
            matrix(day, hour) = 1;
            const long start = at("2024-03-03 00:00:00").toUnixTime() + (day * 24 + hour) * 3600L;
            EXPECT_EQ(start + 3600,
                      BackupWindow(matrix, 0).getWindowClosingTime(CDateTime(start + 1799, false))->toUnixTime());
        }
}

TEST(BackupWindowValue, AWindowWithoutClosedHourNeverCloses)
{
    EXPECT_EQ("never", closing(windowOf(EScheduleWindowKind::Enabled, {}), at("2024-03-04 10:30:00")));
    const std::vector<std::string> wholeWeek(7, "00-24");
    EXPECT_EQ("never", closing(windowOf(EScheduleWindowKind::Disabled, wholeWeek), at("2024-03-09 23:59:59")));
}

TEST(BackupWindowValue, ClosingTimeKeepsTheUtcFlag)
{
    const auto window = windowOf(EScheduleWindowKind::Disabled, {"", "08-17"});
    for (const bool isUtc : {true, false})
        for (const char* moment : {"2024-03-04 10:30:00", "2024-03-04 18:00:00"})
            EXPECT_EQ(isUtc, window.getWindowClosingTime(at(moment, isUtc))->isUtcTime()) << moment;
}

TEST(BackupWindowText, Intervals)
{
    const char* const texts[] = {"",      "08-17", "00-03, 22-24", "00-24", "23-24", "00-01", "09-10, 12-13, 15-16",
                                 "06-24", "00-23", "01-24"};
    for (const auto kind : bothKinds)
        for (const char* text : texts)
            for (int day = 0; day < 7; ++day)
            {
                ScheduleParser parser(kind);
                parser.parseDay(day, text);
                const BackupWindow window(parser.getMatrix(), 0);
                for (int other = 0; other < 7; ++other)
                    EXPECT_EQ(other == day ? text : "", window.getIntervals(other)) << text << ' ' << day;
            }
}

TEST(BackupWindowText, IntervalsAreWrittenInOneForm)
{
    const auto window =
        windowOf(EScheduleWindowKind::Disabled, {"8-9, 9-12", "20-24, 0-3", "05-05, 07-03", "001-0002"});
    EXPECT_EQ("08-12", window.getIntervals(0));
    EXPECT_EQ("00-03, 20-24", window.getIntervals(1));
    EXPECT_EQ("", window.getIntervals(2));
    EXPECT_EQ("01-02", window.getIntervals(3));
}

TEST(BackupWindowText, ManyDayPatternsBecomeTextAndMatrixAgain)
{
    std::mt19937 random(20240306);
    for (int round = 0; round < 3000; ++round)
    {
        const auto kind = bothKinds[round % 2];
        DayHourMatrix matrix(kind);
        ScheduleParser parser(kind);
        for (int day = 0; day < 7; ++day)
        {
            // Sparse, dense and even patterns take turns.
            std::bitset<24> listed(random());
            if (round % 3 == 0)
                listed &= std::bitset<24>(random());
            else if (round % 3 == 1)
                listed |= std::bitset<24>(random());
            list(matrix, day, listed);
            const std::string text = BackupWindow(matrix, 0).getIntervals(day);
            ASSERT_EQ(intervalsOf(listed), text) << listed;
            parser.parseDay(day, text);
        }
        const auto again = parser.getMatrix();
        for (int day = 0; day < 7; ++day)
            for (int hour = 0; hour < 24; ++hour)
                ASSERT_EQ(matrix(day, hour), again(day, hour)) << round << ' ' << day << ' ' << hour;
    }
}

TEST(BackupWindowFailures, IntervalsOfADayOutsideTheWeek)
{
    const auto window = windowOf(EScheduleWindowKind::Enabled, {});
    for (const int day : {7, -1, 1000})
        EXPECT_EQ("Backup window matrix indices out of range.", failureText([&] { (void)window.getIntervals(day); }))
            << day;
}

TEST(BackupWindowQuirks, TheOffsetPlaysNoPart)
{
    ScheduleParser parser(EScheduleWindowKind::Disabled);
    parser.parseDay(1, "08-17");
    for (const int minutes : {0, 60, -720, 100000})
    {
        const BackupWindow window(parser.getMatrix(), minutes);
        EXPECT_TRUE(window.isWindowOpen(at("2024-03-04 08:00:00")));
        EXPECT_FALSE(window.isWindowOpen(at("2024-03-04 17:00:00")));
        EXPECT_EQ("2024-03-04 17:00:00", closing(window, at("2024-03-04 10:30:00")));
        EXPECT_EQ("08-17", window.getIntervals(1));
    }
}

TEST(BackupWindowQuirks, AClosedMomentComesBackUnrounded)
{
    const auto window = windowOf(EScheduleWindowKind::Disabled, {});
    EXPECT_EQ("2024-03-04 18:12:34", closing(window, at("2024-03-04 18:12:34")));
    EXPECT_EQ("1969-12-31 22:12:34", closing(window, at("1969-12-31 22:12:34")));
}

TEST(BackupWindowQuirks, Before1970AMomentWithinAnHourIsRoundedUp)
{
    // 1969-12-31 was a Wednesday; -5400 seconds, cut towards zero to the hour, is -3600 and not -7200.
    const auto window = windowOf(EScheduleWindowKind::Disabled, {"", "", "", "20-24", ""});
    EXPECT_EQ("1970-01-01 01:00:00", closing(window, at("1969-12-31 22:30:00")));
    EXPECT_EQ("1970-01-01 00:00:00", closing(window, at("1969-12-31 22:00:00")));
    EXPECT_EQ("1970-01-01 01:00:00", closing(window, at("1969-12-31 23:59:59")));
    EXPECT_EQ("1970-01-01 01:00:00", closing(window, at("1969-12-31 20:00:01")));
    EXPECT_EQ("1600-03-01 00:00:00", closing(windowOf(EScheduleWindowKind::Disabled, {"", "", "23-24"}),
                                             at("1600-02-29 23:00:00"))); // a Tuesday
}

TEST(BackupWindowQuirks, CellsOtherThanZeroAndOneAreNeitherOpenNorClosed)
{
    DayHourMatrix matrix(EScheduleWindowKind::Enabled);
    matrix(1, 11) = 7;
    const BackupWindow window(matrix, 0);
    EXPECT_FALSE(window.isWindowOpen(at("2024-03-04 11:00:00")));
    EXPECT_EQ("2024-03-04 11:20:00", closing(window, at("2024-03-04 11:20:00")));
    EXPECT_EQ("never", closing(window, at("2024-03-04 10:20:00")));
    EXPECT_EQ("11-12", window.getIntervals(1));

    DayHourMatrix closed(EScheduleWindowKind::Disabled);
    closed(1, 11) = 7;
    EXPECT_EQ("", BackupWindow(closed, 0).getIntervals(1));
}
