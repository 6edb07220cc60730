#pragma once

#include <string>
#include <vector>

#include <zelplatform/datetime/date_time.h>
#include <zelplatform/guid/guid.h>

namespace describe
{

/// "1 day", "14 days".
std::string countOf(unsigned long count, const std::string& thing);

/// The same of a number that a document may have made negative: "-3 days".
std::string countOfSigned(long count, const std::string& thing);

/// "40.0 GB".
std::string sizeOf(unsigned long bytes);

/// The identifier's text; "none" for the one that is all zero.
std::string identifierOf(const guid::guid_t& id);

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

/// "2024-03-07 13:05:09 UTC".
std::string momentUtc(const datetime::CDateTime& moment);

/// "Thursday".
std::string weekDay(const datetime::CDateTime& date);

/// The text, or other words in place of an empty one.
std::string textOr(const std::string& text, const std::string& otherwise);

/// "a", "a and b", "a, b and c".
std::string listOf(const std::vector<std::string>& items);

} // namespace describe
