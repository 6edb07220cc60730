#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <zelplatform/exc/exc.h>

#include "check/check.h"
#include "commands.h"
#include "describe/terminal_text.h"
#include "exit_code.h"

namespace
{

using check::ESeverity;
using check::Finding;
using describe::printable;
using describe::shortened;
using nlohmann::ordered_json;
using zelplatform::model::structs::BackupWindow;

constexpr std::size_t LongestSentence = 400;

struct Arguments
{
    std::vector<std::string> files;
    std::string window; ///< empty: none
    bool isSarif = false;
};

/// A file and what was found in it.
struct CheckedFile
{
    std::string name;
    std::vector<Finding> findings;
};

std::string shown(const std::string& text)
{
    return printable(shortened(text, LongestSentence));
}

void printText(const CheckedFile& file, const Output& output)
{
    std::string text;
    for (const auto& finding : file.findings)
    {
        text += printable(shownName(file.name)) + ':' + (finding.line > 0 ? std::to_string(finding.line) + ':' : "") +
                ' ' + check::nameOf(finding.rule->severity) + ": " + shown(finding.text) + " [" + finding.rule->id +
                "]\n";
        for (const auto& sentence : finding.sentences)
            text += "    " + shown(sentence) + '\n';
    }
    output.print(text);
}

int exitCodeOf(const std::vector<Finding>& findings)
{
    const bool isRefused = std::any_of(findings.begin(), findings.end(), [](const Finding& finding) {
        return finding.rule->severity == ESeverity::Refused;
    });
    if (isRefused)
        return exit_code::Refused;
    return findings.empty() ? exit_code::Fine : exit_code::Findings;
}

std::shared_ptr<const BackupWindow> readWindow(const std::string& name, Session& session)
{
    if (name.empty())
        return nullptr;
    return openDocument(name, session.reading).readWindow();
}

int checkFile(const std::string& name, const BackupWindow* window, Session& session)
{
    session.reading = Reading{name, std::nullopt};
    const CheckedFile file{name, check::checkText(readInput(name), window)};
    printText(file, session.output);
    return exitCodeOf(file.findings);
}

int checkFiles(const Arguments& arguments, Session& session)
{
    const auto window = readWindow(arguments.window, session);
    int worst = exit_code::Fine;
    for (const auto& file : arguments.files)
        worst = std::max(worst, checkFile(file, window.get(), session));
    return worst;
}

} // namespace

void addCheck(Dispatcher& commands)
{
    auto& command = commands.define("check", "Find everything that is wrong with documents");
    const auto arguments = std::make_shared<Arguments>();
    command.add_option("FILE", arguments->files, "Documents of any kind; - is standard input")->required();
    command.add_option("--window", arguments->window, "The backup window that the jobs are to run in")
        ->type_name("FILE");
    commands.setWork(command, [arguments](Session& session) { return checkFiles(*arguments, session); });
}
