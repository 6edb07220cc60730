#include <zelplatform/datetime/clock.h>

#include <atomic>
#include <ctime>
#include <memory>
#include <utility>

#include <boost/date_time/gregorian/gregorian_types.hpp>

#include <zelplatform/exc/exc.h>

namespace datetime
{
namespace
{

struct Sources
{
    std::function<long()> now;
    std::function<long()> localOffset;
};

// Spares every question about the time the look at the replaced sources.
std::atomic<bool> isReplaced{false};

std::shared_ptr<const Sources>& sources()
{
    // Never destroyed: a static object of a client may still ask for the time at unload.
    static auto& instance = *new std::shared_ptr<const Sources>(std::make_shared<const Sources>());
    return instance;
}

long machineNow()
{
    return static_cast<long>(std::time(nullptr));
}

long localOffsetAt(std::time_t now)
{
    std::tm local{};
    if (localtime_r(&now, &local) == nullptr)
        throw exc::CRuntimeExc("Unable to read the local time.");
    using boost::gregorian::date;
    const date day(static_cast<unsigned short>(local.tm_year + 1900), static_cast<unsigned short>(local.tm_mon + 1),
                   static_cast<unsigned short>(local.tm_mday));
    const long days = (day - date(1970, 1, 1)).days();
    // A leap second counts as the second before it.
    const int second = local.tm_sec > 59 ? 59 : local.tm_sec;
    const long wallClock = days * 86400 + local.tm_hour * 3600L + local.tm_min * 60L + second;
    return wallClock - static_cast<long>(now);
}

// Asked once a second: readers of logs ask for every line.
long machineLocalOffset()
{
    struct Cached
    {
        std::time_t second = -1;
        long offset = 0;
    };
    thread_local Cached cached;
    const std::time_t now = std::time(nullptr);
    if (cached.second != now)
        cached = {now, localOffsetAt(now)};
    return cached.offset;
}

} // namespace

void set_clock_for_tests(std::function<long()> now, std::function<long()> localOffset)
{
    const bool hasSource = now || localOffset;
    auto next = std::make_shared<const Sources>(Sources{std::move(now), std::move(localOffset)});
    std::atomic_store(&sources(), std::move(next));
    isReplaced = hasSource;
}

long clock_now()
{
    if (!isReplaced)
        return machineNow();
    const auto current = std::atomic_load(&sources());
    return current->now ? current->now() : machineNow();
}

long clock_local_offset()
{
    if (!isReplaced)
        return machineLocalOffset();
    const auto current = std::atomic_load(&sources());
    return current->localOffset ? current->localOffset() : machineLocalOffset();
}

} // namespace datetime
