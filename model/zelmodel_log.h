#pragma once

#include <zelmodel/export.h>

#include <zelplatform/logging/logging.h>

/// The log section of the library, "zelmodel".
extern ZELMODEL_API logging::log_section_t zelmodel_log;
