#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "commands.h"
#include "describe/conversion.h"
#include "describe/diff_renderer.h"
#include "describe/json_renderer.h"
#include "describe/terminal_text.h"
#include "document_output.h"
#include "edit/field_list.h"
#include "edit/fields.h"
#include "exit_code.h"
#include "files/new_file.h"
#include "files/replace_file.h"

namespace
{

struct Arguments
{
    std::string file;
    std::vector<std::string> values; ///< "FIELD=VALUE"
    std::string output;              ///< empty: standard output, or the file itself
    bool isInPlace = false;
    bool listsFields = false;

    bool isPrinted() const noexcept { return output.empty() && !isInPlace; }
};

/// A document, and what becomes of it.
struct Change
{
    edit::WrittenDocument after;
    std::vector<describe::Difference> differences;
    describe::Conversion conversion; ///< what writing it takes from the document, whatever is set
};

/// Where the document went, as members of the JSON.
using Written = nlohmann::ordered_json;

edit::Assignment assignmentOf(const std::string& value)
{
    const auto equals = value.find('=');
    if (equals == std::string::npos || equals == 0)
        throw UsageError("FIELD=VALUE", "[" + value + "] is not of this form");
    return {value.substr(0, equals), value.substr(equals + 1)};
}

void checkArguments(const Arguments& arguments)
{
    if (arguments.listsFields != arguments.values.empty())
        throw UsageError("set", "Give either FIELD=VALUE or --fields");
    if (arguments.file == StandardInput && arguments.isInPlace)
        throw UsageError("--in-place", "Standard input is no file");
    for (const auto& value : arguments.values)
        assignmentOf(value);
}

// The differences are those of the change: writing alone adds none of its own to them.
describe::Conversion conversionOf(const std::string& text, const describe::Document& document,
                                  const describe::Node& tree)
{
    auto conversion = describe::convert(text, document.kind(), tree);
    conversion.differences.clear();
    return conversion;
}

Change change(const Arguments& arguments, Session& session)
{
    session.reading = Reading{arguments.file, std::nullopt};
    const auto text = readInput(arguments.file);
    const auto& document = parseDocument(arguments.file, text, session.reading);
    const auto before = document.describe();
    auto record = edit::readRecord(document);
    auto conversion = conversionOf(text, document, before);
    // From here on a refusal is about no line of the document.
    session.reading.document.reset();
    for (const auto& value : arguments.values)
        edit::setField(record, assignmentOf(value));
    auto after = edit::writeRecord(record);
    auto differences = describe::compareTrees(before, after.tree).differences;
    return {std::move(after), std::move(differences), std::move(conversion)};
}

Written writeAsTold(const Arguments& arguments, const Change& change, Session& session)
{
    const auto text = change.after.text + '\n';
    if (arguments.isInPlace)
    {
        // Nothing was asked for that the file does not hold already.
        if (change.differences.empty())
            return {{"output", arguments.file}, {"unchanged", true}};
        return {{"output", arguments.file}, {"backup", files::replaceFile(arguments.file, text)}};
    }
    if (arguments.output.empty())
        return {{"document", text}};
    session.reading.name = arguments.output;
    files::writeNewFile(arguments.output, text);
    return {{"output", arguments.output}};
}

void tellChange(const Arguments& arguments, const Change& change, const Written& written, const Session& session)
{
    const auto& style = session.output.style();
    const bool isLeft = written.contains("unchanged");
    if (change.differences.empty())
        std::cerr << describe::printable(shownName(arguments.file)) << ": nothing changed\n";
    std::cerr << describe::renderDifferences(change.differences, {"removed", "added", false}, style);
    if (!isLeft)
        std::cerr << describe::renderConversion(change.conversion, style);
    if (written.contains("backup"))
        std::cerr << "Backup: " << describe::printable(written["backup"].get<std::string>()) << '\n';
}

int set(const Arguments& arguments, Session& session)
{
    const auto changed = change(arguments, session);
    const auto written = writeAsTold(arguments, changed, session);
    if (session.output.isJson())
    {
        const auto& style = session.output.style();
        auto body = written;
        body["changes"] = describe::toJson(changed.differences, style);
        body["conversion"] = describe::toJson(changed.conversion, style);
        session.output.printJson("set", arguments.file, body);
        return exit_code::Fine;
    }
    if (arguments.isPrinted())
        printDocument(changed.after.text);
    tellChange(arguments, changed, written, session);
    return exit_code::Fine;
}

int list(const Arguments& arguments, Session& session)
{
    const auto& document = openDocument(arguments.file, session.reading);
    const auto fields = edit::listFields(edit::readRecord(document), document.describe());
    if (session.output.isJson())
        session.output.printJson("fields", arguments.file,
                                 {{fields.name, describe::toJson(fields, session.output.style())}});
    else
        session.output.print(describe::renderText(fields, session.output.style()));
    return exit_code::Fine;
}

int run(const Arguments& arguments, Session& session)
try
{
    return arguments.listsFields ? list(arguments, session) : set(arguments, session);
}
catch (const edit::UnknownField& error)
{
    session.output.printFailure(arguments.file, error.what());
    return exit_code::Usage;
}

std::vector<std::string> fieldBeginnings()
{
    using describe::EDocumentKind;
    std::vector<std::string> beginnings;
    for (const auto kind : {EDocumentKind::AgentJobOptions, EDocumentKind::ScheduleOptions,
                            EDocumentKind::ScheduleWindow, EDocumentKind::GfsPolicy})
    {
        for (const auto& field : edit::fieldsOf(edit::newRecord(kind)))
            beginnings.push_back(field.path + '=');
    }
    std::sort(beginnings.begin(), beginnings.end());
    beginnings.erase(std::unique(beginnings.begin(), beginnings.end()), beginnings.end());
    return beginnings;
}

} // namespace

void addSet(Dispatcher& commands)
{
    const auto arguments = std::make_shared<Arguments>();
    auto command = commands.define("set", "Change fields of a document; the changed document is printed",
                                   [arguments](Session& session) { return run(*arguments, session); });
    command.add("FILE", arguments->file, "Job options, a schedule, a window or a GFS policy; - is standard input")
        .required();
    command.add("FIELD=VALUE", arguments->values, "What to set: maxDays=14, schedule.jobStart.time=22:30")
        .suggest(fieldBeginnings);
    command.addFlag("--fields", arguments->listsFields, "List the fields that can be set, and their present values");
    command.add("-o,--output", arguments->output, "A new file for the document; standard output unless given")
        .typeName("FILE");
    command.addFlag("--in-place", arguments->isInPlace, "Replace the file, and keep the old one as FILE.orig")
        .excludes("--output");
    command.check([arguments] { checkArguments(*arguments); });
}
