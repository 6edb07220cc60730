#include <iostream>

#include <zelmodel/schedules.h>

using namespace zelplatform::model;
using datetime::CDateTime;

int main()
{
    // Monday to Friday at 21:00.
    structs::CStartJobScheduleOptions start;
    start.SetWeekly(21, 0, structs::CWeekMask::FromString("Mon,Tue,Wed,Thu,Fri", ','));
    std::cout << "starts " << start.ToLogStr(true) << '\n';

    // The next days after Thursday, 7 March 2024.
    auto day = CDate(CDateTime::fromString("2024-03-07", "%Y-%m-%d", false));
    for (int i = 0; i < 3; ++i)
    {
        const auto next = start.GetCalendar().GetNextScheduleDateFromDate(day);
        if (!next)
            break; // never again
        day = *next;
        std::cout << datetime::EDayOfWeek::ToStr(CDateTime(day).getDayOfWeek()) << ' ' << day.toString() << '\n';
    }

    // A window that is open but for office hours on Mondays.
    structs::ScheduleParser hours(structs::Enabled);
    hours.parseDay(datetime::EDayOfWeek::Monday, "08-17");
    const structs::BackupWindow window(hours.getMatrix(), 0);
    const auto evening = CDateTime::fromString("2024-03-10 21:00", "%Y-%m-%d %H:%M", false);
    std::cout << "Sunday evening: " << (window.isWindowOpen(evening) ? "open" : "closed");
    if (const auto closing = window.getWindowClosingTime(evening))
        std::cout << " until " << closing->toStdString("%Y-%m-%d %H:%M");
    std::cout << '\n';
}
