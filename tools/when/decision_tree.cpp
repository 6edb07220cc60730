#include "decision_tree.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <zelplatform/util/util.h>

#include "describe/find_field.h"
#include "describe/visitors.h"
#include "describe/words.h"
#include "local_zone.h"

namespace when
{
namespace
{

using datetime::CDateTime;
using describe::EOrigin;
using describe::findField;
using describe::makeField;
using describe::Node;
using zelplatform::model::CDate;
using zelplatform::model::structs::CFullBackupOptions;

constexpr const char* Pointer = " <-- the first no";

/// Conditions of one part of the document, told with what its fields say.
class Teller
{
public:
    Teller(const Node& document, const char* part) : m_part(findField(document, part)) {}

    void add(const std::vector<Condition>& conditions, Node& node) const
    {
        const auto* first = firstNo(conditions);
        for (const auto& condition : conditions)
            add(condition, findField(*m_part, condition.field), "document: ", &condition == first, node);
    }

    static void add(const Condition& condition, const Node* field, const std::string& source, bool isFirstNo,
                    Node& node)
    {
        std::string words = condition.holds ? "yes" : isFirstNo ? "NO" : "no";
        if (!condition.asked.empty())
            words += ", " + condition.asked;
        const bool isDefault = field->origin.kind == EOrigin::Default;
        words += "; " + (isDefault ? "default: " : source) + field->words;
        node.children.push_back(makeField(condition.field, condition.label, condition.holds,
                                          words + (isFirstNo ? Pointer : ""), field->origin));
    }

private:
    const Node* m_part;
};

// What a window says of a day stands on the day's line, or follows from the kind when the day is not listed.
const Node& windowField(const Node& window, const CDateTime& moment)
{
    const auto* day = findField(window, util::tolower(describe::weekDay(moment)));
    return day->origin.isThere() ? *day : *findField(window, "kind");
}

void addConditions(const Decision& decision, const CDateTime& moment, const DocumentTrees& trees, Node& node)
{
    auto conditions = decision.conditions;
    const bool hasWindow = conditions.back().field == std::string(WindowField);
    if (hasWindow)
        conditions.pop_back();
    Teller(trees.document, "jobStart").add(conditions, node);
    if (hasWindow)
        Teller::add(decision.conditions.back(), &windowField(trees.window, moment), trees.nameOfWindow + ": ",
                    firstNo(decision.conditions) == &decision.conditions.back(), node);
}

std::string tellFull(const CFullBackupOptions& full, bool isDayOfFull, const Evaluation& evaluation, bool isStart)
{
    if (full.IsDisabled())
        return "no, it is disabled";
    if (!evaluation.calendar().IsActiveFullSupported())
        return "no, full backups are tied to weekly and monthly schedules only";
    if (!isDayOfFull)
        return "no, this is no day of it";
    return isStart ? "yes, the start makes it" : "no, this is a day of it but the job does not start";
}

void addFull(const Evaluation& evaluation, const CFullBackupOptions& full, const char* part, const CDate& date,
             const Decision& decision, const DocumentTrees& trees, Node& node)
{
    const auto conditions = conditionsOfDay(full, date);
    const auto* field = findField(trees.document, part);
    const bool isDayOfFull = firstNo(conditions) == nullptr;
    const bool isMade = decision.isStart && isDayOfFull && evaluation.calendar().IsActiveFullSupported();
    auto child =
        makeField(part, field->label, isMade, tellFull(full, isDayOfFull, evaluation, decision.isStart), field->origin);
    if (full.IsEnabled())
        Teller(trees.document, part).add(conditions, child);
    node.children.push_back(std::move(child));
}

std::string tellDecision(const Evaluation& evaluation, const CDateTime& moment, const Decision& decision)
{
    const auto* no = firstNo(decision.conditions);
    auto words = std::string(no == nullptr ? "starts" : "does not start") + " on " + describe::weekDay(moment) + ' ' +
                 describe::isoDate(moment) + " at " + describe::clockTime(moment) + ", " + tellZone(CDate(moment));
    if (evaluation.calendar().IsSchedulePeriodically())
        words += ", counted from 00:00 on " + describe::isoDate(evaluation.countedFrom());
    return words;
}

} // namespace

Node describeDecision(const Evaluation& evaluation, const CDateTime& moment, const Decision& decision,
                      const DocumentTrees& trees)
{
    const CDate date(moment);
    auto node = makeField("why", "", decision.isStart, tellDecision(evaluation, moment, decision));
    addConditions(decision, moment, trees, node);
    const auto& schedule = evaluation.schedule();
    addFull(evaluation, schedule.GetActiveFullOptions(), "activeFull", date, decision, trees, node);
    addFull(evaluation, schedule.GetSyntheticFullOptions(), "syntheticFull", date, decision, trees, node);
    const auto clock = tellClock(date, {moment});
    if (!clock.empty())
        node.children.push_back(makeField("clock", "Clock", clock, clock));
    return node;
}

} // namespace when
