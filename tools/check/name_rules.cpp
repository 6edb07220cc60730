#include "rules.h"

namespace check
{
namespace
{

using describe::EPart;
using describe::IgnoredPart;

const char* ruleOf(const IgnoredPart& part)
{
    if (part.part == EPart::Text)
        return rule_id::IgnoredText;
    return part.isRepeated ? rule_id::RepeatedElement : rule_id::UnknownName;
}

} // namespace

void checkNames(const Subject& subject, Findings& findings)
{
    for (const auto& part : subject.ignored)
    {
        const auto remedy = describe::tellRemedy(part);
        findings.add(ruleOf(part), part.line,
                     describe::tellPart(part) + " is ignored" + (remedy.empty() ? "" : ": " + remedy));
    }
}

} // namespace check
