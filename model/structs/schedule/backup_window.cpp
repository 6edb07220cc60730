#include <zelmodel/structs/schedule/backup_window.h>

#include <zelmodel/structs/schedule/schedule_time.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model::structs
{
namespace
{

constexpr unsigned Open = 1;
constexpr int HoursOfDay = 24;
constexpr long SecondsOfHour = 3600;

bool hasDefault(const DayHourMatrix& matrix, int day, int hour)
{
    const bool isOpen = matrix(day, hour) == Open;
    return matrix.getScheduleWindowKind() == Disabled ? !isOpen : isOpen;
}

std::string twoDigits(int hour)
{
    return CScheduleTime::NumberToTwoDigitNumber(static_cast<unsigned long>(hour));
}

} // namespace

BackupWindow::BackupWindow(const DayHourMatrix& matrix, int hourlyOffsetMinutes)
    : m_matrix(matrix), m_hourlyOffsetMinutes(hourlyOffsetMinutes)
{
}

BackupWindow::~BackupWindow() = default;

bool BackupWindow::isWindowOpen(const datetime::CDateTime& moment) const
{
    return m_matrix(moment.getDayOfWeek(), moment.hour()) == Open;
}

std::optional<datetime::CDateTime> BackupWindow::getWindowClosingTime(const datetime::CDateTime& moment) const
{
    if (!isWindowOpen(moment))
        return moment;
    const HourInWeek start(moment.getDayOfWeek(), moment.hour());
    for (auto next = start.getNextHour(); !next.isEqualTo(start); next = next.getNextHour())
    {
        if (m_matrix(next.day, next.hour) != 0)
            continue;
        const long now = moment.toUnixTime();
        return datetime::CDateTime::fromUnixTime(now - now % SecondsOfHour + start.getDistanceSec(next),
                                                 moment.isUtcTime());
    }
    return std::nullopt;
}

std::string BackupWindow::getIntervals(int day) const
{
    std::string intervals;
    bool wasDefault = true;
    for (int hour = 0; hour < HoursOfDay; ++hour)
    {
        const bool isDefault = hasDefault(m_matrix, day, hour);
        if (wasDefault && !isDefault)
        {
            if (!intervals.empty())
                intervals += ScheduleParser::IntervalSeparator;
            intervals += twoDigits(hour) + ScheduleParser::RangeSeparator;
        }
        if (!wasDefault && isDefault)
            intervals += twoDigits(hour);
        wasDefault = isDefault;
    }
    if (!wasDefault)
        intervals += twoDigits(HoursOfDay);
    return intervals;
}

} // namespace zelplatform::model::structs
