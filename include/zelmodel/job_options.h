#pragma once

/// The settings of a backup job: SBackupJobOptions reads a document in the agent's or the managing server's form,
/// checks it and writes it in the agent's form. With it come compression and retention kinds, the long-term (GFS)
/// policy and the flags of restore points, the indexing options, who owns the agent, and how databases are processed.

#include <zelmodel/backup_job_compression.h>
#include <zelmodel/backup_job_options.h>
#include <zelmodel/retention_type.h>
#include <zelmodel/structs/application_processing_config.h>
#include <zelmodel/structs/application_processing_type.h>
#include <zelmodel/structs/archived_logs_truncation.h>
#include <zelmodel/structs/gfs/gfs_flags.h>
#include <zelmodel/structs/gfs/gfs_point.h>
#include <zelmodel/structs/gfs/gfs_policy_info.h>
#include <zelmodel/structs/gfs/gfs_tracking_candidate.h>
#include <zelmodel/structs/health_check_type.h>
#include <zelmodel/structs/indexing_options.h>
#include <zelmodel/structs/ownership_info.h>
#include <zelmodel/structs/ownership_mode.h>
#include <zelmodel/structs/ownership_type.h>
#include <zelmodel/structs/postgresql_auth_type.h>
