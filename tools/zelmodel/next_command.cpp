#include <memory>
#include <optional>
#include <string>

#include "commands.h"
#include "date_option.h"
#include "describe/json_renderer.h"
#include "exit_code.h"
#include "schedule_input.h"
#include "when/next_days.h"

namespace
{

using zelplatform::model::CDate;

constexpr unsigned MostDays = 1000;

struct Arguments
{
    ScheduleArguments documents;
    std::optional<CDate> from; ///< nothing: the local date of today
    unsigned count = 10;
};

int next(const Arguments& arguments, Session& session)
{
    const auto input = readSchedule(arguments.documents, session.reading);
    const auto from = arguments.from.value_or(today());
    const when::Evaluation evaluation(input.schedule, input.window.get(), from);
    const auto days = evaluation.daysFrom(from, arguments.count);
    if (days.empty())
        return tellNothing(session, arguments.documents, "next", when::tellWhyNothingIsNext(evaluation, input.kind));
    const auto tree = when::describeDays(evaluation, from, days);
    const auto& style = session.output.style();
    if (session.output.isJson())
        session.output.printJson("next", arguments.documents.file, {{tree.name, describe::toJson(tree, style)}});
    else
        session.output.print(describe::renderTable(tree, style));
    return exit_code::Fine;
}

} // namespace

void addNext(Dispatcher& commands)
{
    auto& command = commands.define("next", "Tell on which days a job starts next");
    const auto arguments = std::make_shared<Arguments>();
    addScheduleArguments(command, arguments->documents);
    addDateOption(command, "--from", arguments->from, "The first day that counts; today unless given");
    command.add_option("-n,--count", arguments->count, "How many days")
        ->check(CLI::Range(1U, MostDays))
        ->capture_default_str();
    command.callback([arguments] { checkScheduleArguments(arguments->documents); });
    commands.setWork(command, [arguments](Session& session) { return next(*arguments, session); });
}
