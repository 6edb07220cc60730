#include <zelplatform/logging/memory_sink.h>

namespace logging
{

memory_sink::memory_sink() = default;

memory_sink::~memory_sink() = default;

void memory_sink::write(const Entry& entry)
{
    const std::lock_guard<std::mutex> lock(m_guard);
    m_entries.push_back(entry);
}

std::vector<Entry> memory_sink::entries() const
{
    const std::lock_guard<std::mutex> lock(m_guard);
    return m_entries;
}

void memory_sink::clear()
{
    const std::lock_guard<std::mutex> lock(m_guard);
    m_entries.clear();
}

} // namespace logging
