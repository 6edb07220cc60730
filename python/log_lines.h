#pragma once

#include <cstdint>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "files/input_file.h"
#include "logs/byte_source.h"
#include "logs/log_reader.h"

namespace python
{

/// A record of a log, and its line, counted from 1.
struct LogRecord
{
    std::uint64_t line;
    logs::Record record;
};

/// A line that the library reads no record in.
struct SkippedLine
{
    std::uint64_t line;
    std::string reason;
};

/// The line of the reader when it is of this type.
std::optional<LogRecord> lineOf(const logs::LogReader& reader, const LogRecord*);
std::optional<SkippedLine> lineOf(const logs::LogReader& reader, const SkippedLine*);

/// Reads the lines of one type from a log, in pieces, so that taking the next one is quick most of the time. Several
/// threads may take lines of the same log, and read different logs: these wait for each other, as the notes of the
/// library are the process's.
template <class TLine>
class LogLines
{
public:
    /// Opens the log, which may be compressed. Throws files::InputError.
    explicit LogLines(const std::string& name);

    /// The next line if one was read already and nobody is reading; never waits.
    std::optional<TLine> takeReady();

    /// The next line; nothing at the end, or when a piece of the log held none (see isAtEnd). What stops the reading is
    /// thrown once, after all lines before it.
    std::optional<TLine> take();

    /// Whether every line was taken.
    bool isAtEnd() const;

    /// The lines that were read so far.
    logs::LineCounts counts() const;

private:
    void readPiece();
    void readLines();
    void finish();
    void addLine();
    std::optional<TLine> front();

    mutable std::mutex m_guard; ///< for everything below
    files::InputFile m_file;
    std::unique_ptr<logs::ByteSource> m_source;
    std::optional<logs::LibraryNotes> m_notes; ///< in force while a piece is read
    std::optional<logs::LogReader> m_reader;
    std::deque<TLine> m_ready;
    std::exception_ptr m_failure;
    bool m_isRead = false;
};

extern template class LogLines<LogRecord>;
extern template class LogLines<SkippedLine>;

} // namespace python
