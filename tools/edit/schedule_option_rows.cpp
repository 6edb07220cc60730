#include "option_tables.h"

#include <zelmodel/structs/schedule/schedule_time.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "describe/visitors.h"
#include "texts.h"

namespace edit
{
namespace
{

using zelplatform::model::structs::CScheduleTime;
using zelplatform::model::structs::EScheduleType;

constexpr const char* Start = "start";
constexpr unsigned long MsInMinute = 60000;
constexpr unsigned long MinutesInHour = 60;

std::vector<Assignment> enabled(EScheduleType::type type, const std::vector<Assignment>& more = {})
{
    std::vector<Assignment> all{{"isEnabled", "true"}, {"scheduleType", describe::tellScheduleType(type)}};
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

std::vector<Assignment> onWeekDays(const std::string& days)
{
    if (parseWeekDays(days).IsAllDaysOff())
        throw exc::CRuntimeExc("There is no week day such as in Mon,Fri or Mon-Fri.");
    return enabled(EScheduleType::Weekly, {{"weekMask", days}});
}

bool isDayOfMonth(const std::string& text)
{
    return isNumber(text) || util::str_is_equal_nocase(text, "last");
}

// The day is cleared first: it would win over an occurrence that the library refuses.
std::vector<Assignment> inMonths(const std::string& text)
{
    if (isDayOfMonth(text))
        return enabled(EScheduleType::Monthly, {{"dayOfMonth", text}});
    const auto blank = text.find(' ');
    if (blank == std::string::npos)
        throw exc::CRuntimeExc("[%1] is no day of a month such as 15, last or first Mon.", text);
    return enabled(EScheduleType::Monthly, {{"dayOfMonth", "0"},
                                            {"weekDayNumber", text.substr(0, blank)},
                                            {"weekMask", util::str_trim(text.substr(blank))}});
}

std::vector<Assignment> onDays(const std::string& text)
{
    const bool isMonthly = isDayOfMonth(text) || text.find(' ') != std::string::npos;
    return isMonthly ? inMonths(text) : onWeekDays(text);
}

std::vector<Assignment> everyPeriod(const std::string& text)
{
    const auto length = parseDuration(text);
    if (length % MsInMinute != 0)
        throw exc::CRuntimeExc("[%1] is no whole number of minutes.", text);
    const auto minutes = length / MsInMinute;
    const CScheduleTime period(minutes / MinutesInHour, minutes % MinutesInHour);
    return enabled(EScheduleType::Periodically, {{"time", period.ToTimeStr()}});
}

NewOption startRow(const char* name, const char* typeName, const char* help,
                   std::vector<Assignment> (*assignments)(const std::string&))
{
    return {name, typeName, help, assignments, Start};
}

std::vector<NewOption> startRows()
{
    auto time =
        rowOf("--at", "HH:MM", "The time of day of --daily, --weekly and --monthly; 00:30 unless given", "time");
    time.needs = {"--daily", "--weekly", "--monthly"};
    auto months = rowOf("--months", "MONTHS", "The months of --monthly: Jan,Jul or Nov-Feb", "monthMask");
    months.needs = {"--monthly"};
    return {
        startRow("--daily", "", "Start every day", [](const std::string&) { return onWeekDays("Sun-Sat"); }),
        startRow("--weekly", "DAYS", "Start on these week days: Mon,Fri or Mon-Fri", onWeekDays),
        startRow("--monthly", "DAY", "Start once in a month: on its day 15, the last, or the \"first Mon\"", inMonths),
        startRow("--every", "TIME", "Start periodically: 4h, 90m", everyPeriod),
        startRow("--continuously", "", "Start again as soon as a run has ended",
                 [](const std::string&) { return enabled(EScheduleType::Continuously); }),
        time,
        months};
}

std::vector<NewOption> fullRows(const std::string& name, const std::string& words)
{
    auto months =
        rowOf(name + "-months", "MONTHS", "The months of " + name + " when it is monthly: Jan,Jul", "monthMask");
    months.needs = {name};
    return {{name, "DAYS", words + ": Sat, Mon-Fri, or monthly on 15, last, \"first Mon\"", onDays}, months};
}

} // namespace

std::vector<NewOption> scheduleOptionRows()
{
    auto rows = inPart("jobStart", startRows());
    for (const auto& [part, fulls] :
         {std::pair{"activeFull", fullRows("--active-full", "Read everything afresh on")},
          std::pair{"syntheticFull", fullRows("--synthetic-full", "Build a full from restore points on")}})
    {
        const auto more = inPart(part, fulls);
        rows.insert(rows.end(), more.begin(), more.end());
    }
    return rows;
}

} // namespace edit
