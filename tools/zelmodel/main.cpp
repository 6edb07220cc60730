#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <sys/ioctl.h>
#include <unistd.h>

#include <CLI/CLI.hpp>

#include <zelplatform/exc/exc.h>

#include "commands.h"
#include "describe/sentences.h"
#include "describe/terminal_text.h"
#include "exit_code.h"

namespace
{

using describe::printable;
using describe::shortened;

constexpr const char* Version = "zelmodel " ZELMODEL_VERSION;
constexpr const char* DateFormat = "%Y-%m-%d";
constexpr std::size_t DateLength = 10;
constexpr unsigned MostDays = 1000;
constexpr std::size_t LongestSentence = 400;

describe::TextStyle styleOfStandardOutput()
{
    describe::TextStyle style;
    if (::isatty(STDOUT_FILENO) == 0)
        return style;
    struct winsize size = {};
    if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0)
        style.width = size.ws_col;
    const char* noColor = std::getenv("NO_COLOR");
    style.isBold = noColor == nullptr || *noColor == '\0';
    return style;
}

/// A date as YYYY-MM-DD, to the letter.
zelplatform::model::CDate parseDate(const std::string& text)
try
{
    if (text.size() != DateLength)
        throw exc::CRuntimeExc("The length is wrong.");
    return zelplatform::model::CDate(datetime::CDateTime::fromString(text, DateFormat, false));
}
catch (const std::exception&)
{
    throw CLI::ValidationError("--from", "[" + text + "] is no date from 1400 to 9999 written as YYYY-MM-DD");
}

void defineShow(CLI::App& app, ShowArguments& arguments)
{
    auto& command = *app.add_subcommand("show", "Tell in words what a document holds");
    command.add_option("FILE", arguments.file, "A document of any kind; - is standard input")->required();
}

void defineNext(CLI::App& app, NextArguments& arguments)
{
    auto& command = *app.add_subcommand("next", "Tell on which days a job starts next");
    command.add_option("FILE", arguments.file, "Job options or schedule options; - is standard input")->required();
    command.add_option("--window", arguments.window, "A backup window: tell whether it is open at the start")
        ->type_name("FILE");
    command
        .add_option_function<std::string>(
            "--from", [&arguments](const std::string& text) { arguments.from = parseDate(text); },
            "The first day that counts; today unless given")
        ->type_name("YYYY-MM-DD");
    command.add_option("-n,--count", arguments.count, "How many days")
        ->check(CLI::Range(1U, MostDays))
        ->capture_default_str();
    command.callback([&arguments] {
        if (arguments.file == StandardInput && arguments.window == StandardInput)
            throw CLI::ValidationError("--window", "Standard input can be read only once");
    });
}

int run(int argc, char** argv, Reading& reading)
{
    CLI::App app("Tells what the documents of backup jobs mean and when the jobs run", "zelmodel");
    ShowArguments showArguments;
    NextArguments nextArguments;
    app.set_version_flag("--version", Version);
    app.require_subcommand(1);
    defineShow(app, showArguments);
    defineNext(app, nextArguments);
    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success))
            return app.exit(error);
        std::cerr << "zelmodel: " << printable(shortened(error.what(), LongestSentence))
                  << "\nRun with --help for more information.\n";
        return exit_code::Usage;
    }
    const auto style = styleOfStandardOutput();
    return app.got_subcommand("show") ? show(showArguments, style, reading) : next(nextArguments, style, reading);
}

int refuse(const Reading& reading, const std::vector<std::string>& trace)
{
    std::cerr << printable(shownName(reading.name));
    if (reading.line() > 0)
        std::cerr << ':' << reading.line();
    std::cerr << ": refused\n";
    for (const auto& sentence : describe::sentencesOf(trace))
        std::cerr << "  " << printable(shortened(sentence, LongestSentence)) << '\n';
    return exit_code::Refused;
}

} // namespace

int main(int argc, char** argv)
{
    Reading reading;
    int code = exit_code::Fine;
    try
    {
        code = run(argc, argv, reading);
    }
    catch (const InputError& error)
    {
        std::cerr << printable(shownName(reading.name)) << ": " << error.what() << '\n';
        code = exit_code::CannotRead;
    }
    catch (const exc::CRuntimeExc& refusal)
    {
        code = refuse(reading, refusal.trace());
    }
    catch (const exc::CRuntimeExc* thrown)
    {
        // An unknown window kind is thrown as a pointer, which is ours from here on.
        const std::unique_ptr<const exc::CRuntimeExc> refusal(thrown);
        code = refuse(reading, refusal->trace());
    }
    catch (const std::exception& error)
    {
        code = refuse(reading, {error.what()});
    }
    std::cout.flush();
    if (!std::cout)
    {
        std::cerr << "zelmodel: the output cannot be written\n";
        return exit_code::CannotRead;
    }
    return code;
}
