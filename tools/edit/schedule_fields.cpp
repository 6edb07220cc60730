#include "field_tables.h"

#include <array>

#include <zelplatform/util/util.h>

#include "describe/visitors.h"
#include "texts.h"

namespace edit
{
namespace
{

using zelplatform::model::structs::CDayOfMonth;
using zelplatform::model::structs::CScheduleOptions;
using zelplatform::model::structs::CScheduleTime;
using zelplatform::model::structs::EScheduleType;
using zelplatform::model::structs::EWeekDayNumber;

constexpr std::array<EScheduleType::type, 4> Types{EScheduleType::Weekly, EScheduleType::Monthly,
                                                   EScheduleType::Periodically, EScheduleType::Continuously};

std::string listTypes()
{
    std::string text;
    for (const auto type : Types)
        text += describe::tellScheduleType(type) + ", ";
    return text + "or their numbers 0 to 3";
}

EScheduleType::type typeOf(const std::string& text)
{
    for (const auto type : Types)
    {
        if (text == describe::tellScheduleType(type))
            return type;
    }
    return util::safe_cast<EScheduleType::type>(util::fromStr<long>(text));
}

// As the library's own setters: a day of the month and an occurrence in the month replace each other.
void setDayOfMonth(CalendarDraft& calendar, const std::string& text)
{
    if (text == util::toStr(CDayOfMonth().Get()))
        return calendar.dayOfMonth.Reset();
    const auto day = CDayOfMonth::FromStr(text);
    if (day.IsSetLast())
        calendar.dayOfMonth = day;
    else
        calendar.dayOfMonth.Set(util::fromStr<unsigned long>(text));
    calendar.weekDayNumber = EWeekDayNumber::Every;
}

void setWeekDayNumber(CalendarDraft& calendar, const std::string& text)
{
    calendar.weekDayNumber = EWeekDayNumber::FromStr(text);
    if (calendar.weekDayNumber != EWeekDayNumber::Every)
        calendar.dayOfMonth.Reset();
}

Fields<CalendarDraft> calendarFields(bool hasTime)
{
    using Calendar = CalendarDraft;
    using Text = const std::string&;
    Fields<Calendar> fields{
        {"scheduleType", listTypes(), [](Calendar& calendar, Text text) { calendar.type = typeOf(text); }}};
    if (hasTime)
        fields.push_back(
            {"time", "HH:MM, the time of day or the length of the period", [](Calendar& calendar, Text text) {
                 calendar.time = CScheduleTime::FromTimeStr(text, calendar.type == EScheduleType::Periodically);
             }});
    fields.push_back({"weekMask", "week days such as Mon,Fri or Mon-Fri",
                      [](Calendar& calendar, Text text) { calendar.weekDays = parseWeekDays(text); }});
    fields.push_back({"monthMask", "months such as Jan,Jul or Nov-Feb",
                      [](Calendar& calendar, Text text) { calendar.months = parseMonths(text); }});
    fields.push_back({"weekDayNumber",
                      util::str_join(EWeekDayNumber::GetWeekNumberStrSet(), ", ") + " or " +
                          EWeekDayNumber::ToStr(EWeekDayNumber::Every),
                      setWeekDayNumber});
    fields.push_back({"dayOfMonth", "1 to 31, last, or 0 for none", setDayOfMonth});
    return fields;
}

/// The fields of a calendar and the flag of the options that own it.
void addCalendar(Fields<ScheduleDraft>& fields, const std::string& name, bool hasTime,
                 void (*setEnabled)(CScheduleOptions& options, bool isOn), CalendarDraft ScheduleDraft::*calendar)
{
    fields.push_back(
        {name + ".isEnabled", "true or false", [setEnabled](ScheduleDraft& draft, const std::string& text) {
             setEnabled(draft.options, util::str_to_bool(text));
         }});
    for (const auto& field : calendarFields(hasTime))
        fields.push_back(
            {name + '.' + field.path, field.help, [field, calendar](ScheduleDraft& draft, const std::string& text) {
                 field.set(draft.*calendar, text);
                 (draft.*calendar).changed.insert(field.path);
             }});
}

Fields<ScheduleDraft> makeScheduleFields()
{
    using Options = CScheduleOptions;
    Fields<ScheduleDraft> fields;
    addCalendar(
        fields, "jobStart", true, [](Options& options, bool isOn) { options.GetJobStartOptions().SetEnabled(isOn); },
        &ScheduleDraft::jobStart);
    addCalendar(
        fields, "activeFull", false,
        [](Options& options, bool isOn) { options.GetActiveFullOptions().SetEnabled(isOn); },
        &ScheduleDraft::activeFull);
    addCalendar(
        fields, "syntheticFull", false,
        [](Options& options, bool isOn) { options.GetSyntheticFullOptions().SetEnabled(isOn); },
        &ScheduleDraft::syntheticFull);
    return fields;
}

} // namespace

const Fields<ScheduleDraft>& scheduleFields()
{
    static const auto fields = makeScheduleFields();
    return fields;
}

} // namespace edit
