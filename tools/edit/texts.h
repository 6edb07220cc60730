#pragma once

#include <string>

#include <zelmodel/structs/schedule/month_mask.h>
#include <zelmodel/structs/schedule/week_mask.h>

namespace edit
{

/// Week days as people write them: "Mon,Fri", "Mon-Fri", "Sat-Mon,Wed", long or short names in any letter case. An
/// empty text is no day. Throws what the library says of an unknown name.
zelplatform::model::structs::CWeekMask parseWeekDays(const std::string& text);

/// Months likewise: "Jan,Jul", "Nov-Feb".
zelplatform::model::structs::CMonthMask parseMonths(const std::string& text);

/// A length of time with its units, in milliseconds: "10m", "1h30m", "90s", "250ms", "1d". Throws for a number without
/// a unit and for what is too long to be stored.
unsigned long parseDuration(const std::string& text);

/// Whether the text is digits only.
bool isNumber(const std::string& text) noexcept;

} // namespace edit
