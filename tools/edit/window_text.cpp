#include "window_text.h"

#include <map>

#include <zelplatform/datetime/names.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "texts.h"

namespace edit
{
namespace
{

using datetime::EDayOfWeek;
using zelplatform::model::structs::CWeekMask;

/// "Mon-Fri 20-24", "20-24" or "Mon-Fri".
struct Item
{
    explicit Item(const std::string& text)
    {
        const auto hoursAt = text.find_first_of("0123456789");
        days = util::str_trim(text.substr(0, hoursAt));
        hours = hoursAt == std::string::npos ? "" : text.substr(hoursAt);
    }

    std::string days;
    std::string hours;
};

class Week
{
public:
    void add(const Item& item)
    {
        if (!item.days.empty())
            addDays(item.days);
        if (item.hours.empty())
            return;
        m_isListOpen = false;
        for (const auto day : m_days.ToWeekDays())
            m_hours[day] += (m_hours[day].empty() ? "" : ",") + item.hours;
    }

    std::vector<Assignment> assignments() const
    {
        if (m_isListOpen)
            throw exc::CRuntimeExc("There are no hours for %1.", m_days.ToLogStr(false));
        std::vector<Assignment> all;
        for (const auto& [day, hours] : m_hours)
            all.push_back({util::tolower(EDayOfWeek::ToStr(day)), hours});
        return all;
    }

private:
    void addDays(const std::string& text)
    {
        if (!m_isListOpen)
            m_days.Reset(false);
        m_isListOpen = true;
        for (const auto day : parseWeekDays(text).ToWeekDays())
            m_days.SetDay(day, true);
    }

    CWeekMask m_days{true};
    bool m_isListOpen = false; ///< days that wait for their hours
    std::map<EDayOfWeek::type, std::string> m_hours;
};

} // namespace

std::vector<Assignment> hoursOfWeek(const std::string& text)
try
{
    Week week;
    for (const auto& item : util::str_tokenize(text, ','))
        week.add(Item(util::str_trim(item)));
    auto assignments = week.assignments();
    if (assignments.empty())
        throw exc::CRuntimeExc("There are no hours.");
    return assignments;
}
catch (const std::exception& cause)
{
    exc::RegenTraceExc("[%1] tells no hours of a week such as [Mon-Fri 20-24,Sat 0-24].", text, cause);
}

} // namespace edit
