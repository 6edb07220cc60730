#include <memory>
#include <string>

#include "commands.h"
#include "describe/diff_renderer.h"
#include "exit_code.h"

namespace
{

struct Arguments
{
    std::string first;
    std::string second;
};

std::string readText(const std::string& name, Session& session)
{
    session.reading = Reading{name, std::nullopt};
    return readInput(name);
}

describe::DocumentSide describeSide(const std::string& name, const std::string& text, Session& session)
{
    const auto& document = parseDocument(name, text, session.reading);
    const auto kind = document.kind();
    return {shownName(name), kind, document.describe()};
}

int diff(const Arguments& arguments, Session& session)
{
    // A file that cannot be read is worse than one that is refused.
    const auto firstText = readText(arguments.first, session);
    const auto secondText = readText(arguments.second, session);
    const auto first = describeSide(arguments.first, firstText, session);
    const auto second = describeSide(arguments.second, secondText, session);
    const auto diff = describe::compareDocuments(first, second);
    const auto& style = session.output.style();
    if (session.output.isJson())
    {
        nlohmann::ordered_json body{{"secondFile", second.name}};
        body.update(describe::toJson(diff, style));
        session.output.printJson("diff", arguments.first, body);
    }
    else
        session.output.print(describe::renderDiff(diff, first, second, style));
    return diff.isSame() ? exit_code::Fine : exit_code::Findings;
}

} // namespace

void addDiff(Dispatcher& commands)
{
    const auto arguments = std::make_shared<Arguments>();
    auto command = commands.define("diff", "Tell field by field in what two documents differ",
                                   [arguments](Session& session) { return diff(*arguments, session); });
    command.add("A", arguments->first, "A document; - is standard input").required().typeName("FILE");
    command.add("B", arguments->second, "A document of the same kind, in any form").required().typeName("FILE");
    command.check([arguments] {
        if (arguments->first == StandardInput && arguments->second == StandardInput)
            throw UsageError("B", "Standard input can be read only once");
    });
}
