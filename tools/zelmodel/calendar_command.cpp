#include <memory>
#include <optional>
#include <string>

#include "commands.h"
#include "date_option.h"
#include "describe/json_renderer.h"
#include "exit_code.h"
#include "schedule_input.h"
#include "when/day_plan.h"
#include "when/month_grid.h"
#include "when/next_days.h"
#include "when/week_plan.h"
#include "when/window_picture.h"

namespace
{

using zelplatform::model::CDate;

constexpr std::size_t MonthsOfYear = 12;

struct Arguments
{
    ScheduleArguments documents;
    std::optional<CDate> month; ///< neither: the local month of today
    std::optional<CDate> year;
};

CDate thisMonth()
{
    datetime::CDateTime date = today();
    date.setDay(1);
    return CDate(date);
}

int showWindow(const describe::Document& document, const std::string& file, const Session& session)
{
    const auto window = document.readWindow();
    const auto tree = document.describe();
    const auto& style = session.output.style();
    if (session.output.isJson())
        session.output.printJson("calendar", file, {{tree.name, describe::toJson(tree, style)}});
    else
        session.output.print(when::renderWindow(when::planWeek(*window, {}), style));
    return exit_code::Fine;
}

std::string renderTitle(const std::string& words, const describe::TextStyle& style)
{
    return describe::renderText(describe::makeField("calendar", "", "", words), style) + '\n';
}

int showSchedule(const ScheduleInput& input, const Arguments& arguments, const Session& session)
{
    const auto first = arguments.year.value_or(arguments.month.value_or(thisMonth()));
    const when::Evaluation evaluation(input.schedule, input.window.get(), first);
    if (input.schedule.GetJobStartOptions().IsDisabled())
        return tellNothing(session, arguments.documents, "calendar", when::tellWhyNothing(evaluation, input.kind, {}));
    const auto months = when::planMonths(evaluation, first, arguments.year ? MonthsOfYear : 1);
    const auto title = when::tellSchedule(evaluation, first);
    const auto& style = session.output.style();
    if (session.output.isJson())
    {
        auto tree = when::describeMonths(months);
        tree.words = title;
        nlohmann::ordered_json body{{tree.name, describe::toJson(tree, style)}};
        if (input.window)
            body[input.windowTree.name] = describe::toJson(input.windowTree, style);
        session.output.printJson("calendar", arguments.documents.file, body);
        return exit_code::Fine;
    }
    session.output.print(renderTitle(title, style) + when::renderMonths(months, style));
    if (input.window)
        session.output.print('\n' + when::renderWindow(when::planWeek(*input.window, months), style));
    return exit_code::Fine;
}

int calendar(const Arguments& arguments, Session& session)
{
    const auto& documents = arguments.documents;
    const auto& document = openDocument(documents.file, session.reading);
    if (documents.window.empty() && document.kind() == describe::EDocumentKind::ScheduleWindow)
        return showWindow(document, documents.file, session);
    return showSchedule(readSchedule(document, documents, session.reading), arguments, session);
}

} // namespace

void addCalendar(Dispatcher& commands)
{
    const auto arguments = std::make_shared<Arguments>();
    auto command = commands.define("calendar", "Show when a job starts as a calendar, or a window as a picture",
                                   [arguments](Session& session) { return calendar(*arguments, session); });
    addScheduleArguments(command, arguments->documents);
    addMonthOption(command, "--month", arguments->month, "The month; that of today unless given");
    addYearOption(command, "--year", arguments->year, "A whole year").excludes("--month");
    command.check([arguments] { checkScheduleArguments(arguments->documents); });
}
