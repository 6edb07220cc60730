#pragma once

/// The whole library. Each family header can be included alone.

#include <zelmodel/binary_io.h>
#include <zelmodel/data_size.h>
#include <zelmodel/date_time.h>
#include <zelmodel/enumerations.h>
#include <zelmodel/job_options.h>
#include <zelmodel/keys.h>
#include <zelmodel/log.h>
#include <zelmodel/repositories.h>
#include <zelmodel/schedules.h>
#include <zelmodel/sessions.h>
#include <zelmodel/transforms.h>
#include <zelmodel/version.h>
