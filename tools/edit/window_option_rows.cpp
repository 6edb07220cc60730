#include "option_tables.h"

#include <zelmodel/structs/schedule/schedule_window_kind.h>
#include <zelplatform/util/util.h>

#include "window_text.h"

namespace edit
{
namespace
{

using zelplatform::model::structs::EScheduleWindowKind;

constexpr const char* Hours = "hours";

NewOption hoursRow(const char* name, const char* help, EScheduleWindowKind kind)
{
    return {name, "HOURS", help,
            [kind](const std::string& text) {
                auto all = hoursOfWeek(text);
                all.push_back({"kind", util::toStr(kind)});
                return all;
            },
            Hours};
}

} // namespace

std::vector<NewOption> windowOptionRows()
{
    return {hoursRow("--open", "Open in these hours only: 20-24, or Mon-Fri 20-24,Sat 0-24",
                     zelplatform::model::structs::Disabled),
            hoursRow("--closed", "Open but in these hours", zelplatform::model::structs::Enabled),
            rowOf("--offset", "MINUTES", "Offset of the hours; it is stored only", "hourlyOffsetMinutes")};
}

} // namespace edit
