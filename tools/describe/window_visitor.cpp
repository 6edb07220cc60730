#include "visitors.h"

#include <array>
#include <utility>

#include <zelplatform/datetime/names.h>
#include <zelplatform/util/util.h>

#include "words.h"

namespace describe
{
namespace
{

using datetime::EDayOfWeek;
using zelplatform::model::structs::BackupWindow;
using zelplatform::model::structs::CScheduleTime;
using zelplatform::model::structs::DayHourMatrix;

constexpr int HoursOfDay = 24;
constexpr std::array<EDayOfWeek::type, 7> DaysFromMonday{
    EDayOfWeek::Monday, EDayOfWeek::Tuesday,  EDayOfWeek::Wednesday, EDayOfWeek::Thursday,
    EDayOfWeek::Friday, EDayOfWeek::Saturday, EDayOfWeek::Sunday};

std::string fullHour(int hour)
{
    return CScheduleTime(static_cast<unsigned long>(hour), 0).ToTimeStr();
}

bool isOpen(const DayHourMatrix& matrix, int day, int hour)
{
    return matrix(day, hour) == 1;
}

std::string tellDay(const DayHourMatrix& matrix, int day)
{
    std::string text;
    for (int hour = 0; hour < HoursOfDay;)
    {
        int end = hour;
        while (end < HoursOfDay && isOpen(matrix, day, end))
            ++end;
        if (end - hour == HoursOfDay)
            return "open all day";
        if (end > hour)
            text += (text.empty() ? "open " : ", ") + fullHour(hour) + "-" + fullHour(end);
        hour = end + 1;
    }
    return textOr(text, "closed");
}

std::string tellKind(const DayHourMatrix& matrix)
{
    return matrix.getDefaultValue() == 1 ? "open except in the hours that the document lists"
                                         : "closed except in the hours that the document lists";
}

} // namespace

Node visitWindow(const BackupWindow& window, const Place& place)
{
    const auto& matrix = window.getMatrix();
    auto node = makeField("backupWindow", "Backup window", "", tellKind(matrix), place.origin());
    const auto days = place.child(BackupWindow::DaysTag);
    for (const auto day : DaysFromMonday)
    {
        const auto name = EDayOfWeek::ToStr(day);
        node.children.push_back(makeField(util::tolower(name), name, window.getIntervals(day), tellDay(matrix, day),
                                          days.child(name).origin()));
        node.children.back().isComparedByWords = true;
    }
    const auto kind = matrix.getScheduleWindowKind();
    node.children.push_back(
        makeDetail("kind", "Kind", util::toStr(kind), tellKind(matrix), place.originOf(BackupWindow::KindTag)));
    const auto minutes = window.getHourlyOffsetMinutes();
    node.children.push_back(makeField("hourlyOffsetMinutes", "Offset", minutes,
                                      util::toStr(minutes) + " minutes, stored only: the hours above are not shifted",
                                      place.originOf(BackupWindow::MinutesTag)));
    return node;
}

} // namespace describe
