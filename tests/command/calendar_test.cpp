#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "support/golden.h"
#include "support/run_command.h"

namespace
{

using zelmodel_test::golden;
using zelmodel_test::runCommand;
using zelmodel_test::runCommandInZone;
using zelmodel_test::runCommandOnTerminal;

using Arguments = std::vector<std::string>;

struct PictureCase
{
    const char* name;
    Arguments arguments;
};

std::ostream& operator<<(std::ostream& stream, const PictureCase& test)
{
    return stream << test.name;
}

/// A terminal ends its lines in another way than a file.
std::string asFile(std::string text)
{
    for (auto at = text.find('\r'); at != std::string::npos; at = text.find('\r', at))
        text.erase(at, 1);
    return text;
}

class CalendarPicture : public testing::TestWithParam<PictureCase>
{
};

TEST_P(CalendarPicture, FitsTheTerminal)
{
    for (const unsigned short width : std::initializer_list<unsigned short>{40, 80, 200})
    {
        const auto result = runCommandOnTerminal(GetParam().arguments, width, {"NO_COLOR"});
        EXPECT_EQ(result.exitCode, 0);
        const auto name = std::string("terminal/") + GetParam().name + '-' + std::to_string(width) + ".txt";
        EXPECT_EQ(asFile(result.output), golden(name) + '\n') << name;
    }
}

TEST_P(CalendarPicture, IsThatOf80ColumnsInAPipe)
{
    const auto result = runCommand(GetParam().arguments);
    EXPECT_EQ(result.messages, "");
    const auto terminal = golden(std::string("terminal/") + GetParam().name + "-80.txt") + '\n';
    // Only the sentence above the picture is broken on a terminal.
    const auto picture = result.output.substr(result.output.find("\n\n") + 1);
    EXPECT_NE(terminal.find(picture), std::string::npos) << result.output;
}

INSTANTIATE_TEST_SUITE_P(
    Examples, CalendarPicture,
    testing::Values(PictureCase{"calendar-month",
                                {"calendar", "weekly-with-monthly-fulls-and-gfs.xml", "--month=2026-01"}},
                    PictureCase{"calendar-year", {"calendar", "schedule-options.xml", "--year", "2024"}},
                    PictureCase{"calendar-window",
                                {"calendar", "periodical-every-4-hours.xml", "--month", "2026-03", "--window",
                                 "periodical-window.xml"}}));

TEST(CalendarOfAWindow, IsItsPicture)
{
    const auto result = runCommandOnTerminal({"calendar", "office-hours-closed-window.xml"}, 40, {"NO_COLOR"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(asFile(result.output), "     0     6     12    18    24\n"
                                     "Mon  ########.........#######\n"
                                     "Tue  ########.........#######\n"
                                     "Wed  ########.........#######\n"
                                     "Thu  ########.........#######\n"
                                     "Fri  ########.........#######\n"
                                     "Sat  ########################\n"
                                     "Sun  ########################\n"
                                     "\n"
                                     "#  open\n"
                                     ".  closed\n");
}

TEST(CalendarColours, AreAddedToTheMarks)
{
    const auto result = runCommandOnTerminal({"calendar", "schedule-options.xml", "--month", "2026-03"}, 80);
    EXPECT_NE(result.output.find("30  \x1b[1;36m31S\x1b[0m\r\n"), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("\x1b[1;36mS\x1b[0m  start that makes a synthetic full\r\n"), std::string::npos);
    const auto plain =
        runCommandOnTerminal({"calendar", "schedule-options.xml", "--month", "2026-03", "--no-color"}, 80);
    EXPECT_EQ(plain.output.find('\x1b'), std::string::npos);
}

/// A schedule on the first of the month at 12:00 with fulls on other days, or on those that are named.
std::string monthlySchedule(int activeDay = 2, int syntheticDay = 3)
{
    const std::string masks =
        R"(<WeekMask Monday="1" Tuesday="1" Wednesday="1" Thursday="1" Friday="1" Saturday="1" Sunday="1"/><MonthMask )"
        R"(January="1" February="1" March="1" April="1" May="1" June="1" July="1" August="1" September="1" October="1" )"
        R"(November="1" December="1"/>)";
    return R"(<ScheduleOptions><Schedule Version="3" IsEnabled="1" WeekDayNumber="Every" DayOfMonth="1" Type="1">)" +
           masks + R"(<Time Hours="12" Minutes="0"/></Schedule><ActiveFullOptions Version="1" IsEnabled="1" )" +
           "WeekDayNumber=\"Every\" DayOfMonth=\"" + std::to_string(activeDay) + "\" Type=\"1\">" + masks +
           R"(</ActiveFullOptions><SyntheticFullOptions Version="1" IsEnabled="1" WeekDayNumber="Every" )" +
           "DayOfMonth=\"" + std::to_string(syntheticDay) + "\" Type=\"1\">" + masks +
           "</SyntheticFullOptions></ScheduleOptions>";
}

TEST(CalendarMarks, FullsWithoutAStartAndStartsInAClosedWindow)
{
    const auto result = runCommand(
        {"calendar", "-", "--month", "2026-06", "--window", "office-hours-closed-window.xml"}, monthlySchedule());
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.output.find("\n 1x  2a  3s  4   5   6   7\n"), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("a  day of an active full, but no start\n"
                                 "s  day of a synthetic full, but no start\n"
                                 "\n"),
              std::string::npos);
    EXPECT_NE(result.output.find("\nx  start, but the window is closed\n"), std::string::npos);
    EXPECT_NE(result.output.find("\nx  start in a closed hour\n"), std::string::npos);
}

TEST(CalendarMarks, BothFullsOnOneDay)
{
    const struct
    {
        int day;
        const char* week;
        const char* meaning;
    } rows[] = {{1, "\n 1B  2   3   4   5   6   7\n", "\nB  start that makes both fulls\n"},
                {2, "\n 1*  2b  3   4   5   6   7\n", "\nb  day of both fulls, but no start\n"}};
    for (const auto& row : rows)
    {
        const auto result = runCommand({"calendar", "-", "--month", "2026-06"}, monthlySchedule(row.day, row.day));
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_NE(result.output.find(row.week), std::string::npos) << result.output;
        EXPECT_NE(result.output.find(row.meaning), std::string::npos) << result.output;
    }
}

TEST(CalendarMarks, AMonthWithoutStarts)
{
    const auto result = runCommand({"calendar", "older/schedule-monthly.xml", "--month", "2026-05"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.output.find("\nnothing is scheduled in this time\n"), std::string::npos) << result.output;
}

TEST(CalendarClock, DaysWithAnotherLengthAreTold)
{
    const auto result =
        runCommandInZone("Europe/Berlin", {"calendar", "periodical-every-4-hours.xml", "--month", "2026-10"});
    EXPECT_NE(result.output.find("\n2026-10-25: 25 hours: the clock goes back from 03:00 to 02:00\n"),
              std::string::npos)
        << result.output;
}

TEST(CalendarNothing, ADisabledJob)
{
    const auto result = runCommand({"calendar", "older/schedule-disabled.xml"});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_EQ(result.messages, "older/schedule-disabled.xml: Nothing is scheduled: the job is disabled.\n");
    const auto json = runCommand({"calendar", "older/schedule-disabled.xml", "--json"});
    EXPECT_EQ(json.exitCode, 5);
    EXPECT_EQ(nlohmann::json::parse(json.output).at("notScheduled"), "Nothing is scheduled: the job is disabled.");
}

TEST(CalendarJson, HoldsTheDaysAndTheWindow)
{
    const auto result = runCommand({"calendar", "weekly-with-monthly-fulls-and-gfs.xml", "--month", "2026-01",
                                    "--window", "periodical-window.xml", "--json"});
    const auto json = nlohmann::json::parse(result.output);
    EXPECT_EQ(json.at("kind"), "calendar");
    const auto& days = json.at("months").at("items").at(0).at("items");
    ASSERT_EQ(days.size(), 9U);
    EXPECT_EQ(days.at(0).at("value"), "2026-01-02");
    EXPECT_EQ(days.at(0).at("fields").at("isActiveFull").at("value"), true);
    EXPECT_EQ(days.at(1).at("fields").at("isSyntheticFull").at("value"), true);
    EXPECT_EQ(json.at("backupWindow").at("fields").at("monday").at("words"), "open 00:00-06:00, 20:00-24:00");
    const auto window = nlohmann::json::parse(runCommand({"calendar", "periodical-window.xml", "--json"}).output);
    EXPECT_EQ(window.at("backupWindow"), json.at("backupWindow"));
}

TEST(CalendarBounds, TheFirstAndTheLastYear)
{
    EXPECT_EQ(runCommand({"calendar", "continuous.xml", "--year", "9999"}).exitCode, 0);
    EXPECT_EQ(runCommand({"calendar", "continuous.xml", "--year", "1400"}).exitCode, 0);
    EXPECT_EQ(runCommand({"calendar", "continuous.xml"}).exitCode, 0);
}

TEST(CalendarUsage, EndsWithTwo)
{
    const Arguments calls[] = {Arguments{"calendar"},
                               Arguments{"calendar", "continuous.xml", "--month", "2026"},
                               Arguments{"calendar", "continuous.xml", "--month", "2026-13"},
                               Arguments{"calendar", "continuous.xml", "--year", "26"},
                               Arguments{"calendar", "continuous.xml", "--year", "2026", "--month", "2026-01"},
                               Arguments{"calendar", "-", "--window", "-"}};
    for (const auto& call : calls)
        EXPECT_EQ(runCommand(call).exitCode, 2) << testing::PrintToString(call);
}

TEST(CalendarRefused, ADocumentWithoutASchedule)
{
    const auto result = runCommand({"calendar", "gfs-policy.xml"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(runCommand({"calendar", "periodical-window.xml", "--window", "periodical-window.xml"}).exitCode, 3);
    EXPECT_EQ(runCommand({"calendar", "no-such-file.xml"}).exitCode, 4);
}

} // namespace
