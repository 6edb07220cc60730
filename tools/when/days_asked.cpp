#include "days_asked.h"

#include <zelplatform/util/util.h>

#include "describe/words.h"

namespace when
{
namespace
{

using zelplatform::model::CDate;

constexpr unsigned UsualDays = 10;
constexpr long MostDaysToUntil = 36600;
constexpr long SecondsOfDay = 86400;

long daysTo(const CDate& from, const CDate& until)
{
    return (datetime::CDateTime(until).toUnixTime() - datetime::CDateTime(from).toUnixTime()) / SecondsOfDay;
}

} // namespace

std::string faultOfUntil(const DaysAsked& asked)
{
    const auto days = asked.until ? daysTo(asked.from, *asked.until) : 0;
    if (days < 0)
        return "The last day lies before the first";
    if (days > MostDaysToUntil)
        return "The last day lies more than " + util::toStr(MostDaysToUntil) + " days after the first";
    return {};
}

std::vector<StartDay> findDays(const Evaluation& evaluation, const DaysAsked& asked)
{
    if (asked.isPrevious)
        return evaluation.daysBefore(asked.from, asked.count.value_or(UsualDays));
    const auto all = static_cast<unsigned>(MostDaysToUntil) + 1;
    return evaluation.daysFrom(asked.from, asked.count.value_or(asked.until ? all : UsualDays), asked.until);
}

std::string tellNoDay(const DaysAsked& asked)
{
    const auto within = " within " + util::toStr(Evaluation::YearsToSearch) + " years";
    if (asked.isPrevious)
        return "no day came" + within + " before";
    return "no day comes" + (asked.until ? " up to " + describe::isoDate(*asked.until) : within);
}

} // namespace when
