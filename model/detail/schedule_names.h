#pragma once

/// Names of elements and attributes in the documents of schedules.
namespace zelplatform::model::detail::schedule_names
{

inline constexpr const char* ScheduleOptions = "ScheduleOptions";
inline constexpr const char* Schedule = "Schedule";
inline constexpr const char* ActiveFullOptions = "ActiveFullOptions";
inline constexpr const char* SyntheticFullOptions = "SyntheticFullOptions";
inline constexpr const char* Version = "Version";
inline constexpr const char* IsEnabled = "IsEnabled";
inline constexpr const char* Type = "Type";
inline constexpr const char* WeekDayNumber = "WeekDayNumber";
inline constexpr const char* DayOfMonth = "DayOfMonth";
inline constexpr const char* WeekMask = "WeekMask";
inline constexpr const char* MonthMask = "MonthMask";
inline constexpr const char* Time = "Time";
inline constexpr const char* Hours = "Hours";
inline constexpr const char* Minutes = "Minutes";

} // namespace zelplatform::model::detail::schedule_names
