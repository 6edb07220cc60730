#pragma once

#include <optional>

#include <CLI/CLI.hpp>

#include <zelmodel/datetime/date.h>

/// Adds an option that takes a date as YYYY-MM-DD, to the letter, and sets the target, which must outlive the parsing.
void addDateOption(CLI::App& command, const char* name, std::optional<zelplatform::model::CDate>& target,
                   const char* description);
