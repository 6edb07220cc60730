#include "check.h"

#include <cstdlib>
#include <string_view>
#include <utility>

#include "repair.h"
#include "rules.h"
#include "subject.h"

namespace check
{
namespace
{

using xmlpp::ELookup;
using zelplatform::model::structs::BackupWindow;

constexpr int MostFaults = 64;

const char* ruleOf(const xmlpp::SLookup& lookup)
{
    if (lookup.isFound)
        return rule_id::RefusedValue;
    return lookup.kind == ELookup::Attribute ? rule_id::MissingAttribute : rule_id::MissingElement;
}

// Of a refusal that cannot be repaired.
const char* ruleOf(const Attempt& attempt)
{
    if (attempt.lookups.empty())
        return rule_id::UnknownDocument;
    const auto& last = attempt.lookups.back();
    return isNamed(last, attempt) ? ruleOf(last) : rule_id::RefusedValue;
}

// The library's last sentence names what is missing, but not whose value it refuses.
std::string tellFault(const Fault& fault, const std::string& sentence)
{
    if (!fault.lookup.isFound)
        return sentence;
    if (fault.lookup.kind == ELookup::Attribute)
        return fault.lookup.name + " of " + fault.owner + ": " + sentence;
    return fault.owner + ": " + sentence;
}

// "Unable to parse XML at line 3: [...]."
int lineOfMalformed(const std::string& sentence)
{
    const std::string before = "at line ";
    const auto at = sentence.find(before);
    return at == std::string::npos ? 0 : std::atoi(sentence.c_str() + at + before.size());
}

/// Checks one document.
class Check
{
public:
    Check(const BackupWindow* window, Findings& findings) : m_window(window), m_findings(findings) {}

    void checkText(const std::string& text)
    {
        std::vector<std::string> sentences;
        const auto document = parseDocument(text, sentences);
        if (document)
            checkDocument(*document);
        else
            stop(rule_id::MalformedDocument, lineOfMalformed(sentences.back()), sentences);
    }

private:
    void checkDocument(const describe::Document& document)
    {
        const auto reading = readAll(document);
        if (!reading.tree)
            return;
        // What was missing was added by the repairs, and may be what a misspelled name was meant for.
        m_missed.insert(m_missed.end(), reading.lookups.begin(), reading.lookups.end());
        const Subject subject{document, reading, document.listIgnored(m_missed), m_window, m_repaired};
        checkNames(subject, m_findings);
        checkValues(subject, m_findings);
        checkCalendars(subject, m_findings);
        checkWindow(subject, m_findings);
        checkForms(subject, m_findings);
    }

    // The first reading that is accepted, or the last one that is refused.
    Attempt readAll(const describe::Document& document)
    {
        Repair repair(document);
        auto attempt = readDocument(document);
        for (int faults = 0; !attempt.tree; ++faults)
        {
            const auto fault = faults < MostFaults ? repair.repair(attempt) : std::nullopt;
            if (!fault)
            {
                stop(ruleOf(attempt), attempt.line, attempt.sentences);
                break;
            }
            take(*fault, attempt);
            attempt = readDocument(document);
        }
        return attempt;
    }

    void take(const Fault& fault, const Attempt& attempt)
    {
        m_repaired.insert({fault.line, fault.lookup.name});
        if (!fault.lookup.isFound)
            m_missed.push_back(fault.lookup);
        if (!fault.isConsequence)
            m_findings.add(ruleOf(fault.lookup), fault.line, tellFault(fault, attempt.sentences.back()),
                           attempt.sentences);
    }

    void stop(const char* rule, int line, const std::vector<std::string>& sentences)
    {
        const bool isUnknown = rule == std::string_view(rule_id::UnknownDocument);
        m_findings.add(rule, line, isUnknown ? sentences.front() : sentences.back(), sentences);
        m_findings.add(rule_id::RestNotChecked, line, "what stands behind this place was not checked");
    }

    const BackupWindow* m_window;
    Findings& m_findings;
    std::set<std::pair<int, std::string>> m_repaired;
    std::vector<xmlpp::SLookup> m_missed;
};

} // namespace

std::vector<Finding> checkText(const std::string& text, const BackupWindow* window)
{
    Findings findings;
    Check(window, findings).checkText(text);
    return std::move(findings).sorted();
}

std::vector<Finding> refuseText(const std::string& sentence)
{
    Findings findings;
    findings.add(rule_id::MalformedDocument, 0, sentence, {sentence});
    return std::move(findings).sorted();
}

std::shared_ptr<const BackupWindow> readWindow(const std::string& text)
{
    std::vector<std::string> sentences;
    const auto document = parseDocument(text, sentences);
    if (!document)
        return nullptr;
    const bool isWindow = document->kind() == describe::EDocumentKind::ScheduleWindow;
    if (isWindow && !readDocument(*document).tree)
        return nullptr;
    return document->readWindow();
}

} // namespace check
