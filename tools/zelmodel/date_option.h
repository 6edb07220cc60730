#pragma once

#include <optional>

#include <zelmodel/datetime/date.h>
#include <zelplatform/datetime/date_time.h>

#include "command_options.h"

/// Adds an option that takes a date as YYYY-MM-DD, to the letter, and sets the target, which must outlive the parsing.
CommandOption addDateOption(CommandOptions& command, const char* name, std::optional<zelplatform::model::CDate>& target,
                            const char* description);

/// The same for a local time of the wall clock, "YYYY-MM-DD HH:MM".
CommandOption addMomentOption(CommandOptions& command, const char* name, std::optional<datetime::CDateTime>& target,
                              const char* description);

/// The same for the first day of a month, "YYYY-MM", and of a year, "YYYY".
CommandOption addMonthOption(CommandOptions& command, const char* name,
                             std::optional<zelplatform::model::CDate>& target, const char* description);
CommandOption addYearOption(CommandOptions& command, const char* name, std::optional<zelplatform::model::CDate>& target,
                            const char* description);
