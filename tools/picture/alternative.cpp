#include "alternative.h"

#include <zelmodel/structs/schedule/schedule_time.h>
#include <zelplatform/util/util.h>

#include "describe/words.h"

namespace picture
{
namespace
{

using when::PlannedMonth;

std::string tellDays(const PlannedMonth& month, const when::DayMark& mark)
{
    std::vector<std::string> days;
    for (const auto& day : month.days)
    {
        if (when::markOf(day) == &mark)
            days.push_back(util::toStr(datetime::CDateTime(day.date).day()));
    }
    return describe::listOf(days);
}

std::string tellMonthMarks(const PlannedMonth& month)
{
    std::string text;
    for (const auto& used : when::usedMarks({month}))
        text += (text.empty() ? "" : "; ") + std::string(used.mark->words) + ": " + tellDays(month, *used.mark);
    return when::tellMonth(month) + ": " + describe::textOr(text, when::NothingScheduled) + '.';
}

std::string tellFacts(const std::vector<Fact>& facts)
{
    std::string text;
    for (const auto& fact : facts)
        text += ' ' + fact.label + ": " + fact.words + '.';
    return text;
}

} // namespace

std::string tellTitle(const SchedulePicture& picture)
{
    return picture.span.empty() ? picture.name : picture.name + ", " + picture.span;
}

std::string tellDay(const when::PlannedDay& day, const when::DayMark& mark)
{
    return describe::weekDay(day.date) + ' ' + describe::isoDate(day.date) + ": " + mark.words +
           (day.clock.empty() ? "" : "; " + day.clock);
}

std::string tellHour(std::size_t hour)
{
    return zelplatform::model::structs::CScheduleTime(hour, 0).ToTimeStr();
}

std::string tellHour(const when::PlannedWeekDay& day, std::size_t hour)
{
    return datetime::EDayOfWeek::ToStr(day.day) + ' ' + tellHour(hour) + '-' + tellHour(hour + 1) + ": " +
           day.hours.at(hour)->words;
}

std::string tellPicture(const SchedulePicture& picture)
{
    std::string text;
    if (!picture.months.empty())
        text = picture.words + '.' + tellFacts(picture.facts);
    for (const auto& month : picture.months)
        text += ' ' + tellMonthMarks(month);
    if (picture.window)
        text += (text.empty() ? "" : " ") + std::string("Backup window ") + picture.window->name + ": " +
                picture.window->words + '.' + tellFacts(picture.window->facts);
    return text;
}

} // namespace picture
