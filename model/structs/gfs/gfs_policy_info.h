#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <zelmodel/export.h>
#include <zelplatform/datetime/date_time.h>
#include <zelplatform/xmlpp/xml_node.h>

/// Long-term (grandfather-father-son) retention.
namespace zelplatform::model::structs::gfs
{

/// The names of the weekly rule in documents, in the short and the long variant.
struct SGfsWeeklyPolicyInfoTraits
{
    /// Names of the rule's element and of the attribute with its count.
    static constexpr const char* ShortElement = "Weekly";
    static constexpr const char* LongElement = "GfsWeeklyPolicy";
    static constexpr const char* ShortKeepCount = "KeepBackupsForNumberOfWeeks";
    static constexpr const char* LongKeepCount = "NumberOfWeeks";
};

/// The names of the monthly rule.
struct SMonthlyGfsPolicyInfoTraits
{
    /// Names of the rule's element and of the attribute with its count.
    static constexpr const char* ShortElement = "Monthly";
    static constexpr const char* LongElement = "GfsMonthlyPolicy";
    static constexpr const char* ShortKeepCount = "KeepBackupsForNumberOfMonths";
    static constexpr const char* LongKeepCount = "NumberOfMonths";
};

/// The names of the yearly rule.
struct SYearlyGfsPolicyInfoTraits
{
    /// Names of the rule's element and of the attribute with its count.
    static constexpr const char* ShortElement = "Yearly";
    static constexpr const char* LongElement = "GfsYearlyPolicy";
    static constexpr const char* ShortKeepCount = "KeepBackupsForNumberOfYears";
    static constexpr const char* LongKeepCount = "NumberOfYears";
};

/// One rule of a GFS policy: how many restore points of its period are kept. The three rules differ in names only.
/// Values are stored unchecked.
template <class TTraits>
struct SGfsPolicyInfoBase
{
    /// Whether the rule is in force.
    bool isEnabled = false;

    /// A negative count is written as it is and cannot be read back.
    std::int32_t keepCount = 1;

    /// From when the rule is effective; the empty UTC date-time when a document gives none that can be read.
    datetime::CDateTime beginTimeUtc{true};

    /// The slot of the period; its meaning is the scheduler's, here it is carried unchanged.
    std::int32_t desiredTime = 1;

    /// Adds the rule's element to the "GfsPolicy" node.
    void toXml(xmlpp::CXmlNode& policyNode, bool isShortNames) const;

    /// Reads the rule's element below the "GfsPolicy" node. A begin time that is no date is logged and replaced by the
    /// default; "DesiredTime" is cut to 32 bits. Everything else that is missing or wrong throws
    /// "Unable to parse [%1]. ...".
    static SGfsPolicyInfoBase fromXml(const xmlpp::CXmlNode& policyNode, bool isShortNames);

    /// The rule's element name in the variant.
    static const char* getElementName(bool isShortNames) noexcept;

    friend bool operator==(const SGfsPolicyInfoBase& a, const SGfsPolicyInfoBase& b) noexcept
    {
        return a.isEnabled == b.isEnabled && a.keepCount == b.keepCount && a.beginTimeUtc == b.beginTimeUtc &&
               a.desiredTime == b.desiredTime;
    }
    friend bool operator!=(const SGfsPolicyInfoBase& a, const SGfsPolicyInfoBase& b) noexcept { return !(a == b); }
};

extern template struct ZELMODEL_API SGfsPolicyInfoBase<SGfsWeeklyPolicyInfoTraits>;
extern template struct ZELMODEL_API SGfsPolicyInfoBase<SMonthlyGfsPolicyInfoTraits>;
extern template struct ZELMODEL_API SGfsPolicyInfoBase<SYearlyGfsPolicyInfoTraits>;

/// The long-term (grandfather-father-son) retention policy of a job, element "GfsPolicy". The naming flag chooses the
/// variant of element and attribute names: true is the short one, which job options use; the variants do not read each
/// other's rules.
struct ZELMODEL_API SGfsPolicyInfo
{
    /// Whether the policy is in force, and the rules that it has.
    bool isEnabled = false;
    std::optional<SGfsPolicyInfoBase<SGfsWeeklyPolicyInfoTraits>> weekly;
    std::optional<SGfsPolicyInfoBase<SMonthlyGfsPolicyInfoTraits>> monthly;
    std::optional<SGfsPolicyInfoBase<SYearlyGfsPolicyInfoTraits>> yearly;

    /// True when the node has a child "GfsPolicy".
    static bool isExistInXml(const xmlpp::CXmlNode& node);

    /// Adds the child "GfsPolicy" to the parent.
    void toXml(xmlpp::CXmlNode& parent, bool isShortNames) const;

    /// Fills a "GfsPolicy" node: the flag, then each rule that is there.
    void toXmlImpl(xmlpp::CXmlNode& policyNode, bool isShortNames) const;

    /// A document with the root "GfsPolicy".
    std::string toXmlString(bool isShortNames) const;

    /// Reads the child "GfsPolicy" of the parent; "IsEnabled" must be there, a rule that is missing stays empty.
    static SGfsPolicyInfo fromXml(const xmlpp::CXmlNode& parent, bool isShortNames);

    /// Reads a "GfsPolicy" node.
    static SGfsPolicyInfo fromXmlImpl(const xmlpp::CXmlNode& policyNode, bool isShortNames);

    /// True only when all three rules are there on both sides and equal. A policy that lacks a rule is unequal even to
    /// itself, and the policy's own flag is left out: on purpose.
    friend ZELMODEL_API bool operator==(const SGfsPolicyInfo& a, const SGfsPolicyInfo& b) noexcept;
    friend bool operator!=(const SGfsPolicyInfo& a, const SGfsPolicyInfo& b) noexcept { return !(a == b); }
};

} // namespace zelplatform::model::structs::gfs
