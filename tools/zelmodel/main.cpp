#include <algorithm>
#include <exception>
#include <iostream>
#include <memory>
#include <string_view>

#include <zelplatform/exc/exc.h>

#include "commands.h"
#include "describe/sentences.h"
#include "describe/terminal_text.h"
#include "exit_code.h"

namespace
{

constexpr const char* Version = "zelmodel " ZELMODEL_VERSION;
constexpr std::size_t LongestUsageError = 400;

void addCommands(Dispatcher& commands)
{
    addCalendar(commands);
    addCheck(commands);
    addCompletion(commands);
    addConvert(commands);
    addDiff(commands);
    addDump(commands);
    addExplain(commands);
    addLog(commands);
    addMan(commands);
    addNew(commands);
    addNext(commands);
    addSchema(commands);
    addSet(commands);
    addShow(commands);
    addWhy(commands);
}

// A wrong call may have been refused before its options were taken.
bool asksForJson(int argc, char** argv)
{
    return std::any_of(argv + 1, argv + argc, [](std::string_view argument) { return argument == "--json"; });
}

int tellUsage(const UsageError& error, bool isJson)
{
    OutputOptions options;
    options.isJson = isJson;
    Output(options).printUsageError(describe::shortened(error.what(), LongestUsageError));
    return exit_code::Usage;
}

int refuse(const Session& session, const std::vector<std::string>& trace)
{
    session.output.printRefusal(session.reading.name, session.reading.line(), describe::sentencesOf(trace));
    return exit_code::Refused;
}

// Everything that the work of a command throws ends here as an exit code.
int runCommand(const Dispatcher& commands, Session& session)
try
{
    return commands.run(session);
}
catch (const InputError& error)
{
    session.output.printFailure(session.reading.name, error.what());
    return exit_code::CannotRead;
}
catch (const exc::CRuntimeExc& refusal)
{
    return refuse(session, refusal.trace());
}
catch (const exc::CRuntimeExc* thrown)
{
    // An unknown window kind is thrown as a pointer, which is ours from here on.
    const std::unique_ptr<const exc::CRuntimeExc> refusal(thrown);
    return refuse(session, refusal->trace());
}
catch (const std::exception& error)
{
    return refuse(session, {error.what()});
}

int run(int argc, char** argv)
{
    Dispatcher commands(Version);
    addCommands(commands);
    try
    {
        commands.parse(argc, argv);
    }
    catch (const EarlyAnswer& answer)
    {
        std::cout << answer.what();
        return exit_code::Fine;
    }
    catch (const UsageError& error)
    {
        return tellUsage(error, asksForJson(argc, argv));
    }
    Session session{Output(commands.outputOptions()), Reading()};
    return runCommand(commands, session);
}

} // namespace

int main(int argc, char** argv)
{
    int code = exit_code::Fine;
    try
    {
        code = run(argc, argv);
    }
    catch (const std::exception& error)
    {
        std::cerr << "zelmodel: " << describe::printable(error.what()) << '\n';
        code = exit_code::CannotRead;
    }
    std::cout.flush();
    if (!std::cout)
    {
        std::cerr << "zelmodel: the output cannot be written\n";
        return exit_code::CannotRead;
    }
    return code;
}
