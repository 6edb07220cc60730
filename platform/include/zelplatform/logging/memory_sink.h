#pragma once

#include <mutex>
#include <vector>

#include <zelplatform/export.h>
#include <zelplatform/logging/log_sink.h>

namespace logging
{

/// Keeps entries in memory, in the order they came.
class ZELPLATFORM_API memory_sink : public ILogSink
{
public:
    /// Without entries.
    memory_sink();
    ~memory_sink() override;

    /// Appends a copy; safe from several threads.
    void write(const Entry& entry) override;

    /// A copy of the entries written so far.
    std::vector<Entry> entries() const;

    /// Forgets them.
    void clear();

private:
    mutable std::mutex m_guard;
    std::vector<Entry> m_entries;
};

} // namespace logging
