#pragma once

#include <ctime>
#include <map>
#include <set>
#include <sstream>
#include <string>

#include <zelmodel/datetime/date.h>
#include <zelmodel/structs/schedule/schedule_options.h>

#include "describe/node.h"
#include "tree.h"

namespace zelmodel_test
{

namespace structs = zelplatform::model::structs;

/// What the document holds, without any word of the tools: the library's tests, and the time of the day beside them.
class Judge
{
public:
    Judge(const structs::CScheduleOptions& schedule, const zelplatform::model::CDate& from)
        : m_schedule(schedule), m_from(from)
    {
    }

    bool isStart(const datetime::CDateTime& moment) const
    {
        return m_schedule.GetJobStartOptions().IsScheduledAt(moment) && isTime(moment);
    }

    bool isFull(const datetime::CDateTime& moment, const structs::CFullBackupOptions& full) const
    {
        return !m_schedule.GetJobStartOptions().GetCalendar().IsScheduleRecurrent() && full.IsScheduledAt(moment);
    }

private:
    bool isTime(const datetime::CDateTime& moment) const
    {
        const auto& calendar = m_schedule.GetJobStartOptions().GetCalendar();
        if (calendar.IsScheduleContinuously())
            return true;
        const auto minutes = static_cast<long>(calendar.GetTime().GetHours() * 60 + calendar.GetTime().GetMinutes());
        if (!calendar.IsSchedulePeriodically())
            return moment.hour() * 60 + moment.minute() == minutes;
        const long passed = (moment.toUnixTime() - m_from.toUnixTime()) / 60;
        return passed % minutes == 0;
    }

    const structs::CScheduleOptions& m_schedule;
    datetime::CDateTime m_from;
};

/// How often the wall clock shows the time, counted by looking at every quarter of an hour around it.
inline int countReadings(const datetime::CDateTime& local)
{
    int count = 0;
    for (long quarter = -64; quarter <= 64; ++quarter)
    {
        const auto instant = static_cast<std::time_t>(local.toUnixTime() + quarter * 900);
        std::tm shown{};
        ::localtime_r(&instant, &shown);
        count += shown.tm_hour == local.hour() && shown.tm_min == local.minute() &&
                         static_cast<unsigned>(shown.tm_mday) == local.day()
                     ? 1
                     : 0;
    }
    return count;
}

/// The rows that `next` prints, read back from their texts.
class Printed
{
public:
    explicit Printed(const describe::Node& next)
    {
        for (const auto& row : next.children)
        {
            const auto& date = zelmodel_test::at(row, "date").value;
            m_fulls[date] = zelmodel_test::at(row, "full").value;
            std::istringstream starts(zelmodel_test::at(row, "start").value);
            for (std::string time; starts >> time && time != "all";)
                m_starts.insert(date + ' ' + time);
            if (zelmodel_test::at(row, "start").value == "all day")
                m_wholeDays.insert(date);
        }
    }

    bool has(const datetime::CDateTime& moment) const
    {
        return m_starts.count(moment.toStdString("%Y-%m-%d %H:%M")) != 0 ||
               m_wholeDays.count(moment.toStdString("%Y-%m-%d")) != 0;
    }

    std::string fullOf(const datetime::CDateTime& moment) const { return m_fulls.at(moment.toStdString("%Y-%m-%d")); }

private:
    std::set<std::string> m_starts;
    std::set<std::string> m_wholeDays;
    std::map<std::string, std::string> m_fulls;
};

inline std::string expectedFull(const Judge& judge, const structs::CScheduleOptions& schedule,
                                const datetime::CDateTime& moment)
{
    const bool isActive = judge.isFull(moment, schedule.GetActiveFullOptions());
    const bool isSynthetic = judge.isFull(moment, schedule.GetSyntheticFullOptions());
    if (isActive && isSynthetic)
        return "active full and synthetic full";
    return isActive ? "active full" : isSynthetic ? "synthetic full" : "";
}

} // namespace zelmodel_test
