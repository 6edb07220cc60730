#pragma once

#include <zelmodel/backup_job_options.h>
#include <zelmodel/sessions/backup_job_state.h>
#include <zelmodel/sessions/job_session_details.h>
#include <zelmodel/sessions/job_session_progress_details.h>
#include <zelmodel/sessions/mount_session_details.h>
#include <zelmodel/sessions/task_log_record.h>
#include <zelmodel/structs/application_processing_config.h>
#include <zelmodel/structs/gfs/gfs_policy_info.h>
#include <zelmodel/structs/repository/external_repo_cloud_container.h>
#include <zelmodel/structs/repository/repository_limitations_spec.h>
#include <zelmodel/structs/schedule/backup_window.h>
#include <zelmodel/structs/schedule/schedule_options.h>
#include <zelmodel/structs/sql_variant.h>
#include <zelmodel/structs/storage/amazon_s3_params.h>
#include <zelmodel/structs/storage/immutability_settings.h>
#include <zelmodel/transform/create_gfs_synthetic_full_spec.h>
#include <zelmodel/transform/create_synthetic_full_spec.h>
#include <zelmodel/transform/transform_spec.h>

#include "node.h"
#include "place.h"

/// One visitor for each kind of document: the record as the library read it, told in words, with the lines of the
/// element that it came from. Each is the only place that knows the fields of its record. Where nothing else is said,
/// the place is the record's own element.
namespace describe
{

/// Job options; the place is the element "JobOptions", or "JobOptionsRoot" with the flag.
Node visitJobOptions(const zelplatform::model::SBackupJobOptions& job, const Place& place, bool isServerForm);

/// File indexing; the place is the element that owns it.
Node visitIndexing(const zelplatform::model::structs::SIndexingOptions& indexing, const Place& owner);

/// A schedule; the place is the parent of "Schedule" and its companions.
Node visitSchedule(const zelplatform::model::structs::CScheduleOptions& schedule, const Place& parent);

/// "weekly", "monthly", "periodically" or "continuously"; "of an unknown kind" for any other number.
std::string tellScheduleType(zelplatform::model::structs::EScheduleType::type type);

/// A calendar in one sentence with the time of day as a clock shows it: "Every Monday, Friday at 22:30". Never throws
/// for a calendar that a document can hold; what cannot be evaluated is said so.
std::string tellCalendar(const zelplatform::model::structs::CScheduleCalendar& calendar);

/// A backup window; the place is its element.
Node visitWindow(const zelplatform::model::structs::BackupWindow& window, const Place& place);

/// A GFS policy; the place is its element, the flag says which names it uses.
Node visitGfsPolicy(const zelplatform::model::structs::gfs::SGfsPolicyInfo& policy, const Place& place,
                    bool isShortNames);

Node visitOracleConfig(const zelplatform::model::structs::SApplicationProcessingOracleConfig& config,
                       const Place& place);

Node visitPostgresConfig(const zelplatform::model::structs::SApplicationProcessingPostgresConfig& config,
                         const Place& place);

Node visitRepositoryLimitations(const zelplatform::model::structs::CRepositoryLimitationsSpec& limitations,
                                const Place& place);

/// The immutability settings of an object storage.
Node visitImmutability(const zelplatform::model::structs::SObjectStorageImmutabilitySettings& settings,
                       const Place& place);

Node visitDirectImmutability(const zelplatform::model::structs::SDirectBackupImmutabilitySettings& settings,
                             const Place& place);

/// S3 parameters; the secret access key, the session token and the proxy's password are secrets of the tree.
Node visitS3Params(const zelplatform::model::structs::SAmazonS3SpecificParams& params, const Place& place);

/// A cloud container; its secret access key is a secret of the tree.
Node visitCloudContainer(const zelplatform::model::structs::SExternalRepoCloudContainer& container, const Place& place);

Node visitSqlVariant(const zelplatform::model::structs::SSqlVariant& variant, const Place& place);

Node visitSessionDetails(const zelplatform::model::JobSessionDetails& details, const Place& place);

Node visitSessionProgress(const zelplatform::model::SJobSessionProgressDetails& progress, const Place& place);

Node visitTaskLogRecord(const zelplatform::model::STaskLogRecord& record, const Place& place);

Node visitMountSession(const zelplatform::model::SMountSessionDetails& details, const Place& place);

Node visitJobState(const zelplatform::model::SBackupJobState& state, const Place& place);

Node visitDeletePointTransform(const zelplatform::model::transform::CTransformSpec& spec, const Place& place);

Node visitSyntheticFullTransform(const zelplatform::model::transform::CCreateSyntheticFullSpec& spec,
                                 const Place& place);

Node visitGfsSyntheticFullTransform(const zelplatform::model::transform::CCreateGfsSyntheticFullSpec& spec,
                                    const Place& place);

} // namespace describe
