#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "show_case.h"
#include "support/run_command.h"

namespace
{

using zelmodel_test::expectShown;
using zelmodel_test::runCommand;
using zelmodel_test::ShowCase;

class Show : public testing::TestWithParam<ShowCase>
{
};

TEST_P(Show, TellsTheDocumentInWords)
{
    expectShown(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Examples, Show,
    testing::Values(
        ShowCase{"nightly-file-server.xml",
                 "Job options: in the agent's form\n"
                 "  Compression               Lz4, level 2 of 0 to 4\n"
                 "  Block size                1024 KB\n"
                 "  Retention                 keeps the restore points of 14 days\n"
                 "  Deleted data              data of machines that vanished from the job is kept 30 days\n"
                 "  Deduplication             on\n"
                 "  Snapshot                  required\n"
                 "  Script before freezing    /usr/local/sbin/share-quiesce\n"
                 "  Script after thawing      /usr/local/sbin/share-release\n"
                 "  Freeze and thaw failures  not ignored\n"
                 "  Freeze and thaw time-out  900\n"
                 "  Script before the job     none\n"
                 "  Script after the job      /usr/local/sbin/report-backup --job nightly\n"
                 "  Retries                   3 times with 10 minutes between\n"
                 "  Indexing                  only these folders: /srv/share;/home\n"
                 "  GFS policy                off\n"
                 "  Product-specific text     none\n"
                 "  Schedule\n"
                 "    Start                   starts Every day at 22:30\n"
                 "      In the log            Every day at 22 hours 30 minutes\n"
                 "    Active full             Every Saturday\n"
                 "    Synthetic full          disabled, set to Every 1 day of every month\n"
                 "    Window                  in a document of its own, if there is one\n"
                 "  Only in this form         snapshot mode, scripts, retries, indexing, schedule, GFS policy and "
                 "product-specific text; the managing server's form cannot carry them\n"},
        ShowCase{"weekly-with-monthly-fulls-and-gfs.xml",
                 "Job options: in the agent's form\n"
                 "  Compression               Zstd3, level 3 of 0 to 4\n"
                 "  Block size                512 KB\n"
                 "  Retention                 keeps 12 restore points\n"
                 "  Deleted data              no rule for data of machines that vanished from the job\n"
                 "  Deduplication             on\n"
                 "  Snapshot                  hybrid\n"
                 "  Script before freezing    /opt/db/bin/backup-mode on\n"
                 "  Script after thawing      /opt/db/bin/backup-mode off\n"
                 "  Freeze and thaw failures  ignored\n"
                 "  Freeze and thaw time-out  not set\n"
                 "  Script before the job     none\n"
                 "  Script after the job      none\n"
                 "  Retries                   1 time with 1 minute 30 seconds between\n"
                 "  Indexing                  all files and folders\n"
                 "  GFS policy                on\n"
                 "    Weekly                  keeps 4 weekly restore points, effective from 2024-01-05 00:00 UTC on, "
                 "slot 5\n"
                 "    Monthly                 keeps 12 monthly restore points, effective from 2024-02-01 00:00 UTC on, "
                 "slot 1\n"
                 "    Yearly                  keeps 7 yearly restore points, effective at once, slot 1\n"
                 "  Product-specific text     none\n"
                 "  Schedule\n"
                 "    Start                   starts Every Monday, Friday at 21:00\n"
                 "      In the log            Every Monday, Friday at 21 hours\n"
                 "    Active full             First Friday of every month\n"
                 "    Synthetic full          First Monday of months January, July\n"
                 "    Window                  in a document of its own, if there is one\n"
                 "  Only in this form         snapshot mode, scripts, retries, indexing, schedule, GFS policy and "
                 "product-specific text; the managing server's form cannot carry them\n"},
        ShowCase{"managing-server.xml",
                 "Job options: in the managing server's form\n"
                 "  Compression       Zstd3, level 3 of 0 to 4\n"
                 "  Block size        4096 KB\n"
                 "  Retention         keeps 14 restore points\n"
                 "  Deleted data      data of machines that vanished from the job is kept 30 days\n"
                 "  Deduplication     off\n"
                 "  Schedule          disabled: this form carries no schedule, so the job does not start by itself\n"
                 "  Not in this form  snapshot mode, scripts, retries, indexing, schedule, GFS policy and "
                 "product-specific text\n"},
        ShowCase{"schedule-options.xml", "Schedule\n"
                                         "  Start           starts Every last day of every month at 23:45\n"
                                         "    In the log    Every last day of every month at 23 hours 45 minutes\n"
                                         "  Active full     disabled, set to Every 1 day of every month\n"
                                         "  Synthetic full  Every last day of months March, June, September, December\n"
                                         "  Window          in a document of its own, if there is one\n"},
        ShowCase{"gfs-policy.xml",
                 "GFS policy: on\n"
                 "  Weekly   keeps 6 weekly restore points, effective from 2024-03-31 22:00 UTC on, slot 0\n"
                 "  Monthly  off (set to keep 3 monthly restore points, effective from 2024-04-01 00:00 UTC on, slot "
                 "6)\n"},
        ShowCase{"gfs-policy-long-names.xml",
                 "GFS policy: on\n"
                 "  Weekly  keeps 8 weekly restore points, effective at once, slot 1\n"
                 "  Yearly  keeps 1 yearly restore point, effective from 2023-12-31 23:00 UTC on, slot 12\n"},
        ShowCase{"periodical-window.xml", "Backup window: closed except in the hours that the document lists\n"
                                          "  Monday     open 00:00-06:00, 20:00-24:00\n"
                                          "  Tuesday    open 00:00-06:00, 20:00-24:00\n"
                                          "  Wednesday  open 00:00-06:00, 20:00-24:00\n"
                                          "  Thursday   open 00:00-06:00, 20:00-24:00\n"
                                          "  Friday     open 00:00-06:00, 20:00-24:00\n"
                                          "  Saturday   open all day\n"
                                          "  Sunday     open all day\n"
                                          "  Offset     60 minutes, stored only: the hours above are not shifted\n"},
        ShowCase{"office-hours-closed-window.xml",
                 "Backup window: open except in the hours that the document lists\n"
                 "  Monday     open 00:00-08:00, 17:00-24:00\n"
                 "  Tuesday    open 00:00-08:00, 17:00-24:00\n"
                 "  Wednesday  open 00:00-08:00, 17:00-24:00\n"
                 "  Thursday   open 00:00-08:00, 17:00-24:00\n"
                 "  Friday     open 00:00-08:00, 17:00-24:00\n"
                 "  Saturday   open all day\n"
                 "  Sunday     open all day\n"
                 "  Offset     -300 minutes, stored only: the hours above are not shifted\n"}));

struct LineCase
{
    const char* file;
    const char* line;
};

std::ostream& operator<<(std::ostream& stream, const LineCase& test)
{
    return stream << test.file;
}

class ShowLine : public testing::TestWithParam<LineCase>
{
};

TEST_P(ShowLine, IsAmongTheOutput)
{
    const auto result = runCommand({"show", GetParam().file});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, "");
    EXPECT_NE(result.output.find(std::string(GetParam().line) + "\n"), std::string::npos) << result.output;
}

INSTANTIATE_TEST_SUITE_P(
    OtherExamples, ShowLine,
    testing::Values(
        LineCase{"periodical-every-4-hours.xml", "    Start                   starts Every 4 hours (periodical)"},
        LineCase{"periodical-every-4-hours.xml",
                 "  Indexing                  all but these folders: /var/spool/mail/queue"},
        LineCase{"continuous.xml", "    Start                   starts Continuously"},
        LineCase{"continuous.xml", "  Retention                 keeps the restore points of 2 days"},
        LineCase{"always-open-window.xml", "  Sunday     open all day"},
        LineCase{"older/schedule-daily.xml",
                 "    Start                   starts Every Monday, Tuesday, Wednesday, Thursday, Friday at 20:00"},
        LineCase{"older/schedule-monthly.xml",
                 "    Start                   starts Every 15 day of months January, April, July, October at 06:05"},
        LineCase{"older/schedule-monthly.xml", "  Compression               Zstd9, level 4 of 0 to 4"},
        LineCase{"older/schedule-monthly.xml",
                 "      4    Snapshot                  none (older form: IsSnapshotRequired)"},
        LineCase{"older/schedule-periodically.xml", "    Start                   starts Every 24 hours (periodical)"},
        LineCase{"older/schedule-disabled.xml", "    Start                   disabled, set to Every Monday at 20:00"},
        LineCase{"older/schedule-calendar-without-type.xml",
                 "    Start                   starts Every 6 hours 30 minutes (periodical)"},
        LineCase{"older/indexing-all.xml",
                 "      2    Indexing                  all files and folders (older form: IndexAll)"},
        LineCase{"older/indexing-only.xml",
                 "      2    Indexing                  only these folders: /etc;/var/www (older form: IndexOnly)"},
        LineCase{"older/indexing-except.xml", "      2    Indexing                  all but these folders: "
                                              "/srv/scratch;/var/cache (older form: IndexExcept)"},
        LineCase{"older/retain-days-as-attribute.xml", "      3    Deleted data              data of machines that "
                                                       "vanished from the job is kept 45 days (older form: "
                                                       "RetainDays)"}));

/// The words of a field, wherever its column starts.
std::string wordsOf(const std::string& output, const std::string& label)
{
    const auto at = output.find("  " + label + "  ");
    if (at == std::string::npos)
        return "missing";
    const auto words = output.find_first_not_of(' ', at + label.size() + 2);
    return output.substr(words, output.find('\n', words) - words);
}

TEST(ShowTwins, BothFormsOfAJobTellTheSame)
{
    const auto server = runCommand({"show", "managing-server.xml"}).output;
    const auto agent = runCommand({"show", "managing-server-twin.xml"}).output;
    for (const auto* label : {"Compression", "Block size", "Retention", "Deduplication", "Deleted data"})
    {
        EXPECT_EQ(wordsOf(server, label), wordsOf(agent, label)) << label;
        EXPECT_NE(wordsOf(server, label), "missing") << label;
    }
    EXPECT_EQ(wordsOf(agent, "Start"), "starts Last Sunday of every month at 03:15");
}

TEST(ShowSafety, ControlCharactersAreShownNotSent)
{
    const auto result = runCommand({"show", "-"}, "<JobOptions ProductSpecific=\"a&#10;b\" PrejobCommand=\"x\xc2\x9b"
                                                  "2Jy\xff\"/>");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(wordsOf(result.output, "Product-specific text"), "a\\nb");
    EXPECT_EQ(wordsOf(result.output, "Script before the job"), "x\\x9b2Jy\\xff");
}

TEST(ShowSafety, ALongValueIsCutInTheMiddle)
{
    const auto result =
        runCommand({"show", "-"}, "<JobOptions ProductSpecific=\"" + std::string(1000000, 'x') + "\"/>");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(wordsOf(result.output, "Product-specific text"),
              std::string(3072, 'x') + " ... (995904 bytes left out) ... " + std::string(1024, 'x'));
}

} // namespace
