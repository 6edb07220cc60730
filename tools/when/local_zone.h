#pragma once

#include <string>
#include <vector>

#include <zelmodel/datetime/date.h>
#include <zelplatform/datetime/date_time.h>

/// The zone in which a schedule's local wall clock is read: the one of this process, from the variable TZ or the
/// machine's setting. A schedule knows no zones; this only tells what its times mean here.
namespace when
{

/// How often the wall clock shows a time.
enum class EReading
{
    Once,
    Never, ///< the clock is put forward over it
    Twice, ///< the clock is put back over it
};

EReading readingOf(const datetime::CDateTime& local);

/// The instant at which the wall clock shows the time, in seconds since 1970 UTC: the first of two; for a time that is
/// left out the one at which it would have come if the clock had not been put forward.
long instantOf(const datetime::CDateTime& local);

/// The length of the day in seconds, from its first instant to that of the next day.
long lengthOf(const zelplatform::model::CDate& date);

/// "local time of Europe/Berlin (TZ), UTC+01:00 on 2026-03-02".
std::string tellZone(const zelplatform::model::CDate& date);

/// What the clock does on a day that has not 24 hours, and which of the times it leaves out or shows twice: "23 hours:
/// the clock goes from 02:00 to 03:00; 02:30 is left out". Empty for an ordinary day.
std::string tellClock(const zelplatform::model::CDate& date, const std::vector<datetime::CDateTime>& times);

} // namespace when
