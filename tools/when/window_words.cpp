#include "window_words.h"

#include <cstddef>
#include <vector>

#include "describe/words.h"

namespace when
{
namespace
{

using datetime::CDateTime;
using describe::clockTime;
using zelplatform::model::CDate;
using zelplatform::model::structs::BackupWindow;

constexpr long SecondsOfHour = 3600;
constexpr long SecondsOfDay = 86400;

std::string tellClosing(const CDateTime& closing, const CDateTime& day)
{
    const long passed = closing.toUnixTime() - day.toUnixTime();
    if (passed == SecondsOfDay)
        return "24:00";
    return clockTime(closing) +
           (passed < SecondsOfDay ? "" : " on " + describe::weekDay(closing) + ' ' + describe::isoDate(closing));
}

std::string tellWindowAtStarts(const BackupWindow& window, const std::vector<CDateTime>& starts)
{
    if (starts.size() == 1)
        return tellWindowAt(window, starts.front());
    std::string text;
    for (std::size_t from = 0; from < starts.size();)
    {
        const auto words = tellWindowAt(window, starts[from]);
        std::size_t last = from;
        while (last + 1 < starts.size() && tellWindowAt(window, starts[last + 1]) == words)
            ++last;
        text += (text.empty() ? "" : ", ") + clockTime(starts[from]) +
                (last > from ? " to " + clockTime(starts[last]) : "") + ' ' + words;
        from = last + 1;
    }
    return text;
}

/// The open stretches of a day for a job that runs all the time.
std::string tellOpenHours(const BackupWindow& window, const CDateTime& day)
{
    std::string text;
    for (auto at = day; at < later(day, SecondsOfDay - 1);)
    {
        if (!window.isWindowOpen(at))
        {
            at = later(at, SecondsOfHour);
            continue;
        }
        const auto closing = window.getWindowClosingTime(at);
        if (!closing)
            return "open, never closes";
        text += (text.empty() ? "open " : ", ") + clockTime(at) + " to " + tellClosing(*closing, day);
        at = *closing;
    }
    return describe::textOr(text, "closed all day");
}

} // namespace

std::string tellWindowAt(const BackupWindow& window, const CDateTime& start)
{
    if (!window.isWindowOpen(start))
        return "closed";
    const auto closing = window.getWindowClosingTime(start);
    return closing ? "open until " + tellClosing(*closing, CDate(start)) : "open, never closes";
}

std::string tellWindow(const Evaluation& evaluation, const StartDay& day)
{
    const auto* window = evaluation.window();
    if (window == nullptr)
        return {};
    if (evaluation.calendar().IsScheduleContinuously())
        return tellOpenHours(*window, day.date);
    return day.starts.empty() ? "not known without a time of day" : tellWindowAtStarts(*window, day.starts);
}

} // namespace when
