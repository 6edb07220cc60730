#pragma once

#include <cstddef>
#include <string_view>

#include <zelmodel/datetime/date_time_ex.h>

namespace zelplatform::model::detail
{

/// The time in front of a log line as the writer puts it there, "2024-03-07 13:05:09 UTC " with the blank behind it.
/// Nearly all lines have it, and it is read without a search.
constexpr std::size_t WrittenLogTimeSize = 24;

/// True when the line starts with a time in that form; its date may yet be none.
bool startsWithWrittenLogTime(std::string_view line) noexcept;

/// Reads such a start; throws for a date or time that does not exist.
CDateTimeEx readWrittenLogTime(std::string_view line);

/// Reads a time of numbers of any length; throws for a separator or number that is missing and for a date or time that
/// does not exist. What follows the seconds after a blank is not looked at.
CDateTimeEx readLogTime(std::string_view text);

} // namespace zelplatform::model::detail
