#include "finding.h"

#include <algorithm>
#include <utility>

namespace check
{

void Findings::add(const char* ruleId, int line, std::string text, std::vector<std::string> sentences)
{
    const auto* rule = findRule(ruleId);
    const bool isKnown = std::any_of(m_findings.begin(), m_findings.end(), [&](const Finding& finding) {
        return finding.rule == rule && finding.line == line && finding.text == text;
    });
    if (!isKnown)
        m_findings.push_back({rule, line, std::move(text), std::move(sentences)});
}

std::vector<Finding> Findings::sorted() &&
{
    std::stable_sort(m_findings.begin(), m_findings.end(),
                     [](const Finding& a, const Finding& b) { return a.line < b.line; });
    return std::move(m_findings);
}

} // namespace check
