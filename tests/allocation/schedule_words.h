#pragma once

#include <string>

#include <zelmodel/schedules.h>
#include <zelplatform/util/util.h>

namespace zelmodel_test
{

/// Flags as digits.
inline std::string tellFlags(const std::vector<bool>& flags)
{
    std::string told;
    for (const bool flag : flags)
        told += flag ? '1' : '0';
    return told;
}

/// Every field of a calendar, also of one that cannot be written.
inline std::string tellCalendar(const zelplatform::model::structs::CScheduleCalendar& calendar)
{
    const auto& time = calendar.TryGetTime();
    return util::toStr(calendar.GetScheduleType()) + " at " + (time ? time->ToTimeStr() : "no time") + " number " +
           util::toStr(calendar.GetWeekDayNumber()) + " day " + util::toStr(calendar.GetDayOfMonth().Get()) + " week " +
           tellFlags(calendar.GetWeekMask().GetMask()) + " months " + tellFlags(calendar.GetMonthMask().GetMask());
}

/// Every field of the options of a start or a full backup.
template <class TOptions>
std::string tellOptions(const TOptions& options)
{
    return (options.IsEnabled() ? "on, " : "off, ") + tellCalendar(options.GetCalendar());
}

/// Every hour of a window's matrix.
inline std::string tellMatrix(const zelplatform::model::structs::DayHourMatrix& matrix)
{
    std::string told = util::toStr(matrix.getScheduleWindowKind());
    for (int day = 0; day < 7; ++day)
    {
        told += ' ';
        for (int hour = 0; hour < 24; ++hour)
            told += util::toStr(matrix(day, hour));
    }
    return told;
}

inline std::string tellWindow(const zelplatform::model::structs::BackupWindow& window)
{
    return util::toStr(window.getHourlyOffsetMinutes()) + ": " + tellMatrix(window.getMatrix());
}

/// Every part of a schedule.
inline std::string tellSchedule(const zelplatform::model::structs::CScheduleOptions& schedule)
{
    const auto window = schedule.getBackupWindow();
    return "start " + tellOptions(schedule.GetJobStartOptions()) + "\nactive full " +
           tellOptions(schedule.GetActiveFullOptions()) + "\nsynthetic full " +
           tellOptions(schedule.GetSyntheticFullOptions()) + "\nwindow " + (window ? tellWindow(*window) : "none");
}

} // namespace zelmodel_test
