#include <iostream>
#include <memory>
#include <string>

#include "commands.h"
#include "describe/conversion.h"
#include "exit_code.h"

namespace
{

struct Arguments
{
    std::string file;
};

int convert(const Arguments& arguments, Session& session)
{
    session.reading = Reading{arguments.file, std::nullopt};
    const auto text = readInput(arguments.file);
    const auto& document = session.reading.document.emplace(text);
    const auto kind = document.kind();
    const auto tree = document.describe();
    // What is refused from here on stands on no line.
    session.reading.document.reset();
    const auto conversion = describe::convert(text, kind, tree);
    session.output.print(conversion.text);
    std::cerr << describe::renderConversion(conversion, session.output.style());
    return exit_code::Fine;
}

} // namespace

void addConvert(Dispatcher& commands)
{
    auto& command = commands.define("convert", "Write a document of any form in the current form of the agent");
    const auto arguments = std::make_shared<Arguments>();
    command.add_option("FILE", arguments->file, "A document; - is standard input")->required();
    commands.setWork(command, [arguments](Session& session) { return convert(*arguments, session); });
}
