#include "repair.h"

#include <algorithm>
#include <utility>

#include "accepted_values.h"

namespace check
{
namespace
{

using xmlpp::CXmlNode;
using xmlpp::ELookup;
using xmlpp::SLookup;

/// The most questions of readers that the repairs of one document may take: a second or so.
constexpr std::size_t MostQuestions = 4UL * 1000 * 1000;

/// So many elements of a document take as long as a question: a reader walks past them several times.
constexpr std::size_t ElementsOfAQuestion = 4;

/// How far a fault may lie before the last question: rules of whole records are looked at after their last part.
constexpr std::size_t FarthestFault = 256;

bool isSameQuestion(const SLookup& a, const SLookup& b)
{
    return a.kind == b.kind && a.node.GetId() == b.node.GetId() && (a.kind == ELookup::Visit || a.name == b.name);
}

bool endsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// Refusals quote values in brackets of two kinds, or behind their last word.
bool quotes(const std::vector<std::string>& sentences, const std::string& value)
{
    return std::any_of(sentences.begin(), sentences.end(), [&](const std::string& sentence) {
        return sentence.find('[' + value + ']') != std::string::npos ||
               sentence.find('(' + value + ')') != std::string::npos || endsWith(sentence, ' ' + value);
    });
}

int lineOf(const SLookup& lookup)
{
    const xmlpp::CLookupPause pause;
    const int line = lookup.node.GetLine();
    if (lookup.kind != ELookup::Attribute || line == 0)
        return line;
    for (const auto& attribute : lookup.node.GetAttributes())
    {
        if (attribute.name == lookup.name)
            return attribute.line != 0 ? attribute.line : line;
    }
    return line;
}

// Where the last question was asked for the first time.
std::size_t firstAsked(const std::vector<SLookup>& lookups)
{
    const auto found = std::find_if(lookups.begin(), lookups.end(),
                                    [&](const SLookup& lookup) { return isSameQuestion(lookup, lookups.back()); });
    return static_cast<std::size_t>(found - lookups.begin());
}

// The sentences without the values in their brackets.
std::string withoutValues(const std::vector<std::string>& sentences)
{
    std::string text;
    bool isValue = false;
    for (const auto& sentence : sentences)
    {
        for (const char c : sentence)
        {
            isValue = c == '[' || (isValue && c != ']');
            if (!isValue)
                text += c;
        }
    }
    return text;
}

std::size_t countElements(const CXmlNode& node)
{
    std::size_t count = 0;
    for (const auto& child : node.GetChildNodes())
        count += 1 + countElements(child);
    return count;
}

bool isOtherRefusal(const Attempt& attempt, const Attempt& refused, const std::string& value)
{
    return withoutValues(attempt.sentences) != withoutValues(refused.sentences) && !quotes(attempt.sentences, value);
}

} // namespace

// A part that is missing is at fault when the refusal says so: readers ask for many parts that may be missing.
bool isNamed(const SLookup& lookup, const Attempt& refused)
{
    return refused.sentences.back().find(lookup.name) != std::string::npos;
}

Repair::Repair(const describe::Document& document) : m_document(document)
{
    const xmlpp::CLookupPause pause;
    m_walking = countElements(document.top()) / ElementsOfAQuestion;
}

// The reader must go the same way as before, and come further. After the part that was asked for last, its value may
// lead another way; but when the reader still refuses, it must refuse something else than that value.
bool Repair::passes(const Attempt& refused, const std::optional<std::string>& lastValue)
{
    const auto attempt = readDocument(m_document);
    m_questions += attempt.lookups.size() + m_walking + 1;
    const auto& before = refused.lookups;
    const auto& after = attempt.lookups;
    const bool isOther = lastValue && isOtherRefusal(attempt, refused, *lastValue);
    const bool isFurther = attempt.tree || after.size() > before.size() || isOther;
    const auto sameWay = lastValue ? firstAsked(before) + 1 : before.size();
    return isFurther && after.size() >= sameWay &&
           std::equal(before.begin(), before.begin() + static_cast<std::ptrdiff_t>(sameWay), after.begin(),
                      isSameQuestion);
}

bool Repair::tryAttribute(CXmlNode node, const SLookup& lookup, const Attempt& refused, bool isLast)
{
    if (!lookup.isFound && !isLast)
        return false;
    const std::string before(lookup.isFound ? node.GetAttribute(lookup.name) : "");
    for (const auto& value : valuesToTry(lookup.name, before))
    {
        if (!value && !(isLast && lookup.isFound))
            continue;
        if (value)
            node.SetAttribute(lookup.name, *value);
        else
            node.RemoveAttribute(lookup.name);
        if (passes(refused, isLast ? value : std::nullopt))
            return true;
    }
    if (lookup.isFound)
        node.SetAttribute(lookup.name, before);
    else
        node.RemoveAttribute(lookup.name);
    return false;
}

bool Repair::tryText(CXmlNode node, const Attempt& refused, bool isLast)
{
    const auto before = node.GetInnerText();
    for (const auto& value : valuesToTry(node.GetName(), before))
    {
        if (!value)
            continue;
        node.SetInnerText(*value);
        if (passes(refused, isLast ? value : std::nullopt))
            return true;
    }
    node.SetInnerText(before);
    return false;
}

bool Repair::tryName(CXmlNode node, const Attempt& refused)
{
    const auto before = node.GetName();
    for (const auto& name : namesToTry(before))
    {
        node.SetName(name);
        if (passes(refused, name))
            return true;
    }
    node.SetName(before);
    return false;
}

bool Repair::tryPart(const SLookup& lookup, const Attempt& refused, bool isLast)
{
    if (!lookup.isFound && !isNamed(lookup, refused))
        return false;
    auto node = lookup.node;
    switch (lookup.kind)
    {
    case ELookup::Attribute: return tryAttribute(node, lookup, refused, isLast);
    case ELookup::Text: return tryText(node, refused, isLast);
    case ELookup::Visit: return isLast && tryName(node, refused);
    case ELookup::FirstChild: break;
    case ELookup::NamedChildren:
    case ELookup::AllChildren: return false;
    }
    if (lookup.isFound || !isLast)
        return false;
    node.AddNode(lookup.name);
    return passes(refused, std::nullopt);
}

Fault Repair::found(const SLookup& lookup, std::string owner, int line)
{
    const bool isFirst = m_repaired.insert({lookup.node.GetId(), lookup.name}).second;
    return {lookup, std::move(owner), line, !isFirst || line == 0};
}

std::optional<Fault> Repair::repair(const Attempt& refused)
{
    const auto& lookups = refused.lookups;
    const auto last = lookups.size();
    const auto first = last > FarthestFault ? last - FarthestFault : 0;
    for (auto i = last; i > first && m_questions < MostQuestions; --i)
    {
        const auto& lookup = lookups[i - 1];
        const int line = lineOf(lookup);
        const auto owner = lookup.node.GetName();
        if (tryPart(lookup, refused, i == last))
            return found(lookup, owner, line);
    }
    // A few refusals do not say what is missing.
    if (last == 0 || lookups.back().isFound || lookups.back().kind != ELookup::Attribute)
        return std::nullopt;
    const auto& lookup = lookups.back();
    const int line = lineOf(lookup);
    if (tryAttribute(lookup.node, lookup, refused, true))
        return found(lookup, lookup.node.GetName(), line);
    return std::nullopt;
}

} // namespace check
