#pragma once

#include <string>
#include <vector>

#include "rule.h"

namespace check
{

/// Something that is wrong with a document, or looks like it.
struct Finding
{
    const Rule* rule;                   ///< never empty
    int line;                           ///< 0 when none is known
    std::string text;                   ///< one sentence; may hold anything that the document holds, but no secret
    std::vector<std::string> sentences; ///< of a refusal: the library's own, outermost first
};

/// Collects findings.
class Findings
{
public:
    void add(const char* ruleId, int line, std::string text, std::vector<std::string> sentences = {});

    /// Sorted by line, equal ones once; those of one line in the order in which they were found.
    std::vector<Finding> sorted() &&;

private:
    std::vector<Finding> m_findings;
};

} // namespace check
