#include <zelmodel/schedules.h>
#include <zelplatform/util/util.h>

#include "reader.h"
#include "samples.h"

namespace readers
{
namespace
{

using namespace zelplatform::model::structs;

template <class TMask>
std::string rewriteMask(const std::string& text)
{
    return TMask::FromString(text, ';').ToString(";", false);
}

template <class TMask>
std::string rewriteNames(const std::string& text)
{
    return util::str_join(TMask::FromStringVector(util::str_split(text, ";")).ToStringVector(true), ";");
}

std::string rewriteTime(const std::string& text)
{
    return CScheduleTime::FromTimeStr(text, false).ToTimeStr();
}

std::string rewriteDay(const std::string& text)
{
    const auto day = CDayOfMonth::FromStr(text);
    return day.IsSetLast() ? "Last" : util::toStr(day.Get());
}

std::string rewriteIntervals(const std::string& text)
{
    ScheduleParser parser(EScheduleWindowKind::Enabled);
    parser.parseDay(3, text);
    return BackupWindow(parser.getMatrix(), 0).getIntervals(3);
}

std::string tellDays(const std::string& text)
{
    const int day = util::fromStr<int>(text);
    ScheduleParser parser(EScheduleWindowKind::Disabled);
    parser.parseDay(day, "00-04");
    const BackupWindow window(parser.getMatrix(), 0);
    return window.getIntervals(day) + ' ' + util::toStr(parser.getMatrix()(day, 23));
}

} // namespace

Readers scheduleTextReaders()
{
    const Texts masks{"", "Monday", "Sunday;Wednesday;Saturday", "Mon;Fri"};
    const Texts months{"", "January", "March;June;December", "Jan;May"};
    return {
        {"CWeekMask.FromString", rewriteMask<CWeekMask>, masks},
        {"CWeekMask.FromStringVector", rewriteNames<CWeekMask>, {"Monday", "Sunday;Wed", "Sat"}},
        {"CMonthMask.FromString", rewriteMask<CMonthMask>, months},
        {"CMonthMask.FromStringVector", rewriteNames<CMonthMask>, {"January", "March;Jun", "Dec"}},
        {"CScheduleTime.FromTimeStr", rewriteTime, {"22:30", "00:00", "7:5", "4294967295:4294967295"}},
        {"CScheduleTime.FromUnixTime",
         [](const std::string& text) {
             return util::toStr(CScheduleTime::FromUnixTime(util::fromStr<long>(text)).ToSeconds());
         },
         {"0", "3600", "86400"}},
        {"CDayOfMonth.FromStr", rewriteDay, {"1", "31", "Last"}},
        {"ScheduleParser.parseDay", rewriteIntervals, {"00-05, 20-23", "07-07", ""}},
        {"ScheduleParser.parseDay.day", tellDays, {"0", "6"}, EWritten::Words},
    };
}

} // namespace readers
