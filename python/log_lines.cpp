#include "log_lines.h"

#include <utility>

namespace python
{
namespace
{

constexpr std::uint64_t LinesOfPiece = 1024;

// Two threads that catch notes at once would put each other's sinks back in the wrong order.
std::mutex notesGuard;

/// Has the notes caught for as long as it lives.
class Catching
{
public:
    explicit Catching(std::optional<logs::LibraryNotes>& notes) : m_lock(notesGuard), m_notes(notes)
    {
        m_notes.emplace();
    }
    Catching(const Catching&) = delete;
    Catching& operator=(const Catching&) = delete;
    ~Catching() { m_notes.reset(); }

private:
    const std::lock_guard<std::mutex> m_lock;
    std::optional<logs::LibraryNotes>& m_notes;
};

} // namespace

std::optional<LogRecord> lineOf(const logs::LogReader& reader, const LogRecord*)
{
    if (reader.kind() != logs::ELine::Record)
        return std::nullopt;
    return LogRecord{reader.number(), reader.record()};
}

std::optional<SkippedLine> lineOf(const logs::LogReader& reader, const SkippedLine*)
{
    if (reader.kind() != logs::ELine::Skipped)
        return std::nullopt;
    return SkippedLine{reader.number(), reader.reason()};
}

template <class TLine>
LogLines<TLine>::LogLines(const std::string& name) : m_file(name), m_source(logs::openSource(m_file))
{
}

template <class TLine>
std::optional<TLine> LogLines<TLine>::takeReady()
{
    const std::unique_lock<std::mutex> lock(m_guard, std::try_to_lock);
    return lock ? front() : std::nullopt;
}

template <class TLine>
std::optional<TLine> LogLines<TLine>::take()
{
    const std::lock_guard<std::mutex> lock(m_guard);
    if (m_ready.empty() && !m_isRead)
        readPiece();
    if (m_ready.empty() && m_failure)
        std::rethrow_exception(std::exchange(m_failure, nullptr));
    return front();
}

template <class TLine>
bool LogLines<TLine>::isAtEnd() const
{
    const std::lock_guard<std::mutex> lock(m_guard);
    return m_isRead && m_ready.empty() && !m_failure;
}

template <class TLine>
logs::LineCounts LogLines<TLine>::counts() const
{
    const std::lock_guard<std::mutex> lock(m_guard);
    return m_reader ? m_reader->counts() : logs::LineCounts();
}

template <class TLine>
void LogLines<TLine>::readPiece()
{
    const Catching catching(m_notes);
    if (!m_reader)
        m_reader.emplace(*m_source, *m_notes);
    try
    {
        readLines();
    }
    catch (const std::exception&)
    {
        m_failure = std::current_exception();
        finish();
    }
}

template <class TLine>
void LogLines<TLine>::readLines()
{
    for (std::uint64_t lines = 0; lines < LinesOfPiece; ++lines)
    {
        if (!m_reader->next())
            return finish();
        addLine();
    }
}

template <class TLine>
void LogLines<TLine>::finish()
{
    m_isRead = true;
    if (m_reader->finish())
        addLine();
}

template <class TLine>
void LogLines<TLine>::addLine()
{
    if (auto line = lineOf(*m_reader, static_cast<const TLine*>(nullptr)))
        m_ready.push_back(std::move(*line));
}

template <class TLine>
std::optional<TLine> LogLines<TLine>::front()
{
    if (m_ready.empty())
        return std::nullopt;
    std::optional<TLine> line(std::move(m_ready.front()));
    m_ready.pop_front();
    return line;
}

template class LogLines<LogRecord>;
template class LogLines<SkippedLine>;

} // namespace python
