#include <zelmodel/structs/schedule/week_mask.h>

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

using datetime::EDayOfWeek;

constexpr std::size_t NumberOfDays = 7;

// Documents begin the week on Monday, masks on Sunday.
constexpr std::array<detail::FlagAttribute, NumberOfDays> Attributes{{
    {EDayOfWeek::Monday, "Monday"},
    {EDayOfWeek::Tuesday, "Tuesday"},
    {EDayOfWeek::Wednesday, "Wednesday"},
    {EDayOfWeek::Thursday, "Thursday"},
    {EDayOfWeek::Friday, "Friday"},
    {EDayOfWeek::Saturday, "Saturday"},
    {EDayOfWeek::Sunday, "Sunday"},
}};

} // namespace

CWeekMask::CWeekMask(bool on) : m_mask(NumberOfDays, on) {}

CWeekMask::CWeekMask(std::vector<bool> mask) noexcept : m_mask(std::move(mask)) {}

CWeekMask CWeekMask::FromStringVector(const std::vector<std::string>& names)
try
{
    CWeekMask mask(false);
    for (const auto& name : names)
        mask.SetDay(EDayOfWeek::FromStr(util::str_trim(name, ' ')), true);
    return mask;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("WeekMask: Failed to convert from string vector.", cause);
}

CWeekMask CWeekMask::FromString(const std::string& text, char separator)
try
{
    return FromStringVector(util::str_tokenize(text, separator));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("WeekMask: Failed to convert from string.", cause);
}

void CWeekMask::Reset(bool on)
{
    m_mask.assign(NumberOfDays, on);
}

void CWeekMask::SetDay(EDayOfWeek::type day, bool on)
{
    m_mask.at(static_cast<std::size_t>(day)) = on;
}

std::size_t CWeekMask::GetNumberOfDays() noexcept
{
    return NumberOfDays;
}

bool CWeekMask::IsDayOn(EDayOfWeek::type day) const
try
{
    return m_mask.at(static_cast<std::size_t>(day));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("WeekMask: Failed to check that day is on.", cause);
}

bool CWeekMask::IsTodayOn() const
try
{
    return IsDayOn(datetime::CDateTime::currentLocalTime().getDayOfWeek());
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("WeekMask: Failed to check that today is on.", cause);
}

bool CWeekMask::IsAllDays(bool value) const noexcept
{
    return detail::areAllFlags(m_mask, value);
}

bool CWeekMask::IsAllDaysOn() const noexcept
{
    return IsAllDays(true);
}

bool CWeekMask::IsAllDaysOff() const noexcept
{
    return IsAllDays(false);
}

bool CWeekMask::IsAllWeekdaysOn() const
{
    static const std::vector<bool> mondayToFriday{false, true, true, true, true, true, false};
    return m_mask == mondayToFriday;
}

std::vector<EDayOfWeek::type> CWeekMask::ToWeekDays() const
{
    std::vector<EDayOfWeek::type> days;
    for (std::size_t i = 0; i < m_mask.size(); ++i)
    {
        if (m_mask[i])
            days.push_back(static_cast<EDayOfWeek::type>(i));
    }
    return days;
}

std::vector<std::string> CWeekMask::ToStringVector(bool shortNames) const
try
{
    return detail::namesOfFlags(m_mask, shortNames ? EDayOfWeek::GetShortStrSet() : EDayOfWeek::GetLongStrSet());
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("WeekMask: Failed to convert to string vector.", cause);
}

std::string CWeekMask::ToString(const std::string& separator, bool shortNames) const
try
{
    return util::str_join(ToStringVector(shortNames), separator);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("WeekMask: Failed to convert to string.", cause);
}

std::string CWeekMask::ToLogStr(bool shortNames) const
{
    return ToString(", ", shortNames);
}

void CWeekMask::ToXml(xmlpp::CXmlNode& parent) const
try
{
    detail::writeFlags(parent, detail::schedule_names::WeekMask, Attributes, m_mask);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("WeekMask: Failed to serialize to Xml.", cause);
}

CWeekMask CWeekMask::FromXml(const xmlpp::CXmlNode& parent)
try
{
    return CWeekMask(detail::readFlags(parent, detail::schedule_names::WeekMask, Attributes));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("WeekMask: Failed to deserialize from Xml.", cause);
}

} // namespace zelplatform::model::structs
