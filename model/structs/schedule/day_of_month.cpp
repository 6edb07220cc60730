#include <zelmodel/structs/schedule/day_of_month.h>

#include <array>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/schedule_names.h"

namespace zelplatform::model::structs
{
namespace
{

constexpr unsigned long NotSet = 0;
constexpr unsigned long LastNumberedDay = 31;

// The greatest length of each month: a day that fits a leap year fits February.
constexpr std::array<unsigned long, 12> GreatestLengths{31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

bool isStorable(unsigned long day) noexcept
{
    return day >= 1 && day <= CDayOfMonth::s_magicLastDayOfMonth;
}

} // namespace

CDayOfMonth::CDayOfMonth(unsigned long day) : m_day(isStorable(day) ? day : NotSet) {}

CDayOfMonth CDayOfMonth::FromStr(const std::string& text)
{
    if (util::tolower(text) == "last")
        return CDayOfMonth(s_magicLastDayOfMonth);
    return CDayOfMonth(util::fromStr<unsigned long>(text));
}

// The message names 31 although 32, the last day, is stored too: kept on purpose.
void CDayOfMonth::Set(unsigned long day)
try
{
    if (!isStorable(day))
        throw exc::CRuntimeExc("Day must be in range [1;31].");
    m_day = day;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("DayOfMonth: Failed set [%1].", util::toStr(day), cause);
}

CDayOfMonth& CDayOfMonth::operator=(unsigned long day)
{
    Set(day);
    return *this;
}

void CDayOfMonth::SetLast() noexcept
{
    m_day = s_magicLastDayOfMonth;
}

void CDayOfMonth::Reset() noexcept
{
    m_day = NotSet;
}

unsigned long CDayOfMonth::CheckAndGet(bool allowLast) const
{
    if (!IsSet())
        throw exc::CRuntimeExc("Day of month is not set.");
    if (IsSetLast() && !allowLast)
        throw exc::CRuntimeExc("The last day of month is not supported.");
    return m_day;
}

unsigned long CDayOfMonth::GetMagicLastDay() noexcept
{
    return s_magicLastDayOfMonth;
}

std::vector<std::string> CDayOfMonth::GetMonthDayStrList()
{
    std::vector<std::string> texts;
    texts.reserve(LastNumberedDay + 1);
    for (unsigned long day = 1; day <= LastNumberedDay; ++day)
        texts.push_back(util::toStr(day));
    texts.emplace_back("Last");
    return texts;
}

CMonthMask CDayOfMonth::GetDayNotFitMonths(const CDayOfMonth& day, const CMonthMask& months)
{
    CMonthMask notFit(false);
    if (day.IsSetLast())
        return notFit;
    for (std::size_t i = 0; i < GreatestLengths.size(); ++i)
    {
        const auto month = static_cast<datetime::EMonth::type>(i);
        if (months.GetMask().at(i) && day.Get() > GreatestLengths[i])
            notFit.SetMonth(month, true);
    }
    return notFit;
}

void CDayOfMonth::ToXml(xmlpp::CXmlNode& node) const
try
{
    node.SetUint64Attribute(detail::schedule_names::DayOfMonth, m_day);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("DayOfMonth: Failed to serialize to Xml.", cause);
}

CDayOfMonth CDayOfMonth::FromXml(const xmlpp::CXmlNode& node)
try
{
    return CDayOfMonth(node.GetUint64Attribute(detail::schedule_names::DayOfMonth));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("DayOfMonth: Failed to deserialize from Xml.", cause);
}

} // namespace zelplatform::model::structs
