#pragma once

/// Dates, times of day, durations and the clock.
#include <zelplatform/datetime/clock.h>
#include <zelplatform/datetime/date_time.h>
#include <zelplatform/datetime/names.h>
#include <zelplatform/datetime/time_span.h>
