#include "commands.h"
#include "exit_code.h"
#include "manual.h"

void addMan(Dispatcher& commands)
{
    commands.define("man", "Print the manual page, for man -l -", [&commands](Session& session) {
        const auto page = usage::renderManPage(manualOf(commands.tree()));
        if (session.output.isJson())
            session.output.printJson("man", "", {{"text", page}});
        else
            session.output.print(page);
        return exit_code::Fine;
    });
}
