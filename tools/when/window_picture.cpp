#include "window_picture.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include <zelplatform/datetime/names.h>
#include <zelplatform/util/util.h>

#include "pen.h"

namespace when
{
namespace
{

using datetime::EDayOfWeek;
using describe::TextStyle;
using zelplatform::model::structs::BackupWindow;

constexpr std::size_t HoursOfDay = 24;
constexpr std::size_t HoursOfMark = 6;
constexpr std::size_t LabelWidth = 5;
constexpr std::size_t LastLabelWidth = 2;
constexpr std::size_t MostColumns = 3;
constexpr std::array<EDayOfWeek::type, 7> DaysFromMonday{
    EDayOfWeek::Monday, EDayOfWeek::Tuesday,  EDayOfWeek::Wednesday, EDayOfWeek::Thursday,
    EDayOfWeek::Friday, EDayOfWeek::Saturday, EDayOfWeek::Sunday};

/// What an hour can be.
struct Sign
{
    char sign;
    const char* words;
    const char* rendition;
};

constexpr Sign Open{'#', "open", "32"};
constexpr Sign Closed{'.', "closed", "2"};
constexpr Sign OpenStart{'*', "start in an open hour", "1;32"};
constexpr Sign ClosedStart{'x', "start in a closed hour", "1;31"};

std::size_t indexOf(EDayOfWeek::type day)
{
    return static_cast<std::size_t>(day);
}

/// The hours of the week in which the job starts.
class StartHours
{
public:
    explicit StartHours(const std::vector<PlannedMonth>& months)
    {
        for (const auto& month : months)
        {
            for (const auto& day : month.days)
            {
                for (const auto& start : day.starts)
                    m_isStart.at(indexOf(start.getDayOfWeek())).at(static_cast<std::size_t>(start.hour())) = true;
            }
        }
    }

    bool has(EDayOfWeek::type day, std::size_t hour) const { return m_isStart.at(indexOf(day)).at(hour); }

private:
    std::array<std::array<bool, HoursOfDay>, DaysFromMonday.size()> m_isStart{};
};

const Sign& signOf(bool isOpen, bool isStart)
{
    if (isStart)
        return isOpen ? OpenStart : ClosedStart;
    return isOpen ? Open : Closed;
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

std::string renderLegend(const std::vector<Sign>& signs, const TextStyle& style)
{
    std::string text;
    for (const auto& sign : signs)
        text += painted(std::string(1, sign.sign), sign.rendition, style) + "  " + sign.words + '\n';
    return text;
}

} // namespace

std::string renderWindow(const BackupWindow& window, const std::vector<PlannedMonth>& months, const TextStyle& style)
{
    const auto room = std::max(widthOf(style), LabelWidth + LastLabelWidth) - LabelWidth - LastLabelWidth;
    const auto columns = std::clamp(room / HoursOfDay, std::size_t{1}, MostColumns);
    const StartHours starts(months);
    bool hasOpenStart = false;
    bool hasClosedStart = false;
    auto text = renderScale(columns);
    for (const auto day : DaysFromMonday)
    {
        text += EDayOfWeek::GetShortStrSet().at(indexOf(day)) + "  ";
        for (std::size_t hour = 0; hour < HoursOfDay; ++hour)
        {
            const bool isOpen = window.getMatrix()(day, static_cast<int>(hour)) == 1;
            const bool isStart = starts.has(day, hour);
            (isOpen ? hasOpenStart : hasClosedStart) |= isStart;
            const auto& sign = signOf(isOpen, isStart);
            text += painted(std::string(columns, sign.sign), sign.rendition, style);
        }
        text += '\n';
    }
    std::vector<Sign> legend{Open, Closed};
    if (hasOpenStart)
        legend.push_back(OpenStart);
    if (hasClosedStart)
        legend.push_back(ClosedStart);
    return text + '\n' + renderLegend(legend, style);
}

} // namespace when
