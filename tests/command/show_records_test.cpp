#include <gtest/gtest.h>

#include "show_case.h"

namespace
{

using zelmodel_test::expectShown;
using zelmodel_test::ShowCase;

class ShowRecord : public testing::TestWithParam<ShowCase>
{
};

TEST_P(ShowRecord, TellsTheDocumentInWords)
{
    expectShown(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    OfJobs, ShowRecord,
    testing::Values(ShowCase{"oracle-processing.xml", "Oracle processing\n"
                                                      "  User                oracle\n"
                                                      "  Archived redo logs  truncated when older than 72 hours\n"},
                    ShowCase{"oracle-processing-by-size.xml",
                             "Oracle processing\n"
                             "  User                    oracle-test\n"
                             "  Archived redo logs      truncated when larger than 1.5 TB\n"
                             "    Refused when applied  Maximum allowed 'logs size' value for truncation settings is "
                             "999G.\n"},
                    ShowCase{"older/oracle-processing-mode-only.xml", "Oracle processing\n"
                                                                      "  User                oracle\n"
                                                                      "  Archived redo logs  not truncated\n"},
                    ShowCase{"postgres-processing.xml", "PostgreSQL processing\n"
                                                        "  User            postgres\n"
                                                        "  Authentication  peer\n"}));

INSTANTIATE_TEST_SUITE_P(
    OfRepositories, ShowRecord,
    testing::Values(
        ShowCase{"repository-limitations.xml", "Repository limitations\n"
                                               "  Repository       0a7f2c64-51d8-4c1e-9a34-6b1f0e92d7c5\n"
                                               "  Backup mode      number 2 of the job model\n"
                                               "  Active full      allowed\n"
                                               "  Compact of full  not allowed\n"
                                               "  Increments       transformed into synthetic backups\n"
                                               "  Full backup      not transformed\n"
                                               "  Backup chain     at most 14 restore points\n"},
        ShowCase{"repository-limitations-enclosed.xml", "Repository limitations\n"
                                                        "  Repository       5d3e9f10-7b42-4e6a-8c91-2f60a4b8d317\n"
                                                        "  Backup mode      number 0 of the job model\n"
                                                        "  Active full      not allowed\n"
                                                        "  Compact of full  allowed\n"
                                                        "  Increments       not transformed\n"
                                                        "  Full backup      transformed into a synthetic one\n"
                                                        "  Backup chain     -1, no number of restore points\n"},
        ShowCase{"immutability.xml", "Immutability of backups: on for 30 days\n"
                                     "  Period  follows the retention of the job\n"},
        ShowCase{"immutability-enclosed.xml", "Immutability of backups: off (set to 10 days)\n"
                                              "  Period  the one that is set on the repository\n"},
        ShowCase{"direct-backup-immutability.xml",
                 "Immutability of direct backups\n"
                 "  Immutability of backups           on for 14 days\n"
                 "    Period                          the one that is set on the repository\n"
                 "  Move to capacity or archive tier  after 7 days\n"
                 "  Extents of that tier              one is immutable\n"},
        ShowCase{"object-storage.xml",
                 "S3 parameters\n"
                 "  Endpoint\n"
                 "    Service address    https://s3.storage.example\n"
                 "    Resource name      arn:example:storage:backups\n"
                 "    Certificate        9F2C61B7D0453E8AA1165C7D3B90F4E82D6A7C15908E3FB4426D71C0A95E8B33\n"
                 "    Proxy\n"
                 "      Address          http://proxy.site.example:3128\n"
                 "      User             backup\n"
                 "      Password         (hidden, 19 characters)\n"
                 "  Credentials\n"
                 "    Access key         EXAMPLE-ACCESS-KEY\n"
                 "    Secret access key  (hidden, 28 characters)\n"
                 "    Session token      (hidden, 24 characters)\n"
                 "    Role               backup-writer\n"
                 "    Metadata host      169.254.10.20\n"
                 "    Refreshed          2024-03-07 13:05:09 UTC\n"},
        // The fingerprint is what the command openssl prints of the certificate.
        ShowCase{"object-storage-certificate.xml",
                 "S3 parameters\n"
                 "  Endpoint\n"
                 "    Service address    s3.storage.example:9000\n"
                 "    Resource name      none\n"
                 "    Certificate        E61085B84B9A641A45FA1088081765D517DE12102B4DE106BDF37842EC4E4016, taken from "
                 "the certificate itself\n"
                 "    Proxy              none\n"
                 "  Credentials\n"
                 "    Access key         none\n"
                 "    Secret access key  none\n"
                 "    Session token      none\n"
                 "    Role               backup-writer\n"
                 "    Metadata host      none\n"
                 "    Refreshed          not known: readers take the time of reading\n"},
        ShowCase{"cloud-container.xml",
                 "Cloud container\n"
                 "  Region                     region-1\n"
                 "  Container                  backups-site-b, in the document only: readers leave it out\n"
                 "  Repository                 Cloud repository\n"
                 "  Client                     3c9a6e57-08b1-4d2f-bb60-917e4ad5c208\n"
                 "  Description of the client  Site B\n"
                 "  Object lock                on\n"
                 "  S3\n"
                 "    Service address          https://objects.cloud.example\n"
                 "    Access key               EXAMPLE-CLOUD-KEY\n"
                 "    Secret access key        (hidden, 23 characters)\n"},
        ShowCase{"sql-variant.xml", "SQL value\n"
                                    "  Type   number 4\n"
                                    "  Value  14\n"}));

INSTANTIATE_TEST_SUITE_P(
    OfSessions, ShowRecord,
    testing::Values(ShowCase{"session-details.xml", "Job session\n"
                                                    "  Repository            Backups of site B\n"
                                                    "  Kind of backup        Increment\n"
                                                    "  Restore point         b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604\n"
                                                    "  Free space            1.5 TB\n"
                                                    "  Total space           4.0 TB\n"
                                                    "  Retries at the start  3\n"
                                                    "  Current attempt       2\n"
                                                    "  Waits for a retry     no\n"},
                    ShowCase{"session-details-unknown-space.xml", "Job session\n"
                                                                  "  Repository            Backups of site C\n"
                                                                  "  Kind of backup        Full (Syntethic)\n"
                                                                  "  Restore point         none\n"
                                                                  "  Free space            not known\n"
                                                                  "  Total space           not known\n"
                                                                  "  Retries at the start  0\n"
                                                                  "  Current attempt       0\n"
                                                                  "  Waits for a retry     yes\n"},
                    ShowCase{"session-progress.xml", "Progress of a job session\n"
                                                     "  Total                         40.0 GB\n"
                                                     "  Used of it                    30.0 GB\n"
                                                     "  Processed                     15.0 GB\n"
                                                     "  Read                          12.0 GB\n"
                                                     "  Transferred                   6.0 GB\n"
                                                     "  Speed                         105.0 "
                                                     "MB/s\n"
                                                     "  Load of reading the source    12 %\n"
                                                     "  Load of processing            37 %\n"
                                                     "  Load of the network           98 %\n"
                                                     "  Load of writing the target    5 %\n"
                                                     "  Throttling of the network     on\n"
                                                     "  Throttling of the repository  off\n"},
                    ShowCase{"session-progress-begun.xml", "Progress of a job session: nothing yet\n"
                                                           "  Total                         0.0 B\n"
                                                           "  Used of it                    0.0 B\n"
                                                           "  Processed                     0.0 B\n"
                                                           "  Read                          0.0 B\n"
                                                           "  Transferred                   0.0 B\n"
                                                           "  Speed                         0.0 B/s\n"
                                                           "  Load of reading the source    0 %\n"
                                                           "  Load of processing            0 %\n"
                                                           "  Load of the network           0 %\n"
                                                           "  Load of writing the target    0 %\n"
                                                           "  Throttling of the network     off\n"
                                                           "  Throttling of the repository  off\n"},
                    ShowCase{"task-log-record.xml", "Task log record\n"
                                                    "  Severity             warn\n"
                                                    "  Position in the log  42\n"
                                                    "  Update number        1007\n"
                                                    "  Title                Backing up /srv/share\n"
                                                    "  Description          3 files were in use and have been skipped\n"
                                                    "  Updated              2024-03-07 13:05:09 UTC\n"
                                                    "  Object               /srv/share\n"
                                                    "  Written              2024-03-07 12:58:40 UTC\n"
                                                    "  Cookie               7f31\n"},
                    ShowCase{"mount-session.xml", "Mount session\n"
                                                  "  Mount point    /mnt/backup/restore-1\n"
                                                  "  Restore point  b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604\n"},
                    ShowCase{"job-state.xml", "State of a backup job\n"
                                              "  Object storage mode  number 3\n"},
                    ShowCase{"older/job-state-version-1.xml",
                             "State of a backup job: in the layout of version 1\n"
                             "  Object storage mode  number 3 (older form: ObjectStorageBackupMode)\n"}));

INSTANTIATE_TEST_SUITE_P(
    OfTransforms, ShowRecord,
    testing::Values(ShowCase{"delete-points.xml", "Delete-point transform\n"
                                                  "  Session            e2a57c90-14fb-4b8d-9d36-05c8f1e6a742\n"
                                                  "  Backup             84b0d3f9-2e61-47ca-8f15-d96c70ab31e5\n"
                                                  "  Operation          delete restore points\n"
                                                  "  Kind of transform  number 1\n"
                                                  "  Integrity check    on\n"
                                                  "  To transform       2 restore points, in this order\n"
                                                  "    1                1f6c8a42-90d7-4e35-b3a8-62e5d4c7f019\n"
                                                  "    2                c7d2e5b8-3a94-4160-8bf7-0e91a6d3c528\n"},
                    ShowCase{"synthetic-full.xml", "Synthetic full transform\n"
                                                   "  Session          e2a57c90-14fb-4b8d-9d36-05c8f1e6a742\n"
                                                   "  Backup           84b0d3f9-2e61-47ca-8f15-d96c70ab31e5\n"
                                                   "  Operation        create a synthetic full\n"
                                                   "  Last increments  2 restore points, in this order\n"
                                                   "    1              1f6c8a42-90d7-4e35-b3a8-62e5d4c7f019\n"
                                                   "    2              c7d2e5b8-3a94-4160-8bf7-0e91a6d3c528\n"
                                                   "  Target file      /backups/site-b/full-2024-03-09\n"},
                    ShowCase{"older/synthetic-full-single-point.xml",
                             "Synthetic full transform\n"
                             "  Session          e2a57c90-14fb-4b8d-9d36-05c8f1e6a742\n"
                             "  Backup           84b0d3f9-2e61-47ca-8f15-d96c70ab31e5\n"
                             "  Operation        create a synthetic full\n"
                             "  Last increments  1 restore point (older form: LastIncrementPointId)\n"
                             "    1              c7d2e5b8-3a94-4160-8bf7-0e91a6d3c528\n"
                             "  Target file      /backups/site-b/full-2019-11-02\n"},
                    ShowCase{"gfs-synthetic-full.xml", "GFS synthetic full transform\n"
                                                       "  Session      e2a57c90-14fb-4b8d-9d36-05c8f1e6a742\n"
                                                       "  Backup       84b0d3f9-2e61-47ca-8f15-d96c70ab31e5\n"
                                                       "  Operation    of an unknown kind (2)\n"
                                                       "  Target file  /backups/site-b/monthly-2024-03\n"}));

} // namespace
