#include "week_plan.h"

#include <algorithm>

namespace when
{
namespace
{

using datetime::EDayOfWeek;
using zelplatform::model::structs::BackupWindow;

constexpr std::array<EDayOfWeek::type, 7> DaysFromMonday{
    EDayOfWeek::Monday, EDayOfWeek::Tuesday,  EDayOfWeek::Wednesday, EDayOfWeek::Thursday,
    EDayOfWeek::Friday, EDayOfWeek::Saturday, EDayOfWeek::Sunday};

constexpr HourMark Open{EHour::Open, '#', "open"};
constexpr HourMark Closed{EHour::Closed, '.', "closed"};
constexpr HourMark OpenStart{EHour::OpenStart, '*', "start in an open hour"};
constexpr HourMark ClosedStart{EHour::ClosedStart, 'x', "start in a closed hour"};

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
    static std::size_t indexOf(EDayOfWeek::type day) { return static_cast<std::size_t>(day); }

    std::array<std::array<bool, HoursOfDay>, DaysFromMonday.size()> m_isStart{};
};

const HourMark& markOf(bool isOpen, bool isStart)
{
    if (isStart)
        return isOpen ? OpenStart : ClosedStart;
    return isOpen ? Open : Closed;
}

bool occurs(const HourMark& mark, const PlannedWeek& week)
{
    return std::any_of(week.begin(), week.end(), [&mark](const auto& day) {
        return std::find(day.hours.begin(), day.hours.end(), &mark) != day.hours.end();
    });
}

} // namespace

PlannedWeek planWeek(const BackupWindow& window, const std::vector<PlannedMonth>& months)
{
    const StartHours starts(months);
    PlannedWeek week;
    for (const auto day : DaysFromMonday)
    {
        week.push_back({day, {}});
        for (std::size_t hour = 0; hour < HoursOfDay; ++hour)
        {
            const bool isOpen = window.getMatrix()(day, static_cast<int>(hour)) == 1;
            week.back().hours.at(hour) = &markOf(isOpen, starts.has(day, hour));
        }
    }
    return week;
}

std::vector<const HourMark*> legendOf(const PlannedWeek& week)
{
    std::vector<const HourMark*> legend{&Open, &Closed};
    for (const auto* mark : {&OpenStart, &ClosedStart})
    {
        if (occurs(*mark, week))
            legend.push_back(mark);
    }
    return legend;
}

} // namespace when
