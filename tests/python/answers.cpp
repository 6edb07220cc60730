#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include <nlohmann/json.hpp>

#include <zelmodel/schedules.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "describe/document.h"
#include "describe/text_renderer.h"

namespace
{

using describe::EDocumentKind;
using nlohmann::json;
using zelplatform::model::CDate;
using zelplatform::model::structs::BackupWindow;
using zelplatform::model::structs::CScheduleOptions;

constexpr int Days = 5;

std::string textOf(const char* file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The days after the first of March 2024 on which the job starts, as the library's calendar has them.
json daysOf(const CScheduleOptions& schedule)
{
    auto days = json::array();
    const auto& start = schedule.GetJobStartOptions();
    if (start.IsDisabled())
        return days;
    datetime::CDateTime first(false);
    first.setDate(2024, 3, 1);
    for (auto day = start.GetCalendar().GetNextScheduleDateFromDate(CDate(first)); day && days.size() < Days;
         day = start.GetCalendar().GetNextScheduleDateFromDate(*day))
        days.push_back(datetime::CDateTime(*day).toStdString("%Y-%m-%d"));
    return days;
}

/// The cells of the week from Sunday on, a text of 24 digits for each day.
json hoursOf(const BackupWindow& window)
{
    auto week = json::array();
    for (int day = 0; day < 7; ++day)
    {
        std::string hours;
        for (int hour = 0; hour < 24; ++hour)
            hours += window.getMatrix()(day, hour) != 0 ? '1' : '0';
        week.push_back(hours);
    }
    return week;
}

bool hasSchedule(EDocumentKind kind)
{
    return kind == EDocumentKind::AgentJobOptions || kind == EDocumentKind::ServerJobOptions ||
           kind == EDocumentKind::ScheduleOptions || kind == EDocumentKind::LoneSchedule;
}

} // namespace

/// Prints the library's own answers about a document: {"kind", "describe", "days", "hours"}.
int main(int argc, char** argv)
try
{
    if (argc != 2)
        return 2;
    const describe::Document document(textOf(argv[1]));
    const auto kind = document.kind();
    json answers{{"kind", describe::nameOf(kind)}, {"describe", describe::renderText(document.describe(), {})}};
    if (hasSchedule(kind))
        answers["days"] = daysOf(document.readSchedule());
    if (kind == EDocumentKind::ScheduleWindow)
        answers["hours"] = hoursOf(*document.readWindow());
    std::cout << answers.dump() << '\n';
    return 0;
}
catch (const std::exception& refusal)
{
    std::cerr << refusal.what() << '\n';
    return 1;
}
