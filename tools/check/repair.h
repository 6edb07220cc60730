#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include <zelplatform/xmlpp/lookup_record.h>

#include "attempt.h"
#include "describe/document.h"

namespace check
{

/// Where the fault of a refusal lies.
struct Fault
{
    xmlpp::SLookup lookup; ///< the question of the reader for the part that is at fault
    std::string owner;     ///< the element that was asked, under its first name
    int line;
    bool isConsequence; ///< of an earlier repair: it lies in what that has added or changed
};

/// True when the refusal names what was looked for.
bool isNamed(const xmlpp::SLookup& lookup, const Attempt& refused);

/// Repairs a document in memory so that its reader comes further, fault by fault. The text behind it stays as it is.
class Repair
{
public:
    explicit Repair(const describe::Document& document);

    /// Finds the fault behind a refusal by trying: the part that was asked for last, then those before it. Nothing when
    /// no change to any of them lets the reader pass, or when too much was tried already; the document is unchanged
    /// then.
    std::optional<Fault> repair(const Attempt& refused);

private:
    bool tryPart(const xmlpp::SLookup& lookup, const Attempt& refused, bool isLast);
    bool tryAttribute(xmlpp::CXmlNode node, const xmlpp::SLookup& lookup, const Attempt& refused, bool isLast);
    bool tryText(xmlpp::CXmlNode node, const Attempt& refused, bool isLast);
    bool tryName(xmlpp::CXmlNode node, const Attempt& refused);
    Fault found(const xmlpp::SLookup& lookup, std::string owner, int line);
    bool passes(const Attempt& refused, const std::optional<std::string>& lastValue);

    const describe::Document& m_document;
    std::set<std::pair<const void*, std::string>> m_repaired; ///< the element and the name
    std::size_t m_walking;                                    ///< through all elements once, in questions
    std::size_t m_questions = 0;                              ///< that the readers have asked so far
};

} // namespace check
