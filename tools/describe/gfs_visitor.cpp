#include "visitors.h"

#include <optional>
#include <utility>

#include <zelplatform/util/util.h>

#include "document_names.h"
#include "words.h"

namespace describe
{
namespace
{

using zelplatform::model::structs::gfs::SGfsPolicyInfo;
using zelplatform::model::structs::gfs::SGfsPolicyInfoBase;

struct RuleWords
{
    const char* name;
    const char* label;
    const char* point; ///< what one kept restore point is
};

template <class TTraits>
std::string tellBegin(const SGfsPolicyInfoBase<TTraits>& rule)
{
    if (rule.beginTimeUtc.toUnixTime() == 0)
        return "effective at once";
    return "effective from " + isoDate(rule.beginTimeUtc) + ' ' + clockTime(rule.beginTimeUtc) + " UTC on";
}

template <class TTraits>
std::string tellRule(const SGfsPolicyInfoBase<TTraits>& rule, const RuleWords& words)
{
    const auto kept = countOf(static_cast<unsigned long>(rule.keepCount), words.point) + ", " + tellBegin(rule) +
                      ", slot " + util::toStr(rule.desiredTime);
    return rule.isEnabled ? "keeps " + kept : "off (set to keep " + kept + ")";
}

template <class TTraits>
Node visitRule(const std::optional<SGfsPolicyInfoBase<TTraits>>& rule, const RuleWords& words, const Place& policy,
               bool isShortNames)
{
    const auto place = policy.child(SGfsPolicyInfoBase<TTraits>::getElementName(isShortNames));
    if (!rule)
        return makeDetail(words.name, words.label, "", "none", place.origin());
    auto node = makeField(words.name, words.label, "", tellRule(*rule, words), place.origin());
    const auto detail = [&](const char* name, const char* label, const Value& value, const char* attribute) {
        node.children.push_back(makeDetail(name, label, value, value.text, place.originOf(attribute)));
    };
    detail("isEnabled", "Enabled", rule->isEnabled, job_names::IsEnabled);
    detail("keepCount", "Kept", rule->keepCount, isShortNames ? TTraits::ShortKeepCount : TTraits::LongKeepCount);
    detail("beginTimeUtc", "Effective from", rule->beginTimeUtc.toStdString(datetime::CDateTime::QorDateFormat),
           job_names::BeginTimeUtc);
    detail("desiredTime", "Slot", rule->desiredTime, job_names::DesiredTime);
    return node;
}

std::string tellPolicy(const SGfsPolicyInfo& policy)
{
    const bool hasRules = policy.weekly || policy.monthly || policy.yearly;
    if (policy.isEnabled)
        return hasRules ? "on" : "on, but without rules";
    return hasRules ? "off, its rules are not in force" : "off";
}

} // namespace

Node visitGfsPolicy(const SGfsPolicyInfo& policy, const Place& place, bool isShortNames)
{
    auto node = makeField("gfsPolicy", "GFS policy", "", tellPolicy(policy), place.origin());
    node.children.push_back(makeDetail("isEnabled", "Enabled", policy.isEnabled, flagText(policy.isEnabled),
                                       place.originOf(job_names::IsEnabled)));
    node.children.push_back(
        visitRule(policy.weekly, {"weekly", "Weekly", "weekly restore point"}, place, isShortNames));
    node.children.push_back(
        visitRule(policy.monthly, {"monthly", "Monthly", "monthly restore point"}, place, isShortNames));
    node.children.push_back(
        visitRule(policy.yearly, {"yearly", "Yearly", "yearly restore point"}, place, isShortNames));
    return node;
}

} // namespace describe
