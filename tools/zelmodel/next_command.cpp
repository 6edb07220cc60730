#include <memory>
#include <optional>
#include <string>

#include "commands.h"
#include "date_option.h"
#include "describe/json_renderer.h"
#include "describe/words.h"
#include "exit_code.h"
#include "schedule_input.h"
#include "when/days_asked.h"
#include "when/ical.h"
#include "when/next_days.h"

namespace
{

using zelplatform::model::CDate;

struct Arguments
{
    ScheduleArguments documents;
    std::optional<CDate> from; ///< nothing: the local date of today
    std::optional<CDate> until;
    std::optional<unsigned> count;
    bool isPrevious = false;
    bool isIcal = false;
};

when::DaysAsked daysAsked(const Arguments& arguments)
{
    return {arguments.from.value_or(today()), arguments.until, arguments.count, arguments.isPrevious};
}

void check(const Arguments& arguments)
{
    checkScheduleArguments(arguments.documents);
    const auto fault = when::faultOfUntil(daysAsked(arguments));
    if (!fault.empty())
        throw UsageError("--until", fault);
}

int next(const Arguments& arguments, Session& session)
{
    const auto& file = arguments.documents.file;
    const auto input = readSchedule(arguments.documents, session.reading);
    const auto asked = daysAsked(arguments);
    const when::Evaluation evaluation(input.schedule, input.window.get(), asked.from);
    const auto days = when::findDays(evaluation, asked);
    if (days.empty())
        return tellNothing(session, arguments.documents, "next",
                           when::tellWhyNothing(evaluation, input.kind, when::tellNoDay(asked)));
    const auto& style = session.output.style();
    if (arguments.isIcal)
    {
        session.output.print(when::renderIcal(evaluation, days, nameOf(file)));
        return exit_code::Fine;
    }
    const auto tree = when::describeDays(evaluation, asked.from, days);
    if (session.output.isJson())
        session.output.printJson("next", file, {{tree.name, describe::toJson(tree, style)}});
    else
        session.output.print(describe::renderTable(tree, style));
    return exit_code::Fine;
}

} // namespace

void addNext(Dispatcher& commands)
{
    const auto arguments = std::make_shared<Arguments>();
    auto command = commands.define("next", "Tell on which days a job starts next",
                                   [arguments](Session& session) { return next(*arguments, session); });
    addScheduleArguments(command, arguments->documents);
    addDateOption(command, "--from", arguments->from, "The first day that counts; today unless given");
    addDateOption(command, "--until", arguments->until, "The last day that counts");
    command.add("-n,--count", arguments->count, "How many days; 10, or all with --until, unless given")
        .typeName("N")
        .between(1, when::DaysAsked::MostDays);
    command.addFlag("--previous", arguments->isPrevious, "The last days before --from, the latest first")
        .excludes("--until");
    command.addFlag("--ical", arguments->isIcal, "Print a calendar for other programs (RFC 5545)").excludes("--json");
    command.check([arguments] { check(*arguments); });
}
