#include "schedule_input.h"

#include <zelplatform/datetime/date_time.h>

void addScheduleArguments(CLI::App& command, ScheduleArguments& arguments)
{
    command.add_option("FILE", arguments.file, "Job options or schedule options; - is standard input")->required();
    command.add_option("--window", arguments.window, "A backup window: tell whether it is open at the start")
        ->type_name("FILE");
}

void checkScheduleArguments(const ScheduleArguments& arguments)
{
    if (arguments.file == StandardInput && arguments.window == StandardInput)
        throw CLI::ValidationError("--window", "Standard input can be read only once");
}

ScheduleInput readSchedule(const ScheduleArguments& arguments, Reading& reading)
{
    const auto& document = openDocument(arguments.file, reading);
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

zelplatform::model::CDate today()
{
    return zelplatform::model::CDate(datetime::CDateTime::currentLocalTime());
}
