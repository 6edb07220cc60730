#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include <zelmodel/datetime/date.h>
#include <zelplatform/datetime/date_time.h>

#include "commands.h"
#include "date_option.h"
#include "describe/json_renderer.h"
#include "describe/next_days.h"
#include "describe/terminal_text.h"
#include "exit_code.h"

namespace
{

using zelplatform::model::CDate;
using zelplatform::model::structs::BackupWindow;

constexpr unsigned MostDays = 1000;

struct Arguments
{
    std::string file;
    std::string window;        ///< empty: none
    std::optional<CDate> from; ///< nothing: the local date of today
    unsigned count = 10;
};

int next(const Arguments& arguments, Session& session)
{
    const auto& document = openDocument(arguments.file, session.reading);
    const auto kind = document.kind();
    const auto schedule = document.readSchedule();
    std::shared_ptr<const BackupWindow> window;
    if (!arguments.window.empty())
        window = openDocument(arguments.window, session.reading).readWindow();
    session.reading = Reading{arguments.file, std::nullopt};
    const auto from = arguments.from.value_or(CDate(datetime::CDateTime::currentLocalTime()));
    const auto days = describe::describeNextDays(schedule, window.get(), from, arguments.count);
    if (days.children.empty())
    {
        std::cerr << describe::printable(shownName(arguments.file)) << ": "
                  << describe::printable(describe::tellWhyNothingIsNext(schedule, kind)) << '\n';
        return exit_code::NotScheduled;
    }
    if (session.output.isJson())
        session.output.printJson("next", arguments.file, {{days.name, describe::toJson(days, session.output.style())}});
    else
        session.output.print(describe::renderTable(days, session.output.style()));
    return exit_code::Fine;
}

} // namespace

void addNext(Dispatcher& commands)
{
    auto& command = commands.define("next", "Tell on which days a job starts next");
    const auto arguments = std::make_shared<Arguments>();
    command.add_option("FILE", arguments->file, "Job options or schedule options; - is standard input")->required();
    command.add_option("--window", arguments->window, "A backup window: tell whether it is open at the start")
        ->type_name("FILE");
    addDateOption(command, "--from", arguments->from, "The first day that counts; today unless given");
    command.add_option("-n,--count", arguments->count, "How many days")
        ->check(CLI::Range(1U, MostDays))
        ->capture_default_str();
    command.callback([arguments] {
        if (arguments->file == StandardInput && arguments->window == StandardInput)
            throw CLI::ValidationError("--window", "Standard input can be read only once");
    });
    commands.setWork(command, [arguments](Session& session) { return next(*arguments, session); });
}
