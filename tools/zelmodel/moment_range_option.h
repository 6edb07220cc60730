#pragma once

#include <optional>

#include "command_options.h"

/// A moment as precise as it was written: a day, a minute or a second, in seconds since 1970-01-01 00:00:00 UTC.
struct MomentRange
{
    long first = 0;
    long last = 0; ///< the last second that still belongs to it
};

/// Adds an option that takes "YYYY-MM-DD[ HH:MM[:SS]]", in UTC and to the letter, and sets the target, which must
/// outlive the parsing.
void addMomentRangeOption(CommandOptions& command, const char* name, std::optional<MomentRange>& target,
                          const char* description);
