#include <memory>
#include <string>

#include "commands.h"
#include "describe/json_renderer.h"
#include "exit_code.h"

namespace
{

int show(const std::string& file, Session& session)
{
    const auto& document = openDocument(file, session.reading);
    const auto tree = document.describe();
    if (session.output.isJson())
        session.output.printJson("document", file, {{tree.name, describe::toJson(tree, session.output.style())}});
    else
        session.output.print(describe::renderText(tree, session.output.style()));
    return exit_code::Fine;
}

} // namespace

void addShow(Dispatcher& commands)
{
    const auto file = std::make_shared<std::string>();
    auto command = commands.define("show", "Tell in words what a document holds",
                                   [file](Session& session) { return show(*file, session); });
    command.add("FILE", *file, "A document of any kind; - is standard input").required();
}
