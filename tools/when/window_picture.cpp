#include "window_picture.h"

#include <algorithm>
#include <cstddef>

#include <zelplatform/util/util.h>

#include "pen.h"

namespace when
{
namespace
{

using datetime::EDayOfWeek;
using describe::TextStyle;

constexpr std::size_t HoursOfMark = 6;
constexpr std::size_t LabelWidth = 5;
constexpr std::size_t LastLabelWidth = 2;
constexpr std::size_t MostColumns = 3;

const char* renditionOf(EHour hour)
{
    switch (hour)
    {
    case EHour::Open: return "32";
    case EHour::Closed: return "2";
    case EHour::OpenStart: return "1;32";
    case EHour::ClosedStart: break;
    }
    return "1;31";
}

std::string renderMark(const HourMark& mark, std::size_t columns, const TextStyle& style)
{
    return painted(std::string(columns, mark.sign), renditionOf(mark.kind), style);
}

std::string renderScale(std::size_t columns)
{
    std::string text(LabelWidth, ' ');
    for (std::size_t hour = 0; hour <= HoursOfDay; hour += HoursOfMark)
    {
        text.resize(LabelWidth + hour * columns, ' ');
        text += util::toStr(hour);
    }
    return text + '\n';
}

} // namespace

std::string renderWindow(const PlannedWeek& week, const TextStyle& style)
{
    const auto room = std::max(widthOf(style), LabelWidth + LastLabelWidth) - LabelWidth - LastLabelWidth;
    const auto columns = std::clamp(room / HoursOfDay, std::size_t{1}, MostColumns);
    auto text = renderScale(columns);
    for (const auto& day : week)
    {
        text += EDayOfWeek::GetShortStrSet().at(static_cast<std::size_t>(day.day)) + "  ";
        for (const auto* hour : day.hours)
            text += renderMark(*hour, columns, style);
        text += '\n';
    }
    text += '\n';
    for (const auto* mark : legendOf(week))
        text += renderMark(*mark, 1, style) + "  " + mark->words + '\n';
    return text;
}

} // namespace when
