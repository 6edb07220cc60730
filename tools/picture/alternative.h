#pragma once

#include <cstddef>
#include <string>

#include "schedule_picture.h"
#include "when/day_mark.h"

/// What is told instead of the picture, to those who do not see it.
namespace picture
{

/// "nightly.xml, 2026".
std::string tellTitle(const SchedulePicture& picture);

/// "Friday 2026-01-02: start that makes an active full", and what the clock does on the day.
std::string tellDay(const when::PlannedDay& day, const when::DayMark& mark);

/// "08:00", and "24:00" for the end of the day.
std::string tellHour(std::size_t hour);

/// "Monday 08:00-09:00: closed".
std::string tellHour(const when::PlannedWeekDay& day, std::size_t hour);

/// The whole picture in sentences: each month with its marked days, each day of the window with its hours.
std::string tellPicture(const SchedulePicture& picture);

} // namespace picture
