#include "texts.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>
#include <utility>
#include <vector>

#include <zelplatform/datetime/names.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace edit
{
namespace
{

using datetime::EDayOfWeek;
using datetime::EMonth;
using zelplatform::model::structs::CMonthMask;
using zelplatform::model::structs::CWeekMask;

constexpr std::array<std::pair<std::string_view, unsigned long>, 5> Units{
    {{"ms", 1}, {"s", 1000}, {"m", 60000}, {"h", 3600000}, {"d", 86400000}}};

bool isDigit(char c) noexcept
{
    return c >= '0' && c <= '9';
}

// "Fri-Mon" goes on over the end of the week.
template <class TName>
void addRange(const std::string& first, const std::string& last, std::vector<std::string>& names)
{
    const auto count = static_cast<int>(TName::GetLongStrSet().size());
    const int end = TName::FromStr(last);
    for (int at = TName::FromStr(first);; at = (at + 1) % count)
    {
        names.push_back(TName::ToStr(static_cast<typename TName::type>(at)));
        if (at == end)
            return;
    }
}

template <class TName>
std::vector<std::string> namesIn(const std::string& text)
{
    std::vector<std::string> names;
    for (const auto& item : util::str_tokenize(text, ','))
    {
        const auto dash = item.find('-');
        if (dash == std::string::npos)
            names.push_back(item);
        else
            addRange<TName>(util::str_trim(item.substr(0, dash)), util::str_trim(item.substr(dash + 1)), names);
    }
    return names;
}

unsigned long unitOf(const std::string& name)
{
    for (const auto& [unit, milliseconds] : Units)
    {
        if (name == unit)
            return milliseconds;
    }
    throw exc::CRuntimeExc("[%1] is no unit of time: there are d, h, m, s and ms.", name);
}

unsigned long addedUp(unsigned long sum, unsigned long count, unsigned long unit)
{
    constexpr auto Most = std::numeric_limits<unsigned long>::max();
    if (count > (Most - sum) / unit)
        throw exc::CRuntimeExc("That is too long.");
    return sum + count * unit;
}

} // namespace

CWeekMask parseWeekDays(const std::string& text)
{
    return CWeekMask::FromStringVector(namesIn<EDayOfWeek>(text));
}

CMonthMask parseMonths(const std::string& text)
{
    return CMonthMask::FromStringVector(namesIn<EMonth>(text));
}

unsigned long parseDuration(const std::string& text)
try
{
    if (text.empty())
        throw exc::CRuntimeExc("The text is empty.");
    unsigned long sum = 0;
    for (auto at = text.begin(); at != text.end();)
    {
        const auto unit = std::find_if_not(at, text.end(), isDigit);
        const auto next = std::find_if(unit, text.end(), isDigit);
        // The unit is judged first, whatever order a compiler gives the arguments of one call.
        const auto milliseconds = unitOf(std::string(unit, next));
        sum = addedUp(sum, util::fromStr<unsigned long>(std::string(at, unit)), milliseconds);
        at = next;
    }
    return sum;
}
catch (const std::exception& cause)
{
    exc::RegenTraceExc("[%1] is no length of time such as 10m or 1h30m.", text, cause);
}

bool isNumber(const std::string& text) noexcept
{
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

} // namespace edit
