#include <zelmodel/structs/schedule/month_mask.h>

#include <algorithm>
#include <functional>
#include <utility>

#include <zelplatform/datetime/date_time.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/flag_mask.h"
#include "detail/schedule_names.h"

namespace zelplatform::model::structs
{
namespace
{

using datetime::EMonth;

constexpr std::size_t NumberOfMonths = 12;

constexpr std::array<detail::FlagAttribute, NumberOfMonths> Attributes{{
    {EMonth::January, "January"},
    {EMonth::February, "February"},
    {EMonth::March, "March"},
    {EMonth::April, "April"},
    {EMonth::May, "May"},
    {EMonth::June, "June"},
    {EMonth::July, "July"},
    {EMonth::August, "August"},
    {EMonth::September, "September"},
    {EMonth::October, "October"},
    {EMonth::November, "November"},
    {EMonth::December, "December"},
}};

} // namespace

CMonthMask::CMonthMask(bool on) : m_mask(NumberOfMonths, on) {}

CMonthMask::CMonthMask(std::vector<bool> mask) noexcept : m_mask(std::move(mask)) {}

CMonthMask CMonthMask::FromStringVector(const std::vector<std::string>& names)
try
{
    CMonthMask mask(false);
    for (const auto& name : names)
        mask.SetMonth(EMonth::FromStr(util::str_trim(name, ' ')), true);
    return mask;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("MonthMask: Failed to convert from string vector.", cause);
}

CMonthMask CMonthMask::FromString(const std::string& text, char separator)
try
{
    return FromStringVector(util::str_tokenize(text, separator));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("MonthMask: Failed to convert from string.", cause);
}

void CMonthMask::Reset(bool on)
{
    m_mask.assign(NumberOfMonths, on);
}

void CMonthMask::SetMonth(EMonth::type month, bool on)
{
    m_mask.at(static_cast<std::size_t>(month)) = on;
}

std::size_t CMonthMask::GetNumberOfMonths() noexcept
{
    return NumberOfMonths;
}

// The message says "day" of a month, kept on purpose.
bool CMonthMask::IsMonthOn(EMonth::type month) const
try
{
    return m_mask.at(static_cast<std::size_t>(month));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("MonthMask: Failed to check that day is on.", cause);
}

bool CMonthMask::IsTodayOn() const
try
{
    return IsMonthOn(datetime::CDateTime::currentLocalTime().getMonth());
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("MonthMask: Failed to check that today is on.", cause);
}

bool CMonthMask::IsAllMonths(bool value) const noexcept
{
    return detail::areAllFlags(m_mask, value);
}

bool CMonthMask::IsAllMonthsOn() const noexcept
{
    return IsAllMonths(true);
}

bool CMonthMask::IsAllMonthsOff() const noexcept
{
    return IsAllMonths(false);
}

CMonthMask CMonthMask::operator!() const
{
    auto inverted = m_mask;
    inverted.flip();
    return CMonthMask(std::move(inverted));
}

CMonthMask CMonthMask::operator&&(const CMonthMask& other) const
{
    if (m_mask.size() != other.m_mask.size())
        throw exc::CRuntimeExc("Months masks count are not equal");
    auto common = m_mask;
    std::transform(common.begin(), common.end(), other.m_mask.begin(), common.begin(), std::logical_and<>());
    return CMonthMask(std::move(common));
}

std::vector<std::string> CMonthMask::ToStringVector(bool shortNames) const
try
{
    return detail::namesOfFlags(m_mask, shortNames ? EMonth::GetShortStrSet() : EMonth::GetLongStrSet());
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("MonthMask: Failed to convert to string vector.", cause);
}

std::string CMonthMask::ToString(const std::string& separator, bool shortNames) const
try
{
    return util::str_join(ToStringVector(shortNames), separator);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("MonthMask: Failed to convert to string.", cause);
}

std::string CMonthMask::ToLogStr(bool shortNames) const
{
    return ToString(", ", shortNames);
}

void CMonthMask::ToXml(xmlpp::CXmlNode& parent) const
try
{
    detail::writeFlags(parent, detail::schedule_names::MonthMask, Attributes, m_mask);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("MonthMask: Failed to serialize to Xml.", cause);
}

CMonthMask CMonthMask::FromXml(const xmlpp::CXmlNode& parent)
try
{
    return CMonthMask(detail::readFlags(parent, detail::schedule_names::MonthMask, Attributes));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("MonthMask: Failed to deserialize from Xml.", cause);
}

} // namespace zelplatform::model::structs
