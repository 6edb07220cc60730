#pragma once

#include <array>
#include <cstdint>
#include <random>

#include <zelmodel/datetime/date.h>
#include <zelmodel/structs/schedule/backup_window.h>
#include <zelmodel/structs/schedule/schedule_options.h>

namespace zelmodel_test
{

namespace structs = zelplatform::model::structs;

/// Draws everything that a question needs.
class Draw
{
public:
    explicit Draw(unsigned seed) : m_engine(seed) {}

    /// 0 to the count minus 1.
    unsigned below(unsigned count) { return static_cast<unsigned>(m_engine() % count); }
    bool oneOf(unsigned count) { return below(count) == 0; }

    structs::CWeekMask week()
    {
        structs::CWeekMask mask(oneOf(4));
        for (int day = 0; day < 7; ++day)
        {
            if (oneOf(3))
                mask.SetDay(static_cast<datetime::EDayOfWeek::type>(day), true);
        }
        return mask;
    }

    structs::CMonthMask months()
    {
        structs::CMonthMask mask(!oneOf(3));
        for (int month = 0; month < 12; ++month)
        {
            if (oneOf(4))
                mask.SetMonth(static_cast<datetime::EMonth::type>(month), true);
        }
        // No setter takes a day in no month at all.
        mask.SetMonth(static_cast<datetime::EMonth::type>(below(12)), true);
        return mask;
    }

    structs::CDayOfMonth dayOfMonth()
    {
        return structs::CDayOfMonth(oneOf(4) ? structs::CDayOfMonth::GetMagicLastDay() : 1 + below(31));
    }
    structs::EWeekDayNumber::type number()
    {
        return static_cast<structs::EWeekDayNumber::type>(structs::EWeekDayNumber::First + below(5));
    }
    datetime::EDayOfWeek::type weekDay() { return static_cast<datetime::EDayOfWeek::type>(below(7)); }
    std::uint8_t hour() { return static_cast<std::uint8_t>(oneOf(3) ? 1 + below(3) : below(24)); }
    std::uint8_t minute() { return static_cast<std::uint8_t>(oneOf(3) ? 0 : below(60)); }

    void drawFull(structs::CFullBackupOptions& full)
    {
        if (oneOf(2))
            full.SetWeekly(week());
        else if (oneOf(2))
            full.SetMonthly(number(), weekDay(), months());
        else
            full.SetMonthlyOnDay(dayOfMonth(), months());
        full.SetEnabled(!oneOf(4));
    }

    structs::CScheduleOptions schedule()
    {
        structs::CScheduleOptions schedule;
        auto& start = schedule.GetJobStartOptions();
        switch (below(8))
        {
        case 0: start.SetContinuously(); break;
        case 1: start.SetPeriodically(static_cast<std::uint8_t>(below(25)), minute()); break;
        case 2:
        case 3: start.SetMonthly(hour(), minute(), number(), weekDay(), months()); break;
        case 4:
        case 5: start.SetMonthlyOnDay(hour(), minute(), dayOfMonth(), months()); break;
        default: start.SetWeekly(hour(), minute(), week()); break;
        }
        drawFull(schedule.GetActiveFullOptions());
        drawFull(schedule.GetSyntheticFullOptions());
        start.SetEnabled(!oneOf(16));
        return schedule;
    }

    structs::BackupWindow window()
    {
        structs::DayHourMatrix matrix(oneOf(2) ? structs::EScheduleWindowKind::Enabled
                                               : structs::EScheduleWindowKind::Disabled);
        for (int day = 0; day < 7; ++day)
        {
            for (int hour = 0; hour < 24; ++hour)
            {
                if (oneOf(3))
                    matrix(day, hour) = 1 - matrix(day, hour);
            }
        }
        return structs::BackupWindow(matrix, 0);
    }

    /// Often close to a change of the clock.
    zelplatform::model::CDate date()
    {
        constexpr std::array<const char*, 7> Changes{"2024-02-27", "2026-03-07", "2026-03-28", "2026-04-04",
                                                     "2026-10-03", "2026-10-24", "2026-10-31"};
        if (oneOf(2))
            return zelplatform::model::CDate(
                datetime::CDateTime::fromString(Changes[below(Changes.size())], "%Y-%m-%d", false));
        return zelplatform::model::CDate(datetime::CDateTime(static_cast<long>(below(40000)) * 86400, false));
    }

private:
    std::mt19937 m_engine;
};

} // namespace zelmodel_test
