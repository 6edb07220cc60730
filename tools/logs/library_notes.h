#pragma once

#include <memory>
#include <string>

#include <zelplatform/logging/logging.h>

namespace logs
{

/// Catches what the library notes of a line that it skips, for as long as the object lives: nothing of it reaches the
/// log then. It is for the thread that made it; what others note goes where it went before. Objects of one process must
/// end in the opposite order of their beginning.
class LibraryNotes
{
public:
    LibraryNotes();
    LibraryNotes(const LibraryNotes&) = delete;
    LibraryNotes& operator=(const LibraryNotes&) = delete;
    ~LibraryNotes();

    /// Why the last line was skipped: the failure that was noted, or else the note itself. Forgets both.
    std::string takeReason();

private:
    class Sink;

    std::shared_ptr<logging::ILogSink> m_before;
    std::shared_ptr<Sink> m_sink;
};

} // namespace logs
