#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "edit/fields.h"
#include "edit_support.h"
#include "support/expect_failure.h"

namespace
{

using describe::EDocumentKind;
using edit::Assignment;
using zelmodel_test::failureText;
using zelmodel_test::made;

struct RefusalCase
{
    const char* path;
    const char* text;
    const char* cause;
};

void expectRefusals(EDocumentKind kind, const std::vector<RefusalCase>& cases)
{
    for (const auto& [path, text, cause] : cases)
        EXPECT_EQ(failureText([&, path = path, text = text] {
                      made(kind, {{path, text}});
                  }),
                  "The field [" + std::string(path) + "] cannot be set to [" + text + "]. " + cause);
}

TEST(JobFields, RefuseInTheWordsOfTheLibrary)
{
    expectRefusals(
        EDocumentKind::AgentJobOptions,
        {{"compression", "zstd3", "Unable to convert string [zstd3] to BackupJobCompression::type."},
         {"compression", "5", "Unable to convert level string [5] to BackupJobCompression::type."},
         {"retentionType", "days", "Failed to convert retention type from string."},
         {"maxPoints", "0", "Number of restore points to keep on disk should be greater than 0."},
         {"maxPoints", "731", "Number of restore points to keep on disk should be less than 731."},
         {"maxDays", "0", "Number of days for daily retention must be greater than 0."},
         {"maxDays", "731", "Number of days for daily retention must be less than 731."},
         {"maxDays", "14 ", "Unable to convert string [14 ] to [unsigned long]."},
         {"dedupEnabled", "no", "Unable to convert string [no] to [bool]."},
         {"blockSize", "Default ", "Unable to convert string [Default ] to KbBlockSize::type."},
         {"blockSize", "1000", "Unable to convert 1000 to KbBlockSize."},
         {"deletedVmDataRetentionDays", "-1", "Unable to convert string [-1] to [unsigned long]."},
         {"snapshotMode", "none",
          "ESnapshotMode: Failed to convert from string [none]. Unknown snapshot mode string: [none]."},
         {"ignoreFreezeThawFailures", "maybe", "Unable to convert string [maybe] to [bool]."},
         {"freezeThawScriptsTimeout", "15m", "Unable to convert string [15m] to [long]."},
         {"retryCount", "-1", "Unable to convert string [-1] to [unsigned long]."},
         {"retryTimeoutMs", "ten",
          "[ten] is no length of time such as 10m or 1h30m. [ten] is no unit of time: there are d, h, m, s and ms."},
         {"indexing.type", "all", "Unable to convert string [all] to EIndexingType::type."},
         {"gfsPolicy.isEnabled", "", "Unable to convert string [] to [bool]."},
         {"gfsPolicy.weekly.beginTimeUtc", "2024-03-31",
          "Unable to convert string [2024-03-31] to date-time. The text does not match the format [%m/%d/%Y "
          "%H:%M:%S]."},
         {"gfsPolicy.yearly.desiredTime", "x", "Unable to convert string [x] to [int]."},
         {"gfsPolicy.weekly.keepCount", "2147483648", "Unable to convert string [2147483648] to [int]."},
         {"gfsPolicy.weekly", "off", "A rule as a whole takes the text [none] only."},
         {"schedule.jobStart.time", "2230", "Unable to parse time. Bad time pair string."},
         {"schedule.jobStart.scheduleType", "daily", "Unable to convert string [daily] to [long]."},
         {"schedule.jobStart.dayOfMonth", "33", "DayOfMonth: Failed set [33]. Day must be in range [1;31]."},
         {"schedule.jobStart.dayOfMonth", "first", "Unable to convert string [first] to [unsigned long]."},
         {"schedule.jobStart.weekMask", "Mo",
          "WeekMask: Failed to convert from string vector. Unknown day of week: "
          "[Mo]."},
         {"schedule.activeFull.monthMask", "Mon",
          "MonthMask: Failed to convert from string vector. Unknown month: "
          "[Mon]."},
         {"schedule.jobStart.weekDayNumber", "Fifth", "Value [Fifth] is not a valid week number."}});
}

TEST(WindowFields, RefuseHoursThatAreNone)
{
    const std::string advice = " do not end after they start; a window over midnight is two, such as 22-24 and 0-6 of "
                               "the next day.";
    expectRefusals(EDocumentKind::ScheduleWindow,
                   {{"monday", "22-6", ("The hours [22-6]" + advice).c_str()},
                    {"monday", "0-24,6-6", ("The hours [6-6]" + advice).c_str()},
                    {"monday", "20-25", "Backup window matrix indices out of range."},
                    {"monday", "20", "Cannot parse a date time interval from the string [20]."},
                    {"monday", "all", "Cannot parse a date time interval from the string [all]."},
                    {"monday", "8:30-9", "Unable to convert string [8:30] to [int]."},
                    {"kind", "2", "A window is of the kind 0 or 1."},
                    {"kind", "open", "Unable to convert string [open] to [int]."},
                    {"hourlyOffsetMinutes", "", "Unable to convert string [] to [int]."}});
}

TEST(Refusals, OfWhatTheFieldsMeanTogether)
{
    const std::string calendar = " cannot be set. Failed to create schedule calendar via god constructor ";
    const auto refused = [](const std::vector<Assignment>& assignments) {
        return failureText([&] { made(EDocumentKind::AgentJobOptions, assignments); });
    };
    EXPECT_EQ(refused({{"schedule.jobStart.time", "24:00"}}),
              "The start of the job" + calendar +
                  "ScheduleCalendar: Failed to set weekly schedule. Failed to validate time [24:00] (schedule is "
                  "periodically? [false]). Wrong hours of time.");
    EXPECT_EQ(refused({{"schedule.jobStart.scheduleType", "monthly"}}),
              "The start of the job" + calendar + "Wrong number of week days [7] for monthly schedule");
    EXPECT_EQ(refused({{"schedule.jobStart.scheduleType", "4"}}),
              "The start of the job" + calendar + "Unexpected type of schedule: [4]");
    EXPECT_EQ(refused({{"schedule.activeFull.monthMask", ""}}),
              "The active full" + calendar +
                  "ScheduleCalendar: Failed to set monthly schedule on day [1]. No one month is chosen.");
    EXPECT_EQ(refused({{"schedule.syntheticFull.scheduleType", "continuously"}}),
              "The synthetic full cannot be set. A full backup is weekly or monthly.");
}

TEST(Refusals, OfFieldsThatPlayNoPart)
{
    struct Case
    {
        const char* type;
        Assignment part;
        const char* name;
    };
    for (const auto& [type, part, name] :
         {Case{"weekly", {"monthMask", "Jan"}, "monthMask"}, Case{"weekly", {"dayOfMonth", "15"}, "dayOfMonth"},
          Case{"weekly", {"weekDayNumber", "First"}, "weekDayNumber"},
          Case{"periodically", {"weekMask", "Mon"}, "weekMask"}, Case{"continuously", {"time", "01:00"}, "time"}})
        EXPECT_EQ(failureText([&, type = type, part = part] {
                      made(EDocumentKind::ScheduleOptions,
                           {{"jobStart.scheduleType", type}, {"jobStart." + part.path, part.text}});
                  }),
                  std::string("The start of the job cannot be set. The field [") + name +
                      "] plays no part in a calendar of the kind [" + type + "].");
}

TEST(Refusals, OfWhatCouldNotBeReadAgain)
{
    const auto refused = [](const Assignment& assignment) {
        return failureText([&] { made(EDocumentKind::AgentJobOptions, {assignment}); });
    };
    const std::string notAccepted = "The document would not be accepted. ";
    EXPECT_EQ(refused({"gfsPolicy.weekly.keepCount", "-4"}),
              notAccepted +
                  "BackupJobOptions: Converting from XML failed. BackupJobOptions: Converting KIV Job options "
                  "from XML failed. Unable to parse [Weekly]. Unable to convert string [-4] to [unsigned "
                  "long].");
    EXPECT_NE(refused({"preJobCommand", "a\x01"}), "") << "XML has no control characters";
}

TEST(Refusals, OfUnknownFields)
{
    auto record = edit::newRecord(EDocumentKind::AgentJobOptions);
    EXPECT_THROW(edit::setField(record, {"maxDay", "1"}), edit::UnknownField);
    EXPECT_EQ(failureText([&] {
                  edit::setField(record, {"maxDay", "1"});
              }),
              "There is no field [maxDay] that can be set. The nearest one is [maxDays].");
    EXPECT_EQ(failureText([&] {
                  edit::setField(record, {"schedule.jobstart.Time", "1"});
              }),
              "There is no field [schedule.jobstart.Time] that can be set. The nearest one is "
              "[schedule.jobStart.time].");
}

TEST(Refusals, OfKindsThatAreNotWritten)
{
    EXPECT_EQ(failureText([] { edit::readRecord(describe::Document("<JobOptionsRoot/>")); }),
              "The document is job options in the managing server's form, which cannot be changed by this command. Its "
              "twin in the agent's form can be.");
    EXPECT_EQ(failureText([] { edit::newRecord(EDocumentKind::JobState); }),
              "The document is the state of a backup job, which cannot be changed by this command. It changes job "
              "options in the agent's form, schedule options, a backup window and a GFS policy.");
}

} // namespace
