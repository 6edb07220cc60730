#pragma once

/// Schedules: times of day, masks of week days and months, calendars that answer on which days something runs, the
/// start of a job, its active and synthetic fulls, and the window of hours in which it may run. CScheduleOptions holds
/// them all; CScheduleCalendar answers about dates, BackupWindow about hours. Everything has an XML form and a line of
/// words.

#include <zelmodel/structs/schedule/backup_window.h>
#include <zelmodel/structs/schedule/day_hour_matrix.h>
#include <zelmodel/structs/schedule/day_of_month.h>
#include <zelmodel/structs/schedule/full_backup_options.h>
#include <zelmodel/structs/schedule/hour_in_week.h>
#include <zelmodel/structs/schedule/month_mask.h>
#include <zelmodel/structs/schedule/schedule_calendar.h>
#include <zelmodel/structs/schedule/schedule_options.h>
#include <zelmodel/structs/schedule/schedule_parser.h>
#include <zelmodel/structs/schedule/schedule_time.h>
#include <zelmodel/structs/schedule/schedule_type.h>
#include <zelmodel/structs/schedule/schedule_window_kind.h>
#include <zelmodel/structs/schedule/start_job_schedule_options.h>
#include <zelmodel/structs/schedule/week_day_number.h>
#include <zelmodel/structs/schedule/week_mask.h>
