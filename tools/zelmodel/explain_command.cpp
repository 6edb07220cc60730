#include <memory>
#include <string>
#include <vector>

#include "check/rule_tree.h"
#include "commands.h"
#include "describe/json_renderer.h"
#include "describe/nearest_name.h"
#include "describe/text_renderer.h"
#include "exit_code.h"

namespace
{

std::vector<std::string> knownIds()
{
    std::vector<std::string> known;
    for (const auto& rule : check::allRules())
        known.emplace_back(rule.id);
    return known;
}

void checkId(const std::string& id)
{
    if (id.empty() || check::findRule(id) != nullptr)
        return;
    const auto nearest = describe::nearestName(id, knownIds());
    throw UsageError("ID", "[" + id + "] is no finding of check" +
                               (nearest.empty() ? "" : "; did you mean " + nearest + '?'));
}

int explain(const std::string& id, Session& session)
{
    const auto& output = session.output;
    const auto tree = id.empty() ? check::describeRules() : check::describeRule(*check::findRule(id));
    if (output.isJson())
        output.printJson("explain", "", {{tree.name, describe::toJson(tree, output.style())}});
    else
        output.print(id.empty() ? describe::renderTable(tree, output.style())
                                : describe::renderText(tree, output.style()));
    return exit_code::Fine;
}

} // namespace

void addExplain(Dispatcher& commands)
{
    const auto id = std::make_shared<std::string>();
    auto command = commands.define("explain", "Tell cause and cure of a finding of check, or list all of them",
                                   [id](Session& session) { return explain(*id, session); });
    command.add("ID", *id, "The identifier in square brackets at the end of a finding").suggest(knownIds);
    command.check([id] { checkId(*id); });
}
