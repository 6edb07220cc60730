#include <zelmodel/structs/schedule/week_day_number.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model::structs
{
namespace
{

constexpr auto Names = detail::enumRows<EWeekDayNumber::type>({
    {EWeekDayNumber::First, "First"},
    {EWeekDayNumber::Second, "Second"},
    {EWeekDayNumber::Third, "Third"},
    {EWeekDayNumber::Fourth, "Fourth"},
    {EWeekDayNumber::Last, "Last"},
    {EWeekDayNumber::Every, "Every"},
});

} // namespace

std::string EWeekDayNumber::ToStr(type value)
{
    if (const auto text = detail::findText(Names, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unable to convert EWeekDayNumber::type [%1] to string.", util::toStr(value));
}

EWeekDayNumber::type EWeekDayNumber::FromStr(const std::string& text)
{
    if (const auto value = detail::findValueIgnoringCase(Names, text))
        return *value;
    throw exc::CRuntimeExc("Value [%1] is not a valid week number.", text);
}

std::vector<std::string> EWeekDayNumber::GetWeekNumberStrSet()
{
    static const std::vector<std::string> texts = [] {
        auto all = detail::listTexts(Names);
        all.pop_back();
        return all;
    }();
    return texts;
}

} // namespace zelplatform::model::structs
