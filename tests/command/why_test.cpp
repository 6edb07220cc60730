#include <string>

#include <gtest/gtest.h>

#include "support/run_command.h"

namespace
{

using zelmodel_test::runCommand;

TEST(Why, AStartThatIsAnActiveFull)
{
    const auto result =
        runCommand({"why", "nightly-file-server.xml", "--at", "2024-03-02 22:30", "--window", "periodical-window.xml"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(
        result.output,
        "   line  starts on Saturday 2024-03-02 at 22:30, local time of UTC (TZ), UTC+00:00 on 2024-03-02\n"
        "     14    Enabled         yes; the document says true\n"
        "     14    Kind            yes; the document says weekly\n"
        "     15    Week day        yes, Saturday; the document says Sunday, Monday, Tuesday, Wednesday, Thursday, "
        "Friday, Saturday\n"
        "     20    Time of day     yes, 22:30; the document says 22:30\n"
        "     11    Window          yes, open until 06:00 on Monday 2024-03-04; periodical-window.xml says open all "
        "day\n"
        "     22    Active full     yes, the start makes it\n"
        "     22      Enabled       yes; the document says true\n"
        "     22      Kind          yes; the document says weekly\n"
        "     23      Week day      yes, Saturday; the document says Saturday\n"
        "     29    Synthetic full  no, it is disabled\n");
}

TEST(Why, TheFirstConditionThatSaysNo)
{
    const auto result = runCommand({"why", "older/schedule-monthly.xml", "--at", "2026-05-15 06:05"});
    EXPECT_EQ(result.exitCode, 5);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(
        result.output,
        "   line  does not start on Friday 2026-05-15 at 06:05, local time of UTC (TZ), UTC+00:00 on 2026-05-15\n"
        "      4    Enabled           yes; the document says true (older form: Schedule)\n"
        "      5    Kind              yes; the document says monthly\n"
        "default    Week day          yes, Friday; the default is Sunday, Monday, Tuesday, Wednesday, Thursday, "
        "Friday, Saturday\n"
        "      5    Day of the month  yes, 15 of 31; the document says 15\n"
        "default    Occurrence        yes, the third Friday of the month; the default is Every\n"
        "      7    Month             NO, May; the document says January, April, July, October  <-- the first that "
        "says no\n"
        "      6    Time of day       yes, 06:05; the document says 06:05\n"
        "default    Active full       no, it is disabled\n"
        "default    Synthetic full    no, it is disabled\n");
}

} // namespace
