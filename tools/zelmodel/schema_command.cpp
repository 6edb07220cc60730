#include <memory>
#include <string>

#include "commands.h"
#include "exit_code.h"
#include "schemas/schema.h"

void addSchema(Dispatcher& commands)
{
    struct Options
    {
        std::string kind;
        bool isRelaxNg = false;
    };
    const auto options = std::make_shared<Options>();
    auto command = commands.define(
        "schema", "Print the schema of a kind of document, for programs in other languages",
        [options](Session& session) {
            const auto which = options->isRelaxNg ? schemas::ESchema::Read : schemas::ESchema::Written;
            const auto text = schemas::schemaOf(options->kind, which);
            if (session.output.isJson())
                session.output.printJson(
                    "schema", "",
                    {{"of", options->kind}, {"language", options->isRelaxNg ? "RELAX NG" : "XSD"}, {"text", text}});
            else
                session.output.print(text);
            return exit_code::Fine;
        });
    command.add("KIND", options->kind, "The kind of document").required().oneOf(schemas::kinds());
    command.addFlag("--relaxng", options->isRelaxNg,
                    "The RELAX NG schema of what is read, in place of the XSD of what is written");
}
