#pragma once

#include <memory>
#include <string>

#include <zelplatform/export.h>

namespace logging
{

/// How grave an entry is.
enum class ELevel : int
{
    Info,
    Warn,
    Error
};

/// One log entry: the name of the section that wrote it, its level and its text.
struct Entry
{
    /// The parts as the section wrote them; the text may quote outside texts of any length, control characters
    /// included.
    std::string section;
    ELevel level = ELevel::Info;
    std::string text;
};

/// Where entries go. Sections of several threads may write at once; an implementation guards itself. What it throws,
/// such as std::bad_alloc, passes on to the operation that logs.
struct ZELPLATFORM_API ILogSink
{
    virtual ~ILogSink();

    /// Takes one entry, complete when it returns.
    virtual void write(const Entry& entry) = 0;
};

/// Replaces the destination of all sections; an empty pointer drops all entries, which is how a process starts.
ZELPLATFORM_API void set_sink(std::shared_ptr<ILogSink> sink) noexcept;

/// The destination in force, or an empty pointer.
ZELPLATFORM_API std::shared_ptr<ILogSink> current_sink() noexcept;

} // namespace logging
