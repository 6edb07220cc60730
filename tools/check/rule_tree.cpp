#include "rule_tree.h"

namespace check
{

using describe::makeField;
using describe::Node;

Node describeRule(const Rule& rule)
{
    auto node = makeField("rule", rule.id, rule.id, std::string(nameOf(rule.severity)) + ", " + rule.title);
    node.children.push_back(describe::makeDetail("class", "Class", nameOf(rule.severity), nameOf(rule.severity)));
    node.children.push_back(makeField("cause", "Cause", "", rule.cause));
    node.children.push_back(makeField("cure", "Cure", "", rule.cure));
    return node;
}

Node describeRules()
{
    auto list = makeField("rules", "Findings of check", "", "");
    list.isList = true;
    for (const auto& rule : allRules())
    {
        auto row = makeField("rule", "", rule.id, rule.title);
        row.children.push_back(makeField("id", "Id", rule.id, rule.id));
        row.children.push_back(makeField("class", "Class", nameOf(rule.severity), nameOf(rule.severity)));
        row.children.push_back(makeField("title", "What is found", rule.title, rule.title));
        list.children.push_back(std::move(row));
    }
    return list;
}

} // namespace check
