#include "local_zone.h"

#include <cstdlib>
#include <ctime>
#include <filesystem>

#include <zelmodel/structs/schedule/schedule_time.h>
#include <zelplatform/exc/exc.h>

#include "describe/terminal_text.h"
#include "describe/words.h"

namespace when
{
namespace
{

using datetime::CDateTime;
using zelplatform::model::CDate;
using zelplatform::model::structs::CScheduleTime;

constexpr long SecondsOfMinute = 60;
constexpr long SecondsOfHour = 3600;
constexpr long SecondsOfDay = 86400;
constexpr std::size_t MostListedTimes = 24;

long secondOfDay(const std::tm& time)
{
    return time.tm_hour * SecondsOfHour + time.tm_min * SecondsOfMinute + time.tm_sec;
}

/// Seconds east of UTC at the instant.
long offsetAt(long instant)
{
    const auto seconds = static_cast<std::time_t>(instant);
    std::tm local{};
    std::tm utc{};
    if (::localtime_r(&seconds, &local) == nullptr || ::gmtime_r(&seconds, &utc) == nullptr)
        throw exc::CRuntimeExc("Unable to read the local time.");
    const int days =
        local.tm_year == utc.tm_year ? local.tm_yday - utc.tm_yday : (local.tm_year > utc.tm_year ? 1 : -1);
    return days * SecondsOfDay + secondOfDay(local) - secondOfDay(utc);
}

/// The first instant after the earlier one at which the offset is no longer the earlier one's. There must be one up to
/// the later instant.
long changeBetween(long earlier, long later)
{
    const long before = offsetAt(earlier);
    while (later - earlier > 1)
    {
        const long middle = earlier + (later - earlier) / 2;
        (offsetAt(middle) == before ? earlier : later) = middle;
    }
    return later;
}

/// The offsets around a wall-clock time, a day before and a day after it. No zone lies further from UTC.
struct Around
{
    explicit Around(long wallClock)
        : before(offsetAt(wallClock - SecondsOfDay)), after(offsetAt(wallClock + SecondsOfDay))
    {
    }

    long before;
    long after;
};

bool isShownAt(long wallClock, long offset)
{
    return offsetAt(wallClock - offset) == offset;
}

/// The first instant of the day, also where the clock leaves midnight out.
long firstInstantOf(const CDateTime& midnight)
{
    const long wallClock = midnight.toUnixTime();
    if (readingOf(midnight) != EReading::Never)
        return instantOf(midnight);
    return changeBetween(wallClock - SecondsOfDay, wallClock + SecondsOfDay);
}

CScheduleTime asTime(long seconds)
{
    const auto minutes = static_cast<unsigned long>(seconds / SecondsOfMinute);
    return CScheduleTime(minutes / 60, minutes % 60);
}

std::string tellOffset(long seconds)
{
    return (seconds < 0 ? "UTC-" : "UTC+") + asTime(std::labs(seconds)).ToTimeStr();
}

std::string zoneOfMachine()
{
    const std::string folder = "zoneinfo/";
    std::error_code failure;
    const auto target = std::filesystem::read_symlink("/etc/localtime", failure).string();
    const auto at = target.rfind(folder);
    return failure || at == std::string::npos ? "the machine" : target.substr(at + folder.size());
}

std::string nameOfZone()
{
    const char* variable = std::getenv("TZ");
    if (variable != nullptr && *variable != '\0')
        return describe::printable(*variable == ':' ? variable + 1 : variable) + " (TZ)";
    return zoneOfMachine();
}

std::string tellTimes(const std::vector<CDateTime>& times)
{
    if (times.size() > MostListedTimes)
        return describe::countOf(times.size(), "start");
    std::vector<std::string> words;
    words.reserve(times.size());
    for (const auto& time : times)
        words.push_back(describe::clockTime(time));
    return describe::listOf(words);
}

std::string tellTimesRead(const std::vector<CDateTime>& times, EReading reading, const char* one, const char* many)
{
    std::vector<CDateTime> found;
    for (const auto& time : times)
    {
        if (readingOf(time) == reading)
            found.push_back(time);
    }
    return found.empty() ? std::string() : "; " + tellTimes(found) + (found.size() == 1 ? one : many);
}

std::string tellChange(long start, long end)
{
    const long change = changeBetween(start - 1, end);
    const CDateTime shownBefore(change + offsetAt(change - 1), false);
    const CDateTime shownAfter(change + offsetAt(change), false);
    return std::string("the clock goes ") + (shownAfter < shownBefore ? "back " : "") + "from " +
           describe::clockTime(shownBefore) + " to " + describe::clockTime(shownAfter);
}

} // namespace

EReading readingOf(const CDateTime& local)
{
    const long wallClock = local.toUnixTime();
    const Around around(wallClock);
    if (around.before == around.after)
        return EReading::Once;
    const bool isBefore = isShownAt(wallClock, around.before);
    const bool isAfter = isShownAt(wallClock, around.after);
    if (isBefore && isAfter)
        return EReading::Twice;
    return isBefore || isAfter ? EReading::Once : EReading::Never;
}

long instantOf(const CDateTime& local)
{
    const long wallClock = local.toUnixTime();
    const Around around(wallClock);
    const bool isAfter = !isShownAt(wallClock, around.before) && isShownAt(wallClock, around.after);
    return wallClock - (isAfter ? around.after : around.before);
}

long lengthOf(const CDate& date)
{
    const CDateTime midnight = date;
    const long end = midnight.toUnixTime() + SecondsOfDay;
    // An ordinary day, and the last one of the calendar, after which no midnight can be asked for.
    if (offsetAt(end - 2 * SecondsOfDay) == offsetAt(end + SecondsOfDay))
        return SecondsOfDay;
    return firstInstantOf(CDateTime(end, false)) - firstInstantOf(midnight);
}

std::string tellZone(const CDate& date)
{
    const CDateTime midnight = date;
    return "local time of " + nameOfZone() + ", " + tellOffset(offsetAt(instantOf(midnight))) + " on " +
           describe::isoDate(midnight);
}

std::string tellClock(const CDate& date, const std::vector<CDateTime>& times)
{
    const long length = lengthOf(date);
    if (length == SecondsOfDay)
        return {};
    if (length == 0)
        return "the calendar leaves this day out";
    const long start = firstInstantOf(date);
    return asTime(length).ToUserFriendlyStr() + ": " + tellChange(start, start + length) +
           tellTimesRead(times, EReading::Never, " is left out", " are left out") +
           tellTimesRead(times, EReading::Twice, " comes twice", " come twice");
}

} // namespace when
