#pragma once

#include <string>
#include <vector>

#include <zelplatform/datetime/date_time.h>

namespace describe
{

/// "1 day", "14 days".
std::string countOf(unsigned long count, const std::string& thing);

/// "on" or "off".
std::string onOrOff(bool on);

/// "true" or "false".
std::string flagText(bool flag);

/// "10 minutes", "1 hour 30 minutes", "1 minute 30 seconds", "250 ms".
std::string duration(unsigned long milliseconds);

/// "2024-03-07".
std::string isoDate(const datetime::CDateTime& date);

/// "22:30".
std::string clockTime(const datetime::CDateTime& moment);

/// "Thursday".
std::string weekDay(const datetime::CDateTime& date);

/// The text, or other words in place of an empty one.
std::string textOr(const std::string& text, const std::string& otherwise);

/// "a", "a and b", "a, b and c".
std::string listOf(const std::vector<std::string>& items);

} // namespace describe
