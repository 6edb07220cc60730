#include <memory>
#include <string>
#include <vector>

#include "commands.h"
#include "exit_code.h"
#include "usage/completions.h"

namespace
{

struct Shell
{
    const char* name;
    std::string (*render)(const usage::Command& program);
};

constexpr Shell Shells[] = {
    {"bash", usage::renderBashCompletion}, {"zsh", usage::renderZshCompletion}, {"fish", usage::renderFishCompletion}};

std::string scriptFor(const std::string& shell, const usage::Command& program)
{
    std::string script;
    for (const auto& [name, render] : Shells)
    {
        if (shell == name)
            script = render(program);
    }
    return script;
}

} // namespace

void addCompletion(Dispatcher& commands)
{
    const auto shell = std::make_shared<std::string>();
    auto command = commands.define(
        "completion", "Print a script that completes this command in a shell", [&commands, shell](Session& session) {
            const auto script = scriptFor(*shell, commands.tree());
            if (session.output.isJson())
                session.output.printJson("completion", "", {{"shell", *shell}, {"text", script}});
            else
                session.output.print(script);
            return exit_code::Fine;
        });
    std::vector<std::string> names;
    for (const auto& one : Shells)
        names.emplace_back(one.name);
    command.add("SHELL", *shell, "The shell").required().oneOf(names);
}
