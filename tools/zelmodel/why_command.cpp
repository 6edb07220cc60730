#include <memory>
#include <optional>
#include <string>

#include "commands.h"
#include "date_option.h"
#include "describe/json_renderer.h"
#include "exit_code.h"
#include "schedule_input.h"
#include "when/decision_tree.h"

namespace
{

using datetime::CDateTime;
using zelplatform::model::CDate;

constexpr std::size_t NarrowestWords = 10;

struct Arguments
{
    ScheduleArguments documents;
    std::optional<CDateTime> at;
    std::optional<CDate> from; ///< nothing: the day that is asked about
};

// The labels of a decision leave few columns on a small terminal.
describe::TextStyle narrow(describe::TextStyle style)
{
    style.narrowestWords = NarrowestWords;
    return style;
}

int why(const Arguments& arguments, Session& session)
{
    const auto input = readSchedule(arguments.documents, session.reading);
    const auto moment = arguments.at.value();
    const when::Evaluation evaluation(input.schedule, input.window.get(), arguments.from.value_or(CDate(moment)));
    const auto decision = when::decide(evaluation, moment);
    const auto nameOfWindow = shownName(arguments.documents.window);
    const auto tree =
        when::describeDecision(evaluation, moment, decision, {input.tree, input.windowTree, nameOfWindow});
    const auto& style = session.output.style();
    if (session.output.isJson())
        session.output.printJson("why", arguments.documents.file, {{tree.name, describe::toJson(tree, style)}});
    else
        session.output.print(describe::renderText(tree, narrow(style)));
    return decision.isStart ? exit_code::Fine : exit_code::NotScheduled;
}

} // namespace

void addWhy(Dispatcher& commands)
{
    const auto arguments = std::make_shared<Arguments>();
    auto command = commands.define("why", "Tell why a job starts at a time, or why not",
                                   [arguments](Session& session) { return why(*arguments, session); });
    addScheduleArguments(command, arguments->documents);
    addMomentOption(command, "--at", arguments->at, "The local time that is asked about").required();
    addDateOption(command, "--from", arguments->from,
                  "The day from whose 00:00 the starts of a periodical job are counted; the day of --at unless given");
    command.check([arguments] { checkScheduleArguments(arguments->documents); });
}
