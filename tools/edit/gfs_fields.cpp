#include "field_tables.h"

#include <cstdint>
#include <functional>

#include <zelplatform/datetime/date_time.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace edit
{
namespace
{

using zelplatform::model::structs::gfs::SGfsPolicyInfo;

constexpr const char* NoRule = "none";

template <class TRule>
using Member = std::optional<TRule> SGfsPolicyInfo::*;

// A rule that is not there begins as the library's own, which is off.
template <class TRule>
TRule& ruleOf(SGfsPolicyInfo& policy, Member<TRule> member)
{
    auto& rule = policy.*member;
    return rule ? *rule : rule.emplace();
}

template <class TRule>
Fields<TRule> ruleFields()
{
    using Text = const std::string&;
    return {
        {"isEnabled", "true or false", [](TRule& rule, Text text) { rule.isEnabled = util::str_to_bool(text); }},
        {"keepCount", "how many restore points are kept",
         [](TRule& rule, Text text) { rule.keepCount = util::fromStr<std::int32_t>(text); }},
        {"beginTimeUtc", "MM/DD/YYYY HH:MM:SS in UTC",
         [](TRule& rule, Text text) {
             rule.beginTimeUtc = datetime::CDateTime::fromString(text, datetime::CDateTime::QorDateFormat);
         }},
        {"desiredTime", "a number",
         [](TRule& rule, Text text) { rule.desiredTime = util::fromStr<std::int32_t>(text); }},
    };
}

template <class TRule>
void addRule(Fields<SGfsPolicyInfo>& fields, const char* name, Member<TRule> member)
{
    fields.push_back({name, std::string(NoRule) + ", which removes the rule",
                      [member](SGfsPolicyInfo& policy, const std::string& text) {
                          if (text != NoRule)
                              throw exc::CRuntimeExc("A rule as a whole takes the text [%1] only.", NoRule);
                          (policy.*member).reset();
                      }});
    addPart(fields, name, ruleFields<TRule>(),
            [member](SGfsPolicyInfo& policy) { return std::ref(ruleOf(policy, member)); });
}

Fields<SGfsPolicyInfo> makeGfsFields()
{
    Fields<SGfsPolicyInfo> fields{{"isEnabled", "true or false", [](SGfsPolicyInfo& policy, const std::string& text) {
                                       policy.isEnabled = util::str_to_bool(text);
                                   }}};
    addRule(fields, "weekly", &SGfsPolicyInfo::weekly);
    addRule(fields, "monthly", &SGfsPolicyInfo::monthly);
    addRule(fields, "yearly", &SGfsPolicyInfo::yearly);
    return fields;
}

} // namespace

const Fields<SGfsPolicyInfo>& gfsFields()
{
    static const auto fields = makeGfsFields();
    return fields;
}

} // namespace edit
