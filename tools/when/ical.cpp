#include "ical.h"

#include <cstddef>

#include <boost/uuid/name_generator_sha1.hpp>
#include <boost/uuid/uuid_io.hpp>

#include "describe/words.h"
#include "local_zone.h"
#include "next_days.h"
#include "window_words.h"

namespace when
{
namespace
{

using datetime::CDateTime;
using zelplatform::model::CDate;

constexpr std::size_t MostBytesOfLine = 75;
constexpr const char* LineEnd = "\r\n";
constexpr const char* InstantFormat = "%Y%m%dT%H%M%SZ";

/// Commas, semicolons, backslashes and line breaks have a meaning of their own in texts.
std::string escaped(const std::string& text)
{
    std::string result;
    for (const char c : text)
    {
        if (c == '\n')
            result += "\\n";
        else if (c == ',' || c == ';' || c == '\\')
            result += std::string("\\") + c;
        else
            result += c;
    }
    return result;
}

bool continuesCharacter(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// The line in pieces of at most 75 bytes, each after the first begun with a blank; no character is cut.
std::string folded(const std::string& line)
{
    std::string text;
    std::size_t used = 0;
    for (std::size_t from = 0; from < line.size();)
    {
        auto end = from + 1;
        while (end < line.size() && continuesCharacter(line[end]))
            ++end;
        if (used + end - from > MostBytesOfLine)
        {
            text += std::string(LineEnd) + ' ';
            used = 1;
        }
        text.append(line, from, end - from);
        used += end - from;
        from = end;
    }
    return text + LineEnd;
}

/// Lines of one name and value each.
class Lines
{
public:
    void add(const std::string& name, const std::string& value) { m_text += folded(name + ':' + value); }
    void addText(const std::string& name, const std::string& text) { add(name, escaped(text)); }

    const std::string& text() const noexcept { return m_text; }

private:
    std::string m_text;
};

/// What all events share.
struct Job
{
    const Evaluation& evaluation;
    const std::string& name;
    std::string stamp;
};

std::string identifierOf(const std::string& job, const std::string& localTime)
{
    boost::uuids::name_generator_sha1 generator(boost::uuids::ns::url());
    return boost::uuids::to_string(generator(job + '\n' + localTime));
}

std::string tellDay(const Job& job, const StartDay& day, const std::vector<CDateTime>& starts,
                    const std::string& window)
{
    auto text = tellSchedule(job.evaluation, day.date);
    if (!window.empty())
        text += "\nwindow: " + window;
    const auto clock = tellClock(day.date, starts);
    return clock.empty() ? text : text + '\n' + clock;
}

void addEvent(const Job& job, const StartDay& day, const std::string& localTime, const std::vector<CDateTime>& starts,
              const std::string& window, Lines& lines)
{
    const auto fulls = tellFulls(day.fulls);
    lines.add("BEGIN", "VEVENT");
    lines.add("UID", identifierOf(job.name, localTime));
    lines.add("DTSTAMP", job.stamp);
    if (starts.empty())
        lines.add("DTSTART;VALUE=DATE", CDateTime(day.date).toStdString("%Y%m%d"));
    else
        lines.add("DTSTART", CDateTime(instantOf(starts.front()), true).toStdString(InstantFormat));
    lines.addText("SUMMARY", job.name + (fulls.empty() ? "" : " (" + fulls + ')'));
    lines.addText("DESCRIPTION", tellDay(job, day, starts, window));
    lines.add("TRANSP", "TRANSPARENT");
    lines.add("END", "VEVENT");
}

void addDay(const Job& job, const StartDay& day, Lines& lines)
{
    if (day.starts.empty())
        addEvent(job, day, describe::isoDate(day.date), {}, tellWindow(job.evaluation, day), lines);
    const auto* window = job.evaluation.window();
    for (const auto& start : day.starts)
        addEvent(job, day, start.toStdString("%Y-%m-%d %H:%M"), {start},
                 window == nullptr ? std::string() : tellWindowAt(*window, start), lines);
}

} // namespace

std::string renderIcal(const Evaluation& evaluation, const std::vector<StartDay>& days, const std::string& job)
{
    Lines lines;
    lines.add("BEGIN", "VCALENDAR");
    lines.add("VERSION", "2.0");
    lines.add("PRODID", "-//zelmodel//next//EN");
    lines.add("CALSCALE", "GREGORIAN");
    const Job shared{evaluation, job, CDateTime::currentUtcTime().toStdString(InstantFormat)};
    for (const auto& day : days)
        addDay(shared, day, lines);
    lines.add("END", "VCALENDAR");
    return lines.text();
}

} // namespace when
