#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/run_command.h"

namespace
{

using zelmodel_test::runCommand;

using Arguments = std::vector<std::string>;

Arguments newWith(const Arguments& options)
{
    Arguments arguments{"new"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return arguments;
}

struct RefusedCase
{
    Arguments arguments;
    const char* messages;
};

TEST(NewRefusals, AreTheWordsOfTheLibrary)
{
    for (const auto& [arguments, messages] :
         {RefusedCase{{"job", "--keep-days", "731"},
                      "new job: refused\n  The field [maxDays] cannot be set to [731].\n  Number of days for daily "
                      "retention must be less than 731.\n"},
          RefusedCase{{"job", "--keep-points", "0"},
                      "new job: refused\n  The field [maxPoints] cannot be set to [0].\n  Number of restore points to "
                      "keep on disk should be greater than 0.\n"},
          RefusedCase{{"job", "--daily", "--at", "24:00"},
                      "new job: refused\n  The start of the job cannot be set.\n  Failed to create schedule calendar "
                      "via god constructor\n  ScheduleCalendar: Failed to set weekly schedule.\n  Failed to validate "
                      "time [24:00] (schedule is periodically? [false]).\n  Wrong hours of time.\n"},
          RefusedCase{{"job", "--every", "25h"},
                      "new job: refused\n  The start of the job cannot be set.\n  Failed to create schedule calendar "
                      "via god constructor\n  ScheduleCalendar: Failed to set periodical schedule.\n  Failed to "
                      "validate time [25:00] (schedule is periodically? [true]).\n  Wrong hours of period.\n"},
          RefusedCase{{"job", "--every", "90s"}, "new job: refused\n  [90s] is no whole number of minutes.\n"},
          RefusedCase{{"job", "--weekly", ""},
                      "new job: refused\n  There is no week day such as in Mon,Fri or Mon-Fri.\n"},
          RefusedCase{{"job", "--weekly", "Mo"},
                      "new job: refused\n  WeekMask: Failed to convert from string vector.\n  Unknown day of week: "
                      "[Mo].\n"},
          RefusedCase{{"job", "--monthly", "Mon"},
                      "new job: refused\n  [Mon] is no day of a month such as 15, last or first Mon.\n"},
          RefusedCase{{"job", "--monthly", "every Mon"},
                      "new job: refused\n  The start of the job cannot be set.\n  Failed to create schedule calendar "
                      "via god constructor\n  ScheduleCalendar: Failed to set monthly schedule.\n  Schedule on every "
                      "day of week is forbidden in monthly schedule - it is weekly schedule.\n"},
          RefusedCase{{"job", "--active-full", "32 "},
                      "new job: refused\n  The field [schedule.activeFull.weekDayNumber] cannot be set to [32].\n  "
                      "Value [32] is not a valid week number.\n"},
          RefusedCase{{"job", "--active-full", "Sat", "--active-full-months", "Jan"},
                      "new job: refused\n  The active full cannot be set.\n  The field [monthMask] plays no part in a "
                      "calendar of the kind [weekly].\n"},
          RefusedCase{{"job", "--retry-wait", "10"},
                      "new job: refused\n  [10] is no length of time such as 10m or 1h30m.\n  [] is no unit of time: "
                      "there are d, h, m, s and ms.\n"},
          RefusedCase{{"job", "--index", "only:"},
                      "new job: refused\n  [only:] is none of all, none, only:FOLDERS and except:FOLDERS.\n"},
          RefusedCase{{"job", "--gfs", "weekly"}, "new job: refused\n  [weekly] is no rule such as weekly=4.\n"},
          RefusedCase{{"gfs", "--gfs", ""}, "new gfs: refused\n  There is no rule such as weekly=4.\n"},
          RefusedCase{{"job", "--window", "22-6"},
                      "new job: refused\n  The field [sunday] cannot be set to [22-6].\n  The hours [22-6] do not end "
                      "after they start; a window over midnight is two, such as 22-24 and 0-6 of the next day.\n"},
          RefusedCase{{"window", "--open", "Mon"},
                      "new window: refused\n  [Mon] tells no hours of a week such as [Mon-Fri 20-24,Sat 0-24].\n  "
                      "There are no hours for Monday.\n"}})
    {
        const auto result = runCommand(newWith(arguments));
        EXPECT_EQ(result.exitCode, 3) << testing::PrintToString(arguments);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.messages, messages);
    }
}

TEST(NewUsage, EndsWithTwo)
{
    for (const auto& arguments :
         {Arguments{}, Arguments{"policy"}, Arguments{"job", "extra"}, Arguments{"job", "--daily", "--weekly", "Mon"},
          Arguments{"job", "--continuously", "--every", "4h"},
          Arguments{"job", "--keep-days", "1", "--keep-points", "1"}, Arguments{"job", "--at", "22:30"},
          Arguments{"job", "--continuously", "--at", "22:30"}, Arguments{"job", "--weekly", "Mon", "--months", "Jan"},
          Arguments{"job", "--active-full-months", "Jan"}, Arguments{"job", "--keep-days"},
          Arguments{"job", "--keep-days", "1", "--keep-days", "2"}, Arguments{"job", "--window-output", "w.xml"},
          Arguments{"schedule", "--keep-days", "1"}, Arguments{"window", "--window", "1-2"},
          Arguments{"window", "--open", "1-2", "--closed", "3-4"}, Arguments{"job", "--gfs", "daily=1"}})
    {
        const auto result = runCommand(newWith(arguments));
        EXPECT_EQ(result.exitCode, 2) << testing::PrintToString(arguments);
        EXPECT_EQ(result.output, "");
        EXPECT_NE(result.messages, "");
    }
    EXPECT_EQ(runCommand({"new", "job", "--at", "22:30"}).messages,
              "zelmodel: --at: has a meaning with --daily or --weekly or --monthly only\nRun with --help for more "
              "information.\n");
}

} // namespace
