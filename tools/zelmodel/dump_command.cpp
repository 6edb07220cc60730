#include <memory>
#include <string>
#include <vector>

#include "commands.h"
#include "describe/words.h"
#include "dump/renderer.h"
#include "exit_code.h"

namespace
{

constexpr const char* KindHelp = "help";

struct Arguments
{
    std::string file;
    const dump::Form* form = nullptr; ///< nothing: it is recognised
};

std::string listForms()
{
    std::size_t width = 0;
    for (const auto& form : dump::allForms())
        width = std::max(width, std::string(form.name).size() + 2);
    std::string text;
    for (const auto& form : dump::allForms())
    {
        const std::string name = form.name;
        text += (text.empty() ? "" : "\n") + name + std::string(width - name.size(), ' ') + form.title +
                (form.isRecognised ? "" : " (only when it is named)");
    }
    return text;
}

std::vector<std::string> formWords()
{
    std::vector<std::string> words;
    for (const auto& form : dump::allForms())
        words.emplace_back(form.name);
    words.emplace_back(KindHelp);
    return words;
}

const dump::Form* formOf(const std::string& name)
{
    if (name == KindHelp)
        throw EarlyAnswer(listForms() + '\n');
    if (const auto* form = dump::findForm(name))
        return form;
    throw UsageError("--kind", '[' + name + "] is no kind; --kind help lists them");
}

int tell(const Arguments& arguments, Session& session)
{
    session.reading = Reading{arguments.file, std::nullopt};
    const auto input = readSecret(arguments.file, dump::MostBytes);
    const auto& output = session.output;
    const auto told = dump::tell({input.data(), input.size()}, arguments.form, output.style().showsSecrets);
    if (output.isJson())
        output.printJson(told.refusal ? "error" : "dump", arguments.file, dump::toJson(told, output.style()));
    else
    {
        output.print(dump::renderText(told, output.style()));
        if (told.refusal)
            output.printRefusal(arguments.file, 0, told.refusal->sentences);
    }
    return told.refusal ? exit_code::Refused : exit_code::Fine;
}

} // namespace

void addDump(Dispatcher& commands)
{
    const auto arguments = std::make_shared<Arguments>();
    auto command = commands.define("dump", "Tell a binary form byte by byte: keys, schedules, servers",
                                   [arguments](Session& session) { return tell(*arguments, session); });
    command.add("FILE", arguments->file, "Binary or base64; - is standard input").required();
    command
        .add(
            "--kind", [arguments](const std::string& name) { arguments->form = formOf(name); },
            "The form, in place of the one that fits; help lists them")
        .typeName("NAME")
        .suggest(formWords);
}
