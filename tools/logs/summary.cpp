#include "summary.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>

#include <zelplatform/util/util.h>

#include "describe/words.h"

namespace logs
{

using zelplatform::model::CDateTimeEx;
using zelplatform::model::ISessionLogWriter;

namespace
{

constexpr long SecondsOfMinute = 60;
constexpr long SecondsOfHour = 3600;

std::size_t placeOf(ESeverity severity) noexcept
{
    return static_cast<std::size_t>(severity);
}

// Hours are not made into days, so that columns of durations compare at a glance.
std::string hoursMinutesSeconds(long seconds)
{
    char text[32];
    std::snprintf(text, sizeof text, "%02ld:%02ld:%02ld", seconds / SecondsOfHour,
                  seconds % SecondsOfHour / SecondsOfMinute, seconds % SecondsOfMinute);
    return text;
}

const char* labelOf(ESeverity severity)
{
    switch (severity)
    {
    case ISessionLogWriter::Processing: return "Processing";
    case ISessionLogWriter::Info: return "Info";
    case ISessionLogWriter::Warn: return "Warn";
    case ISessionLogWriter::Error: break;
    }
    return "Error";
}

describe::Node describeSession(const SessionSummary& session)
{
    const auto id = util::toStr(session.session);
    auto node = describe::makeField("session", "Session", id, id);
    const auto add = [&node](std::string name, const char* label, describe::Value value, std::string words) {
        node.children.push_back(describe::makeField(std::move(name), label, std::move(value), std::move(words)));
    };
    add("id", "Session", id, id);
    add("first", "First", tellTime(session.first), tellTime(session.first));
    add("last", "Last", tellTime(session.last), tellTime(session.last));
    add("duration", "Duration", session.duration(), hoursMinutesSeconds(session.duration()));
    for (const auto& [severity, word] : ISessionLogWriter::s_msgTypes())
    {
        const auto count = session.counts[placeOf(severity)];
        add(word, labelOf(severity), count, util::toStr(count));
    }
    const auto worst = ISessionLogWriter::SeverityToString(session.worst());
    add("worst", "Worst", worst, worst);
    return node;
}

} // namespace

ESeverity SessionSummary::worst() const noexcept
{
    const auto found = std::find_if(counts.rbegin(), counts.rend(), [](std::uint64_t count) { return count > 0; });
    return static_cast<ESeverity>(counts.rend() - found - 1);
}

long SessionSummary::duration() const
{
    return (last - first).getTotalSeconds();
}

void Summary::add(const Record& record)
{
    auto& session = sessionOf(record);
    if (record.time < session.first)
        session.first = record.time;
    if (record.time > session.last)
        session.last = record.time;
    ++session.counts[placeOf(record.severity)];
    ++m_records;
}

std::vector<SessionSummary> Summary::sessions() const
{
    auto sorted = m_sessions;
    std::stable_sort(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    return sorted;
}

SessionSummary& Summary::sessionOf(const Record& record)
{
    if (m_latest < m_sessions.size() && m_sessions[m_latest].session == record.session)
        return m_sessions[m_latest];
    const auto [place, isNew] = m_places.try_emplace(record.session, m_sessions.size());
    if (isNew)
        m_sessions.push_back({record.session, record.time, record.time, {}});
    m_latest = place->second;
    return m_sessions[m_latest];
}

std::string tellTime(const CDateTimeEx& time)
{
    // Not by getUtcTime, for which all instants before 1970 are the same.
    return describe::momentUtc(datetime::CDateTime((time - CDateTimeEx()).getTotalSeconds(), true));
}

describe::Node describeSummary(const Summary& summary)
{
    const auto sessions = summary.sessions();
    auto words = describe::countOf(sessions.size(), "session");
    words += " with " + describe::countOf(summary.records(), "record");
    auto node = describe::makeField("sessions", "", "", std::move(words));
    node.isList = true;
    for (const auto& session : sessions)
        node.children.push_back(describeSession(session));
    return node;
}

} // namespace logs
