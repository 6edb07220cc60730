#pragma once

#include <optional>

#include <CLI/CLI.hpp>

#include <zelmodel/datetime/date.h>
#include <zelplatform/datetime/date_time.h>

/// Adds an option that takes a date as YYYY-MM-DD, to the letter, and sets the target, which must outlive the parsing.
CLI::Option* addDateOption(CLI::App& command, const char* name, std::optional<zelplatform::model::CDate>& target,
                           const char* description);

/// The same for a local time of the wall clock, "YYYY-MM-DD HH:MM".
CLI::Option* addMomentOption(CLI::App& command, const char* name, std::optional<datetime::CDateTime>& target,
                             const char* description);

/// The same for the first day of a month, "YYYY-MM", and of a year, "YYYY".
CLI::Option* addMonthOption(CLI::App& command, const char* name, std::optional<zelplatform::model::CDate>& target,
                            const char* description);
CLI::Option* addYearOption(CLI::App& command, const char* name, std::optional<zelplatform::model::CDate>& target,
                           const char* description);
