#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tree.h"

namespace
{

using zelmodel_test::at;
using zelmodel_test::expectFields;
using zelmodel_test::namesOf;
using zelmodel_test::treeOf;

constexpr const char* Point = "b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604";

TEST(SessionDetailsTree, HoldsEveryFieldWithItsLine)
{
    const auto root =
        treeOf("<Details\nrepo_name=\"Site B\"\nbackup_type=\"Different\"\noib_id=\"" + std::string(Point) +
               "\"\nrepo_free_space=\"1536\"\nrepo_total_space=\"1099511627776\"\nis_job_awaiting_for_retry=\"true\"\n"
               "initial_retries_number=\"3\"\ncurrent_attempt_number=\"2\"/>");
    EXPECT_EQ(namesOf(root),
              (std::vector<std::string>{"repositoryName", "backupType", "restorePointId", "repositoryFreeSpace",
                                        "repositoryTotalSpace", "initialRetriesNumber", "currentAttemptNumber",
                                        "isJobAwaitingForRetry"}));
    expectFields(root, {{"repositoryName", "Site B", "Site B", 2},
                        {"backupType", "Different", "Increment (Different)", 3},
                        {"restorePointId", Point, Point, 4},
                        {"repositoryFreeSpace", "1536", "1.5 KB", 5},
                        {"repositoryTotalSpace", "1099511627776", "1.0 TB", 6},
                        {"isJobAwaitingForRetry", "true", "yes", 7},
                        {"initialRetriesNumber", "3", "3", 8},
                        {"currentAttemptNumber", "2", "2", 9}});
}

TEST(SessionDetailsTree, TellsWhatIsNotKnown)
{
    const auto root = treeOf("<Details repo_name=\"\" backup_type=\"Full\" repo_free_space=\"-1\" "
                             "repo_total_space=\"-2\" is_job_awaiting_for_retry=\"0\" initial_retries_number=\"0\" "
                             "current_attempt_number=\"0\"/>");
    expectFields(root, {{"repositoryName", "", "none", 1},
                        {"backupType", "Full", "Full", 1},
                        {"restorePointId", "00000000-0000-0000-0000-000000000000", "none", 0},
                        {"repositoryFreeSpace", "-1", "not known", 1},
                        {"repositoryTotalSpace", "-2", "-2 bytes", 1},
                        {"isJobAwaitingForRetry", "false", "no", 1}});
}

TEST(SessionProgressTree, HoldsEveryFieldWithItsLine)
{
    const auto root =
        treeOf("<ProgressDetails\ntotal_size=\"1024\"\ntotal_used_size=\"512\"\nprocessed_data_size_bytes=\"256\"\n"
               "read_data_size_bytes=\"128\"\ntransferred_data_size_bytes=\"64\"\nprocessing_speed=\"2048\"\n"
               "source_read_load=\"1\"\nsource_processing_load=\"-2\"\nnetwork_load=\"300\"\ntarget_write_load=\"4\"\n"
               "network_throttling_enabled=\"true\"\nrepository_throttling_enabled=\"true\"/>");
    EXPECT_EQ(root.words, "");
    EXPECT_EQ(namesOf(root),
              (std::vector<std::string>{"totalSize", "totalUsedSize", "processedDataSize", "readDataSize",
                                        "transferredDataSize", "processingSpeed", "sourceReadLoad",
                                        "sourceProcessingLoad", "networkLoad", "targetWriteLoad",
                                        "networkThrottlingEnabled", "repositoryThrottlingEnabled"}));
    expectFields(root, {{"totalSize", "1024", "1.0 KB", 2},
                        {"totalUsedSize", "512", "512.0 B", 3},
                        {"processedDataSize", "256", "256.0 B", 4},
                        {"readDataSize", "128", "128.0 B", 5},
                        {"transferredDataSize", "64", "64.0 B", 6},
                        {"processingSpeed", "2048", "2.0 KB/s", 7},
                        {"sourceReadLoad", "1", "1 %", 8},
                        {"sourceProcessingLoad", "-2", "-2 %", 9},
                        {"networkLoad", "300", "300 %", 10},
                        {"targetWriteLoad", "4", "4 %", 11},
                        {"networkThrottlingEnabled", "true", "on", 12},
                        {"repositoryThrottlingEnabled", "true", "on", 13}});
}

// The totals, the loads and the flags are not looked at.
TEST(SessionProgressTree, WithATotalOnlyItIsStillEmpty)
{
    const auto root = treeOf("<ProgressDetails total_size=\"1024\" processed_data_size_bytes=\"0\" "
                             "read_data_size_bytes=\"0\" transferred_data_size_bytes=\"0\" processing_speed=\"0\" "
                             "source_read_load=\"9\" source_processing_load=\"9\" network_load=\"9\" "
                             "target_write_load=\"9\"/>");
    EXPECT_EQ(root.words, "nothing yet");
    expectFields(root, {{"totalUsedSize", "0", "0.0 B", 0}, {"networkThrottlingEnabled", "false", "off", 0}});
}

TEST(TaskLogRecordTree, HoldsEveryFieldWithItsLine)
{
    const auto root = treeOf("<Anything\nstatus=\"ENone\"\nordinalId=\"18446744073709551615\"\nupdateUsn=\"0\"\n"
                             "title=\"a&#9;b\"\ndescription=\"\"\nupdateTime=\"03/07/2024 13:05:09\"\nobject=\"o\"\n"
                             "startTime=\"1/2/1400 3:4:5\"\ncookie=\"c\"/>");
    EXPECT_EQ(namesOf(root), (std::vector<std::string>{"status", "ordinalId", "updateUsn", "title", "description",
                                                       "updateTime", "object", "startTime", "cookie"}));
    expectFields(root, {{"status", "processing", "processing", 2},
                        {"ordinalId", "18446744073709551615", "18446744073709551615", 3},
                        {"updateUsn", "0", "0", 4},
                        {"title", "a\tb", "a\tb", 5},
                        {"description", "", "none", 6},
                        {"updateTime", "03/07/2024 13:05:09", "2024-03-07 13:05:09 UTC", 7},
                        {"object", "o", "o", 8},
                        {"startTime", "01/02/1400 03:04:05", "1400-01-02 03:04:05 UTC", 9},
                        {"cookie", "c", "c", 10}});
}

TEST(TaskLogRecordTree, StatusesBecomeSeverities)
{
    for (const auto& [status, severity] : {std::pair<const char*, const char*>{"ENone", "processing"},
                                           {"ESucceeded", "info"},
                                           {"EWarning", "warn"},
                                           {"EFailed", "error"}})
    {
        const auto root = treeOf(std::string("<r ordinalId=\"1\" updateUsn=\"1\" title=\"\" description=\"\" "
                                             "updateTime=\"03/07/2024 13:05:09\" object=\"\" "
                                             "startTime=\"03/07/2024 13:05:09\" cookie=\"\" status=\"") +
                                 status + "\"/>");
        EXPECT_EQ(at(root, "status").words, severity);
    }
}

TEST(MountSessionTree, HoldsEveryFieldWithItsLine)
{
    const auto root = treeOf("<MountSessionDetails\nMountPoint=\"/mnt\"\nOibId=\"" + std::string(Point) + "\"/>");
    EXPECT_EQ(root.words, "");
    EXPECT_EQ(namesOf(root), (std::vector<std::string>{"mountPoint", "restorePointId"}));
    expectFields(root, {{"mountPoint", "/mnt", "/mnt", 2}, {"restorePointId", Point, Point, 3}});
    EXPECT_EQ(treeOf("<MountSessionDetails MountPoint=\"/mnt\" OibId=\"\"/>").words, "nothing is mounted");
}

TEST(JobStateTree, TellsTheModeOfEitherLayout)
{
    const auto current = treeOf("<BackupJobState Version=\"2\"\nObjectStorageOperationMode=\"-3\"/>");
    EXPECT_EQ(current.words, "");
    expectFields(current, {{"objectStorageOperationMode", "-3", "number -3", 2}});
    const auto first = treeOf("<BackupJobState Version=\"01\"\nObjectStorageBackupMode=\"3\"/>");
    EXPECT_EQ(first.words, "in the layout of version 1");
    expectFields(first, {{"objectStorageOperationMode", "3", "number 3", 2}});
}

} // namespace
