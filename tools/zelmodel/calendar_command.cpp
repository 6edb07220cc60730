#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <zelplatform/util/util.h>

#include "commands.h"
#include "date_option.h"
#include "describe/json_renderer.h"
#include "exit_code.h"
#include "files/new_file.h"
#include "picture/html_page.h"
#include "picture/svg_picture.h"
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
    std::optional<CDate> month; ///< neither: the local month of today, for a picture the year
    std::optional<CDate> year;
    std::optional<std::string> svg; ///< the file of a picture
    std::optional<std::string> html;
};

bool isPicture(const Arguments& arguments)
{
    return arguments.svg || arguments.html;
}

/// The first day of the first month that is shown, and how many are.
struct Span
{
    CDate first;
    std::size_t months;
};

Span spanOf(const Arguments& arguments)
{
    if (arguments.year)
        return {*arguments.year, MonthsOfYear};
    if (arguments.month)
        return {*arguments.month, 1};
    datetime::CDateTime date = today();
    const bool isYear = isPicture(arguments);
    date.setDate(date.year(), isYear ? 1 : static_cast<int>(date.getMonth()) + 1, 1);
    return {CDate(date), isYear ? MonthsOfYear : 1};
}

std::string tellSpan(const std::vector<when::PlannedMonth>& months)
{
    const auto& first = months.front();
    return months.size() == 1 ? when::tellMonth(first) : util::toStr(datetime::CDateTime(first.first).year());
}

int writePicture(const Arguments& arguments, const picture::SchedulePicture& picture, Session& session)
{
    const auto& file = arguments.svg ? *arguments.svg : *arguments.html;
    const auto text = arguments.svg ? picture::renderSvg(picture) : picture::renderHtml(picture);
    if (file == StandardInput)
    {
        session.output.print(text);
        return exit_code::Fine;
    }
    session.reading = Reading{file, std::nullopt};
    files::writeNewFile(file, text);
    return exit_code::Fine;
}

int showWindow(const describe::Document& document, const Arguments& arguments, Session& session)
{
    const auto& file = arguments.documents.file;
    const auto week = when::planWeek(*document.readWindow(), {});
    const auto tree = document.describe();
    const auto& style = session.output.style();
    if (isPicture(arguments))
        return writePicture(arguments,
                            {nameOf(file), {}, {}, {}, {}, picture::makeWindowPart(nameOf(file), tree, week)}, session);
    if (session.output.isJson())
        session.output.printJson("calendar", file, {{tree.name, describe::toJson(tree, style)}});
    else
        session.output.print(when::renderWindow(week, style));
    return exit_code::Fine;
}

/// What is shown of a schedule, in whatever form.
struct Calendar
{
    std::string title;
    std::vector<when::PlannedMonth> months;
    std::optional<when::PlannedWeek> week;
};

Calendar planCalendar(const when::Evaluation& evaluation, const Span& span)
{
    Calendar calendar{
        when::tellSchedule(evaluation, span.first), when::planMonths(evaluation, span.first, span.months), {}};
    if (const auto* window = evaluation.window())
        calendar.week = when::planWeek(*window, calendar.months);
    return calendar;
}

void printJson(const Calendar& calendar, const ScheduleInput& input, const std::string& file, const Output& output)
{
    auto tree = when::describeMonths(calendar.months);
    tree.words = calendar.title;
    nlohmann::ordered_json body{{tree.name, describe::toJson(tree, output.style())}};
    if (calendar.week)
        body[input.windowTree.name] = describe::toJson(input.windowTree, output.style());
    output.printJson("calendar", file, body);
}

void printText(const Calendar& calendar, const Output& output)
{
    const auto& style = output.style();
    const auto title = describe::renderText(describe::makeField("calendar", "", "", calendar.title), style);
    output.print(title + '\n' + when::renderMonths(calendar.months, style));
    if (calendar.week)
        output.print('\n' + when::renderWindow(*calendar.week, style));
}

picture::SchedulePicture pictureOf(Calendar calendar, const ScheduleInput& input, const ScheduleArguments& documents)
{
    const auto span = tellSpan(calendar.months);
    picture::SchedulePicture picture{nameOf(documents.file),     span,
                                     std::move(calendar.title),  picture::scheduleFacts(input.tree),
                                     std::move(calendar.months), {}};
    if (calendar.week)
        picture.window = picture::makeWindowPart(nameOf(documents.window), input.windowTree, std::move(*calendar.week));
    return picture;
}

int showSchedule(const ScheduleInput& input, const Arguments& arguments, Session& session)
{
    const auto& documents = arguments.documents;
    const auto span = spanOf(arguments);
    const when::Evaluation evaluation(input.schedule, input.window.get(), span.first);
    if (input.schedule.GetJobStartOptions().IsDisabled())
        return tellNothing(session, documents, "calendar", when::tellWhyNothing(evaluation, input.kind, {}));
    auto calendar = planCalendar(evaluation, span);
    if (isPicture(arguments))
        return writePicture(arguments, pictureOf(std::move(calendar), input, documents), session);
    if (session.output.isJson())
        printJson(calendar, input, documents.file, session.output);
    else
        printText(calendar, session.output);
    return exit_code::Fine;
}

int calendar(const Arguments& arguments, Session& session)
{
    const auto& documents = arguments.documents;
    const auto& document = openDocument(documents.file, session.reading);
    if (documents.window.empty() && document.kind() == describe::EDocumentKind::ScheduleWindow)
        return showWindow(document, arguments, session);
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
    addYearOption(command, "--year", arguments->year, "A whole year; for a picture that of today unless given")
        .excludes("--month");
    command.add("--svg", arguments->svg, "A new file for the calendar as an SVG picture; - is standard output")
        .typeName("FILE")
        .excludes("--json");
    command.add("--html", arguments->html, "A new file for the calendar as an HTML page; - is standard output")
        .typeName("FILE")
        .excludes("--json")
        .excludes("--svg");
    command.check([arguments] { checkScheduleArguments(arguments->documents); });
}
