#pragma once

/// Instants, dates and spans of time.
/// CDateTimeEx is an instant in UTC seconds with the local offset of its maker, CTimeSpanEx a signed number of seconds,
/// CDate a calendar date without a time of day. CDateTimeHelper answers in which week of its month a date lies and
/// steps through the calendar by days, weeks, months and years. ITimeManager is the clock that a caller hands in where
/// the answer depends on today; GetNowTime and GenerateNewObjectId give the current instant and a fresh identifier.
/// Second 0 (1970-01-01 00:00:00 UTC) means "not set" in an instant. Calendar dates lie between the years 1400 and
/// 9999. Arithmetic that would leave 64 bits throws.

#include <zelmodel/datetime/date.h>
#include <zelmodel/datetime/date_time_ex.h>
#include <zelmodel/datetime/date_time_helper.h>
#include <zelmodel/datetime/object_id.h>
#include <zelmodel/datetime/time_manager.h>
#include <zelmodel/datetime/time_span_ex.h>
