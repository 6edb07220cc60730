#include "schedule_input.h"

#include <filesystem>
#include <iostream>

#include <zelplatform/datetime/date_time.h>

#include "describe/terminal_text.h"
#include "exit_code.h"

void addScheduleArguments(CommandOptions& command, ScheduleArguments& arguments)
{
    command.add("FILE", arguments.file, "Job options or schedule options; - is standard input").required();
    command.add("--window", arguments.window, "A backup window: tell whether it is open at the start").typeName("FILE");
}

void checkScheduleArguments(const ScheduleArguments& arguments)
{
    if (arguments.file == StandardInput && arguments.window == StandardInput)
        throw UsageError("--window", "Standard input can be read only once");
}

ScheduleInput readSchedule(const ScheduleArguments& arguments, Reading& reading)
{
    return readSchedule(openDocument(arguments.file, reading), arguments, reading);
}

ScheduleInput readSchedule(const describe::Document& document, const ScheduleArguments& arguments, Reading& reading)
{
    ScheduleInput input{document.kind(), document.readSchedule(), document.describe(), nullptr, {}};
    if (!arguments.window.empty())
    {
        const auto& window = openDocument(arguments.window, reading);
        input.window = window.readWindow();
        input.windowTree = window.describe();
    }
    reading = Reading{arguments.file, std::nullopt};
    return input;
}

std::string nameOf(const std::string& file)
{
    return describe::printable(std::filesystem::path(shownName(file)).filename().string());
}

int tellNothing(const Session& session, const ScheduleArguments& arguments, const char* kind, const std::string& reason)
{
    if (session.output.isJson())
        session.output.printJson(kind, arguments.file, {{"notScheduled", reason}});
    else
        std::cerr << describe::printable(shownName(arguments.file)) << ": " << describe::printable(reason) << '\n';
    return exit_code::NotScheduled;
}

zelplatform::model::CDate today()
{
    return zelplatform::model::CDate(datetime::CDateTime::currentLocalTime());
}
