#pragma once

/// Sessions: where a run's backup goes and how far it has come, the records of a task's log as the managing side sees
/// them, the lines of a session log and their reader, where a restore point is mounted, what a job keeps between its
/// runs, and the kinds of filters that make up a job's scope. CSessionLogLineParser skips what is no record and notes
/// it in the log; all other readers throw.

#include <zelmodel/sessions/application_job_filter_type.h>
#include <zelmodel/sessions/backup_job_state.h>
#include <zelmodel/sessions/job_filter_object.h>
#include <zelmodel/sessions/job_filter_type.h>
#include <zelmodel/sessions/job_session_details.h>
#include <zelmodel/sessions/job_session_progress_details.h>
#include <zelmodel/sessions/mount_session_details.h>
#include <zelmodel/sessions/session_log_line_parser.h>
#include <zelmodel/sessions/session_log_writer.h>
#include <zelmodel/sessions/task_log_record.h>
