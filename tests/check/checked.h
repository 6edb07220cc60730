#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "check/check.h"

namespace zelmodel_test
{

/// A document, and the findings of it: "LINE ID" each.
struct CheckCase
{
    const char* name;
    std::string document;
    std::vector<std::string> findings;
};

inline std::ostream& operator<<(std::ostream& stream, const CheckCase& test)
{
    return stream << test.name;
}

inline std::string nameOfCase(const testing::TestParamInfo<CheckCase>& test)
{
    return test.param.name;
}

inline std::vector<std::string> idsOf(const std::vector<check::Finding>& findings)
{
    std::vector<std::string> ids;
    for (const auto& finding : findings)
        ids.push_back(std::to_string(finding.line) + ' ' + finding.rule->id);
    return ids;
}

/// A calendar's masks: the week days by their first letters from Monday on, the months as digits from January on, with
/// a dot for each that is off.
inline std::string masks(const std::string& days, const std::string& months = "123456789012")
{
    constexpr const char* dayNames[] = {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};
    constexpr const char* monthNames[] = {"January", "February", "March",     "April",   "May",      "June",
                                          "July",    "August",   "September", "October", "November", "December"};
    std::string text = "\n<WeekMask";
    for (std::size_t i = 0; i < 7; ++i)
        text += std::string(" ") + dayNames[i] + "='" + (days[i] == '.' ? "false" : "true") + "'";
    text += "/>\n<MonthMask";
    for (std::size_t i = 0; i < 12; ++i)
        text += std::string(" ") + monthNames[i] + "='" + (months[i] == '.' ? "false" : "true") + "'";
    return text + "/>\n";
}

constexpr const char* EveryDay = "MTWTFSS";

/// "Schedule" on the first line, its masks on the next two, its time on the fourth.
inline std::string start(const std::string& attributes, const std::string& masksOfIt,
                         const std::string& time = "Hours='22' Minutes='30'")
{
    return "<Schedule Version='3' IsEnabled='true' " + attributes + ">" + masksOfIt + "<Time " + time + "/></Schedule>";
}

inline std::string weekly(const std::string& days)
{
    return start("WeekDayNumber='Every' DayOfMonth='0' Type='0'", masks(days));
}

} // namespace zelmodel_test
