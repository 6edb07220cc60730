#include <zelmodel/data_size.h>
#include <zelmodel/date_time.h>
#include <zelplatform/datetime/datetime.h>
#include <zelplatform/util/util.h>

#include "operation.h"
#include "samples.h"

namespace zelmodel_test
{
namespace
{

using namespace zelplatform;
using namespace zelplatform::model;
using datetime::CDateTime;

CDateTime march()
{
    return {1709816709, true}; // 2024-03-07 13:05:09
}

std::string tellDate(const CDateTime& date)
{
    return date.toStdString(CDateTime::DefaultFormat);
}

std::vector<Change<CDateTime>> changes()
{
    return {
        {"setTime", [](CDateTime& date) { date.setTime(1, 2, 3); }},
        {"setDate", [](CDateTime& date) { date.setDate(2023, 2, 1); }},
        {"setYear", [](CDateTime& date) { date.setYear(2023); }},
        {"setMonth", [](CDateTime& date) { date.setMonth(2); }},
        {"setDay", [](CDateTime& date) { date.setDay(1); }},
        {"setHours", [](CDateTime& date) { date.setHours(1); }},
    };
}

std::vector<Question<CDateTime>> questions()
{
    return {
        {"toStdString", [](const CDateTime& date) { return date.toStdString(longText("%Y-%m-%d %A %B")); }},
        {"getMonthDaysByDayOfWeek",
         [](const CDateTime& date) {
             return util::toStr(date.getMonthDaysByDayOfWeek(datetime::EDayOfWeek::Friday).front());
         }},
        {"getMonthLastDay", [](const CDateTime& date) { return util::toStr(date.getMonthLastDay()); }},
        {"CDate.toString", [](const CDateTime& date) { return CDate(date).toString(); }},
        {"BasicDateAdvance",
         [](const CDateTime& date) { return tellDate(CDateTimeHelper::BasicDateAdvance(date, EDateUnit::Month, 3)); }},
        {"isLastDayOfWeekInMonth",
         [](const CDateTime& date) { return util::toStr(CDateTimeHelper::isLastDayOfWeekInMonth(date)); }},
        {"CDateTimeEx",
         [](const CDateTime& date) { return tellDate(CDateTimeEx::fromTimes(date, date).getLocalTime()); }},
    };
}

std::vector<Question<Nothing>> freeQuestions()
{
    return {
        {"CTimeSpanEx.toStdString",
         [](const Nothing&) { return CTimeSpanEx(7).toStdString("%H hours %M minutes %S seconds"); }},
        {"CTimeSpanEx.fromDays",
         [](const Nothing&) { return util::toStr(CTimeSpanEx::fromDays(7).getTotalSeconds()); }},
        {"GenerateNewObjectId", [](const Nothing&) { return util::toStr(GenerateNewObjectId().IsEmpty()); }},
        {"GetNowTime", [](const Nothing&) { return util::toStr(GetNowTime().isSet()); }},
        {"currentTime", [](const Nothing&) { return util::toStr(CDateTimeEx::currentTime().isSet()); }},
        {"EDayOfWeek.ToStr", [](const Nothing&) { return datetime::EDayOfWeek::ToStr(datetime::EDayOfWeek::Friday); }},
        {"EMonth.ToStr", [](const Nothing&) { return datetime::EMonth::ToStr(datetime::EMonth::May); }},
        {"CSize.ToStr", [](const Nothing&) { return CSize(1610612736).ToStr(20, true); }},
        {"CSize.ToNBytesStr", [](const Nothing&) { return CSize(1610612736).ToNBytesStr(); }},
        {"guid_t.ToAStr", [](const Nothing&) { return guid::guid_t().ToAStr(); }},
        {"set_clock_for_tests",
         [](const Nothing&) {
             const long hour = 3600;
             datetime::set_clock_for_tests([] { return hour; }, nullptr);
             const auto now = datetime::clock_now();
             datetime::set_clock_for_tests(nullptr, nullptr);
             return util::toStr(now);
         }},
    };
}

} // namespace

Operations timeOperations()
{
    return changing<CDateTime>("CDateTime", march, tellDate, changes()) +
           asking<CDateTime>("CDateTime", march, questions()) + asking("time", freeQuestions());
}

} // namespace zelmodel_test
