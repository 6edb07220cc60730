#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/sessions/session_log_line_parser.h>

#include "library_notes.h"
#include "line_reader.h"

namespace logs
{

using ESeverity = zelplatform::model::ISessionLogWriter::ESeverity;

/// A line that the library reads.
struct Record
{
    zelplatform::model::CDateTimeEx time;
    guid::guid_t session;
    ESeverity severity = ESeverity::Info;
    std::string message;
};

enum class ELine
{
    Record,
    Skipped, ///< the library reads no record in it, or it is too long
    Empty,   ///< the library passes over it without a note
};

/// How many lines of which kind.
struct LineCounts
{
    std::uint64_t lines = 0;
    std::uint64_t records = 0;
    std::uint64_t skipped = 0;
    std::uint64_t empty = 0;
};

/// Reads the lines of a session log by the library's own parser.
class LogReader
{
public:
    /// Both must outlive the reader.
    LogReader(ByteSource& source, LibraryNotes& notes) : m_lines(source), m_notes(notes) {}

    /// Takes the next line that has an end; false when there is none, or none yet.
    bool next();

    /// Takes the last line when it has no end; false when there is none.
    bool finish();

    ELine kind() const noexcept { return m_kind; }

    /// The line as it stands, without its end.
    const std::string& text() const noexcept { return m_lines.text(); }

    std::uint64_t number() const noexcept { return m_lines.number(); }

    /// What a line of the kind Record says.
    const Record& record() const noexcept { return m_record; }

    /// Why a line is skipped, in the library's own words where it had any.
    const std::string& reason() const noexcept { return m_reason; }

    const LineCounts& counts() const noexcept { return m_counts; }

private:
    void read();
    void skip(std::string reason);

    LineReader m_lines;
    LibraryNotes& m_notes;
    ELine m_kind = ELine::Empty;
    Record m_record;
    std::string m_reason;
    LineCounts m_counts;
};

} // namespace logs
