#pragma once

#include <string>
#include <vector>

#include <zelmodel/export.h>
#include <zelplatform/datetime/names.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

/// The months in which a schedule runs: twelve flags indexed by datetime::EMonth, January first. A mask built from a
/// vector keeps its length as given; every access by index throws std::out_of_range instead of leaving it.
class ZELMODEL_API CMonthMask
{
public:
    /// All twelve months on or off.
    explicit CMonthMask(bool on);

    /// These flags, whatever their number.
    explicit CMonthMask(std::vector<bool> mask) noexcept;
    CMonthMask(const CMonthMask&) = default;
    CMonthMask(CMonthMask&&) noexcept = default;
    CMonthMask& operator=(CMonthMask&&) noexcept = default;
    ~CMonthMask() = default;

    /// All or nothing: assigning flags alone gives up the former ones before there is memory for the new.
    CMonthMask& operator=(const CMonthMask& other) { return *this = CMonthMask(other); }

    /// Sets the named months on, long or short names in any letter case, blanks around them removed. Throws "MonthMask:
    /// Failed to convert from string vector. ...".
    static CMonthMask FromStringVector(const std::vector<std::string>& names);

    /// As FromStringVector, of a text split at the separator. Throws "MonthMask: Failed to convert from string. ...".
    static CMonthMask FromString(const std::string& text, char separator);

    /// All twelve months on or off.
    void Reset(bool on);

    /// Throws std::out_of_range for a month that the mask does not have.
    void SetMonth(datetime::EMonth::type month, bool on);

    /// The flags, January first.
    const std::vector<bool>& GetMask() const noexcept { return m_mask; }

    /// 12.
    static std::size_t GetNumberOfMonths() noexcept;

    /// Throws "MonthMask: Failed to check that day is on. ..." for a month that the mask does not have.
    bool IsMonthOn(datetime::EMonth::type month) const;

    /// Asks for the month of the current local time.
    bool IsTodayOn() const;

    /// True when every flag is so, or on, or off.
    bool IsAllMonths(bool value) const noexcept;
    bool IsAllMonthsOn() const noexcept;
    bool IsAllMonthsOff() const noexcept;

    /// The mask with every flag inverted.
    CMonthMask operator!() const;

    /// The months that are on in both; masks of different length throw "Months masks count are not equal".
    CMonthMask operator&&(const CMonthMask& other) const;

    friend bool operator==(const CMonthMask& a, const CMonthMask& b) { return a.m_mask == b.m_mask; }
    friend bool operator!=(const CMonthMask& a, const CMonthMask& b) { return !(a == b); }

    /// The names of the months that are on, January first.
    std::vector<std::string> ToStringVector(bool shortNames) const;

    /// The names of the months that are on with the separator between them.
    std::string ToString(const std::string& separator, bool shortNames) const;

    /// The names joined with ", ".
    std::string ToLogStr(bool shortNames) const;

    /// Adds the child "MonthMask" with one boolean attribute a month, January first. Throws "MonthMask: Failed to
    /// serialize to Xml. ...".
    void ToXml(xmlpp::CXmlNode& parent) const;

    /// Reads what ToXml writes; the child and all twelve attributes must be there. Throws "MonthMask: Failed to
    /// deserialize from Xml. ...".
    static CMonthMask FromXml(const xmlpp::CXmlNode& parent);

private:
    std::vector<bool> m_mask;
};

} // namespace zelplatform::model::structs
