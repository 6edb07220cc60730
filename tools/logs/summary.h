#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

#include "describe/node.h"
#include "log_reader.h"

namespace logs
{

/// What the records of one session come to.
struct SessionSummary
{
    guid::guid_t session;
    zelplatform::model::CDateTimeEx first; ///< the earliest time, wherever it stands
    zelplatform::model::CDateTimeEx last;  ///< the latest one
    std::array<std::uint64_t, 4> counts{}; ///< records by severity, from Processing to Error

    ESeverity worst() const noexcept;

    /// From the first record to the last one, in seconds.
    long duration() const;
};

/// Sums up records by session. What it holds grows with the number of sessions alone.
class Summary
{
public:
    void add(const Record& record);

    /// The sessions by the time of their first record.
    std::vector<SessionSummary> sessions() const;

    std::uint64_t records() const noexcept { return m_records; }

private:
    SessionSummary& sessionOf(const Record& record);

    std::vector<SessionSummary> m_sessions;
    std::map<guid::guid_t, std::size_t> m_places;
    std::size_t m_latest = 0; ///< where the last record went: most often the next one goes there too
    std::uint64_t m_records = 0;
};

/// The moment for people, "2024-03-07 13:05:09 UTC"; before 1970, too.
std::string tellTime(const zelplatform::model::CDateTimeEx& time);

/// The summary as a list of sessions.
describe::Node describeSummary(const Summary& summary);

} // namespace logs
