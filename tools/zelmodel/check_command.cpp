#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "check/check.h"
#include "check/check_file.h"
#include "check/report.h"
#include "commands.h"
#include "exit_code.h"

namespace
{

using check::CheckedFile;
using check::ESeverity;
using check::Finding;
using zelplatform::model::structs::BackupWindow;

struct Arguments
{
    std::vector<std::string> files;
    std::string window; ///< empty: none
    bool isSarif = false;
};

int exitCodeOf(const CheckedFile& file)
{
    if (!file.failure.empty())
        return exit_code::CannotRead;
    const bool isRefused = std::any_of(file.findings.begin(), file.findings.end(), [](const Finding& finding) {
        return finding.rule->severity == ESeverity::Refused;
    });
    if (isRefused)
        return exit_code::Refused;
    return file.findings.empty() ? exit_code::Fine : exit_code::Findings;
}

// The window is a document like the others: what is wrong with it is told too.
std::vector<CheckedFile> checkAll(const Arguments& arguments, Session& session)
{
    std::vector<CheckedFile> checked;
    std::shared_ptr<const BackupWindow> window;
    if (!arguments.window.empty())
    {
        session.reading = Reading{arguments.window, std::nullopt};
        const auto text = readInput(arguments.window);
        window = check::readWindow(text);
        checked.push_back({shownName(arguments.window), check::checkText(text), ""});
    }
    for (const auto& file : arguments.files)
        checked.push_back(check::checkFile(file, window.get()));
    return checked;
}

void print(const std::vector<CheckedFile>& files, const Output& output)
{
    if (output.isJson())
    {
        auto list = nlohmann::ordered_json::array();
        for (const auto& file : files)
            list.push_back(check::toJson(file));
        output.printJson("check", files.back().name, {{"files", list}});
        return;
    }
    for (const auto& file : files)
    {
        output.print(check::toText(file));
        if (!file.failure.empty())
            output.printFailure(file.name, file.failure);
    }
}

int checkFiles(const Arguments& arguments, Session& session)
{
    const auto files = checkAll(arguments, session);
    if (arguments.isSarif)
        session.output.printForeignJson(check::toSarif(files, ZELMODEL_VERSION));
    else
        print(files, session.output);
    int worst = exit_code::Fine;
    for (const auto& file : files)
        worst = std::max(worst, exitCodeOf(file));
    return worst;
}

void checkArguments(const Arguments& arguments)
{
    const auto inputs = std::count(arguments.files.begin(), arguments.files.end(), StandardInput) +
                        (arguments.window == StandardInput ? 1 : 0);
    if (inputs > 1)
        throw UsageError("FILE", "Standard input can be read only once");
}

} // namespace

void addCheck(Dispatcher& commands)
{
    const auto arguments = std::make_shared<Arguments>();
    auto command = commands.define("check", "Find everything that is wrong with documents",
                                   [arguments](Session& session) { return checkFiles(*arguments, session); });
    command.add("FILE", arguments->files, "Documents of any kind; - is standard input").required();
    command.add("--window", arguments->window, "The backup window that the jobs are to run in").typeName("FILE");
    command.addFlag("--sarif", arguments->isSarif, "Print the findings in the format SARIF 2.1.0").excludes("--json");
    command.check([arguments] { checkArguments(*arguments); });
}
