#include <zelmodel/structs/gfs/gfs_policy_info.h>

#include <zelmodel/zelmodel_log.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/logging/logging.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_document.h>
#include <zelplatform/xmlpp/xml_undo.h>

#include "detail/job_names.h"

namespace zelplatform::model::structs::gfs
{
namespace
{

namespace names = detail::job_names;

// The begin time of rules that were never given one, as the managing server writes it.
constexpr const char* NoBeginTime = "01/01/0001 00:00:00";

template <class TTraits>
const char* keepCountName(bool isShortNames) noexcept
{
    return isShortNames ? TTraits::ShortKeepCount : TTraits::LongKeepCount;
}

void logBadBeginTime(std::string_view text, const char* elementName, const datetime::CDateTime& replacement,
                     const std::exception& cause)
{
    if (text == NoBeginTime)
    {
        zelmodel_log.warn(util::str_format("[%1] effective datetime 01/01/0001 00:00:00 is treated as %2", elementName,
                                           replacement.toStdString(datetime::CDateTime::QorDateFormat)));
        return;
    }
    logging::log_section_t section("SGfsPolicyInfoBase::FromXml");
    section.warn(util::str_format("At %1", cause.what()));
}

datetime::CDateTime parseBeginTime(std::string_view text, const char* elementName)
{
    const datetime::CDateTime replacement(true);
    try
    {
        return datetime::CDateTime::fromString(text, datetime::CDateTime::QorDateFormat);
    }
    catch (std::exception& cause)
    {
        logBadBeginTime(text, elementName, replacement, cause);
        return replacement;
    }
}

template <class TRule>
void writeRule(const std::optional<TRule>& rule, xmlpp::CXmlNode& policyNode, bool isShortNames)
{
    if (rule)
        rule->toXml(policyNode, isShortNames);
}

template <class TRule>
void readRule(const xmlpp::CXmlNode& policyNode, bool isShortNames, std::optional<TRule>& rule)
{
    if (policyNode.HasNode(TRule::getElementName(isShortNames)))
        rule = TRule::fromXml(policyNode, isShortNames);
}

template <class TRule>
bool areEngagedAndEqual(const std::optional<TRule>& a, const std::optional<TRule>& b) noexcept
{
    return a && b && *a == *b;
}

} // namespace

template <class TTraits>
const char* SGfsPolicyInfoBase<TTraits>::getElementName(bool isShortNames) noexcept
{
    return isShortNames ? TTraits::ShortElement : TTraits::LongElement;
}

template <class TTraits>
void SGfsPolicyInfoBase<TTraits>::toXml(xmlpp::CXmlNode& policyNode, bool isShortNames) const
{
    const xmlpp::CXmlUndo undo(policyNode);
    auto node = policyNode.AddNode(getElementName(isShortNames));
    node.SetBoolAttribute(names::IsEnabled, isEnabled);
    node.SetInt64Attribute(keepCountName<TTraits>(isShortNames), keepCount);
    node.SetDateTimeAttribute(names::BeginTimeUtc, beginTimeUtc, datetime::CDateTime::QorDateFormat);
    node.SetInt64Attribute(names::DesiredTime, desiredTime);
}

// The keep count is checked and the desired time is cut, kept on purpose.
template <class TTraits>
SGfsPolicyInfoBase<TTraits> SGfsPolicyInfoBase<TTraits>::fromXml(const xmlpp::CXmlNode& policyNode, bool isShortNames)
try
{
    const auto* elementName = getElementName(isShortNames);
    const auto node = policyNode.GetFirstChildNode(elementName);
    SGfsPolicyInfoBase rule;
    rule.isEnabled = node.GetBoolAttribute(names::IsEnabled);
    rule.keepCount = util::safe_cast<std::int32_t>(node.GetUint64Attribute(keepCountName<TTraits>(isShortNames)));
    rule.beginTimeUtc = parseBeginTime(node.GetAttribute(names::BeginTimeUtc), elementName);
    rule.desiredTime = static_cast<std::int32_t>(node.GetInt64Attribute(names::DesiredTime));
    return rule;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to parse [%1].", getElementName(isShortNames), cause);
}

template struct SGfsPolicyInfoBase<SGfsWeeklyPolicyInfoTraits>;
template struct SGfsPolicyInfoBase<SMonthlyGfsPolicyInfoTraits>;
template struct SGfsPolicyInfoBase<SYearlyGfsPolicyInfoTraits>;

bool SGfsPolicyInfo::isExistInXml(const xmlpp::CXmlNode& node)
{
    return node.HasNode(names::GfsPolicy);
}

void SGfsPolicyInfo::toXml(xmlpp::CXmlNode& parent, bool isShortNames) const
{
    const xmlpp::CXmlUndo undo(parent);
    auto policyNode = parent.AddNode(names::GfsPolicy);
    toXmlImpl(policyNode, isShortNames);
}

void SGfsPolicyInfo::toXmlImpl(xmlpp::CXmlNode& policyNode, bool isShortNames) const
{
    static constexpr const char* attributes[] = {names::IsEnabled};
    const xmlpp::CXmlUndo undo(policyNode, attributes);
    policyNode.SetBoolAttribute(names::IsEnabled, isEnabled);
    writeRule(weekly, policyNode, isShortNames);
    writeRule(monthly, policyNode, isShortNames);
    writeRule(yearly, policyNode, isShortNames);
}

std::string SGfsPolicyInfo::toXmlString(bool isShortNames) const
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode(names::GfsPolicy);
    toXmlImpl(root, isShortNames);
    return document.Serialize();
}

SGfsPolicyInfo SGfsPolicyInfo::fromXml(const xmlpp::CXmlNode& parent, bool isShortNames)
{
    return fromXmlImpl(parent.GetFirstChildNode(names::GfsPolicy), isShortNames);
}

SGfsPolicyInfo SGfsPolicyInfo::fromXmlImpl(const xmlpp::CXmlNode& policyNode, bool isShortNames)
{
    SGfsPolicyInfo policy;
    policy.isEnabled = policyNode.GetBoolAttribute(names::IsEnabled);
    readRule(policyNode, isShortNames, policy.weekly);
    readRule(policyNode, isShortNames, policy.monthly);
    readRule(policyNode, isShortNames, policy.yearly);
    return policy;
}

bool operator==(const SGfsPolicyInfo& a, const SGfsPolicyInfo& b) noexcept
{
    return areEngagedAndEqual(a.weekly, b.weekly) && areEngagedAndEqual(a.monthly, b.monthly) &&
           areEngagedAndEqual(a.yearly, b.yearly);
}

} // namespace zelplatform::model::structs::gfs
