#include "field_tables.h"

#include <array>

#include <zelmodel/structs/schedule/schedule_parser.h>
#include <zelplatform/datetime/names.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace edit
{
namespace
{

using datetime::EDayOfWeek;
using zelplatform::model::structs::BackupWindow;
using zelplatform::model::structs::EScheduleWindowKind;
using zelplatform::model::structs::ScheduleParser;

constexpr std::array<EDayOfWeek::type, 7> DaysFromMonday{
    EDayOfWeek::Monday, EDayOfWeek::Tuesday,  EDayOfWeek::Wednesday, EDayOfWeek::Thursday,
    EDayOfWeek::Friday, EDayOfWeek::Saturday, EDayOfWeek::Sunday};

// The library takes hours that end before they start for no hours; nobody writes that and means it.
void verifyHours(const std::string& interval)
{
    ScheduleParser parser(zelplatform::model::structs::Disabled);
    parser.parseDay(EDayOfWeek::Sunday, interval);
    if (BackupWindow(parser.getMatrix(), 0).getIntervals(EDayOfWeek::Sunday).empty())
        throw exc::CRuntimeExc("The hours [%1] do not end after they start; a window over midnight is two, such as "
                               "22-24 and 0-6 of the next day.",
                               interval);
}

/// The hours with the separator of documents.
std::string hoursOf(const std::string& text)
{
    std::vector<std::string> intervals;
    for (const auto& item : util::str_tokenize(text, ','))
    {
        intervals.push_back(util::str_trim(item));
        verifyHours(intervals.back());
    }
    return util::str_join(intervals, ScheduleParser::IntervalSeparator);
}

EScheduleWindowKind kindOf(const std::string& text)
{
    const auto kind = util::fromStr<int>(text);
    if (kind != zelplatform::model::structs::Enabled && kind != zelplatform::model::structs::Disabled)
        throw exc::CRuntimeExc("A window is of the kind 0 or 1.");
    return static_cast<EScheduleWindowKind>(kind);
}

Fields<WindowDraft> makeWindowFields()
{
    Fields<WindowDraft> fields;
    for (const auto day : DaysFromMonday)
    {
        fields.push_back({util::tolower(EDayOfWeek::ToStr(day)),
                          "the hours that differ from the kind, such as 0-6,20-24",
                          [day](WindowDraft& window, const std::string& text) {
                              window.hours.at(static_cast<std::size_t>(day)) = hoursOf(text);
                          }});
    }
    fields.push_back({"kind", "0: open except in the listed hours, 1: closed except in them",
                      [](WindowDraft& window, const std::string& text) { window.kind = kindOf(text); }});
    fields.push_back(
        {"hourlyOffsetMinutes", "a number; it is stored only",
         [](WindowDraft& window, const std::string& text) { window.hourlyOffsetMinutes = util::fromStr<int>(text); }});
    return fields;
}

} // namespace

const Fields<WindowDraft>& windowFields()
{
    static const auto fields = makeWindowFields();
    return fields;
}

} // namespace edit
