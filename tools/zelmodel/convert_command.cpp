#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include <unistd.h>

#include <zelplatform/exc/exc.h>

#include "commands.h"
#include "describe/conversion.h"
#include "describe/terminal_text.h"
#include "document_output.h"
#include "exit_code.h"
#include "files/new_file.h"
#include "files/replace_file.h"

namespace
{

using describe::Conversion;
using nlohmann::ordered_json;

struct Arguments
{
    std::string file;
    std::optional<std::string> output; ///< nothing: standard output, or the file itself
    bool isInPlace = false;

    bool isPrinted() const noexcept { return !output && !isInPlace; }
};

/// What was written, as members of the JSON.
using Written = ordered_json;

bool isTerminal()
{
    return ::isatty(STDOUT_FILENO) != 0;
}

Written writeInPlace(const Arguments& arguments, const std::string& text, const Conversion& conversion)
{
    if (conversion.markup.enclosing.line != 0)
        throw exc::CRuntimeExc("The document stands inside of another one, which would be lost. Convert it into a file "
                               "of its own.");
    if (text == conversion.text)
        return {{"output", arguments.file}, {"unchanged", true}};
    return {{"output", arguments.file}, {"backup", files::replaceFile(arguments.file, conversion.text)}};
}

Written writeAsTold(const Arguments& arguments, const std::string& text, const Conversion& conversion, bool isShown)
{
    if (arguments.isInPlace)
        return writeInPlace(arguments, text, conversion);
    if (!arguments.output)
        return isShown ? Written{{"document", conversion.text}} : Written{{"documentHidden", true}};
    files::writeNewFile(*arguments.output, conversion.text);
    return {{"output", *arguments.output}};
}

void tellWritten(const Written& written)
{
    if (written.contains("unchanged"))
        std::cerr << "Unchanged: it is in the current form\n";
    if (written.contains("backup"))
        std::cerr << "Backup: " << describe::printable(written["backup"].get<std::string>()) << '\n';
}

Conversion readAndConvert(const Arguments& arguments, std::string& text, Session& session)
{
    session.reading = Reading{arguments.file, std::nullopt};
    text = readInput(arguments.file);
    const auto& document = parseDocument(arguments.file, text, session.reading);
    const auto kind = document.kind();
    const auto tree = document.describe();
    // What is refused from here on stands on no line.
    session.reading.document.reset();
    return describe::convert(text, kind, tree);
}

int convert(const Arguments& arguments, Session& session)
{
    std::string text;
    const auto conversion = readAndConvert(arguments, text, session);
    const auto& style = session.output.style();
    const bool isShown = !conversion.holdsSecrets || style.showsSecrets;
    if (arguments.isPrinted() && !session.output.isJson() && isTerminal() && !isShown)
    {
        std::cerr << describe::printable(shownName(arguments.file))
                  << ": holds secrets, which the terminal would show. Use --reveal, -o, --in-place or a pipe.\n";
        return exit_code::Usage;
    }
    if (arguments.output)
        session.reading.name = *arguments.output;
    const auto written = writeAsTold(arguments, text, conversion, isShown);
    if (session.output.isJson())
    {
        auto body = written;
        body.update(describe::toJson(conversion, style));
        session.output.printJson("conversion", arguments.file, body);
        return exit_code::Fine;
    }
    if (arguments.isPrinted())
        printDocument(conversion.text.substr(0, conversion.text.size() - 1));
    std::cerr << describe::renderConversion(conversion, style);
    tellWritten(written);
    return exit_code::Fine;
}

} // namespace

void addConvert(Dispatcher& commands)
{
    const auto arguments = std::make_shared<Arguments>();
    auto command = commands.define("convert", "Write a document of any form in the current form of the agent",
                                   [arguments](Session& session) { return convert(*arguments, session); });
    command.add("FILE", arguments->file, "A document; - is standard input").required();
    command.add("-o,--output", arguments->output, "A new file for the document; standard output unless given")
        .typeName("FILE");
    command.addFlag("--in-place", arguments->isInPlace, "Replace the file, and keep the old one as FILE.orig")
        .excludes("--output");
    command.check([arguments] {
        if (arguments->file == StandardInput && arguments->isInPlace)
            throw UsageError("--in-place", "Standard input is no file");
    });
}
