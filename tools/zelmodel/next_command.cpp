#include <memory>
#include <optional>
#include <string>

#include "commands.h"
#include "date_option.h"
#include "describe/json_renderer.h"
#include "describe/words.h"
#include "exit_code.h"
#include "schedule_input.h"
#include "when/ical.h"
#include "when/next_days.h"

namespace
{

using zelplatform::model::CDate;

constexpr unsigned MostDays = 1000;
constexpr unsigned UsualDays = 10;
constexpr long MostDaysToUntil = 36600;
constexpr long SecondsOfDay = 86400;

struct Arguments
{
    ScheduleArguments documents;
    std::optional<CDate> from; ///< nothing: the local date of today
    std::optional<CDate> until;
    std::optional<unsigned> count;
    bool isPrevious = false;
    bool isIcal = false;
};

long daysTo(const CDate& from, const CDate& until)
{
    return (datetime::CDateTime(until).toUnixTime() - datetime::CDateTime(from).toUnixTime()) / SecondsOfDay;
}

void check(const Arguments& arguments)
{
    checkScheduleArguments(arguments.documents);
    if (!arguments.until)
        return;
    const auto days = daysTo(arguments.from.value_or(today()), *arguments.until);
    if (days < 0)
        throw UsageError("--until", "The last day lies before the first");
    if (days > MostDaysToUntil)
        throw UsageError("--until",
                         "The last day lies more than " + std::to_string(MostDaysToUntil) + " days after the first");
}

std::vector<when::StartDay> findDays(const when::Evaluation& evaluation, const Arguments& arguments, const CDate& from)
{
    if (arguments.isPrevious)
        return evaluation.daysBefore(from, arguments.count.value_or(UsualDays));
    const auto all = static_cast<unsigned>(MostDaysToUntil) + 1;
    return evaluation.daysFrom(from, arguments.count.value_or(arguments.until ? all : UsualDays), arguments.until);
}

std::string tellNoDay(const Arguments& arguments)
{
    const auto within = " within " + std::to_string(when::Evaluation::YearsToSearch) + " years";
    if (arguments.isPrevious)
        return "no day came" + within + " before";
    return "no day comes" + (arguments.until ? " up to " + describe::isoDate(*arguments.until) : within);
}

int next(const Arguments& arguments, Session& session)
{
    const auto& file = arguments.documents.file;
    const auto input = readSchedule(arguments.documents, session.reading);
    const auto from = arguments.from.value_or(today());
    const when::Evaluation evaluation(input.schedule, input.window.get(), from);
    const auto days = findDays(evaluation, arguments, from);
    if (days.empty())
        return tellNothing(session, arguments.documents, "next",
                           when::tellWhyNothing(evaluation, input.kind, tellNoDay(arguments)));
    const auto& style = session.output.style();
    if (arguments.isIcal)
    {
        session.output.print(when::renderIcal(evaluation, days, nameOf(file)));
        return exit_code::Fine;
    }
    const auto tree = when::describeDays(evaluation, from, days);
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
        .between(1, MostDays);
    command.addFlag("--previous", arguments->isPrevious, "The last days before --from, the latest first")
        .excludes("--until");
    command.addFlag("--ical", arguments->isIcal, "Print a calendar for other programs (RFC 5545)").excludes("--json");
    command.check([arguments] { check(*arguments); });
}
