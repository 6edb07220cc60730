#pragma once

/// Repositories: what a target allows a job (CRepositoryLimitationsSpec), whether and how long its backups are
/// immutable, the kind of an object storage and the parameters with which S3 storage is reached, and the cloud
/// container that an agent writes to directly. The S3 records hold secrets as plain strings, in memory and in their
/// documents: what may go to a log is SAmazonS3SpecificParams::ToLogStr.

#include <zelmodel/enums/repository_immutability_mode.h>
#include <zelmodel/structs/repository/backup_mode.h>
#include <zelmodel/structs/repository/external_repo_cloud_container.h>
#include <zelmodel/structs/repository/repository_limitations_spec.h>
#include <zelmodel/structs/storage/amazon_s3_params.h>
#include <zelmodel/structs/storage/immutability_settings.h>
#include <zelmodel/structs/storage/object_storage_type.h>
