#include "commands.h"

#include <iostream>
#include <memory>

#include <zelplatform/datetime/date_time.h>

#include "describe/next_days.h"
#include "describe/terminal_text.h"
#include "exit_code.h"

using zelplatform::model::CDate;
using zelplatform::model::structs::BackupWindow;

int show(const ShowArguments& arguments, const describe::TextStyle& style, Reading& reading)
{
    std::cout << describe::renderText(openDocument(arguments.file, reading).describe(), style);
    return exit_code::Fine;
}

int next(const NextArguments& arguments, const describe::TextStyle& style, Reading& reading)
{
    const auto& document = openDocument(arguments.file, reading);
    const auto kind = document.kind();
    const auto schedule = document.readSchedule();
    std::shared_ptr<const BackupWindow> window;
    if (!arguments.window.empty())
        window = openDocument(arguments.window, reading).readWindow();
    reading = Reading{arguments.file, std::nullopt};
    const auto from = arguments.from.value_or(CDate(datetime::CDateTime::currentLocalTime()));
    const auto days = describe::describeNextDays(schedule, window.get(), from, arguments.count);
    if (days.children.empty())
    {
        std::cerr << describe::printable(shownName(arguments.file)) << ": "
                  << describe::printable(describe::tellWhyNothingIsNext(schedule, kind)) << '\n';
        return exit_code::NotScheduled;
    }
    std::cout << describe::renderTable(days, style);
    return exit_code::Fine;
}
