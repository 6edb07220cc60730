#pragma once

#include <string>
#include <vector>

#include <zelmodel/export.h>
#include <zelplatform/datetime/names.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

/// The week days on which a schedule runs: seven flags indexed by datetime::EDayOfWeek, Sunday first. A mask built from
/// a vector keeps its length as given; every access by index throws std::out_of_range instead of leaving it.
class ZELMODEL_API CWeekMask
{
public:
    /// All seven days on or off.
    explicit CWeekMask(bool on);

    /// These flags, whatever their number.
    explicit CWeekMask(std::vector<bool> mask) noexcept;
    CWeekMask(const CWeekMask&) = default;
    CWeekMask(CWeekMask&&) noexcept = default;
    CWeekMask& operator=(CWeekMask&&) noexcept = default;
    ~CWeekMask() = default;

    /// All or nothing: assigning flags alone gives up the former ones before there is memory for the new.
    CWeekMask& operator=(const CWeekMask& other) { return *this = CWeekMask(other); }

    /// Sets the named days on, long or short names in any letter case, blanks around them removed. Throws "WeekMask:
    /// Failed to convert from string vector. ...".
    static CWeekMask FromStringVector(const std::vector<std::string>& names);

    /// As FromStringVector, of a text split at the separator. Throws "WeekMask: Failed to convert from string. ...".
    static CWeekMask FromString(const std::string& text, char separator);

    /// All seven days on or off.
    void Reset(bool on);

    /// Throws std::out_of_range for a day that the mask does not have.
    void SetDay(datetime::EDayOfWeek::type day, bool on);

    /// The flags, Sunday first.
    const std::vector<bool>& GetMask() const noexcept { return m_mask; }

    /// 7.
    static std::size_t GetNumberOfDays() noexcept;

    /// Throws "WeekMask: Failed to check that day is on. ..." for a day that the mask does not have.
    bool IsDayOn(datetime::EDayOfWeek::type day) const;

    /// Asks for the week day of the current local time.
    bool IsTodayOn() const;

    /// True when every flag is so, or on, or off.
    bool IsAllDays(bool value) const noexcept;
    bool IsAllDaysOn() const noexcept;
    bool IsAllDaysOff() const noexcept;

    /// True when exactly Monday to Friday are on.
    bool IsAllWeekdaysOn() const;

    /// The days that are on, Sunday first.
    std::vector<datetime::EDayOfWeek::type> ToWeekDays() const;

    friend bool operator==(const CWeekMask& a, const CWeekMask& b) { return a.m_mask == b.m_mask; }
    friend bool operator!=(const CWeekMask& a, const CWeekMask& b) { return !(a == b); }

    /// The names of the days that are on, Sunday first.
    std::vector<std::string> ToStringVector(bool shortNames) const;

    /// The names of the days that are on with the separator between them.
    std::string ToString(const std::string& separator, bool shortNames) const;

    /// The names joined with ", ".
    std::string ToLogStr(bool shortNames) const;

    /// Adds the child "WeekMask" with one boolean attribute a day, Monday first. Throws "WeekMask: Failed to serialize
    /// to Xml. ...".
    void ToXml(xmlpp::CXmlNode& parent) const;

    /// Reads what ToXml writes; the child and all seven attributes must be there. Throws "WeekMask: Failed to
    /// deserialize from Xml. ...".
    static CWeekMask FromXml(const xmlpp::CXmlNode& parent);

private:
    std::vector<bool> m_mask;
};

} // namespace zelplatform::model::structs
