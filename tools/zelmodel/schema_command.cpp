#include <memory>
#include <string>

#include "commands.h"
#include "exit_code.h"
#include "schemas/answer.h"
#include "schemas/schema.h"

namespace
{

struct Arguments
{
    std::string kind;
    std::string answer; ///< one of the two is empty
    bool isRelaxNg = false;
};

/// A schema that was asked for.
struct Schema
{
    std::string of;
    const char* language;
    std::string text;
};

Schema schemaOf(const Arguments& arguments)
{
    if (!arguments.answer.empty())
        return {arguments.answer, "JSON Schema", schemas::answerSchemaOf(arguments.answer)};
    if (arguments.isRelaxNg)
        return {arguments.kind, "RELAX NG", schemas::schemaOf(arguments.kind, schemas::ESchema::Read)};
    return {arguments.kind, "XSD", schemas::schemaOf(arguments.kind, schemas::ESchema::Written)};
}

int print(const Arguments& arguments, Session& session)
{
    const auto schema = schemaOf(arguments);
    if (session.output.isJson())
        session.output.printJson("schema", "",
                                 {{"of", schema.of}, {"language", schema.language}, {"text", schema.text}});
    else
        session.output.print(schema.text);
    return exit_code::Fine;
}

void checkArguments(const Arguments& arguments)
{
    if (arguments.kind.empty() && arguments.answer.empty())
        throw UsageError("schema", "Give either KIND or --answer");
}

} // namespace

void addSchema(Dispatcher& commands)
{
    const auto arguments = std::make_shared<Arguments>();
    auto command = commands.define("schema", "Print a schema of documents or of answers, for other programs",
                                   [arguments](Session& session) { return print(*arguments, session); });
    command.add("KIND", arguments->kind, "The kind of document").oneOf(schemas::kinds());
    command
        .add("--answer", arguments->answer,
             "The JSON Schema of what a command answers with --json; error is what each answers when it fails")
        .typeName("COMMAND")
        .oneOf(schemas::answers())
        .excludes("KIND");
    command
        .addFlag("--relaxng", arguments->isRelaxNg,
                 "The RELAX NG schema of what is read, in place of the XSD of what is written")
        .excludes("--answer");
    command.check([arguments] { checkArguments(*arguments); });
}
