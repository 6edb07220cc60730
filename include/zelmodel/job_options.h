#pragma once

/// The settings of a backup job: SBackupJobOptions reads a document in the agent's or the managing server's form,
/// checks it and writes it in the agent's form. With it come compression and retention kinds, the long-term (GFS)
/// policy and the indexing options.

#include <zelmodel/backup_job_compression.h>
#include <zelmodel/backup_job_options.h>
#include <zelmodel/retention_type.h>
#include <zelmodel/structs/gfs/gfs_policy_info.h>
#include <zelmodel/structs/health_check_type.h>
#include <zelmodel/structs/indexing_options.h>
