#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <zelmodel/datetime/date_time_ex.h>

namespace zelplatform::model::detail
{

/// The time in front of a log line as the writer puts it there, "2024-03-07 13:05:09 UTC " with the blank behind it.
/// Nearly all lines have it, and it is read without a search.
constexpr std::size_t WrittenLogTimeSize = 24;

/// True when the line starts with a time in that form; its date may yet be none.
bool startsWithWrittenLogTime(std::string_view line) noexcept;

/// Reads such a start. False for a date or time that does not exist; the failure tells why. No exception tells it: a
/// log may consist of nothing but such lines, and exceptions take many times longer than the lines.
bool tryReadWrittenLogTime(std::string_view line, CDateTimeEx& time, std::string& failure);

/// The same for a time of numbers of any length; false for a separator or number that is missing, too. What follows the
/// seconds after a blank is not looked at.
bool tryReadLogTime(std::string_view text, CDateTimeEx& time, std::string& failure);

/// What stands in front of such a failure.
constexpr const char* LogTimeContext = "Unable to convert time string to DateTime.";

/// The same; throws the failure behind its context.
CDateTimeEx readLogTime(std::string_view text);

} // namespace zelplatform::model::detail
