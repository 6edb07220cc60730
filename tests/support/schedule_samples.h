#pragma once

#include <initializer_list>
#include <string>

#include <zelmodel/structs/schedule/schedule_calendar.h>
#include <zelplatform/datetime/datetime.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace zelmodel_test
{

/// Masks with every flag, as they stand in documents.
constexpr const char* wholeWeek = "<WeekMask Monday=\"true\" Tuesday=\"true\" Wednesday=\"true\" Thursday=\"true\" "
                                  "Friday=\"true\" Saturday=\"true\" Sunday=\"true\"/>";
constexpr const char* wholeYear =
    "<MonthMask January=\"true\" February=\"true\" March=\"true\" April=\"true\" May=\"true\" June=\"true\" "
    "July=\"true\" August=\"true\" September=\"true\" October=\"true\" November=\"true\" December=\"true\"/>";

/// The refusal of a week-day number for a calendar that is not monthly.
constexpr const char* notMonthly =
    "Failed to set week day number Week day number may be changed only for month schedule";

/// Midnight of a date such as "2024-03-07".
inline datetime::CDateTime at(const char* date)
{
    return datetime::CDateTime::fromString(date, "%Y-%m-%d");
}

inline zelplatform::model::structs::CWeekMask days(std::initializer_list<datetime::EDayOfWeek::type> on)
{
    zelplatform::model::structs::CWeekMask mask(false);
    for (const auto day : on)
        mask.SetDay(day, true);
    return mask;
}

inline zelplatform::model::structs::CMonthMask months(std::initializer_list<datetime::EMonth::type> on)
{
    zelplatform::model::structs::CMonthMask mask(false);
    for (const auto month : on)
        mask.SetMonth(month, true);
    return mask;
}

/// A calendar as a document with that number of its type says it; no setter makes some of them.
inline zelplatform::model::structs::CScheduleCalendar
calendarOfType(const std::string& type, zelplatform::model::structs::CScheduleCalendar calendar = {})
{
    xmlpp::CXmlDocument document;
    auto node = document.AddRootNode("Calendar");
    calendar.ToXml(node);
    node.SetAttribute("Type", type);
    return zelplatform::model::structs::CScheduleCalendar::FromXml(node);
}

/// What the options write at the top of a document.
template <class TOptions>
std::string textOf(const TOptions& options)
{
    xmlpp::CXmlDocument document;
    auto node = document.ToNode();
    options.ToXml(node);
    return document.Serialize();
}

} // namespace zelmodel_test
