#pragma once

#include <string>
#include <vector>

#include <zelmodel/export.h>
#include <zelmodel/structs/schedule/month_mask.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

/// A day of the month: 1..31, the last day whatever the month's length (stored as 32), or not set (0).
class ZELMODEL_API CDayOfMonth
{
public:
    /// What stands for the last day of a month.
    static constexpr unsigned long s_magicLastDayOfMonth = 32;

    /// Stores 1..32; any other number leaves the day not set, without a failure. Documents are read through this.
    explicit CDayOfMonth(unsigned long day = 0);

    /// "last" in any letter case, or a number for the constructor; throws for a text that is no number.
    static CDayOfMonth FromStr(const std::string& text);

    /// Stores 1..32; throws "DayOfMonth: Failed set [%1]. Day must be in range [1;31].".
    void Set(unsigned long day);

    /// Same as Set.
    CDayOfMonth& operator=(unsigned long day);

    /// The last day, or not set.
    void SetLast() noexcept;
    void Reset() noexcept;

    /// The stored number, 32 for the last day.
    unsigned long Get() const noexcept { return m_day; }
    operator unsigned long() const noexcept { return m_day; }

    /// Whether there is a day, the last one included; whether it is the last one.
    bool IsSet() const noexcept { return m_day != 0; }
    bool IsSetLast() const noexcept { return m_day == s_magicLastDayOfMonth; }

    /// The stored number; throws "Day of month is not set." and, unless allowed, "The last day of month is not
    /// supported.".
    unsigned long CheckAndGet(bool allowLast) const;

    /// 32.
    static unsigned long GetMagicLastDay() noexcept;

    /// "1" ... "31", "Last".
    static std::vector<std::string> GetMonthDayStrList();

    /// Of the given months those that never have the day; February counts 29 days. The last day and a day that is not
    /// set fit every month.
    static CMonthMask GetDayNotFitMonths(const CDayOfMonth& day, const CMonthMask& months);

    /// Sets the attribute "DayOfMonth" of the node. Throws "DayOfMonth: Failed to serialize to Xml. ...".
    void ToXml(xmlpp::CXmlNode& node) const;

    /// Reads the attribute "DayOfMonth" of the node; a number out of range gives a day that is not set. Throws
    /// "DayOfMonth: Failed to deserialize from Xml. ...".
    static CDayOfMonth FromXml(const xmlpp::CXmlNode& node);

private:
    unsigned long m_day;
};

} // namespace zelplatform::model::structs
